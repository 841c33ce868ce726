#include "messageprinter.h"

#include "fieldinfo.h"
#include "message.h"
#include "messageinfo.h"

#include <QStringList>

namespace corvane::test {

namespace {

class Printer
{
public:
    void printType(const MessageInfo *type);
    void printFields(const Message *message, int level);

    QString getText() const { return lines.join(QLatin1Char('\n')); }

private:
    void printField(const FieldInfo *field, const Message *message, int level);
    void printSubMessages(const FieldInfo *field, const Message *message, int level);
    void printDescription(const FieldInfo *field, int level);

    void add(int level, const QString &text)
    {
        lines.append(QString(level * 2, QLatin1Char(' ')) + text);
    }

    QStringList lines;
};

QString valueTexts(const FieldInfo *field, const Message *message)
{
    const unsigned int count = field->getNumberOfValues(message);
    if (field->isStringField() && count > 0)
        return field->getString(message);
    QStringList texts;
    for (unsigned int index = 0; index < count; ++index)
        texts.append(field->getValueText(message, index, true));
    if (texts.isEmpty())
        return QStringLiteral("-");
    const QString text = texts.join(QStringLiteral(", "));
    return field->isRepeated() ? QStringLiteral("[%1]").arg(text) : text;
}

QString attributes(const FieldInfo *field)
{
    QStringList words;
    if (field->getRole() != FieldInfo::Ordinary)
        words += QStringLiteral("role %1").arg(static_cast<int>(field->getRole()));
    if (field->isOptional())
        words += QStringLiteral("optional");
    if (field->isVirtual())
        words += QStringLiteral("virtual");
    if (field->isConfidential())
        words += QStringLiteral("confidential");
    return words.join(QLatin1Char(' '));
}

void Printer::printFields(const Message *message, int level)
{
    add(level, message->getInfo()->getName());
    for (const FieldInfo *field : message->getInfo()->getFieldInfos())
        if (field->getParentFieldInfo() == nullptr)
            printField(field, message, level + 1);
}

void Printer::printField(const FieldInfo *field, const Message *message, int level)
{
    const bool hasParts = field->getType().getCode() == FieldType::SubMessage;
    if (hasParts && field->getNumberOfValues(message) > 0)
        printSubMessages(field, message, level);
    else
        add(level, field->getName() + QStringLiteral(": ") + valueTexts(field, message));
    for (const FieldInfo *subField : field->getSubFieldInfos())
        printField(subField, message, level + 1);
}

void Printer::printSubMessages(const FieldInfo *field, const Message *message, int level)
{
    const unsigned int count = field->getNumberOfValues(message);
    for (unsigned int index = 0; index < count; ++index) {
        const Message *subMessage = field->getValue(message, index).getSubMessage();
        const QString name = field->isRepeated()
                                 ? QStringLiteral("%1[%2]").arg(field->getName()).arg(index)
                                 : field->getName();
        if (subMessage == nullptr) {
            add(level, name + QStringLiteral(": -"));
            continue;
        }
        const auto heading = lines.size();
        printFields(subMessage, level);
        lines[heading] = QString(level * 2, QLatin1Char(' ')) + name;
    }
}

void Printer::printType(const MessageInfo *type)
{
    add(0, type->getName());
    for (const FieldInfo *field : type->getFieldInfos())
        if (field->getParentFieldInfo() == nullptr)
            printDescription(field, 1);
}

void Printer::printDescription(const FieldInfo *field, int level)
{
    const QString suffix = field->isRepeated() ? QStringLiteral("[]") : QString();
    const QString text = field->getName() + QStringLiteral(": ") + field->getType().toShortString()
                         + suffix + QLatin1Char(' ') + attributes(field);
    add(level, text.trimmed());
    for (const FieldInfo *subField : field->getSubFieldInfos())
        printDescription(subField, level + 1);
}

} // namespace

QString printed(const Message *message)
{
    Printer printer;
    printer.printFields(message, 0);
    return printer.getText();
}

QString printed(const MessageInfo *type)
{
    Printer printer;
    printer.printType(type);
    return printer.getText();
}

} // namespace corvane::test
