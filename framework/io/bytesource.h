#pragma once

#include "corvaneframework_export.h"

#include <QObject>
#include <QString>

#include <optional>

namespace corvane {

/**
 * Where the bytes of a stream come from: a file, a socket, a serial port, another program.
 *
 * A source holds back: bytes that nobody reads stay in the system (in buffers of limited size), so
 * that whoever sends them is slowed down where the medium knows how to. To pause a source, stop
 * reading.
 *
 * The order of things is always
 * open(), opened(), any number of read(), and in the end finished() or failed(); or open(),
 * failed(). After a read() that gave 0, readyRead() tells when to try again, once.
 *
 * \code
 * auto readAll = [&source, &use] {
 *     char data[4096];
 *     while (const qint64 count = source.read(data, sizeof data)) {
 *         if (count < 0)
 *             return; // finished() or failed() has been emitted
 *         use(QByteArrayView(data, count));
 *     }
 * };
 * connect(&source, &ByteSource::opened, context, readAll);
 * connect(&source, &ByteSource::readyRead, context, readAll);
 * source.open();
 * \endcode
 *
 * Slots of these signals may close() the source; to delete it they use deleteLater().
 */
class CORVANEFRAMEWORK_EXPORT ByteSource : public QObject
{
    Q_OBJECT

public:
    explicit ByteSource(QObject *parent = nullptr);
    ~ByteSource() override;

    /** Opens, or closes and opens again. opened() or failed() may be emitted before it returns. */
    void open();
    /** Gives everything back to the system and emits nothing. read() then gives -1. */
    void close();
    /**
     * Reads at most \a maximum bytes into \a data and never waits.
     *
     * Returns how many bytes were read; 0 when there are none now; -1 at the end, after which
     * getErrorMessage() tells a failure from a regular end. \a maximum must be positive.
     */
    qint64 read(char *data, qint64 maximum);

    /**
     * Goes on reading at \a offset of a regular file, also after read() has given -1. Returns false
     * and does nothing where that is impossible: for other sources and before open().
     */
    bool seek(qint64 offset);

    /** Whether read() has given -1, or the source is not open. */
    bool isAtEnd() const { return atEnd; }

    /** What went wrong, where, and what to do, as told by failed(); empty if nothing did. */
    const QString &getErrorMessage() const { return errorMessage; }

    /** A text for people, such as "udp://0.0.0.0:14550"; names the real port once opened. */
    virtual QString getName() const = 0;
    /**
     * Whether the bytes come as they are made, so that the time of their arrival means something;
     * false for regular files. Known once opened.
     */
    virtual bool isLive() const;
    /** How many datagrams the system says that it dropped; nothing where it does not tell. */
    virtual std::optional<quint64> getDroppedCount() const;
    /** How many bytes have come and wait to be read; nothing for regular files and where it is not
     * told. */
    virtual std::optional<qint64> getWaitingBytes() const;
    /** The present size in bytes of a regular file; nothing for other sources. */
    virtual std::optional<qint64> getSize() const;
    /** The offset in bytes in a regular file of what is read next; nothing for other sources. */
    virtual std::optional<qint64> getPosition() const;

Q_SIGNALS:
    /** The first read() may be tried. */
    void opened();
    /** Another read() may give bytes, or the end. */
    void readyRead();
    /** Emitted by the read() that gives -1, after all bytes have been read. */
    void finished();
    /**
     * The source could not be opened, or broke; then emitted by the read() that gives -1, after all
     * bytes have been read. \a message says what is wrong, where, and what to do.
     */
    void failed(const QString &message);

protected:
    static constexpr qint64 endOfBytes = -1;

    /** Begins to open; calls reportOpened() or reportOpenFailure(), now or later. */
    virtual void openDevice() = 0;
    /** Closes what openDevice() opened, as far as it came; also called when nothing is open. */
    virtual void closeDevice() = 0;
    /** As read(); the result -1 is a failure if it comes from failRead(). */
    virtual qint64 readDevice(char *data, qint64 maximum) = 0;

    /** As seek(). */
    virtual bool seekDevice(qint64 offset);

    void reportOpened();
    void reportOpenFailure(const QString &message);
    /** Emits readyRead() if the last read() gave 0. */
    void reportReadable();
    /** Remembers what is wrong; the result is the one of read(). */
    qint64 failRead(const QString &message);

private:
    bool atEnd = true;
    bool awaited = false; ///< The last read() gave 0.
    QString errorMessage;
};

} // namespace corvane
