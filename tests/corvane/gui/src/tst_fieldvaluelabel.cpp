#include "echotranslator.h"
#include "fieldvaluelabel.h"
#include "memleaktracer.h"
#include "messageneedmanager.h"
#include "metaobjects.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>

#include <stdexcept>
#include <thread>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Position
      lat     double
      mode    uint8 {Manual=0, Auto=2}
      modes   uint8[] {Manual=0, Auto=2}
      name    char[]
      samples int16[] optional
      alt     float optional
    Attitude
      mode    from Position
      yaw     float
    Clock
      time    uint32
)";

bool isNeeded(const MessageInfo *type)
{
    return MessageNeedManager::getDefault()->isNeeded(type);
}

} // namespace

class TestFieldValueLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasSlotsInOrder();
    void metaType_makesObjects();
    void constructor_default();
    void constructor_withAll();
    void accounting_countsEveryLabel();
    void text_ofValue_data();
    void text_ofValue();
    void text_withIndex_data();
    void text_withIndex();
    void typeWithoutField_changesNothing();
    void nullField_ignoresEverything();
    void setters_changeNothingBeforeNextMessage();
    void index_isSetAndCleared();
    void needs_followTheField();
    void needs_endWithTheLabel();
    void source_feedsTheLabel();
    void message_fromOtherThread_isQueued();
    void clearValue_showsNothing();
    void texts_areTranslatedInTheirContext();
    void exceptionOfTheFramework_passesOn();
};

void TestFieldValueLabel::metaObject_hasSlotsInOrder()
{
    const QMetaObject &metaObject = FieldValueLabel::staticMetaObject;

    QCOMPARE(metaObject.className(), "FieldValueLabel");
    QCOMPARE(metaObject.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(metaObject),
             QStringList(
                 {"slot clearValue()", "slot processMessage(const Message*)", "slot onTimeout()"}));
    QCOMPARE(metaObject.propertyCount(), QLabel::staticMetaObject.propertyCount());
}

void TestFieldValueLabel::metaType_makesObjects()
{
    const QMetaType type = FieldValueLabel::staticMetaObject.metaType();
    void *made = type.create();

    QVERIFY(made != nullptr);
    QCOMPARE(static_cast<FieldValueLabel *>(made)->text(), "N/A");
    type.destroy(made);
}

void TestFieldValueLabel::constructor_default()
{
    const FieldValueLabel label;
    const QLabel plain;

    QCOMPARE(label.text(), "N/A");
    QCOMPARE(label.getFieldInfo(), nullptr);
    QVERIFY(!label.hasIndex());
    QCOMPARE(label.getIndex(), 0U);
    QVERIFY(label.getShowInterpretedString());
    QCOMPARE(label.parent(), nullptr);
    QCOMPARE(label.windowFlags(), plain.windowFlags());
    QCOMPARE(label.alignment(), plain.alignment());
    QCOMPARE(label.frameStyle(), plain.frameStyle());
    QCOMPARE(label.font(), plain.font());
}

void TestFieldValueLabel::constructor_withAll()
{
    const TestFormat format("Demo", types);
    TestSource source(format);
    const FieldValueLabel label(format.field("Position.mode"), &source, false, -1);

    QCOMPARE(label.text(), "N/A");
    QCOMPARE(label.getFieldInfo(), format.field("Position.mode"));
    QVERIFY(!label.getShowInterpretedString());
    QVERIFY(isNeeded(format.type("Position")));
    source.send("Position{mode: Auto}");
    QCOMPARE(label.text(), "2");
}

void TestFieldValueLabel::accounting_countsEveryLabel()
{
    const auto count
        = [] { return MemLeakTracer::getInstance()->getLiveObjects().value("FieldValueLabel"); };
    const auto before = count();
    {
        const FieldValueLabel one;
        const FieldValueLabel two;
        QCOMPARE(count(), before + 2);
    }
    QCOMPARE(count(), before);
}

