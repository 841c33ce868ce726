#include "overlaytestformat.h"

#include "descriptions.h"
#include "enumeration.h"
#include "formatinfo.h"
#include "messageinfo.h"

#include <QStringList>

namespace corvane::test {

namespace {

const char types[] = R"(
    Position 'Where it is'
      lat     double unit "deg"
      lon     float optional
      height  int32
      mode    uint8 {Manual=0, Auto=2}
      status  uint16
        armed bits 0 bool
      temps   int16[]
      flags   uint8[]
      offset  int8
      name    char[]
      "odd name" int32
      "a.b"   int32
      time    uint64
      secret  double confidential
      code    uint8 confidential
      best    Satellite optional
      hidden  Satellite optional confidential
      sats    Satellite[]
    Satellite part
      id      uint8
      snr     float
      inner   Satellite optional
    Empty
      nothing bool
)";

QString symbolsOf(const FieldInfoData &data)
{
    if (data.symbols == nullptr)
        return {};
    QStringList texts;
    for (const Enumeration::Entry &entry : data.symbols->getEntries())
        texts += QStringLiteral("%1=%2 '%3'")
                     .arg(entry.name)
                     .arg(static_cast<qint64>(entry.value))
                     .arg(entry.description);
    return QStringLiteral(" {%1}").arg(texts.join(QStringLiteral(", ")))
           + (data.symbols->isBitMask() ? QStringLiteral(" mask") : QString());
}

QString describedField(const FieldInfo *field)
{
    const FieldInfoData &data = *field->getData();
    const QString name
        = field->getParentFieldInfo() == nullptr ? data.name : QStringLiteral("  ") + data.name;
    QString text = QStringLiteral("  %1 %2 as '%3' unit '%4' role %5 '%6'")
                       .arg(name, field->getType().toShortString(), data.displayName, data.unit)
                       .arg(data.role)
                       .arg(data.description);
    if (field->isConfidential())
        text += QStringLiteral(" confidential");
    if (field->isOptional())
        text += QStringLiteral(" optional");
    if (field->isRepeated())
        text += QStringLiteral(" repeated");
    if (field->isVirtual())
        text += QStringLiteral(" virtual");
    return text + symbolsOf(data);
}

QStringList describedMessage(const MessageInfo *message)
{
    const MessageInfoData &data = *message->getData();
    QStringList lines;
    lines += QStringLiteral("%1 as '%2' '%3'")
                 .arg(data.name, data.displayName, data.shortDescription);
    if (data.timeField != nullptr)
        lines += QStringLiteral("  time %1 * %2")
                     .arg(data.timeField->getData()->name)
                     .arg(data.timeFieldUnitUs);
    for (const FieldInfo *field : data.fields)
        lines += describedField(field);
    return lines;
}

} // namespace

OverlayTestFormat::OverlayTestFormat()
    : TestFormat(QStringLiteral("Demo"), QString::fromLatin1(types))
{
}

OverlayResult OverlayTestFormat::load(const QString &overlay) const
{
    return loadOverlayText(overlay.toUtf8(), QStringLiteral("test.json"), {getInfo()});
}

OverlayResult OverlayTestFormat::loadPosition(const QString &members) const
{
    return load(positionOverlay(members));
}

OverlayResult OverlayTestFormat::loadVirtual(const QString &definitions) const
{
    QStringList fields;
    for (const QString &definition : definitions.split(QLatin1Char(';')))
        fields += QStringLiteral(R"({"name": "%1", "expression": "%2"})")
                      .arg(definition.section(QStringLiteral(" = "), 0, 0).trimmed(),
                           definition.section(QStringLiteral(" = "), 1));
    return loadPosition(
        QStringLiteral(R"("virtualFields": [%1])").arg(fields.join(QLatin1Char(','))));
}

QString OverlayTestFormat::described() const
{
    QStringList lines;
    for (const auto &message : getInfo()->getData()->messages)
        lines += describedMessage(message.get());
    return lines.join(QLatin1Char('\n'));
}

QString OverlayTestFormat::text(const QString &path, const QString &literal) const
{
    const FieldInfo *info = field(QStringLiteral("Position.") + path);
    const MessageHolder holder = message(literal);
    if (info->getNumberOfValues(holder) == 0)
        return QStringLiteral("-");
    return info->getValueText(holder, 0, true);
}

QString positionOverlay(const QString &members)
{
    return QStringLiteral(R"({"format": "Demo", "messages": {"Position": {%1}}})").arg(members);
}

} // namespace corvane::test
