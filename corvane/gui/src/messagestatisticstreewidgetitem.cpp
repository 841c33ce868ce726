#include "messagestatisticstreewidgetitem.h"

#include "memleaktracer.h"
#include "messageinfo.h"
#include "steadytreewidget.h"

#include <QObject>
#include <QSet>

namespace {

enum Column {
    NameColumn,
    CountColumn,
    RateColumn,
    GapsColumn
};

QString durationText(const MessageStatistics::Gap &gap)
{
    // 32 bits, also where that is too short; unsigned, so that it is defined.
    const auto duration
        = static_cast<qint32>(gap.missingEpochs * static_cast<quint32>(gap.interval));
    constexpr qint32 msPerSecond = 1000;
    if (duration >= msPerSecond)
        return QObject::tr("%1 s").arg(duration / static_cast<double>(msPerSecond));
    return QObject::tr("%1 ms").arg(duration);
}

/** A row that makes its texts when they are asked for: there may be tens of thousands. */
class LeanItem : public QTreeWidgetItem
{
public:
    QVariant data(int column, int role) const final
    {
        QVariant ownValue = QTreeWidgetItem::data(column, role);
        if (ownValue.isValid())
            return ownValue;
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return makeText(column);
        return role == Qt::ToolTipRole ? makeToolTip(column) : QVariant();
    }

    /** Adds it to \a parent, whose tree reserves cells for texts in every row that it gets. */
    void addTo(QTreeWidgetItem *parent)
    {
        parent->addChild(this);
        QTreeWidgetItem::operator=(QTreeWidgetItem());
    }

protected:
    /** Whether somebody has set a text in place of that of makeText(). */
    bool hasOwnText(int column) const
    {
        return QTreeWidgetItem::data(column, Qt::DisplayRole).isValid();
    }

    /** Nothing where there is none; the same below. */
    virtual QVariant makeText(int column) const = 0;
    virtual QVariant makeToolTip(int column) const = 0;

    /** To be called when makeText() gives something else for the columns from \a first to \a last.
     */
    void tellChange(int first, int last)
    {
        if (const QTreeWidget *tree = treeWidget())
            Q_EMIT tree->model()->dataChanged(tree->indexFromItem(this, first),
                                              tree->indexFromItem(this, last));
    }
};

class IntervalItem final : public LeanItem
{
public:
    explicit IntervalItem(long long interval)
        : interval(interval)
    {
    }

    QTreeWidgetItem *clone() const override { return new IntervalItem(*this); }

    // The count, which is all that changes, without cells for it.
    void setData(int column, int role, const QVariant &value) override
    {
        bool isNumber = false;
        const quint32 number = value.toUInt(&isNumber);
        if (!isNumber || column != CountColumn || (role != Qt::DisplayRole && role != Qt::EditRole))
        {
            LeanItem::setData(column, role, value);
            return;
        }
        if (hasOwnText(column))
            LeanItem::setData(column, Qt::DisplayRole, QVariant());
        if (count == number)
            return;
        count = number;
        tellChange(CountColumn, CountColumn);
    }

protected:
    QVariant makeText(int column) const override
    {
        if (column == CountColumn)
            return QString::number(count);
        return column == NameColumn ? getIntervalText() : QVariant();
    }

    QVariant makeToolTip(int column) const override
    {
        if (column != NameColumn && column != CountColumn)
            return {};
        return interval != 0 ? QObject::tr("Number of times the message was received at %1.")
                                   .arg(getIntervalText())
                             : QObject::tr("Number of times the messages was received\n"
                                           "with the same time stamp as previous.");
    }

private:
    QString getIntervalText() const
    {
        return MessageStatistics::getIntervalString(static_cast<unsigned long long>(interval));
    }

    long long interval; ///< Milliseconds.
    quint32 count = 0;
};

class GapItem final : public LeanItem
{
public:
    explicit GapItem(const MessageStatistics::Gap &gap)
        : gap(gap)
    {
    }

