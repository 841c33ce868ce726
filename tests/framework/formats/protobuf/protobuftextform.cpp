#include "protobuftextform.h"

#include "fieldinfo.h"
#include "message.h"
#include "messageinfo.h"
#include "protobuffieldinfo.h"
#include "protobufmessages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <google/protobuf/stubs/strutil.h>

#include <algorithm>

namespace corvane::test {

using google::protobuf::FieldDescriptor;

namespace {

QList<const ProtobufFieldInfo *> fieldsByNumber(const MessageInfo *info)
{
    QList<const ProtobufFieldInfo *> fields;
    const auto all = info->getFieldInfos();
    for (const FieldInfo *field : all)
        if (const auto *transmitted = dynamic_cast<const ProtobufFieldInfo *>(field))
            fields.append(transmitted);
    std::sort(fields.begin(), fields.end(), [](const auto *left, const auto *right) {
        return left->getField().descriptor->number() < right->getField().descriptor->number();
    });
    return fields;
}

QString quotedBytes(const QByteArray &bytes)
{
    return QLatin1Char('"') + QString::fromStdString(google::protobuf::CEscape(bytes.toStdString()))
           + QLatin1Char('"');
}

QString valueText(const ProtobufFieldInfo *field, const Message *message, unsigned int index)
{
    const QString text = field->getValueText(message, index, true);
    switch (field->getField().descriptor->type()) {
    case FieldDescriptor::TYPE_STRING:
        return quotedBytes(text.toUtf8());
    case FieldDescriptor::TYPE_BYTES:
        return quotedBytes(QByteArray::fromHex(text.mid(2).toLatin1()));
    case FieldDescriptor::TYPE_DOUBLE:
    case FieldDescriptor::TYPE_FLOAT:
        if (text == QLatin1String("NaN"))
            return QStringLiteral("nan");
        return QString(text).replace(QLatin1String("Infinity"), QLatin1String("inf"));
    default:
        return text;
    }
}

/** Whether protoc leaves the field out: it has no presence and its value is the default. */
bool isLeftOut(const ProtobufFieldInfo *field, const Message *message)
{
    const FieldDescriptor *descriptor = field->getField().descriptor;
    if (descriptor->is_repeated() || descriptor->has_presence()
        || descriptor->containing_type()->options().map_entry())
        return !field->isPresent(message);
    if (field->isStringField())
        return field->getNumberOfValues(message) == 0;
    const FieldValue value = field->getValue(message, 0);
    return value.toDouble().value_or(1) == 0.0 || field->getRawString(value) == QLatin1String("0x");
}

QString nameOf(const ProtobufFieldInfo *field)
{
    const FieldDescriptor *descriptor = field->getField().descriptor;
    if (descriptor->is_extension())
        return QStringLiteral("[%1]").arg(QString::fromStdString(descriptor->full_name()));
    return QString::fromStdString(descriptor->type() == FieldDescriptor::TYPE_GROUP
                                      ? descriptor->message_type()->name()
                                      : descriptor->name());
}

} // namespace

QStringList textForm(const Message *message, int indent)
{
    QStringList lines;
    const QString margin(indent, QLatin1Char(' '));
    const auto fields = fieldsByNumber(message->getInfo());
    for (const ProtobufFieldInfo *field : fields) {
        if (isLeftOut(field, message))
            continue;
        const QString name = margin + nameOf(field);
        if (field->isStringField()) {
            lines.append(name + QStringLiteral(": ")
                         + quotedBytes(field->getString(message).toUtf8()));
            continue;
        }
        for (unsigned int index = 0; index < field->getNumberOfValues(message); ++index) {
            const Message *part = field->getValue(message, index).getSubMessage();
            if (part != nullptr)
                lines << name + QStringLiteral(" {") << textForm(part, indent + 2)
                      << margin + QLatin1Char('}');
            else
                lines.append(name + QStringLiteral(": ") + valueText(field, message, index));
        }
    }
    return lines;
}

QString findDifference(const QStringList &ours, const QStringList &theirs)
{
    for (qsizetype i = 0; i < std::max(ours.size(), theirs.size()); ++i) {
        const QString left = ours.value(i);
        const QString right = theirs.value(i);
        if (left == right)
            continue;
        bool leftIsNumber = false;
        bool rightIsNumber = false;
        const double leftNumber = left.section(QStringLiteral(": "), 1).toDouble(&leftIsNumber);
        const double rightNumber = right.section(QStringLiteral(": "), 1).toDouble(&rightIsNumber);
        const bool sameName
            = left.section(QLatin1Char(':'), 0, 0) == right.section(QLatin1Char(':'), 0, 0);
        // Of a float of 32 bits protoc may print digits that ours leaves out, and the other way.
        if (leftIsNumber && rightIsNumber && sameName
            && (leftNumber == rightNumber
                || static_cast<float>(leftNumber) == static_cast<float>(rightNumber)))
            continue;
        return QStringLiteral("line %1: ours \"%2\", theirs \"%3\"").arg(i + 1).arg(left, right);
    }
    return {};
}

QString protocProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("protoc"));
}

namespace {

QByteArray runProtoc(const QStringList &arguments, const QByteArray &input)
{
    QProcess protoc;
    protoc.start(protocProgram(), arguments);
    protoc.write(input);
    protoc.closeWriteChannel();
    if (!protoc.waitForFinished(60'000) || protoc.exitCode() != 0)
        qFatal("protoc: %s", protoc.readAllStandardError().constData());
    return protoc.readAllStandardOutput();
}

} // namespace

QStringList
decodeWithProtoc(const QString &definitions, const QString &type, const QList<QByteArray> &messages)
{
    // One wrapper around all of them, since protoc decodes one message at a time.
    const QTemporaryDir folder;
    QFile wrapper(folder.filePath(QStringLiteral("all_messages_wrapper.proto")));
    if (!wrapper.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(wrapper.fileName()));
    wrapper.write(QStringLiteral("syntax = \"proto2\"; import \"%1\"; message AllMessagesWrapper "
                                 "{ repeated .%2 message = 1; }")
                      .arg(QFileInfo(definitions).fileName(), type)
                      .toUtf8());
    wrapper.close();
    QByteArray bytes;
    for (const QByteArray &message : messages)
        bytes += '\x0A' + framedVarint(message);
    const QByteArray output = runProtoc({QStringLiteral("--decode=AllMessagesWrapper"),
                                         QStringLiteral("-I") + QFileInfo(definitions).path(),
                                         QStringLiteral("-I") + folder.path(), wrapper.fileName()},
                                        bytes);
    QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'));
    lines.removeAll(QString());
    return lines;
}

QByteArray encodeWithProtoc(const QString &definitions, const QString &type, const QString &text)
{
    return runProtoc({QStringLiteral("--encode=") + type,
                      QStringLiteral("-I") + QFileInfo(definitions).path(), definitions},
                     text.toUtf8());
}

} // namespace corvane::test
