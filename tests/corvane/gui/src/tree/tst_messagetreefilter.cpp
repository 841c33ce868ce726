#include "memleaktracer.h"
#include "messagetreefilter.h"
#include "metaobjects.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QSignalSpy>

using namespace corvane::test;

class TestMessageTreeFilter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newFilter_letsEverythingThrough();
    void setSearchString_emitsOnChangeOnly();
    void isInFilter_comparesWholeValueTexts_data();
    void isInFilter_comparesWholeValueTexts();
    void isLoadedFor_needsASymbolicName_data();
    void isLoadedFor_needsASymbolicName();
    void accounting();
};

namespace {

const char types[] = R"(
    Position
      mode    uint8 {Manual=0, Auto=2}
      samples int16[]
      name    char[]
)";

} // namespace

void TestMessageTreeFilter::metaObject()
{
    const QMetaObject &metaObject = MessageTreeFilter::staticMetaObject;
    QCOMPARE(metaObject.className(), "MessageTreeFilter");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(metaObject),
             QStringList({"signal changed()", "slot setSearchString(QString)"}));
}

void TestMessageTreeFilter::newFilter_letsEverythingThrough()
{
    const TestFormat format("Demo", types);
    QObject parent;
    auto *filter = new MessageTreeFilter(&parent);
    QCOMPARE(filter->parent(), &parent);
    QCOMPARE(filter->getSearchString(), QString());
    QVERIFY(filter->isInFilter(format.message("Position{mode: Auto}")));
    QVERIFY(!filter->isLoadedFor(format.type("Position")));
}

void TestMessageTreeFilter::setSearchString_emitsOnChangeOnly()
{
    MessageTreeFilter filter;
    QSignalSpy changed(&filter, &MessageTreeFilter::changed);
    filter.setSearchString(QString());
    filter.setSearchString(QStringLiteral(""));
    QCOMPARE(changed.count(), 0);
    QStringList seen;
    connect(&filter, &MessageTreeFilter::changed, this,
            [&] { seen.append(filter.getSearchString()); });
    filter.setSearchString("Auto");
    filter.setSearchString("Auto");
    filter.setSearchString("auto");
    filter.setSearchString("");
    QCOMPARE(seen, QStringList({"Auto", "auto", ""}));
    QCOMPARE(changed.count(), 3);
}

void TestMessageTreeFilter::isInFilter_comparesWholeValueTexts_data()
{
    QTest::addColumn<QString>("searched");
    QTest::addColumn<bool>("found");
    QTest::newRow("symbol") << "Auto" << true;
    QTest::newRow("other case") << "auto" << false;
    QTest::newRow("part") << "Aut" << false;
    QTest::newRow("with blank") << "Auto " << false;
    QTest::newRow("raw value of a symbol") << "2" << false;
    QTest::newRow("other symbol") << "Manual" << false;
    QTest::newRow("field name") << "mode" << false;
    QTest::newRow("first element") << "7" << true;
    QTest::newRow("last element") << "-9" << true;
    QTest::newRow("wildcard") << "*" << false;
}

void TestMessageTreeFilter::isInFilter_comparesWholeValueTexts()
{
    QFETCH(QString, searched);
    QFETCH(bool, found);
    const TestFormat format("Demo", types);
    MessageTreeFilter filter;
    filter.setSearchString(searched);
    const auto message = format.message("Position{mode: Auto, samples: [7, 8, -9], name: \"x\"}");
    QCOMPARE(filter.isInFilter(message), found);
}

void TestMessageTreeFilter::isLoadedFor_needsASymbolicName_data()
{
    QTest::addColumn<QString>("searched");
    QTest::addColumn<bool>("loaded");
    QTest::newRow("none") << "" << false;
    QTest::newRow("symbol") << "Manual" << true;
    QTest::newRow("other case") << "manual" << false;
    QTest::newRow("value") << "7" << false;
}

void TestMessageTreeFilter::isLoadedFor_needsASymbolicName()
{
    QFETCH(QString, searched);
    QFETCH(bool, loaded);
    const TestFormat format("Demo", types);
    MessageTreeFilter filter;
    filter.setSearchString(searched);
    QCOMPARE(filter.isLoadedFor(format.type("Position")), loaded);
}

void TestMessageTreeFilter::accounting()
{
    const auto count
        = [] { return MemLeakTracer::getInstance()->getLiveObjects().value("MessageTreeFilter"); };
    const auto before = count();
    {
        const MessageTreeFilter filter;
        QCOMPARE(count(), before + 1);
    }
    QCOMPARE(count(), before);
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeFilter)
#include "tst_messagetreefilter.moc"
