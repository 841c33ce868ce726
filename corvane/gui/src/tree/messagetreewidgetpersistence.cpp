#include "messageinfo.h"
#include "messagetreewidget.h"
#include "pathexpression.h"

#include <QHeaderView>
#include <QSettings>

// What is written to and read from the settings of the owner.

namespace {

QString columnsKey()
{
    return QStringLiteral("columns");
}

QString headerStateKey()
{
    return QStringLiteral("headerstate");
}

QString expandedMessagesKey()
{
    return QStringLiteral("expandedMessages");
}

QString expandedFieldsKey()
{
    return QStringLiteral("expandedFields");
}

constexpr PathExpression::Parts typeParts{PathExpression::FormatPart | PathExpression::MessagePart};

/** The expressions of all keys of \a map whose value is true. */
template <typename Info>
QStringList expandedIn(const QHash<const Info *, bool> &map,
                       PathExpression &expression,
                       PathExpression::Parts parts)
{
    QStringList texts;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (!entry.value())
            continue;
        expression.setupToMatchUnique(entry.key());
        texts.append(expression.getString(parts));
    }
    return texts;
}

} // namespace

void MessageTreeWidget::saveSettings(QSettings &settings)
{
    QVariantList list;
    for (const ColumnType type : std::as_const(columns))
        list.append(static_cast<int>(type));
    settings.setValue(columnsKey(), list);
    settings.setValue(headerStateKey(), header()->saveState());
}

void MessageTreeWidget::restoreSettings(QSettings &settings)
{
    if (settings.contains(columnsKey())) {
        clearColumns(true);
        const QVariant stored = settings.value(columnsKey());
        const int kind = stored.typeId();
        // toList() of a plain text would take it apart into its characters.
        const bool isList = kind == QMetaType::QVariantList || kind == QMetaType::QStringList;
        const QVariantList list = isList ? stored.toList() : QVariantList();
        for (const QVariant &type : list)
            addColumn(static_cast<ColumnType>(type.toInt()), true);
    }
    constexpr int firstColumnWidth = 150;
    const QByteArray headerState = settings.value(headerStateKey()).toByteArray();
    if (headerState.isEmpty())
        setColumnWidth(0, firstColumnWidth);
    else
        header()->restoreState(headerState);
}

void MessageTreeWidget::saveExpansionState(QSettings &settings)
{
    PathExpression expression(nullptr);
    settings.setValue(expandedMessagesKey(),
                      expandedIn(sMessageInfoExpandedCollapsedMap, expression, typeParts));
    settings.setValue(expandedFieldsKey(), expandedIn(sFieldInfoExpandedCollapsedMap, expression,
                                                      PathExpression::AllParts));
}

void MessageTreeWidget::loadExpansionState(QSettings &settings)
{
    PathExpression expression(nullptr);
    expression.setConsiderSubMessages(true);
    const auto read
        = [&](const QString &key) { return settings.value(key, QStringList()).toStringList(); };
    for (const QString &text : read(expandedMessagesKey())) {
        expression.setString(text);
        const auto matching = expression.getMatchingMessageInfos();
        if (matching.size() == 1)
            sMessageInfoExpandedCollapsedMap[matching.constFirst()] = true;
    }
    for (const QString &text : read(expandedFieldsKey())) {
        expression.setString(text);
        const auto matching = expression.getMatchingFieldInfos();
        if (matching.size() == 1)
            sFieldInfoExpandedCollapsedMap[matching.constFirst()] = true;
    }
}
