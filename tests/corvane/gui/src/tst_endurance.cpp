#include "endurance.h"
#include "eventlogtablewidget.h"
#include "fieldvaluelabel.h"
#include "messagewidget.h"
#include "pathexpression.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlabel.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "testsource.h"

#include <QApplication>

#include <memory>

using namespace corvane::test;

/** Of the widgets without rows of their own. */
class TestEndurance : public EnduranceCase, protected PositionMessages
{
    Q_OBJECT

private Q_SLOTS:
    void label();
    void label_timeOutTakenOff();
    void label_withTimeOut_leavesItsTimer();
    void form();
    void pathLabel();
    void pathLineEdit();
    void pathComboBox();
    void pathListWidget();
    void eventLog();

private:
    void stream()
    {
        source.send(first);
        source.send(second);
    }

    template <typename Widget>
    void repeatPathWidget(Widget make)
    {
        PathExpression expression(nullptr);
        repeat([&] {
            const auto widget = make(expression);
            expression.setString(QStringLiteral("Demo.Position.height"));
            expression.setString(QStringLiteral("Demo.*"));
        });
    }

    TestSource source{format};
};

void TestEndurance::label()
{
    repeat([this] {
        FieldValueLabel label(format.field("Position.samples"), &source);
        stream();
    });
}

void TestEndurance::label_timeOutTakenOff()
{
    repeat([this] {
        FieldValueLabel label(format.field("Position.mode"), &source, true, 60'000);
        stream();
        label.setTimeOut(-1);
    });
}

void TestEndurance::label_withTimeOut_leavesItsTimer()
{
    // As people know it: each leaves a timer, and nothing but that.
    constexpr double timerBytes = 1000.0;
    repeat(
        [this] {
            FieldValueLabel label(format.field("Position.mode"), &source, true, 60'000);
            stream();
        },
        timerBytes);
}

void TestEndurance::form()
{
    repeat([this] {
        MessageWidget form(nullptr, format.type("Position"));
        form.processMessage(first);
        form.processMessage(second);
        form.clearValues();
    });
}

void TestEndurance::pathLabel()
{
    repeatPathWidget([](PathExpression &expression) {
        return std::make_unique<PathExpressionLabel>(&expression, PathExpression::AllParts);
    });
}

void TestEndurance::pathLineEdit()
{
    repeatPathWidget([](PathExpression &expression) {
        return std::make_unique<PathExpressionLineEdit>(&expression, PathExpression::AllParts);
    });
}

void TestEndurance::pathComboBox()
{
    repeatPathWidget([](PathExpression &expression) {
        return std::make_unique<PathExpressionComboBox>(&expression, PathExpression::MessagePart,
                                                        nullptr);
    });
}

void TestEndurance::pathListWidget()
{
    repeatPathWidget([](PathExpression &expression) {
        return std::make_unique<PathExpressionListWidget>(&expression, PathExpression::FieldPart,
                                                          nullptr);
    });
}

void TestEndurance::eventLog()
{
    EventLog log;
    repeat([&log] {
        EventLogTableWidget table(&log);
        table.addEntry({QDateTime(), CorvaneEvent(CorvaneEvent::Other, "It rains.")});
        table.clear();
    });
}

CORVANE_GUI_TEST_MAIN(TestEndurance)
#include "tst_endurance.moc"
