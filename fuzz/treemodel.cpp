#include "treemodel.h"

#include "corvane.h"
#include "message.h"
#include "messageinfo.h"
#include "messagetreefilter.h"

#include <QStringList>

namespace corvane::fuzz {

namespace {

using Kind = ModelRow::Kind;

bool holdsMessages(const FieldInfo *field)
{
    return field->getType().getCode() == FieldType::SubMessage;
}

Kind kindOf(const FieldInfo *field)
{
    if (field->isRepeated())
        return field->isStringField() ? Kind::String : Kind::Repeated;
    return holdsMessages(field) ? Kind::SubMessage : Kind::Value;
}

QString countText(const ModelRow &row)
{
    const QString noun = QLatin1String(holdsMessages(row.field) ? "submessage" : "repeated value");
    const auto count = row.rows.size();
    if (count == 0 && row.field->isOptional())
        return QStringLiteral("No values for optional field");
    return QStringLiteral("%1 %2%3").arg(count).arg(noun, QLatin1String(count == 1 ? "" : "s"));
}

/** What the row says from now on. */
void setTexts(ModelRow &row)
{
    QString &value = row.value;
    switch (row.kind) {
    case Kind::Message:
        value = QLatin1String(row.message != nullptr ? "" : "No message");
        row.rawValue.clear();
        return;
    case Kind::SubMessage:
        value = QLatin1String(row.isAbsent ? "Optional submessage not present" : "");
        break;
    case Kind::Value:
        value = row.isAbsent ? QStringLiteral("No value for optional field")
                             : row.field->getInterpretedString(row.fieldValue, true);
        row.rawValue = row.isAbsent ? value : row.field->getRawString(row.fieldValue);
        return;
    case Kind::String:
        value = row.string;
        break;
    case Kind::Repeated:
        value = countText(row);
        break;
    case Kind::Notice:
        break;
    }
    row.rawValue = value;
}

QString nameOf(const ModelRow &row)
{
    if (row.kind == Kind::Notice)
        return QStringLiteral("Hidden data");
    if (row.kind == Kind::Message)
        return row.type != nullptr ? row.type->getName() : QStringLiteral("No message type set");
    const bool isElement
        = row.field->isRepeated() && (row.kind == Kind::Value || row.kind == Kind::SubMessage);
    return row.field->getName() + (isElement ? QStringLiteral(" [%1]").arg(row.index) : QString());
}

QString typeOf(const ModelRow &row)
{
    switch (row.kind) {
    case Kind::Message:
        return QStringLiteral("Message");
    case Kind::SubMessage:
    case Kind::Value:
        return row.field->getType().toShortString();
    case Kind::String:
        return QStringLiteral("string");
    default:
        return {};
    }
}

QString textOf(const ModelRow &row, MessageTreeWidget::ColumnType column)
{
    if (column == MessageTreeWidget::Name)
        return nameOf(row);
    if (row.kind == Kind::Notice)
        return {};
    switch (column) {
    case MessageTreeWidget::RawValue:
        return row.rawValue;
    case MessageTreeWidget::Value:
        return row.value;
    case MessageTreeWidget::Type:
        return typeOf(row);
    default:
        return QStringLiteral("Column ") + MessageTreeWidget::getDefaultColumnName(column);
    }
}

void hideRows(ModelRow &parent, bool hidden)
{
    for (const auto &row : parent.rows)
        row->isHidden = hidden;
}

/** What was shown is gone with the message that it was part of; the texts stay. */
void forgetMessages(ModelRow &row)
{
    row.message = nullptr;
    for (const auto &below : row.rows)
        forgetMessages(*below);
}

void setFilterBelow(ModelRow &row, MessageTreeFilter *filter)
{
    row.filter = filter;
    for (const auto &below : row.rows)
        setFilterBelow(*below, filter);
}

bool isMatch(const Message *message, const QString &text)
{
    if (text.isEmpty() || message == nullptr)
        return text.isEmpty();
    for (const FieldInfo *field : message->getInfo()->getFieldInfos())
        for (unsigned i = 0; i < field->getNumberOfValues(message); ++i)
            if (field->getValueText(message, i, true) == text)
                return true;
    return false;
}

bool isAbout(const MessageInfo *type, const QString &text)
{
    for (const FieldInfo *field : type->getFieldInfos())
        if (!text.isEmpty() && field->isSymbolicRepresentation(text))
            return true;
    return false;
}

void filterElements(ModelRow &row)
{
    if (row.filter == nullptr || row.kind != Kind::Repeated || !holdsMessages(row.field))
        return;
    const QString text = row.filter->getSearchString();
    bool hidesOthers = isAbout(row.field->getType().getSubMessageInfo(), text);
    for (const auto &element : row.rows)
        hidesOthers = hidesOthers || isMatch(element->message, text);
    for (const auto &element : row.rows)
        element->isHidden = hidesOthers && !isMatch(element->message, text);
}

void applyFilterBelow(ModelRow &row, const MessageTreeFilter *filter)
{
    if (row.filter == filter)
        filterElements(row);
    for (const auto &below : row.rows)
        applyFilterBelow(*below, filter);
}

} // namespace

void TreeModel::addRow(const MessageInfo *type)
{
    rows.push_back(std::make_unique<ModelRow>());
    setType(*rows.back(), type);
    configure(*rows.back());
}

void TreeModel::removeRow(int row)
{
    rows.erase(rows.begin() + row);
}

void TreeModel::removeType(const MessageInfo *type)
{
    expandedTypes.remove(type);
    for (const FieldInfo *field : type->getFieldInfos())
        expandedFields.remove(field);
}

void TreeModel::setFilter(int row, MessageTreeFilter *filter)
{
    setFilterBelow(*rows.at(row), filter);
}

void TreeModel::applyFilter(MessageTreeFilter *filter)
{
    for (const auto &row : rows)
        applyFilterBelow(*row, filter);
}

void TreeModel::setColumns(const QList<ColumnType> &newColumns)
{
    columns = newColumns;
    configure();
}

void TreeModel::setShowPrimaryOnly(bool show)
{
    if (std::exchange(showsPrimaryOnly, show) != show)
        configure();
}

void TreeModel::setShowVirtual(bool show)
{
    if (std::exchange(showsVirtual, show) != show)
        configure();
}

void TreeModel::configure()
{
    for (const auto &row : rows)
        configure(*row);
}

void TreeModel::clear(int row)
{
    clear(*rows.at(row));
}

void TreeModel::process(const Message *message)
{
    for (const auto &row : rows)
        if (row->type == message->getInfo())
            display(*row, message);
}

void TreeModel::display(int row, const Message *message)
{
    display(*rows.at(row), message);
}

void TreeModel::setExpanded(ModelRow &row, bool expanded)
{
    if (std::exchange(row.isExpanded, expanded) == expanded)
        return;
    if (row.type != nullptr)
        expandedTypes[row.type] = expanded;
    else if (row.field != nullptr)
        expandedFields[row.field] = expanded;
}

bool TreeModel::mustShow(const FieldInfo *field) const
{
    if (field->isConfidential() && !Corvane::confidentialInformationDisplayEnabled())
        return false;
    if (field->isVirtual() && !showsVirtual)
        return false;
    if (!showsPrimaryOnly || field->getRole() < FieldInfo::Secondary)
        return true;
    for (const FieldInfo *part : field->getSubFieldInfos())
        if (mustShow(part))
            return true;
    return false;
}

void TreeModel::setType(ModelRow &row, const MessageInfo *type)
{
    if (type == row.type)
        return;
    row.type = type;
    row.message = nullptr;
    row.rows.clear();
    bool hasHidden = false;
    for (const FieldInfo *field :
         type != nullptr ? type->getFieldInfos() : QList<const FieldInfo *>())
        if (!mustShow(field))
            hasHidden = hasHidden || field->isConfidential();
        else if (field->getParentFieldInfo() == nullptr)
            configure(*addBelow(row, kindOf(field), field, 0));
    if (hasHidden) {
        auto notice = std::make_unique<ModelRow>();
        notice->kind = Kind::Notice;
        row.rows.insert(row.rows.begin(), std::move(notice));
    }
    setTexts(row);
}

ModelRow *TreeModel::addBelow(ModelRow &parent, Kind kind, const FieldInfo *field, unsigned index)
{
    auto made = std::make_unique<ModelRow>();
    ModelRow &row = *made;
    row.kind = kind;
    row.field = field;
    row.index = index;
    row.string
        = FieldValue::invalid().toString(false, -1, FieldValue::DefaultRepresentation, false);
    parent.rows.push_back(std::move(made));
    setTexts(row);
    if (kind == Kind::SubMessage)
        setType(row, field->getType().getSubMessageInfo());
    if (kind == Kind::Value)
        for (const FieldInfo *part : field->getSubFieldInfos())
            if (mustShow(part))
                addBelow(row, Kind::Value, part, index);
    setFilterBelow(row, parent.filter);
    return &row;
}

void TreeModel::display(ModelRow &row, const Message *message)
{
    setType(row, message != nullptr ? message->getInfo() : nullptr);
    row.message = message;
    setTexts(row);
    for (const auto &below : row.rows)
        process(*below, message);
}

void TreeModel::process(ModelRow &row, const Message *message)
{
    switch (row.kind) {
    case Kind::Value:
        return processValue(row, message);
    case Kind::SubMessage:
        return processSubMessage(row, message);
    case Kind::Repeated:
        return processRepeated(row, message);
    case Kind::String:
        row.string = row.field->getString(message);
        return setTexts(row);
    default:
        return;
    }
}

void TreeModel::processValue(ModelRow &row, const Message *message)
{
    const unsigned count = row.field->getNumberOfValues(message);
    row.isAbsent = row.field->isOptional() && count == 0;
    if (row.isAbsent) {
        clear(row);
    } else if (count > row.index) {
        row.fieldValue = row.field->getValue(message, row.index);
        setTexts(row);
    }
    for (const auto &part : row.rows)
        process(*part, message);
}

void TreeModel::processSubMessage(ModelRow &row, const Message *message)
{
    const unsigned count = row.field->getNumberOfValues(message);
    row.isAbsent = row.field->isOptional() && count == 0;
    if (row.isAbsent) {
        clear(row);
        hideRows(row, true);
    } else if (count > row.index) {
        display(row, row.field->getValue(message, row.index).getSubMessage());
        hideRows(row, false);
    } else {
        forgetMessages(row);
    }
}

void TreeModel::processRepeated(ModelRow &row, const Message *message)
{
    const unsigned count = row.field->getNumberOfValues(message);
    const Kind kind = holdsMessages(row.field) ? Kind::SubMessage : Kind::Value;
    while (row.rows.size() < count)
        configure(*addBelow(row, kind, row.field, static_cast<unsigned>(row.rows.size())));
    row.rows.resize(count);
    for (const auto &element : row.rows)
        process(*element, message);
    setTexts(row);
    filterElements(row);
}

void TreeModel::clear(ModelRow &row)
{
    row.message = nullptr;
    row.fieldValue = FieldValue::invalid();
    row.string = row.fieldValue.toString(false, -1, FieldValue::DefaultRepresentation, false);
    if (row.kind == Kind::Repeated)
        row.rows.clear();
    setTexts(row);
    for (const auto &below : row.rows)
        clear(*below);
}

void TreeModel::configure(ModelRow &row)
{
    if (row.kind == Kind::Notice)
        return;
    // The rows of a main message are made anew, whereby they forget what only they kept.
    if (row.type != nullptr && row.type->isMain()) {
        const MessageInfo *const type = row.type;
        const Message *const message = row.message;
        setType(row, nullptr);
        setType(row, type);
        if (message != nullptr)
            display(row, message);
    }
    for (const auto &below : row.rows)
        configure(*below);
    setTexts(row);
    if (row.kind == Kind::Message || row.kind == Kind::SubMessage)
        setExpanded(row, expandedTypes.value(row.type, true));
    else if (row.kind == Kind::Repeated || !row.field->getSubFieldInfos().isEmpty())
        setExpanded(row, expandedFields.value(row.field, false));
}

QString TreeModel::print() const
{
    QString text;
    for (const auto &row : rows)
        print(*row, {}, text);
    text.chop(1);
    return text;
}

void TreeModel::print(const ModelRow &row, const QString &indentation, QString &text) const
{
    QStringList texts;
    for (const ColumnType column : columns)
        texts += textOf(row, column);
    QString line = texts.join(QStringLiteral(" | "));
    if (row.isHidden)
        line.prepend(QLatin1Char('~'));
    if (!row.rows.empty() && !row.isExpanded)
        line.prepend(QLatin1Char('+'));
    line.prepend(indentation);
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    text += line + QLatin1Char('\n');
    for (const auto &below : row.rows)
        print(*below, indentation + QStringLiteral("  "), text);
}

} // namespace corvane::fuzz
