#include "echotranslator.h"
#include "fieldinfo.h"
#include "fieldvaluelabel.h"
#include "memleaktracer.h"
#include "messageneedmanager.h"
#include "messagewidget.h"
#include "metaobjects.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Position
      zone    uint8 as "Time zone"
      mode    uint8 {Manual=0, Auto=2}
      status  uint16
        armed bits 0 bool
      name    char[]
      samples int16[] optional
      best    Satellite optional
    Satellite part
      id      uint8
    Empty as "Nothing at all"
    Attitude
      mode    from Position
)";

/** The form as text, one line "row: name | value" for each row. */
QStringList rowsOf(const MessageWidget &form)
{
    QStringList rows;
    const auto *grid = qobject_cast<QGridLayout *>(form.layout());
    for (int row = 0; grid != nullptr && row < grid->rowCount(); ++row) {
        const QLayoutItem *name = grid->itemAtPosition(row, 0);
        const QLayoutItem *value = grid->itemAtPosition(row, 1);
        if (name == nullptr || value == nullptr)
            continue;
        rows += qobject_cast<QLabel *>(name->widget())->text() + " | "
                + qobject_cast<FieldValueLabel *>(value->widget())->text();
    }
    return rows;
}

bool isNeeded(const MessageInfo *type)
{
    return MessageNeedManager::getDefault()->isNeeded(type);
}

} // namespace

class TestMessageWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasSlotsInOrder();
    void metaType_makesObjects();
    void constructor_default();
    void constructor_withType();
    void rows_haveEveryFieldInOrder();
    void rows_areChildrenWithoutAlignment();
    void rows_declareNeeds();
    void typeWithoutFields_givesEmptyGrid();
    void setMessageInfo_null_empties();
    void setMessageInfo_sameType_rebuilds();
    void setMessageInfo_removesEveryDirectChild();
    void displayMessage_fillsRows();
    void displayMessage_otherType_rebuilds();
    void displayMessage_otherType_whileVisible_showsRowsAtOnce();
    void displayMessage_null_empties();
    void displayMessage_sameType_keepsRows();
    void processMessage_ofType_fillsRows();
    void processMessage_otherType_changesNothing();
    void processMessage_fedBySource();
    void clearValues_keepsRows();
    void accounting_countsFormAndLabels();
    void destructor_withParent_withdrawsNeeds();
    void title_isTranslatedInItsContext();
};

void TestMessageWidget::metaObject_hasSlotsInOrder()
{
    const QMetaObject &metaObject = MessageWidget::staticMetaObject;

    QCOMPARE(metaObject.className(), "MessageWidget");
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(metaObject),
             QStringList({"slot setMessageInfo(const MessageInfo*)",
                          "slot displayMessage(const Message*)", "slot clearValues()",
                          "slot processMessage(const Message*)"}));
    QCOMPARE(metaObject.method(metaObject.methodOffset()).parameterNames(),
             QList<QByteArray>({"MessageInfo"}));
    QCOMPARE(metaObject.propertyCount(), QWidget::staticMetaObject.propertyCount());
}

void TestMessageWidget::metaType_makesObjects()
{
    const QMetaType type = MessageWidget::staticMetaObject.metaType();
    void *made = type.create();

    QVERIFY(made != nullptr);
    QCOMPARE(static_cast<MessageWidget *>(made)->windowTitle(), "No message type set");
    type.destroy(made);
}

void TestMessageWidget::constructor_default()
{
    const MessageWidget form;

    QCOMPARE(form.getMessageInfo(), nullptr);
    QCOMPARE(form.parent(), nullptr);
    QCOMPARE(form.windowFlags(), QWidget().windowFlags());
    QCOMPARE(form.windowTitle(), "No message type set");
    QCOMPARE(form.layout(), nullptr);
    QVERIFY(form.children().isEmpty());
}

void TestMessageWidget::constructor_withType()
{
    const TestFormat format("Demo", types);
    QWidget parent;
    const auto *form = new MessageWidget(&parent, format.type("Attitude"));

    QCOMPARE(form->parentWidget(), &parent);
    QCOMPARE(form->getMessageInfo(), format.type("Attitude"));
    QCOMPARE(form->windowTitle(), "Attitude");
    QCOMPARE(rowsOf(*form), QStringList({"mode | N/A"}));
}

void TestMessageWidget::rows_haveEveryFieldInOrder()
{
    const TestFormat format("Demo", types);
    const MessageWidget form(nullptr, format.type("Position"));

    QCOMPARE(rowsOf(form),
             QStringList({"Time zone | N/A", "mode | N/A", "status | N/A", "armed | N/A",
                          "name | N/A", "samples | N/A", "best | N/A"}));
}

