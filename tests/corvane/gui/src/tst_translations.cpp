#include "eventlogtablewidget.h"
#include "fieldvaluelabel.h"
#include "messagestatisticswidget.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "messagewidget.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlabel.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "testcase.h"

#include <QAction>
#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <cstdio>

using namespace corvane::test;

namespace {

/** "context|text" to what is shown. */
using Texts = QMap<QString, QString>;

/** The texts of a .ts file; those without a finished translation are empty. */
Texts readTexts(const QString &path)
{
    Texts texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QStringLiteral("name"))
            context = xml.readElementText();
        if (xml.name() == QStringLiteral("source"))
            source = xml.readElementText();
        if (xml.name() == QStringLiteral("translation")) {
            const bool isDone = xml.attributes().value(QStringLiteral("type")).isEmpty();
            const QString text = xml.readElementText();
            texts.insert(context + '|' + source, isDone ? text : QString());
        }
    }
    return texts;
}

QString translationFile(const QString &language)
{
    return sourceFile(QStringLiteral("corvane/gui/translations/corvane_%1.ts").arg(language));
}

QStringList languages()
{
    QStringList result;
    const QDir folder(sourceFile(QStringLiteral("corvane/gui/translations")));
    for (const QString &name : folder.entryList({QStringLiteral("corvane_*.ts")}))
        result += name.mid(8).chopped(3);
    return result;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%\\d"));
    QStringList result;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        result += match.next().captured();
    result.sort();
    return result;
}

/** What the widgets show without anything to show, as the keys of Texts have it. */
Texts shownTexts()
{
    Texts shown;
    const FieldValueLabel label;
    shown["FieldValueLabel|N/A"] = label.text();
    const MessageWidget form;
    shown["MessageWidget|No message type set"] = form.windowTitle();
    const PathExpressionLabel expression(nullptr, PathExpression::AllParts);
    shown["PathExpressionLabel|No path expression set!"] = expression.text();
    const PathExpressionLineEdit edit(nullptr, PathExpression::AllParts);
    shown["PathExpressionLineEdit|No path expression set!"] = edit.text();
    const PathExpressionComboBox box(nullptr, PathExpression::AllParts, nullptr);
    shown["PathExpressionComboBox|Null path expression set!"] = box.itemText(0);
    const PathExpressionListWidget list(nullptr, PathExpression::AllParts, nullptr);
    shown["PathExpressionListWidget|No options"] = list.item(0)->text();
    const EventLogTableWidget events(nullptr);
    shown["EventLogTableWidget|Time"] = events.horizontalHeaderItem(0)->text();
    const MessageStatisticsWidget statistics(nullptr);
    shown["MessageStatisticsWidget|Count"] = statistics.headerItem()->text(1);

    MessageTreeWidget tree;
    shown["MessageTreeWidget|Value"] = tree.headerItem()->text(2);
    shown["MessageTreeWidget|&Type"] = tree.getToggleTypeColumnAction()->text();
    auto *row = new MessageTreeWidgetItem(&tree, nullptr);
    tree.addTopLevelItem(row);
    shown["MessageTreeWidgetItem|No message type set"] = row->getNameText();
    return shown;
}

/** Every text of the file as the running program has it. */
Texts translatedTexts(const Texts &texts)
{
    Texts result;
    for (const QString &key : texts.keys()) {
        const QByteArray context = key.section('|', 0, 0).toUtf8();
        const QByteArray source = key.section('|', 1).toUtf8();
        result.insert(key, QCoreApplication::translate(context, source));
    }
    return result;
}

/** The program runs itself for each language, since a process shows one. */
int showLanguage(const QString &language, bool hostHasItsOwn)
{
    struct HostTranslator : QTranslator
    {
        bool isEmpty() const override { return false; }

        QString translate(const char *context, const char *, const char *, int) const override
        {
            return qstrcmp(context, "FieldValueLabel") == 0 ? QStringLiteral("host") : QString();
        }
    };

    HostTranslator translator;
    if (hostHasItsOwn)
        QCoreApplication::installTranslator(&translator);
    QLocale::setDefault(QLocale(language));
    Texts texts = shownTexts();
    texts.insert(translatedTexts(readTexts(translationFile(language))));
    QByteArray output;
    QDataStream stream(&output, QIODevice::WriteOnly);
    stream << texts;
    QFile standardOutput;
    return standardOutput.open(stdout, QIODevice::WriteOnly)
                   && standardOutput.write(output) == output.size()
               ? 0
               : 1;
}

