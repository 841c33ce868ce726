#include "fieldvaluelabel.h"
#include "formpanel.h"
#include "latestmessages.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>
#include <QPointer>

using namespace corvane;
using namespace corvane::test;

class tst_formpanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameType_isNotBuiltAgain();
};

void tst_formpanel::sameType_isNotBuiltAgain()
{
    const TestFormat format(QStringLiteral("Demo"), QStringLiteral("A\n  x uint8\nB\n  y uint8\n"));
    TestSource source(format);
    const LatestMessages latest(source);
    FormPanel panel(latest);
    panel.showType(format.type(QStringLiteral("A")));
    const QPointer<FieldValueLabel> label = panel.findChild<FieldValueLabel *>();
    QVERIFY(!label.isNull());
    panel.showType(format.type(QStringLiteral("A")));
    QVERIFY(!label.isNull());
    panel.showType(format.type(QStringLiteral("B")));
    QVERIFY(label.isNull());
}

CORVANE_GUI_TEST_MAIN(tst_formpanel)
#include "tst_formpanel.moc"