    QTreeWidgetItem *clone() const override { return new GapItem(*this); }

    void setGap(const MessageStatistics::Gap &newGap)
    {
        gap = newGap;
        // A text that somebody has set instead stands for the old one.
        for (const int column : {NameColumn, CountColumn, RateColumn})
            if (hasOwnText(column))
                setData(column, Qt::DisplayRole, QVariant());
        tellChange(NameColumn, RateColumn);
    }

    // Rows of gaps are found by their place, so no sorting may move them.
    bool operator<(const QTreeWidgetItem &) const override { return false; }

protected:
    QVariant makeText(int column) const override
    {
        switch (column) {
        case NameColumn:
            return MessageStatistics::getTimeString(gap.start);
        case CountColumn:
            return QString::number(gap.missingEpochs);
        case RateColumn:
            return durationText(gap);
        default:
            return {};
        }
    }

    QVariant makeToolTip(int column) const override
    {
        switch (column) {
        case NameColumn:
            return QObject::tr("Gaps start");
        case CountColumn:
            return QObject::tr("Missing epochs");
        case RateColumn:
            return QObject::tr("Duration");
        default:
            return {};
        }
    }

private:
    MessageStatistics::Gap gap;
};

} // namespace

MessageStatisticsTreeWidgetItem::MessageStatisticsTreeWidgetItem(MessageStatistics *statistics)
    : statistics(statistics)
    , intervalsItem(new QTreeWidgetItem)
{
    MemLeakTracer::getInstance()->doAllocateObject(
        QStringLiteral("MessageStatisticsTreeWidgetItem"));
    const QString name = statistics->getMessageName();
    const MessageInfo *info = statistics->getMessageInfo();
    setText(NameColumn, name);
    setToolTip(NameColumn, info != nullptr ? info->getShortDescriptiveText()
                                           : QObject::tr("%1 (unknown)").arg(name));
    setToolTip(CountColumn,
               QObject::tr("Number of times the %1\nmessage has been received.").arg(name));
    setToolTip(RateColumn, QObject::tr("Most recent regular rate/interval at which the %1\n"
                                       "message has been received.")
                               .arg(name));
    setToolTip(GapsColumn,
               QObject::tr("Detected gaps in regular data segments with valid time, if any."));
    intervalsItem->setText(NameColumn, QObject::tr("Rates/Intervals"));
    intervalsItem->setToolTip(
        NameColumn, QObject::tr("The rates/intervals in which this message has been received,\n"
                                "together with the corresponding count."));
    addChild(intervalsItem);
    updateContents();
}

MessageStatisticsTreeWidgetItem::~MessageStatisticsTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(
        QStringLiteral("MessageStatisticsTreeWidgetItem"));
}

MessageStatistics *MessageStatisticsTreeWidgetItem::getMessageStatistics()
{
    return statistics;
}

void MessageStatisticsTreeWidgetItem::fullExpand()
{
    setExpanded(true);
    intervalsItem->setExpanded(true);
}

void MessageStatisticsTreeWidgetItem::updateContents()
{
    SteadyTreeWidget::setItemNumber(this, CountColumn, statistics->getCount());
    SteadyTreeWidget::setItemText(
        this, RateColumn,
        statistics->isCurrentlyRegular()
            ? MessageStatistics::getIntervalString(statistics->getLastInterval())
            : QObject::tr("N/A"));
    const auto gapCount = static_cast<qint32>(statistics->getNumberOfGaps());
    SteadyTreeWidget::setItemText(this, GapsColumn,
                                  gapCount >= 1 ? QObject::tr("%1 (%2 epochs)")
                                                      .arg(gapCount)
                                                      .arg(statistics->getNumberOfMissingEpochs())
                                                : QString());
    updateIntervalSubItems();
    updateGapSubItems();
}