Texts textsShownIn(const QString &language, const QString &option = QStringLiteral("--show"))
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {option, language});
    Texts texts;
    if (!program.waitForFinished() || program.exitCode() != 0)
        return texts;
    QDataStream stream(program.readAllStandardOutput());
    stream >> texts;
    return texts;
}

} // namespace

class TestTranslations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void haveTheTextsOfTheSources();

    void areComplete_data() { addLanguages(); }

    void areComplete();

    void areShown_data() { addLanguages(); }

    void areShown();
    void areNotShownToReadersOfOtherLanguages_data();
    void areNotShownToReadersOfOtherLanguages();
    void giveWayToTheHosts();

private:
    static void addLanguages();
};

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    QCOMPARE(languages(), (QStringList{"de", "es", "fr", "ja", "zh_CN"}));
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

void TestTranslations::haveTheTextsOfTheSources()
{
    const QTemporaryDir folder;
    const QString found = folder.filePath(QStringLiteral("found_de.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(sourceFile(QStringLiteral(".")));
    lupdate.start(QStringLiteral(CORVANE_LUPDATE),
                  {"-silent", "corvane/gui", "framework", "fw", "-ts", found});
    QVERIFY(lupdate.waitForFinished(120'000));
    QCOMPARE(lupdate.exitCode(), 0);

    const QStringList texts = readTexts(found).keys();
    QVERIFY(texts.size() > 200);
    for (const QString &text : texts)
        QVERIFY2(!text.startsWith(QStringLiteral("corvane|")), qPrintable(text)); // a namespace
    for (const QString &language : languages())
        QCOMPARE(readTexts(translationFile(language)).keys(), texts);
}

void TestTranslations::areComplete()
{
    QFETCH(QString, language);
    const Texts texts = readTexts(translationFile(language));
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        const QString source = text.key().section('|', 1);
        QVERIFY2(!text.value().isEmpty(), qPrintable(text.key()));
        QCOMPARE(placeholders(text.value()), placeholders(source));
        QCOMPARE(text.value().count('&'), source.count('&'));
    }
}

void TestTranslations::areShown()
{
    QFETCH(QString, language);
    const Texts expected = readTexts(translationFile(language));
    const Texts shown = textsShownIn(language);
    QCOMPARE(shown.size(), expected.size());
    for (auto text = expected.begin(); text != expected.end(); ++text)
        QCOMPARE(shown.value(text.key()), text.value());
    QVERIFY(shown["FieldValueLabel|N/A"] != "N/A");
}

void TestTranslations::areNotShownToReadersOfOtherLanguages_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"C", "en_GB", "it_IT", "zh_TW"})
        QTest::newRow(language) << language;
}

void TestTranslations::areNotShownToReadersOfOtherLanguages()
{
    QFETCH(QString, language);
    const Texts shown = textsShownIn(language);
    QCOMPARE(shown.value("FieldValueLabel|N/A"), "N/A");
    QCOMPARE(shown.value("MessageTreeWidget|&Type"), "&Type");
}

void TestTranslations::giveWayToTheHosts()
{
    const Texts shown = textsShownIn(QStringLiteral("de"), QStringLiteral("--show-with-host"));
    QCOMPARE(shown.value("FieldValueLabel|N/A"), "host");
    QCOMPARE(shown.value("MessageTreeWidget|Value"), "Wert");
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments[1].startsWith(QStringLiteral("--show")))
        return showLanguage(arguments[2], arguments[1] == QStringLiteral("--show-with-host"));
    TestTranslations testObject;
    return runTests(testObject, argc, argv);
}

#include "tst_translations.moc"
