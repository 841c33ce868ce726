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
#include "translationtexts.h"

#include <QAction>
#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>

#include <cstdio>

using namespace corvane::test;

namespace {

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

/** What the widgets show without anything to show, as the keys of TranslationTexts have it. */
TranslationTexts shownTexts()
{
    TranslationTexts shown;
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
    TranslationTexts texts = shownTexts();
    texts.insert(translated(readTranslations(translationFile(language))));
    QByteArray output;
    QDataStream stream(&output, QIODevice::WriteOnly);
    stream << texts;
    QFile standardOutput;
    return standardOutput.open(stdout, QIODevice::WriteOnly)
                   && standardOutput.write(output) == output.size()
               ? 0
               : 1;
}

TranslationTexts textsShownIn(const QString &language,
                              const QString &option = QStringLiteral("--show"))
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {option, language});
    TranslationTexts texts;
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

    const QStringList texts = readTranslations(found).keys();
    QVERIFY(texts.size() > 200);
    for (const QString &text : texts)
        QVERIFY2(!text.startsWith(QStringLiteral("corvane|")), qPrintable(text)); // a namespace
    for (const QString &language : languages())
        QCOMPARE(readTranslations(translationFile(language)).keys(), texts);
}

void TestTranslations::areComplete()
{
    QFETCH(QString, language);
    const TranslationTexts texts = readTranslations(translationFile(language));
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
    const TranslationTexts expected = readTranslations(translationFile(language));
    const TranslationTexts shown = textsShownIn(language);
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
    const TranslationTexts shown = textsShownIn(language);
    QCOMPARE(shown.value("FieldValueLabel|N/A"), "N/A");
    QCOMPARE(shown.value("MessageTreeWidget|&Type"), "&Type");
}

void TestTranslations::giveWayToTheHosts()
{
    const TranslationTexts shown
        = textsShownIn(QStringLiteral("de"), QStringLiteral("--show-with-host"));
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
