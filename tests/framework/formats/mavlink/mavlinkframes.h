#pragma once

#include "mavlinkdecoder.h"
#include "mavlinkformat.h"
#include "messageneed.h"
#include "messageneedmanager.h"
#include "reception.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

class FieldInfo;
class Message;

namespace corvane::test {

/** A folder with dialect files, gone with the object. */
class DialectFolder
{
public:
    /** Writes \a content into the file \a name and gives its path. */
    QString write(const QString &name, const QByteArray &content) const;
    /** The same with \a body inside <mavlink>. */
    QString writeDialect(const QString &name, const QByteArray &body) const;

    QString getPath(const QString &name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

/** What goes into a frame; the checksum is computed by an implementation of the test's own. */
struct FrameParts
{
    quint32 id = 0;
    quint8 extra = 0; ///< The byte of the type that the checksum takes.
    QByteArray payload;
    quint8 sequence = 0;
    quint8 system = 1;
    quint8 component = 1;
};

QByteArray frameVersion1(const FrameParts &parts);
/** Cuts zeros off the end of the payload, as senders do. \a flags: incompatibility flags. */
QByteArray frameVersion2(const FrameParts &parts, quint8 flags = 0);
/** A frame with the signed flag and 13 bytes of signature. */
QByteArray signedFrame(const FrameParts &parts);
/** \a frame behind its time, as recordings have it. */
QByteArray stamped(const QByteArray &frame, quint64 timeUs);

/** Reads "00 FF 7F" (blanks do not matter). */
QByteArray fromHex(const char *text);

/** The type's field of that path, "word.BIT" for a sub-field. Fails the case if there is none. */
const FieldInfo *
findField(const MavlinkFormat &format, const QString &message, const QString &path);

/** A message of its own, made of the bytes of one frame; removes its reference in the end. */
class FrameMessage
{
public:
    FrameMessage(const MavlinkFormat &format, const QByteArray &frame);
    ~FrameMessage();
    FrameMessage(const FrameMessage &) = delete;
    FrameMessage &operator=(const FrameMessage &) = delete;

    const Message *get() const { return message; }

    /** The values of a field as texts, interpreted, joined by blanks; "absent" where none is. */
    QString textOf(const QString &path) const;

private:
    const MavlinkFormat &format;
    const Message *message = nullptr; ///< One reference is ours.
};

/** A decoder with its reception, and all that they have told. */
class DecoderRun
{
public:
    /** \a needed: names of the types to decode; nothing for all of them. */
    explicit DecoderRun(const MavlinkFormat &format,
                        MavlinkFraming framing = MavlinkFraming::Automatic,
                        const std::optional<QStringList> &needed = std::nullopt);

    /** Appends \a bytes in pieces of \a pieceSize (0 for one piece) and steps after each. */
    void append(const QByteArray &bytes, qsizetype pieceSize = 0);
    void finish();

    /** The delivered messages' bytes, in order. */
    const QList<QByteArray> &getFrames() const { return frames; }

    const Reception::Totals &getTotals() { return reception.getTotals(); }

    Reception &getReception() { return reception; }

    MavlinkDecoder &getDecoder() { return decoder; }

    /** The events' texts; of one type, or all. */
    QStringList getEvents(std::optional<CorvaneEvent::Type> type = std::nullopt);
    /** "1/1: 3 frames, 1 gaps, 2 lost", one for each sender. */
    QStringList getSenders() const;
    /** Everything that was found, as text, so that two runs can be compared. */
    QString getSummary();
    /** Bytes that neither good frames (all types needed) nor skipped bytes account for. */
    qint64 getDoubtfulBytes();

private:
    MessageNeedManager manager;
    MessageNeed need;
    Reception reception;
    MavlinkDecoder decoder;
    QList<QByteArray> frames;
    qint64 frameBytes = 0;
};

} // namespace corvane::test