void MessageStatisticsTreeWidgetItem::updateIntervalSubItems()
{
    updateCountItem(noTimeItem, statistics->getCountWithUnknownTime(), QObject::tr("No time"),
                    QObject::tr("The number of times this message \n"
                                "has been received without a valid time tag."));
    updateCountItem(unknownIntervalItem, statistics->getCountWithKnownTimeButUnknownInterval(),
                    QObject::tr("Unknown interval/rate"),
                    QObject::tr("Number of times this message has been received \n"
                                "with a valid time tag but for which the interval \n"
                                "could not be determined: \n"
                                "there was no previous message with valid time, \n"
                                "and the following messages did not \n"
                                "come in at a regular rate."));
    const auto counts = statistics->getIntervalCountHash();
    const auto intervals = statistics->getIntervalsSortedOnFrequency(-1);
    QSet<long long> current;
    for (const long long interval : intervals) {
        const unsigned int count = counts.value(interval);
        if (count == 0)
            continue;
        current.insert(interval);
        SteadyTreeWidget::setItemText(getIntervalItem(interval), CountColumn,
                                      QString::number(count));
    }
    for (auto entry = intervalItems.begin(); entry != intervalItems.end();) {
        if (current.contains(entry.key())) {
            ++entry;
        } else {
            delete entry.value();
            entry = intervalItems.erase(entry);
        }
    }
}

void MessageStatisticsTreeWidgetItem::updateCountItem(QTreeWidgetItem *&item,
                                                      unsigned int count,
                                                      const QString &title,
                                                      const QString &toolTip)
{
    if (count == 0) {
        delete item;
        item = nullptr;
        return;
    }
    if (item == nullptr) {
        item = new QTreeWidgetItem;
        item->setText(NameColumn, title);
        item->setToolTip(NameColumn, toolTip);
        item->setToolTip(CountColumn, toolTip);
        intervalsItem->insertChild(0, item);
    }
    SteadyTreeWidget::setItemText(item, CountColumn, QString::number(count));
}

QTreeWidgetItem *MessageStatisticsTreeWidgetItem::getIntervalItem(long long interval)
{
    QTreeWidgetItem *&item = intervalItems[interval];
    if (item == nullptr) {
        auto *added = new IntervalItem(interval);
        added->addTo(intervalsItem);
        item = added;
    }
    return item;
}

void MessageStatisticsTreeWidgetItem::updateGapSubItems()
{
    const auto gaps = statistics->getGaps();
    if (gaps.isEmpty()) {
        delete gapsItem;
        gapsItem = nullptr;
        shownGaps.clear();
        return;
    }
    if (gapsItem == nullptr) {
        gapsItem = new QTreeWidgetItem;
        gapsItem->setToolTip(NameColumn, QObject::tr("Gaps, with time and duration"));
        addChild(gapsItem);
    }
    SteadyTreeWidget::setItemText(gapsItem, NameColumn,
                                  statistics->hasUnstoredGaps()
                                      ? QObject::tr("Gaps (incomplete list)")
                                      : QObject::tr("Gaps"));
    // The rows behind a deleted one move up, so every second one stays; people rely on it.
    for (auto i = static_cast<int>(gaps.size()); i < gapsItem->childCount(); ++i)
        delete gapsItem->child(i);
    for (qsizetype i = 0; i < gaps.size(); ++i) {
        if (i < shownGaps.size() && shownGaps.at(i) == gaps.at(i))
            continue;
        const auto row = static_cast<int>(i);
        if (row == gapsItem->childCount())
            (new GapItem(gaps.at(i)))->addTo(gapsItem);
        else
            writeGap(gapsItem->child(row), gaps.at(i));
    }
    shownGaps = gaps; // which shares its memory with that of the statistics
}

void MessageStatisticsTreeWidgetItem::writeGap(QTreeWidgetItem *item,
                                               const MessageStatistics::Gap &gap)
{
    static_cast<GapItem *>(item)->setGap(gap);
}
