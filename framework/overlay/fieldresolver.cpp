#include "fieldresolver.h"

#include "descriptions.h"
#include "expressionparser.h"
#include "messageinfo.h"
#include "names.h"
#include "overlayplan.h"

namespace corvane {

namespace {

class Resolver
{
public:
    Resolver(const OverlayPlan &plan, const MessageInfo *message, QString *problem)
        : plan(plan)
        , message(message)
        , problem(problem)
    {
    }

    bool resolve(const FieldReference &reference);

    VirtualFieldInfo::Operand steps;

private:
    bool fail(const QString &text)
    {
        *problem = text;
        return false;
    }

    bool addPart(const FieldReference::Part &part);
    bool addStep();

    const OverlayPlan &plan;
    const MessageInfo *message; ///< Not owned. Of the field that is being named.
    QString *problem; ///< Not owned.
    QString path; ///< The parts of the field that is being named.
    std::optional<unsigned int> index;
    const FieldInfo *field = nullptr; ///< Not owned.
};

bool Resolver::addPart(const FieldReference::Part &part)
{
    if (!path.isEmpty())
        path += QLatin1Char('.');
    path += part.name;
    field = plan.findField(message, path);
    if (field == nullptr)
        return fail(unknownFieldText(plan, message, path));
    if (part.index && index)
        return fail(QStringLiteral("%1 has one index, not two").arg(quoted(path)));
    if (part.index)
        index = part.index;
    return true;
}

bool Resolver::addStep()
{
    if (field->isRepeated() && !index)
        return fail(QStringLiteral("%1 is a list; name one of its values, as in %2")
                        .arg(quoted(path), quoted(path + QStringLiteral("[0]"))));
    if (!field->isRepeated() && index)
        return fail(QStringLiteral("%1 is no list and takes no index").arg(quoted(path)));
    steps.push_back({field, index.value_or(0)});
    return true;
}

bool Resolver::resolve(const FieldReference &reference)
{
    for (size_t i = 0; i < reference.parts.size(); ++i) {
        if (!addPart(reference.parts[i]))
            return false;
        const MessageInfo *inner = field->getType().getSubMessageInfo();
        const bool isLast = i + 1 == reference.parts.size();
        if (inner == nullptr || isLast)
            continue;
        if (!addStep())
            return false;
        message = inner;
        path.clear();
        index.reset();
    }
    if (!isNumeric(field))
        return fail(QStringLiteral("%1 is no number, its type is %2")
                        .arg(quoted(path), field->getType().toShortString()));
    return addStep();
}

} // namespace

std::optional<VirtualFieldInfo::Operand> resolveField(const OverlayPlan &plan,
                                                      const MessageInfo *message,
                                                      const FieldReference &reference,
                                                      QString *problem)
{
    Resolver resolver(plan, message, problem);
    if (!resolver.resolve(reference))
        return std::nullopt;
    return std::move(resolver.steps);
}

QString unknownFieldText(const OverlayPlan &plan, const MessageInfo *message, const QString &path)
{
    const QString name = message->getData()->name;
    QString text
        = QStringLiteral("message %1 has no field %2%3")
              .arg(quoted(name), quoted(path), suggestion(path, plan.getFieldPaths(message)));
    const FieldInfo *first = plan.findField(message, path.section(QLatin1Char('.'), 0, 0));
    if (first != nullptr && first->getType().getSubMessageInfo() != nullptr)
        text += QStringLiteral("; the fields of %1 are those of the message type %2")
                    .arg(quoted(first->getData()->name),
                         quoted(first->getType().getSubMessageInfo()->getData()->name));
    return text;
}

bool isNumeric(const FieldInfo *field)
{
    switch (field->getType().getCode()) {
    case FieldType::SignedInteger:
    case FieldType::UnsignedInteger:
    case FieldType::Boolean:
    case FieldType::Float:
        return true;
    case FieldType::Character:
    case FieldType::UnsignedCharacter:
        return !field->isStringField();
    default:
        return false;
    }
}

} // namespace corvane
