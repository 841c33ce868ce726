#include "overlayloader.h"

#include "catalogue.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "jsonparser.h"
#include "messageinfo.h"
#include "messagereader.h"
#include "names.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace corvane {

namespace {

constexpr qint64 maximumFileSize = 16LL * 1024 * 1024;

LoadError errorOfFile(const QString &file, const QString &message)
{
    LoadError error;
    error.file = file;
    error.message = message;
    return error;
}

QString tooLargeText()
{
    return QStringLiteral("too large for an overlay: more than %1 bytes").arg(maximumFileSize);
}

const FormatInfo *
findFormat(NodeReader &reader, const JsonNode &root, const QList<const FormatInfo *> &formats)
{
    const JsonNode *name = reader.require(root, "format", JsonNode::Text);
    if (name == nullptr)
        return nullptr;
    QStringList loaded;
    for (const FormatInfo *format : formats) {
        if (format->getData()->name == name->text)
            return format;
        loaded.append(quoted(format->getData()->name));
    }
    reader.addError(*name, QStringLiteral("the format %1 is not loaded; %2")
                               .arg(quoted(name->text),
                                    loaded.isEmpty() ? QStringLiteral("no format is")
                                                     : QStringLiteral("loaded: ")
                                                           + loaded.join(QStringLiteral(", "))));
    return nullptr;
}

void addUnknownMessage(NodeReader &reader, const JsonNode &node, const FormatInfo *format)
{
    QStringList names;
    for (const auto &message : format->getData()->messages)
        names.append(message->getData()->name);
    reader.addErrorAtKey(node, QStringLiteral("format %1 has no message %2%3")
                                   .arg(quoted(format->getData()->name), quoted(node.key),
                                        suggestion(node.key, names)));
}

void readMessages(NodeReader &reader, const JsonNode &messages, OverlayPlan &plan)
{
    MessageReader messageReader(reader, plan);
    for (const JsonNode &node : messages.children) {
        if (reader.getSource().isFull())
            break;
        const MessageInfo *message = plan.getFormat()->getData()->findMessage(node.key);
        if (message != nullptr)
            messageReader.readMessage(node, message);
        else
            addUnknownMessage(reader, node, plan.getFormat());
    }
    messageReader.finish();
}

void load(JsonSource &source, const QList<const FormatInfo *> &formats)
{
    const auto root = parseJson(source);
    if (!root)
        return;
    NodeReader reader(source);
    if (!reader.isOfKind(*root, JsonNode::Object))
        return;
    reader.isObject(*root, QStringLiteral("overlay"));
    const FormatInfo *format = findFormat(reader, *root, formats);
    const JsonNode *messages = reader.require(*root, "messages", JsonNode::Object);
    if (format == nullptr || messages == nullptr)
        return;
    OverlayPlan plan(format);
    const QStringList &framings = format->getData()->framings;
    if (const auto framing = reader.readChoice(*root, "framing", framings))
        plan.setFraming(framings.at(*framing));
    readMessages(reader, *messages, plan);
    if (!source.getErrors().isEmpty())
        return;
    plan.apply();
    if (Catalogue::getInstance()->getFormats().contains(format))
        Catalogue::getInstance()->announceChange();
}

} // namespace

QString OverlayResult::toString() const
{
    QStringList lines;
    for (const LoadError &error : errors)
        lines.append(error.toString());
    return lines.join(QLatin1Char('\n'));
}

OverlayResult loadOverlayText(const QByteArray &text,
                              const QString &name,
                              const QList<const FormatInfo *> &formats)
{
    if (text.size() > maximumFileSize)
        return {{errorOfFile(name, tooLargeText())}};
    JsonSource source(name, text);
    load(source, formats);
    OverlayResult result{source.getErrors()};
    std::stable_sort(result.errors.begin(), result.errors.end(),
                     [](const LoadError &left, const LoadError &right) {
                         return std::tie(left.line, left.column)
                                < std::tie(right.line, right.column);
                     });
    return result;
}

OverlayResult loadOverlay(const QString &file, const QList<const FormatInfo *> &formats)
{
    const QFileInfo info(file);
    if (!info.exists())
        return {{errorOfFile(file, QStringLiteral("there is no such file"))}};
    if (info.isDir())
        return {{errorOfFile(file, QStringLiteral("a folder; expected a file"))}};
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return {{errorOfFile(file, QStringLiteral("cannot be read: ") + source.errorString())}};
    if (source.size() > maximumFileSize)
        return {{errorOfFile(file, tooLargeText())}};
    // A device or pipe does not know its size: one byte more than allowed tells.
    const QByteArray text = source.read(maximumFileSize + 1);
    if (source.error() != QFileDevice::NoError)
        return {{errorOfFile(file, QStringLiteral("cannot be read: ") + source.errorString())}};
    return loadOverlayText(text, file, formats);
}

OverlayResult loadOverlay(const QString &file)
{
    return loadOverlay(file, Catalogue::getInstance()->getFormats());
}

} // namespace corvane