void TestFieldValueLabel::text_ofValue_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("interpreted");
    QTest::addColumn<QString>("plain");

    QTest::newRow("number") << "lat"
                            << "lat: 4.5"
                            << "4.5"
                            << "4.5";
    QTest::newRow("shortest digits") << "alt"
                                     << "alt: 0.1"
                                     << "0.1"
                                     << "0.1";
    QTest::newRow("symbol") << "mode"
                            << "mode: Auto"
                            << "Auto"
                            << "2";
    QTest::newRow("without symbol") << "mode"
                                    << "mode: 7"
                                    << "7"
                                    << "7";
    QTest::newRow("absent") << "alt"
                            << "lat: 4.5"
                            << "N/A"
                            << "N/A";
    QTest::newRow("three values") << "samples"
                                  << "samples: [1, 2, 3]"
                                  << "1 [...]"
                                  << "1 [...]";
    QTest::newRow("two values") << "samples"
                                << "samples: [1, 2]"
                                << "1 [...]"
                                << "1 [...]";
    QTest::newRow("one value") << "samples"
                               << "samples: [1]"
                               << "1"
                               << "1";
    QTest::newRow("no values") << "samples"
                               << "samples: []"
                               << "N/A"
                               << "N/A";
    QTest::newRow("symbols") << "modes"
                             << "modes: [Auto, Manual]"
                             << "Auto [...]"
                             << "2 [...]";
    QTest::newRow("string") << "name"
                            << "name: 'north pole'"
                            << "north pole"
                            << "north pole";
    QTest::newRow("one character") << "name"
                                   << "name: 'n'"
                                   << "n"
                                   << "n";
    QTest::newRow("empty string") << "name"
                                  << "name: ''"
                                  << "N/A"
                                  << "N/A";
}

void TestFieldValueLabel::text_ofValue()
{
    QFETCH(QString, field);
    QFETCH(QString, message);
    QFETCH(QString, interpreted);
    QFETCH(QString, plain);

    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position." + field));
    label.setText("before");
    label.processMessage(format.message("Position{" + message + "}"));
    QCOMPARE(label.text(), interpreted);

    label.setShowInterpretedString(false);
    label.processMessage(format.message("Position{" + message + "}"));
    QCOMPARE(label.text(), plain);
}

void TestFieldValueLabel::text_withIndex_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<unsigned int>("index");
    QTest::addColumn<QString>("text");

    QTest::newRow("first") << "samples" << 0U << "11";
    QTest::newRow("last") << "samples" << 2U << "33";
    QTest::newRow("beyond") << "samples" << 3U << "N/A";
    QTest::newRow("far beyond") << "samples" << 0xFFFFFFFFU << "N/A";
    QTest::newRow("character") << "name" << 1U << "b";
    QTest::newRow("character beyond") << "name" << 3U << "N/A";
    QTest::newRow("symbol") << "modes" << 1U << "Auto";
    QTest::newRow("single field") << "lat" << 0U << "4.5";
    QTest::newRow("beyond single field") << "lat" << 1U << "N/A";
}

void TestFieldValueLabel::text_withIndex()
{
    QFETCH(QString, field);
    QFETCH(unsigned int, index);
    QFETCH(QString, text);

    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position." + field));
    label.setIndex(index);
    label.setText("before");
    label.processMessage(format.message(
        "Position{lat: 4.5, samples: [11, 22, 33], name: 'abc', modes: [Manual, Auto]}"));
    QCOMPARE(label.text(), text);
}

void TestFieldValueLabel::typeWithoutField_changesNothing()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.mode"));

    label.processMessage(format.message("Position{mode: Auto}"));
    label.processMessage(format.message("Clock{time: 5}"));
    QCOMPARE(label.text(), "Auto");
    label.processMessage(format.message("Attitude{mode: Manual}"));
    QCOMPARE(label.text(), "Manual");
    label.processMessage(format.message("Attitude{yaw: 1}"));
    QCOMPARE(label.text(), "N/A");
}

void TestFieldValueLabel::nullField_ignoresEverything()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    label.processMessage(format.message("Position{lat: 4.5}"));

    label.setFieldInfo(nullptr);
    label.processMessage(format.message("Position{lat: 5.5}"));
    label.processMessage(nullptr);
    QCOMPARE(label.text(), "4.5");
}

