#include "catalogue.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "testcase.h"

#include <QSignalSpy>

using namespace corvane::test;
using corvane::Catalogue;

namespace {

std::unique_ptr<corvane::FormatInfoData> named(const QString &name)
{
    auto data = std::make_unique<corvane::FormatInfoData>();
    data->name = name;
    return data;
}

} // namespace

class TestCatalogue : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void formats_keepTheirOrder();
    void addFormat_twice_changesNothing();
    void removeFormat_unknown_changesNothing();
    void changes_areTold();

private:
    Catalogue *catalogue = Catalogue::getInstance();
    const FormatInfo one{named("One")};
    const FormatInfo two{named("Two")};
};

void TestCatalogue::formats_keepTheirOrder()
{
    catalogue->addFormat(&two);
    catalogue->addFormat(&one);
    QCOMPARE(catalogue->getFormats(), QList<const FormatInfo *>({&two, &one}));
    catalogue->removeFormat(&two);
    QCOMPARE(catalogue->getFormats(), QList<const FormatInfo *>({&one}));
    catalogue->removeFormat(&one);
    QVERIFY(catalogue->getFormats().isEmpty());
}

void TestCatalogue::addFormat_twice_changesNothing()
{
    catalogue->addFormat(&one);
    const QSignalSpy changes(catalogue, &Catalogue::changed);
    catalogue->addFormat(&one);
    QCOMPARE(catalogue->getFormats().size(), 1);
    QCOMPARE(changes.size(), 0);
    catalogue->removeFormat(&one);
}

void TestCatalogue::removeFormat_unknown_changesNothing()
{
    const QSignalSpy changes(catalogue, &Catalogue::changed);
    catalogue->removeFormat(&two);
    QCOMPARE(changes.size(), 0);
}

void TestCatalogue::changes_areTold()
{
    const QSignalSpy changes(catalogue, &Catalogue::changed);
    catalogue->addFormat(&one);
    QCOMPARE(changes.size(), 1);
    catalogue->announceChange();
    QCOMPARE(changes.size(), 2);
    catalogue->removeFormat(&one);
    QCOMPARE(changes.size(), 3);
}

CORVANE_TEST_MAIN(TestCatalogue)

#include "tst_catalogue.moc"
