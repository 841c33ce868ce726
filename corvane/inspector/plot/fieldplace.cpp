#include "fieldplace.h"

#include "descriptions.h"
#include "fieldinfo.h"
#include "messageinfo.h"
#include "pathexpression.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace corvane {

namespace {

constexpr QLatin1Char dot('.');

/** Only a repeated field has elements beside the first. */
bool hasElement(const FieldInfo *field, unsigned int index)
{
    return index == 0 || field->isRepeated();
}

// The largest integers became the next power of two when they became a sample.

qint64 signedOf(double number)
{
    constexpr double limit = 9223372036854775808.0; // 2 to the 63rd
    return number < limit ? static_cast<qint64>(number) : std::numeric_limits<qint64>::max();
}

quint64 unsignedOf(double number)
{
    constexpr double limit = 18446744073709551616.0; // 2 to the 64th
    return number < limit ? static_cast<quint64>(number) : std::numeric_limits<quint64>::max();
}

} // namespace

std::optional<FieldPlace> FieldPlace::find(const QString &path)
{
    FieldPlace place;
    return place.descend(nullptr, path) ? std::optional(place) : std::nullopt;
}

/** Adds the steps that \a text names, in \a within or, where that is null, in any main message. */
bool FieldPlace::descend(const MessageInfo *within, const QString &text)
{
    if (addStep(within, text))
        return true;
    for (qsizetype i = text.indexOf(dot); i >= 0; i = text.indexOf(dot, i + 1)) {
        if (!addStep(within, text.left(i)))
            continue;
        const MessageInfo *inside = getField()->getType().getSubMessageInfo();
        if (inside != nullptr && descend(inside, text.mid(i + 1)))
            return true;
        steps.pop_back();
    }
    return false;
}

bool FieldPlace::addStep(const MessageInfo *within, const QString &text)
{
    static const QRegularExpression element(QStringLiteral("^(.*)\\[(\\d{1,9})\\]$"));
    const QRegularExpressionMatch match = element.match(text);
    const QString fieldText = match.hasMatch() ? match.captured(1) : text;
    const unsigned int index = match.hasMatch() ? match.captured(2).toUInt() : 0;

    PathExpression expression;
    if (within != nullptr) {
        expression.setConsiderSubMessages(true);
        expression.setupToMatchUnique(within);
        expression.setString(fieldText, PathExpression::FieldPart);
    } else {
        expression.setString(fieldText);
    }
    const auto fields = expression.getMatchingFieldInfos();
    if (fields.size() != 1 || !hasElement(fields.constFirst(), index))
        return false;
    if (within == nullptr) {
        auto types = expression.getMatchingMessageInfos();
        types.removeIf([&](const MessageInfo *found) { return !fields[0]->occursIn(found); });
        if (types.size() != 1)
            return false;
        type = types.constFirst();
    }
    steps.push_back({fields.constFirst(), index});
    return true;
}

QString FieldPlace::getPath() const
{
    PathExpression expression;
    expression.setupToMatchUnique(type);
    QString path = expression.getString(PathExpression::FormatPart | PathExpression::MessagePart);
    for (const Step &step : steps) {
        expression.setupToMatchUnique(step.field);
        path += dot + expression.getString(PathExpression::FieldPart) + elementText(step);
    }
    return path;
}

QString FieldPlace::getName() const
{
    QString name = type->getName();
    for (const Step &step : steps) {
        QStringList names(step.field->getName());
        const FieldInfo *parent = step.field->getParentFieldInfo();
        for (; parent != nullptr; parent = parent->getParentFieldInfo())
            names.prepend(parent->getName());
        name += dot + names.join(dot) + elementText(step);
    }
    return name;
}

QString FieldPlace::elementText(const Step &step)
{
    return step.field->isRepeated() ? QStringLiteral("[%1]").arg(step.index) : QString();
}

bool FieldPlace::isNumeric() const
{
    switch (getField()->getType().getCode()) {
    case FieldType::SignedInteger:
    case FieldType::UnsignedInteger:
    case FieldType::Boolean:
    case FieldType::Float:
        return true;
    default:
        return false;
    }
}

bool FieldPlace::isStepped() const
{
    return getField()->getType().getCode() == FieldType::Boolean
           || getField()->getData()->symbols != nullptr;
}

bool FieldPlace::isConfidential() const
{
    return std::any_of(steps.begin(), steps.end(),
                       [](const Step &step) { return step.field->isConfidential(); });
}

QString FieldPlace::textOf(double number) const
{
    const FieldType &kind = getField()->getType();
    const auto asValue = [&] {
        switch (kind.getCode()) {
        case FieldType::SignedInteger:
            return FieldValue::fromSigned(signedOf(number));
        case FieldType::Boolean:
            return FieldValue::fromBoolean(number != 0);
        case FieldType::UnsignedInteger:
            return FieldValue::fromUnsigned(unsignedOf(number));
        default:
            return kind.getSizeBits() == 32 ? FieldValue::fromFloat(static_cast<float>(number))
                                            : FieldValue::fromDouble(number);
        }
    };
    return getField()->getInterpretedString(asValue(), true);
}

FieldValue FieldPlace::read(const Message *message) const
{
    FieldValue value = steps.front().field->getValue(message, steps.front().index);
    for (size_t i = 1; i < steps.size(); ++i) {
        const Message *inside = value.getSubMessage();
        if (inside == nullptr)
            return {};
        value = steps[i].field->getValue(inside, steps[i].index);
    }
    return value;
}

} // namespace corvane
