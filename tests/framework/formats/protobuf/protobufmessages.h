#pragma once

#include "messageneed.h"
#include "messageneedmanager.h"
#include "protobufformat.h"
#include "reception.h"
#include "streamdecoder.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

class FieldInfo;
class Message;

namespace corvane::test {

/** Definition files in a folder of their own, and the format that is loaded from them. */
class ProtobufDefinitions
{
public:
    /** \a files: contents by name; the first name by the alphabet is loaded. */
    explicit ProtobufDefinitions(const QMap<QString, QString> &files, const QString &root = {});

    QString path(const QString &name) const { return folder.filePath(name); }

    ProtobufFormat &getFormat() const { return *format; }

    /** The errors of loading, without the path of the folder. */
    QStringList getErrors() const { return errors; }

    const FieldInfo *findField(const QString &message, const QString &path) const;
    const MessageInfo *findMessage(const QString &name) const;
    /** The bytes of a message of the root type, given in the text format. */
    QByteArray encode(const QString &text) const;

private:
    QTemporaryDir folder;
    std::unique_ptr<ProtobufFormat> format;
    QStringList errors;
};

/** The message that \a bytes hold, of the root type of \a format; holds a reference on it. */
class DecodedProtobuf
{
public:
    DecodedProtobuf(const ProtobufFormat &format, const QByteArray &bytes);
    ~DecodedProtobuf();
    DecodedProtobuf(const DecodedProtobuf &) = delete;
    DecodedProtobuf &operator=(const DecodedProtobuf &) = delete;

    /** Null where the bytes are no message. */
    const Message *get() const { return message; }

private:
    const Message *message = nullptr;
};

/** \a message with its length before it. */
QByteArray framedVarint(const QByteArray &message);
QByteArray framedLittleEndian(const QByteArray &message);

/** What a decoder makes of a stream. */
class ProtobufRun
{
public:
    explicit ProtobufRun(const StreamFormat &format, const QString &framing = {});

    /** Takes \a stream in pieces of that size, or whole. */
    void append(const QByteArray &stream, qsizetype pieceSize = 0);
    void finish();

    Reception &getReception() { return reception; }

    StreamDecoder &getDecoder() { return *decoder; }

    const Reception::Totals &getTotals() const { return reception.getTotals(); }

    /** The messages as printed(), in the order of their arrival. */
    const QStringList &getMessages() const { return messages; }

    QStringList getEvents();

private:
    MessageNeedManager manager;
    MessageNeed need;
    Reception reception;
    std::unique_ptr<StreamDecoder> decoder;
    QStringList messages;
};

} // namespace corvane::test
