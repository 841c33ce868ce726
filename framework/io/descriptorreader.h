#pragma once

#include "filedescriptor.h"

#include <QObject>

#include <optional>

class QSocketNotifier;

namespace corvane {

/**
 * Reads a file descriptor of any kind without ever waiting, and tells when it is worth trying
 * again.
 *
 * It keeps no bytes: what is not read stays in the system, which then stops the writer. The mode
 * of the descriptor is left as it is, because others may share it.
 */
class DescriptorReader : public QObject
{
    Q_OBJECT

public:
    /** Results of read() beside a number of bytes. */
    enum Result : qint64 {
        NothingNow = 0,
        End = -1,
        Error = -2 ///< errno says which.
    };

    /** \a parent: must not be null; keeps what cannot be deleted at once. */
    explicit DescriptorReader(QObject *parent);
    ~DescriptorReader() override;

    /** Takes \a newDescriptor over. \a canWait: false for files, which always have an answer. */
    void open(FileDescriptor newDescriptor, bool canWait);
    void close();

    bool isOpen() const { return descriptor.isValid(); }

    int getDescriptor() const { return descriptor.get(); }

    /** How many bytes a read() would find; nothing where the system does not tell. */
    std::optional<qint64> getWaitingBytes() const;
    /** The number of bytes read, or one of Result. */
    qint64 read(char *data, qint64 maximum);
    /** Asks for readyRead(), as a read() that gives NothingNow does. */
    void await();

Q_SIGNALS:
    /** Once after each await(), when a read() may give bytes or the end. */
    void readyRead();

private:
    bool hasAnswer() const;
    void handleActivated();

    FileDescriptor descriptor;
    QSocketNotifier *notifier = nullptr; ///< Owned by this as its parent; null without waiting.
};

} // namespace corvane
