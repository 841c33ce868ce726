#include "protobufmessages.h"

#include "descriptions.h"
#include "messageinfo.h"
#include "messageprinter.h"
#include "protobufmessage.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <google/protobuf/dynamic_message.h>
#include <google/protobuf/text_format.h>

#include <algorithm>

namespace corvane::test {

ProtobufDefinitions::ProtobufDefinitions(const QMap<QString, QString> &files, const QString &root)
    : format(std::make_unique<ProtobufFormat>(root))
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        QDir(folder.path()).mkpath(QFileInfo(path(file.key())).path());
        QFile written(path(file.key()));
        if (!written.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(written.fileName()));
        written.write(file.value().toUtf8());
    }
    const auto result = format->loadFiles({path(files.firstKey())});
    for (const LoadError &error : result.errors)
        errors.append(error.toString().remove(QFileInfo(folder.path()).canonicalFilePath()
                                              + QLatin1Char('/')));
}

const FieldInfo *ProtobufDefinitions::findField(const QString &message, const QString &path) const
{
    const MessageInfo *info = findMessage(message);
    const FieldInfo *field = info->getData()->findField(path);
    if (field == nullptr)
        qFatal("no field %s in %s", qPrintable(path), qPrintable(message));
    return field;
}

const MessageInfo *ProtobufDefinitions::findMessage(const QString &name) const
{
    const MessageInfo *info = format->getInfo()->getData()->findMessage(name);
    if (info == nullptr)
        qFatal("no message %s", qPrintable(name));
    return info;
}

QByteArray ProtobufDefinitions::encode(const QString &text) const
{
    google::protobuf::DynamicMessageFactory factory;
    const std::unique_ptr<google::protobuf::Message> message(
        factory.GetPrototype(format->getRoot())->New());
    if (!google::protobuf::TextFormat::ParseFromString(text.toStdString(), message.get()))
        qFatal("no message: %s", qPrintable(text));
    return QByteArray::fromStdString(message->SerializeAsString());
}

DecodedProtobuf::DecodedProtobuf(const ProtobufFormat &format, const QByteArray &bytes)
{
    auto content
        = std::make_unique<ProtobufContent>(format.getSchema(), *format.getLayout(), bytes);
    if (content->getDamage() != ProtobufContent::Damage::None)
        return;
    const auto &root = content->getRoot();
    message = ProtobufMessage::create(format.getRootInfo(), std::move(content), root,
                                      DecodedMessage::unknownTime, false);
}

DecodedProtobuf::~DecodedProtobuf()
{
    if (message != nullptr)
        message->removeReference();
}

QByteArray framedVarint(const QByteArray &message)
{
    QByteArray framed;
    auto size = static_cast<quint64>(message.size());
    for (; size >= 0x80; size >>= 7)
        framed.append(static_cast<char>((size & 0x7F) | 0x80));
    return framed + static_cast<char>(size) + message;
}

QByteArray framedLittleEndian(const QByteArray &message)
{
    QByteArray framed(4, '\0');
    qToLittleEndian(static_cast<quint32>(message.size()), framed.data());
    return framed + message;
}

ProtobufRun::ProtobufRun(const StreamFormat &format, const QString &framing)
    : need(&manager)
    , reception(format, &manager)
    , decoder(format.makeDecoder(reception, framing))
{
    QList<const MessageInfo *> infos;
    for (const auto &info : format.getInfo()->getData()->messages)
        infos.append(info.get());
    need.setMessagesNeeded(infos);
    QObject::connect(&reception, &MessageSource::newMessage, &reception,
                     [this](const Message *message) { messages.append(printed(message)); });
}

void ProtobufRun::append(const QByteArray &stream, qsizetype pieceSize)
{
    const qsizetype size = pieceSize > 0 ? pieceSize : qMax<qsizetype>(1, stream.size());
    for (qsizetype begin = 0; begin < stream.size(); begin += size) {
        const auto piece
            = QByteArrayView(stream).sliced(begin, std::min(size, stream.size() - begin));
        decoder->append(piece, std::nullopt);
        while (decoder->step() == StreamDecoder::Step::Advanced) {
        }
    }
}

void ProtobufRun::finish()
{
    decoder->finish();
    while (decoder->step() == StreamDecoder::Step::Advanced) {
    }
}

QStringList ProtobufRun::getEvents()
{
    QStringList texts;
    const auto entries = reception.getEventLog()->getEntries();
    for (const EventLog::Entry &entry : entries)
        texts.append(entry.event.getMessage());
    return texts;
}

} // namespace corvane::test
