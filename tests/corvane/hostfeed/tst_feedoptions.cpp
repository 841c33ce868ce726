#include "feedoptions.h"
#include "testcase.h"

using namespace corvane;

class TestFeedOptions : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void parse_nothing();
    void parse_good();
    void parse_bad_data();
    void parse_bad();
    void help_namesEveryOption();
};

namespace {

FeedOptions parse(const QString &arguments)
{
    return parseFeedOptions(QStringList(QStringLiteral("corvane-hostfeed"))
                            + arguments.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

void TestFeedOptions::parse_nothing()
{
    const FeedOptions options = parse(QString());
    QCOMPARE(options.error, QString());
    QCOMPARE(options.interval.count(), 500);
    QVERIFY(!options.listenPort);
    QVERIFY(!options.wantsHelp);
    QVERIFY(!options.wantsVersion);
}

void TestFeedOptions::parse_good()
{
    QCOMPARE(parse(QStringLiteral("--interval 50")).interval.count(), 50);
    QCOMPARE(parse(QStringLiteral("--interval=3600000 stdout")).interval.count(), 3600000);
    QCOMPARE(parse(QStringLiteral("--listen 5000")).listenPort, quint16(5000));
    QCOMPARE(parse(QStringLiteral("--listen 0")).listenPort, quint16(0));
    QCOMPARE(parse(QStringLiteral("stdout")).error, QString());
    QVERIFY(parse(QStringLiteral("--help")).wantsHelp);
    QVERIFY(parse(QStringLiteral("--version")).wantsVersion);
}

void TestFeedOptions::parse_bad_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("error");

    const QString interval
        = QStringLiteral("--interval takes a whole number from 50 to 3600000, not \"%1\".");
    const QString listen = QStringLiteral("--listen takes a whole number from 0 to 65535, not "
                                          "\"%1\".");
    QTest::newRow("too short") << "--interval 49" << interval.arg(49);
    QTest::newRow("too long") << "--interval 3600001" << interval.arg(3600001);
    QTest::newRow("no number") << "--interval 1s" << interval.arg(u"1s");
    QTest::newRow("no port") << "--listen 65536" << listen.arg(65536);
    QTest::newRow("negative port") << "--listen=-1" << listen.arg(-1);
    QTest::newRow("unknown word") << "stdin"
                                  << "\"stdin\" is not known; see --help.";
    QTest::newRow("two words") << "stdout stdout"
                               << "\"stdout stdout\" is not known; see --help.";
    QTest::newRow("both") << "--listen 5000 stdout"
                          << "Give either --listen or stdout, not both.";
    QTest::newRow("unknown option") << "--loud"
                                    << "Unknown option 'loud'.";
    QTest::newRow("value missing") << "--interval"
                                   << "Missing value after '--interval'.";
}

void TestFeedOptions::parse_bad()
{
    QFETCH(QString, arguments);
    QTEST(parse(arguments).error, "error");
}

void TestFeedOptions::help_namesEveryOption()
{
    const QString help = getFeedHelp();
    for (const char *option :
         {"--interval MS", "--listen PORT", "stdout", "--help", "--version", "127.0.0.1"})
        QVERIFY2(help.contains(QLatin1String(option)), option);
}

CORVANE_TEST_MAIN(TestFeedOptions)
#include "tst_feedoptions.moc"
