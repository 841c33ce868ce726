#include "statisticspanel.h"

#include "messagestatisticscoordinator.h"
#include "messagestatisticswidget.h"

#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

namespace corvane {

namespace {

QString settingsGroup()
{
    return QStringLiteral("statistics");
}

/** The number of \a key if it lies in a range, else 0. */
int readNumber(const QSettings &settings, const QString &key, int most)
{
    bool isNumber = false;
    const int number = settings.value(key).toInt(&isNumber);
    return isNumber && number >= 0 && number <= most ? number : 0;
}

} // namespace

StatisticsPanel::StatisticsPanel(MessageStatisticsCoordinator &coordinator, QWidget *parent)
    : QWidget(parent)
    , coordinator(coordinator)
    , hint(new QLabel(tr("Here stand count, rate, intervals and gaps of each message type, once "
                         "messages come."),
                      this))
    , tree(new MessageStatisticsWidget(&coordinator, this))
{
    hint->setWordWrap(true);
    hint->setMargin(fontMetrics().height() / 2);
    tree->setAccessibleName(tr("Reception statistics"));
    tree->setUniformRowHeights(true);
    tree->setMinimumHeight(fontMetrics().height() * 3);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(hint);
    layout->addWidget(tree, 1);
}

void StatisticsPanel::refresh()
{
    if (!isVisible())
        return;
    tree->updateTree();
    hint->setVisible(tree->topLevelItemCount() == 0);
}

void StatisticsPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void StatisticsPanel::saveSettings(QSettings &settings) const
{
    settings.beginGroup(settingsGroup());
    tree->writeSettings(settings);
    settings.endGroup();
}

void StatisticsPanel::restoreSettings(QSettings &settings)
{
    // The tree takes what it reads for its own; Qt itself refuses a header that is none.
    settings.beginGroup(settingsGroup());
    const QString column = QStringLiteral("sortColumn");
    const QString order = QStringLiteral("sortOrder");
    if (settings.contains(column)) {
        settings.setValue(column, readNumber(settings, column, tree->columnCount() - 1));
        settings.setValue(order, readNumber(settings, order, Qt::DescendingOrder));
    }
    const bool isFirstTime = !settings.contains(QStringLiteral("headerstate"));
    tree->readSettings(settings);
    settings.endGroup();
    if (isFirstTime) {
        tree->setColumnWidth(0, fontMetrics().averageCharWidth() * 34);
        tree->setColumnWidth(1, fontMetrics().averageCharWidth() * 12);
        tree->setColumnWidth(2, fontMetrics().averageCharWidth() * 22);
    }
}

} // namespace corvane
