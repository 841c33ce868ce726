#include "endurance.h"
#include "fakestatistics.h"
#include "messagestatisticswidget.h"
#include "testformat.h"

#include <QApplication>

using namespace corvane::test;

class TestStatisticsEndurance : public EnduranceCase
{
    Q_OBJECT

private Q_SLOTS:
    void widget();
};

void TestStatisticsEndurance::widget()
{
    const TestFormat format("Demo", "Position\n mode uint8\n");
    MessageStatisticsCoordinator coordinator;
    corvane::MessageStatisticsData &position = coordinator.getData()->add(
        format.getInfo(), format.type("Position"), QStringLiteral("Position"));
    repeat([&coordinator, &position] {
        MessageStatisticsWidget widget(&coordinator, nullptr);
        position.count = 2;
        position.gapCount = 1;
        position.gaps = {{1000, 3, 100}};
        position.regular = true;
        position.intervals = {1000, 2000};
        position.intervalCounts = {{1000, 1}, {2000, 1}};
        widget.updateTree();
        widget.expandAll();
        position.count = 3;
        position.gaps.clear();
        widget.updateTree();
    });
}

CORVANE_GUI_TEST_MAIN(TestStatisticsEndurance)
#include "tst_statisticsendurance.moc"
