#include "options.h"
#include "testcase.h"

using corvane::Options;

class tst_options : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void parse_noArguments_runsWithoutSource();
    void parse_everyOption_isTaken();
    void parse_export_isTaken();
    void parse_repeatedFiles_areKeptInOrder();
    void parse_speed_data();
    void parse_speed();
    void parse_mistake_isExplained_data();
    void parse_mistake_isExplained();
    void parse_helpAndVersion_winOverMistakes();
    void getHelpText_namesEveryOption();
};

namespace {

Options parse(const QString &line)
{
    const QStringList arguments = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return Options::parse(QStringList{QStringLiteral("corvane-inspector")} + arguments);
}

} // namespace

void tst_options::parse_noArguments_runsWithoutSource()
{
    const Options options = parse(QString());
    QCOMPARE(options.wish, Options::Wish::Run);
    QVERIFY(!options.source);
    QCOMPARE(options.framing, QString());
    QCOMPARE(options.speed, std::optional(1.0));
    QCOMPARE(options.report, Options::Report::None);
}

void tst_options::parse_everyOption_isTaken()
{
    const Options options
        = parse(QStringLiteral("--definitions a.xml --overlay b.json --framing tlog "
                               "--speed 2.5 --report json --duration 1.5 c.tlog"));
    QCOMPARE(options.error, QString());
    QCOMPARE(options.definitions, QStringList{QStringLiteral("a.xml")});
    QCOMPARE(options.overlays, QStringList{QStringLiteral("b.json")});
    QCOMPARE(options.framing, QStringLiteral("tlog"));
    QCOMPARE(options.speed, std::optional(2.5));
    QCOMPARE(options.report, Options::Report::Json);
    QCOMPARE(options.durationSeconds, std::optional(1.5));
    QCOMPARE(options.source->text, QStringLiteral("c.tlog"));

    QVERIFY(!options.source->isFollowed);
    QVERIFY(parse(QStringLiteral("--definitions a.xml --follow b")).source->isFollowed);
    QVERIFY(!options.restartsProgram);
    QVERIFY(parse(QStringLiteral("--definitions a.xml --restart exec:b")).restartsProgram);
    const Options feed = parse(QStringLiteral("--definitions a.proto --root a.Root --import-path x "
                                              "--import-path y --framing le32 -"));
    QCOMPARE(feed.root, QStringLiteral("a.Root"));
    QCOMPARE(feed.importFolders, (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
    QCOMPARE(feed.framing, QStringLiteral("le32"));

    const Options picture
        = parse(QStringLiteral("--framing raw --screenshot w.png --after 7 --definitions a.xml -"));
    QCOMPARE(picture.framing, QStringLiteral("raw"));
    QCOMPARE(picture.screenshotFile, QStringLiteral("w.png"));
    QCOMPARE(picture.screenshotAfterSeconds, 7.0);
    QCOMPARE(picture.source->kind, corvane::SourceAddress::Kind::StandardInput);
}

void tst_options::parse_export_isTaken()
{
    const Options options
        = parse(QStringLiteral("--definitions a --export csv --select A.b --select *.c.d? "
                               "-o out.csv --raw --duration 2 source"));
    QCOMPARE(options.error, QString());
    QCOMPARE(options.exportFormat, std::optional(corvane::ExportFormat::Csv));
    QCOMPARE(options.selectedPaths, (QStringList{"A.b", "*.c.d?"}));
    QCOMPARE(options.outputFile, QStringLiteral("out.csv"));
    QCOMPARE(options.valueNames, corvane::ValueNames::Raw);
    QCOMPARE(options.durationSeconds, std::optional(2.0));

    const Options piped = parse(QStringLiteral("--definitions a --export jsonl --output - b"));
    QCOMPARE(piped.exportFormat, std::optional(corvane::ExportFormat::JsonLines));
    QCOMPARE(piped.outputFile, QString());
    QCOMPARE(piped.valueNames, corvane::ValueNames::Symbolic);
}

void tst_options::parse_repeatedFiles_areKeptInOrder()
{
    const Options options
        = parse(QStringLiteral("--definitions a --overlay x --definitions b --overlay y"));
    QCOMPARE(options.definitions, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(options.overlays, (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
}

void tst_options::parse_speed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("speed"); // 0 for as fast as possible
    QTest::newRow("twice") << "2" << 2.0;
    QTest::newRow("slower") << "0.25" << 0.25;
    QTest::newRow("max") << "max" << 0.0;
}

void tst_options::parse_speed()
{
    QFETCH(QString, text);
    QFETCH(double, speed);
    const Options options = parse(QStringLiteral("--speed ") + text);
    QCOMPARE(options.wish, Options::Wish::Run);
    QCOMPARE(options.speed.value_or(0.0), speed);
}

void tst_options::parse_mistake_isExplained_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("part");
    QTest::newRow("unknown option") << "--colour red"
                                    << "colour";
    QTest::newRow("framing") << "--framing can"
                             << "auto, raw, tlog, varint or le32";
    QTest::newRow("speed zero") << "--speed 0"
                                << "a number above 0, or max";
    QTest::newRow("speed negative") << "--speed=-1"
                                    << "a number above 0, or max";
    QTest::newRow("speed nan") << "--speed nan"
                               << "a number above 0, or max";
    QTest::newRow("speed text") << "--speed fast"
                                << "not \"fast\"";
    QTest::newRow("report form") << "--definitions a --report xml b"
                                 << "text or json";
    QTest::newRow("report source") << "--definitions a --report text"
                                   << "needs a SOURCE";
    QTest::newRow("definitions") << "--report text a.tlog"
                                 << "--definitions FILE";
    QTest::newRow("definitions of a picture") << "--screenshot b.png a.tlog"
                                              << "--definitions FILE";
    QTest::newRow("two sources") << "--definitions a b c"
                                 << "\"c\" is one too many";
    QTest::newRow("source") << "--definitions a foo://bar"
                            << "foo";
    QTest::newRow("port") << "--definitions a tcp://host:99999"
                          << "99999";
    QTest::newRow("duration text") << "--definitions a --report text --duration long b"
                                   << "seconds";
    QTest::newRow("duration alone") << "--duration 3"
                                    << "--duration goes with --report and --export";
    QTest::newRow("follow of no file") << "--definitions a --follow udp://:1"
                                       << "--follow goes with a source that is a file";
    QTest::newRow("restart of no program") << "--definitions a --restart udp://:1"
                                           << "--restart goes with a source exec:COMMAND";
    QTest::newRow("restart without window") << "--definitions a --restart --report text exec:b"
                                            << "--restart goes with a source exec:COMMAND";
    QTest::newRow("duration negative") << "--definitions a --report text --duration=-1 b"
                                       << "-1";
    QTest::newRow("after alone") << "--after 3"
                                 << "--after goes with --screenshot";
    QTest::newRow("report and picture") << "--definitions a --report text --screenshot p b"
                                        << "opens no window";
    QTest::newRow("export form") << "--definitions a --export xml b"
                                 << "csv or jsonl";
    QTest::newRow("export source") << "--definitions a --export csv"
                                   << "needs a SOURCE";
    QTest::newRow("export and report") << "--definitions a --export csv --report text b"
                                       << "cannot go together";
    QTest::newRow("export and picture") << "--definitions a --export csv --screenshot p b"
                                        << "opens no window";
    QTest::newRow("select alone") << "--select a.b"
                                  << "--select goes with --export";
    QTest::newRow("output alone") << "-o file"
                                  << "--output goes with --export";
    QTest::newRow("raw alone") << "--raw"
                               << "--raw goes with --export";
}

void tst_options::parse_mistake_isExplained()
{
    QFETCH(QString, line);
    QFETCH(QString, part);
    const Options options = parse(line);
    QCOMPARE(options.wish, Options::Wish::Complain);
    QVERIFY2(options.error.contains(part), qPrintable(options.error));
}

void tst_options::parse_helpAndVersion_winOverMistakes()
{
    QCOMPARE(parse(QStringLiteral("--help --speed 0")).wish, Options::Wish::ShowHelp);
    QCOMPARE(parse(QStringLiteral("--version a b c")).wish, Options::Wish::ShowVersion);
}

void tst_options::getHelpText_namesEveryOption()
{
    const QString help = Options::getHelpText();
    for (const char *name :
         {"--definitions", "--root",        "--import-path", "--overlay", "--framing", "--speed",
          "--report",      "--duration",    "--export",      "--select",  "--output",  "--raw",
          "--follow",      "--restart",     "--screenshot",  "--after",   "--help",    "--version",
          "SOURCE",        "tcp-listen://", "exec:COMMAND"})
        QVERIFY2(help.contains(QLatin1String(name)), name);
}

CORVANE_TEST_MAIN(tst_options)
#include "tst_options.moc"
