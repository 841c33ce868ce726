#pragma once

#include "fakestatistics.h"
#include "messagestatisticstreewidgetitem.h"
#include "messagestatisticswidget.h"
#include "testformat.h"

#include <QStringList>

namespace corvane::test {

enum Column {
    MessageColumn,
    CountColumn,
    RateColumn,
    GapsColumn
};

inline constexpr char statisticsTypes[] = R"(
    Alpha 'The first one'
      a int8
    Beta 'The second one'
      b int8
)";

/** A coordinator whose figures the case sets, and a widget that shows it. */
class Scene
{
public:
    MessageStatisticsData &add(const QString &name)
    {
        return coordinator.getData()->add(format.getInfo(), format.type(name), name);
    }

    QTreeWidgetItem *formatItem() { return widget.topLevelItem(widget.topLevelItemCount() - 1); }

    MessageStatisticsTreeWidgetItem *item(int row = 0)
    {
        return dynamic_cast<MessageStatisticsTreeWidgetItem *>(formatItem()->child(row));
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(statisticsTypes)};
    MessageStatisticsCoordinator coordinator;
    MessageStatisticsWidget widget{&coordinator, nullptr};
};

inline QTreeWidgetItem *childOf(const QTreeWidgetItem *item, const QString &title)
{
    for (int i = 0; i < item->childCount(); ++i)
        if (item->child(i)->text(MessageColumn) == title)
            return item->child(i);
    return nullptr;
}

inline QTreeWidgetItem *intervalsOf(const QTreeWidgetItem *item)
{
    return childOf(item, QStringLiteral("Rates/Intervals"));
}

inline QTreeWidgetItem *gapsOf(const QTreeWidgetItem *item)
{
    return childOf(item, QStringLiteral("Gaps"));
}

inline QList<MessageStatistics::Gap> makeGaps(int count)
{
    QList<MessageStatistics::Gap> gaps;
    for (int i = 0; i < count; ++i)
        gaps.append({static_cast<quint64>(1000 + i), static_cast<quint32>(i % 7 + 1), 100});
    return gaps;
}

inline QStringList column(const QTreeWidgetItem *parent, int column)
{
    QStringList texts;
    for (int i = 0; i < parent->childCount(); ++i)
        texts += parent->child(i)->text(column);
    return texts;
}

} // namespace corvane::test