void TestMessageWidget::rows_areChildrenWithoutAlignment()
{
    const TestFormat format("Demo", types);
    const MessageWidget form(nullptr, format.type("Attitude"));
    const auto *grid = qobject_cast<QGridLayout *>(form.layout());
    QVERIFY(grid != nullptr);

    QCOMPARE(grid->parent(), &form);
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(grid->count(), 2);
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(grid->itemAtPosition(0, column)->widget()->parent(), &form);
        QCOMPARE(grid->itemAtPosition(0, column)->alignment(), Qt::Alignment());
        QCOMPARE(grid->columnStretch(column), 0);
    }
    QCOMPARE(grid->itemAtPosition(0, 0)->widget()->metaObject(), &QLabel::staticMetaObject);
    const auto *value = qobject_cast<FieldValueLabel *>(grid->itemAtPosition(0, 1)->widget());
    QCOMPARE(value->getFieldInfo(), format.field("Attitude.mode"));
    QVERIFY(value->getShowInterpretedString());
    QVERIFY(!value->hasIndex());
}

void TestMessageWidget::rows_declareNeeds()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));
    QVERIFY(isNeeded(format.type("Attitude")));
    QVERIFY(isNeeded(format.type("Position")));

    form.setMessageInfo(format.type("Satellite"));
    QVERIFY(!isNeeded(format.type("Attitude")));
    QVERIFY(!isNeeded(format.type("Position")));
    QVERIFY(isNeeded(format.type("Satellite")));
}

void TestMessageWidget::typeWithoutFields_givesEmptyGrid()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Empty"));

    QVERIFY(form.layout() != nullptr);
    QCOMPARE(form.layout()->count(), 0);
    QCOMPARE(form.windowTitle(), "Nothing at all");
    form.displayMessage(format.message("Empty{}"));
    form.clearValues();
    QCOMPARE(form.layout()->count(), 0);
}

void TestMessageWidget::setMessageInfo_null_empties()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Position"));

    form.setMessageInfo(nullptr);
    QCOMPARE(form.getMessageInfo(), nullptr);
    QCOMPARE(form.layout(), nullptr);
    QVERIFY(form.children().isEmpty());
    QCOMPARE(form.windowTitle(), "No message type set");
    QVERIFY(!isNeeded(format.type("Position")));
    form.clearValues();
}

void TestMessageWidget::setMessageInfo_sameType_rebuilds()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));
    form.displayMessage(format.message("Attitude{mode: Auto}"));
    const QPointer<FieldValueLabel> label = form.findChild<FieldValueLabel *>();
    const QPointer<QLayout> layout = form.layout();

    form.setMessageInfo(format.type("Attitude"));
    QVERIFY(label.isNull());
    QVERIFY(layout.isNull());
    QCOMPARE(rowsOf(form), QStringList({"mode | N/A"}));
    QCOMPARE(form.findChildren<QWidget *>().size(), 2);
}

void TestMessageWidget::setMessageInfo_removesEveryDirectChild()
{
    const TestFormat format("Demo", types);
    MessageWidget form;
    const QPointer<QWidget> early = new QWidget(&form);
    form.setMessageInfo(format.type("Attitude"));
    QVERIFY(!early.isNull());

    form.setMessageInfo(format.type("Attitude"));
    QVERIFY(early.isNull());
}

void TestMessageWidget::displayMessage_fillsRows()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Position"));

    form.displayMessage(format.message(
        "Position{zone: 1, mode: Auto, status: 3, name: 'north', samples: [5, 6], best: {id: 1}}"));
    QCOMPARE(rowsOf(form),
             QStringList({"Time zone | 1", "mode | Auto", "status | 3", "armed | true",
                          "name | north", "samples | 5 [...]", "best | "}));
    form.displayMessage(format.message("Position{zone: 2}"));
    QCOMPARE(rowsOf(form),
             QStringList({"Time zone | 2", "mode | N/A", "status | N/A", "armed | N/A",
                          "name | N/A", "samples | N/A", "best | N/A"}));
}

void TestMessageWidget::displayMessage_otherType_rebuilds()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Position"));

    form.displayMessage(format.message("Attitude{mode: Auto}"));
    QCOMPARE(form.getMessageInfo(), format.type("Attitude"));
    QCOMPARE(form.windowTitle(), "Attitude");
    QCOMPARE(rowsOf(form), QStringList({"mode | Auto"}));
}

