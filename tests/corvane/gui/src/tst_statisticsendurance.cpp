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
    void rowsOfNoise_takeLittle();
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

// Damage makes ever more of them; a plain row takes twice as much.
void TestStatisticsEndurance::rowsOfNoise_takeLittle()
{
    const TestFormat format("Demo", "Position\n mode uint8\n");
    MessageStatisticsCoordinator coordinator;
    corvane::MessageStatisticsData &position = coordinator.getData()->add(
        format.getInfo(), format.type("Position"), QStringLiteral("Position"));
    MessageStatisticsWidget widget(&coordinator, nullptr);
    constexpr int rows = 1000;
    const auto measure = [&](auto &&addRow) {
        addRow(0);
        widget.updateTree();
        const qint64 before = usedBytes();
        for (int i = 1; i <= rows; ++i)
            addRow(i);
        widget.updateTree();
        return static_cast<double>(usedBytes() - before) / rows;
    };
    const double ofGap = measure([&](int i) {
        position.gaps.append({static_cast<quint64>(i) * 1000, 3, 100});
    });
    QVERIFY2(ofGap < 270, qPrintable(QString::number(ofGap)));
    const double ofInterval = measure([&](int i) {
        position.intervals.append(i);
        position.intervalCounts.insert(i, 12345);
    });
    QVERIFY2(ofInterval < 370, qPrintable(QString::number(ofInterval)));
}

CORVANE_GUI_TEST_MAIN(TestStatisticsEndurance)
#include "tst_statisticsendurance.moc"
