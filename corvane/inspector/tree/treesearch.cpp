#include "treesearch.h"

#include "abstractfieldtreewidgetitem.h"
#include "corvane.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messagetreewidgetitem.h"

#include <QElapsedTimer>

namespace corvane {

namespace {

constexpr QLatin1Char dot('.');

QString pathOf(const MessageInfo *type)
{
    return type->getData()->format->getName() + dot + type->getData()->name;
}

QString elementText(int index)
{
    return QStringLiteral("[%1]").arg(index);
}

bool hasVisibleChild(const QTreeWidgetItem *row)
{
    for (int i = 0; i < row->childCount(); ++i)
        if (!row->child(i)->isHidden())
            return true;
    return false;
}

} // namespace

TreeSearch::TreeSearch(MessageTreeWidget &tree, const FormatInfo &format, QObject *parent)
    : QObject(parent)
    , tree(tree)
    , format(format)
{
    connect(&timer, &QTimer::timeout, this, &TreeSearch::runSlice);
}

void TreeSearch::start(const QString &newText, const QTreeWidgetItem *newOrigin)
{
    text = newText;
    searchesPaths = text.contains(dot) || text.contains(QLatin1Char('['));
    origin = newOrigin;
    hits.clear();
    hitsBeforeOrigin.reset();
    if (origin == nullptr)
        hitsBeforeOrigin = 0;
    levels = {Level{}};
    nextType = 0;
    insideByField.clear();
    if (text.isEmpty())
        timer.stop();
    else
        timer.start(0);
}

void TreeSearch::runSlice()
{
    findColumns();
    findLevelsAgain();
    QElapsedTimer sliceTime;
    sliceTime.start();
    // Asking for the time takes longer than looking at a row.
    constexpr int rowsAtOnce = 32;
    bool more = true;
    while (more && !sliceTime.hasExpired(sliceMs))
        for (int i = 0; i < rowsAtOnce && more; ++i)
            more = visitRow() || visitType();
    if (!more) {
        timer.stop();
        if (!hitsBeforeOrigin)
            hitsBeforeOrigin = hits.size(); // the row is gone
    }
    Q_EMIT progressed();
}

void TreeSearch::findColumns()
{
    nameColumn = tree.getColumnIndex(MessageTreeWidget::Name);
    valueColumn = tree.getColumnIndex(MessageTreeWidget::Value);
    rawValueColumn = tree.getColumnIndex(MessageTreeWidget::RawValue);
}

/** Rows may have come and gone since the last slice: goes on where the same numbers lead. */
void TreeSearch::findLevelsAgain()
{
    if (levels.empty())
        return;
    levels[0].row = tree.invisibleRootItem();
    for (size_t i = 1; i < levels.size(); ++i) {
        QTreeWidgetItem *row = levels[i - 1].row->child(levels[i - 1].next - 1);
        if (row == nullptr) {
            levels.resize(i);
            return;
        }
        const int next = levels[i].next;
        levels[i] = makeLevel(row, levels[i - 1]);
        levels[i].next = next;
    }
}

bool TreeSearch::visitRow()
{
    while (!levels.empty()) {
        Level &parent = levels.back();
        QTreeWidgetItem *row = parent.row->child(parent.next);
        if (row == nullptr) {
            levels.pop_back();
            continue;
        }
        ++parent.next;
        if (row == origin)
            hitsBeforeOrigin = hits.size();
        const Level level = makeLevel(row, parent);
        const bool isHidden = row->isHidden();
        // What an absent sub-message would hold is found at the latter.
        if (!isHidden && isHit(level, parent))
            addHit(row);
        if (!isHidden && row->childCount() > 0)
            levels.push_back(level);
        return true;
    }
    return false;
}

TreeSearch::Level TreeSearch::makeLevel(QTreeWidgetItem *row, const Level &parent) const
{
    Level level;
    level.row = row;
    if (const auto *fieldRow = dynamic_cast<const AbstractFieldTreeWidgetItem *>(row))
        level.field = fieldRow->getFieldInfo();
    if (!searchesPaths)
        return level;
    if (level.field != nullptr)
        level.path = level.field == parent.field ? parent.path + elementText(parent.next - 1)
                                                 : parent.path + dot + level.field->getData()->name;
    else if (const auto *messageRow = dynamic_cast<const MessageTreeWidgetItem *>(row))
        level.path = messageRow->getMessageInfo() != nullptr ? pathOf(messageRow->getMessageInfo())
                                                             : QString();
    return level;
}

bool TreeSearch::isIn(const QString &searched) const
{
    return searched.contains(text, Qt::CaseInsensitive);
}

/** What is found in the path of the row above is not found again in all rows below. */
bool TreeSearch::isPathIn(const Level &level, const Level &parent) const
{
    const qsizetype last = level.path.lastIndexOf(text, -1, Qt::CaseInsensitive);
    return last >= 0 && last + text.size() > parent.path.size();
}

bool TreeSearch::isHit(const Level &level, const Level &parent)
{
    const QTreeWidgetItem *row = level.row;
    const auto isInColumn = [&](int column) { return column >= 0 && isIn(row->text(column)); };
    // Of an element, the name alone says no more than that of its list does.
    const bool isElement = level.field != nullptr && level.field == parent.field;
    if ((!isElement && isInColumn(nameColumn)) || isInColumn(valueColumn)
        || isInColumn(rawValueColumn))
        return true;
    if (searchesPaths && isPathIn(level, parent))
        return true;
    return level.field != nullptr && !isElement && !hasVisibleChild(row) && hasInside(level.field);
}

bool TreeSearch::isHit(QTreeWidgetItem *row)
{
    if (row == nullptr || row->isHidden())
        return false;
    std::vector<QTreeWidgetItem *> way;
    for (QTreeWidgetItem *above = row; above != nullptr; above = above->parent())
        way.insert(way.begin(), above);
    findColumns();
    Level level;
    Level parent;
    level.row = tree.invisibleRootItem();
    for (QTreeWidgetItem *below : way) {
        parent = level;
        parent.next = parent.row->indexOfChild(below) + 1;
        level = makeLevel(below, parent);
    }
    return isHit(level, parent);
}

/** Whether a sub-message, or the elements of a list of them, would hold a hit. */
bool TreeSearch::hasInside(const FieldInfo *field)
{
    const MessageInfo *type = field->getType().getSubMessageInfo();
    if (type == nullptr)
        return false;
    const auto known = insideByField.constFind(field);
    if (known != insideByField.constEnd())
        return *known;
    return insideByField[field] = hasInside(type, field->getData()->name, 1);
}

bool TreeSearch::hasInside(const MessageInfo *type, const QString &path, int depth) const
{
    for (const FieldInfo *field : type->getFieldInfos()) {
        const QString fieldPath = path + dot + field->getData()->name;
        if (isIn(field->getName())
            || (searchesPaths && fieldPath.endsWith(text, Qt::CaseInsensitive)))
            return true;
        const MessageInfo *inside = field->getType().getSubMessageInfo();
        if (inside != nullptr && depth < maximumDepth && hasInside(inside, fieldPath, depth + 1))
            return true;
    }
    return false;
}

void TreeSearch::addHit(const QTreeWidgetItem *row)
{
    if (auto place = RowPlace::of(row))
        hits.push_back(std::move(*place));
}

/** Looks at the next type that has no row. */
bool TreeSearch::visitType()
{
    const auto &types = format.getData()->messages;
    if (nextType >= types.size())
        return false;
    const MessageInfo *type = types[nextType++].get();
    if (!type->isMain() || findTopRow(tree, type) != nullptr)
        return true;
    RowPlace place;
    place.type = type;
    const QString path = pathOf(type);
    if (isIn(type->getName()) || (searchesPaths && isIn(path)))
        hits.push_back(place);
    visitFields(type, place, path);
    return true;
}

void TreeSearch::visitFields(const MessageInfo *within, RowPlace &place, const QString &path)
{
    for (const FieldInfo *field : within->getFieldInfos())
        if (field->getParentFieldInfo() == nullptr)
            visitField(field, place, path);
}

void TreeSearch::visitField(const FieldInfo *field, RowPlace &place, const QString &above)
{
    if (!isShown(field))
        return;
    place.steps.push_back({field, -1});
    const QString path = above + dot + field->getData()->name;
    const MessageInfo *inside = field->getType().getSubMessageInfo();
    const bool isList = inside != nullptr && field->isRepeated();
    if (isIn(field->getName()) || (searchesPaths && path.endsWith(text, Qt::CaseInsensitive))
        || (isList && hasInside(field)))
        hits.push_back(place);
    for (const FieldInfo *part : field->getSubFieldInfos())
        visitField(part, place, path);
    if (inside != nullptr && !isList)
        visitFields(inside, place, path);
    place.steps.pop_back();
}

/** Whether \a field would have a row, but for what its parts may do for it. */
bool TreeSearch::isShown(const FieldInfo *field) const
{
    return tree.mustShowFieldsWithRole(field->getRole())
           && (tree.mustShowVirtualFields() || !field->isVirtual())
           && (Corvane::confidentialInformationDisplayEnabled() || !field->isConfidential());
}

} // namespace corvane