void TestMessageWidget::displayMessage_otherType_whileVisible_showsRowsAtOnce()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    form.displayMessage(format.message("Position{zone: 7}"));
    int bottom = -1;
    for (const QLabel *label : form.findChildren<QLabel *>()) {
        QVERIFY(label->isVisible());
        QVERIFY(label->height() > 0);
        bottom = qMax(bottom, label->geometry().bottom());
    }
    QVERIFY(bottom > form.findChildren<QLabel *>().constFirst()->geometry().bottom());
}

void TestMessageWidget::displayMessage_null_empties()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Position"));

    form.displayMessage(nullptr);
    QCOMPARE(form.getMessageInfo(), nullptr);
    QCOMPARE(form.windowTitle(), "No message type set");
    QVERIFY(form.children().isEmpty());
    form.displayMessage(format.message("Attitude{mode: Auto}"));
    QCOMPARE(rowsOf(form), QStringList({"mode | Auto"}));
}

void TestMessageWidget::displayMessage_sameType_keepsRows()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));
    const QPointer<FieldValueLabel> label = form.findChild<FieldValueLabel *>();

    form.displayMessage(format.message("Attitude{mode: Auto}"));
    QVERIFY(!label.isNull());
    QCOMPARE(label->text(), "Auto");
}

void TestMessageWidget::processMessage_ofType_fillsRows()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));

    form.processMessage(format.message("Attitude{mode: Auto}"));
    QCOMPARE(rowsOf(form), QStringList({"mode | Auto"}));
}

void TestMessageWidget::processMessage_otherType_changesNothing()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Attitude"));
    form.processMessage(format.message("Attitude{mode: Auto}"));

    form.processMessage(format.message("Position{mode: Manual}"));
    QCOMPARE(form.getMessageInfo(), format.type("Attitude"));
    QCOMPARE(rowsOf(form), QStringList({"mode | Auto"}));

    form.setMessageInfo(nullptr);
    form.processMessage(format.message("Position{mode: Manual}"));
    QCOMPARE(form.getMessageInfo(), nullptr);
}

void TestMessageWidget::processMessage_fedBySource()
{
    const TestFormat format("Demo", types);
    TestSource source(format);
    MessageWidget form(nullptr, format.type("Attitude"));
    QVERIFY(connect(&source, SIGNAL(newMessage(const Message *)), &form,
                    SLOT(processMessage(const Message *))));

    source.send("Attitude{mode: Auto} Position{mode: Manual}");
    QCOMPARE(rowsOf(form), QStringList({"mode | Auto"}));
}

void TestMessageWidget::clearValues_keepsRows()
{
    const TestFormat format("Demo", types);
    MessageWidget form(nullptr, format.type("Position"));
    form.displayMessage(format.message("Position{zone: 1, mode: Auto}"));
    const QPointer<FieldValueLabel> label = form.findChild<FieldValueLabel *>();

    form.clearValues();
    QVERIFY(!label.isNull());
    QCOMPARE(rowsOf(form).mid(0, 2), QStringList({"Time zone | N/A", "mode | N/A"}));
}

void TestMessageWidget::accounting_countsFormAndLabels()
{
    const TestFormat format("Demo", types);
    const auto count = [](const char *name) {
        return MemLeakTracer::getInstance()->getLiveObjects().value(QLatin1String(name));
    };
    auto *form = new MessageWidget(nullptr, format.type("Position"));
    QCOMPARE(count("MessageWidget"), 1);
    QCOMPARE(count("FieldValueLabel"), 7);
    form->setMessageInfo(format.type("Attitude"));
    QCOMPARE(count("FieldValueLabel"), 1);
    delete form;
    QCOMPARE(count("MessageWidget"), 0);
    QCOMPARE(count("FieldValueLabel"), 0);
}

void TestMessageWidget::destructor_withParent_withdrawsNeeds()
{
    const TestFormat format("Demo", types);
    {
        QWidget parent;
        new MessageWidget(&parent, format.type("Position"));
        QVERIFY(isNeeded(format.type("Position")));
    }
    QVERIFY(!isNeeded(format.type("Position")));
}

void TestMessageWidget::title_isTranslatedInItsContext()
{
    const EchoTranslator translator;
    const TestFormat format("Demo", types);
    MessageWidget form;

    QCOMPARE(form.windowTitle(), "MessageWidget|No message type set");
    form.setMessageInfo(format.type("Attitude"));
    QCOMPARE(form.windowTitle(), "Attitude");
}

CORVANE_GUI_TEST_MAIN(TestMessageWidget)

#include "tst_messagewidget.moc"