void TestFieldValueLabel::setters_changeNothingBeforeNextMessage()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.modes"));
    const auto message = format.message("Position{modes: [Auto, Manual], lat: 1}");
    label.processMessage(message);

    label.setIndex(1);
    label.setShowInterpretedString(false);
    QCOMPARE(label.text(), "Auto [...]");
    label.processMessage(message);
    QCOMPARE(label.text(), "0");

    label.clearIndex();
    label.setFieldInfo(format.field("Position.lat"));
    QCOMPARE(label.text(), "0");
    label.processMessage(message);
    QCOMPARE(label.text(), "1");
}

void TestFieldValueLabel::index_isSetAndCleared()
{
    FieldValueLabel label;

    label.setIndex(0);
    QVERIFY(label.hasIndex());
    label.setIndex(7);
    QCOMPARE(label.getIndex(), 7U);
    label.clearIndex();
    QVERIFY(!label.hasIndex());
    QCOMPARE(label.getIndex(), 0U);
}

void TestFieldValueLabel::needs_followTheField()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label;
    QVERIFY(!isNeeded(format.type("Position")));

    label.setFieldInfo(format.field("Position.mode"));
    QVERIFY(isNeeded(format.type("Position")));
    QVERIFY(isNeeded(format.type("Attitude")));
    QVERIFY(!isNeeded(format.type("Clock")));

    label.setFieldInfo(format.field("Clock.time"));
    QVERIFY(!isNeeded(format.type("Position")));
    QVERIFY(!isNeeded(format.type("Attitude")));
    QVERIFY(isNeeded(format.type("Clock")));

    label.setFieldInfo(nullptr);
    QVERIFY(!isNeeded(format.type("Clock")));
}

void TestFieldValueLabel::needs_endWithTheLabel()
{
    const TestFormat format("Demo", types);
    {
        const FieldValueLabel one(format.field("Position.mode"));
        {
            const FieldValueLabel two(format.field("Position.lat"));
        }
        QVERIFY(isNeeded(format.type("Position")));
    }
    QVERIFY(!isNeeded(format.type("Position")));
    QVERIFY(!isNeeded(format.type("Attitude")));
}

void TestFieldValueLabel::source_feedsTheLabel()
{
    const TestFormat format("Demo", types);
    TestSource source(format);
    FieldValueLabel label(format.field("Position.lat"), &source);

    source.send("Position{lat: 1} Position{lat: 2} Clock{time: 3}");
    QCOMPARE(label.text(), "2");
    source.send("Position{}");
    QCOMPARE(label.text(), "N/A");
}

void TestFieldValueLabel::message_fromOtherThread_isQueued()
{
    const TestFormat format("Demo", types);
    const auto message = format.message("Position{lat: 4.5}");
    TestSource source(format);
    const FieldValueLabel label(format.field("Position.lat"), &source);

    std::thread([&] { source.send(message); }).join();
    QCOMPARE(label.text(), "N/A");
    QTRY_COMPARE(label.text(), "4.5");
}

void TestFieldValueLabel::clearValue_showsNothing()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    label.processMessage(format.message("Position{lat: 4.5}"));

    QVERIFY(QMetaObject::invokeMethod(&label, "clearValue"));
    QCOMPARE(label.text(), "N/A");
}

void TestFieldValueLabel::texts_areTranslatedInTheirContext()
{
    const EchoTranslator translator;
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.samples"));

    QCOMPARE(label.text(), "FieldValueLabel|N/A");
    label.processMessage(format.message("Position{samples: [1, 2]}"));
    QCOMPARE(label.text(), "1FieldValueLabel| [...]");
    label.processMessage(format.message("Position{}"));
    QCOMPARE(label.text(), "FieldValueLabel|N/A");
    label.setText("before");
    label.clearValue();
    QCOMPARE(label.text(), "FieldValueLabel|N/A");
    label.setText("before");
    label.onTimeout();
    QCOMPARE(label.text(), "FieldValueLabel|N/A");
}

void TestFieldValueLabel::exceptionOfTheFramework_passesOn()
{
    TestFormat format("Demo", types);
    format.setVirtual("Position.lat", [](const Message *) -> FieldValue {
        throw std::runtime_error("no value to be had");
    });
    FieldValueLabel label(format.field("Position.lat"));
    label.setText("before");

    QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                             label.processMessage(format.message("Position{}")));
    QCOMPARE(label.text(), "before");
}

CORVANE_GUI_TEST_MAIN(TestFieldValueLabel)

#include "tst_fieldvaluelabel.moc"
