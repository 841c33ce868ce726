#include "inspectortranslations.h"
#include "testcase.h"
#include "translationtexts.h"

#include <QApplication>
#include <QKeySequence>
#include <QLocale>
#include <QTranslator>

using namespace corvane::test;

class TestInspectorTranslations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void areWellFormed_data() { addLanguages(); }

    void areWellFormed();

    void areShown_data() { addLanguages(); }

    void areShown();
    void areNotShownToReadersOfEnglish();

private:
    static void addLanguages();
    static TranslationTexts textsOf(const QString &language);
    static TranslationTexts shownTo(const QString &reader, const TranslationTexts &texts);
};

void TestInspectorTranslations::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"de", "es", "fr", "ja", "zh_CN"})
        QTest::newRow(language) << language;
}

TranslationTexts TestInspectorTranslations::textsOf(const QString &language)
{
    return readTranslations(sourceFile(
        QStringLiteral("corvane/inspector/translations/corvane-inspector_%1.ts").arg(language)));
}

TranslationTexts TestInspectorTranslations::shownTo(const QString &reader,
                                                    const TranslationTexts &texts)
{
    const QLocale former;
    QLocale::setDefault(QLocale(reader));
    corvane::installInspectorTranslations();
    const TranslationTexts shown = translated(texts);
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(former);
    return shown;
}

void TestInspectorTranslations::areWellFormed()
{
    QFETCH(QString, language);
    const TranslationTexts texts = textsOf(language);
    QVERIFY(texts.size() > 200);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        const QString source = text.key().section('|', 1);
        QVERIFY2(!text.value().isEmpty(), qPrintable(text.key()));
        QCOMPARE(placeholders(text.value()), placeholders(source));
        QCOMPARE(text.value().count('&'), source.count('&'));
        if (source.startsWith(QStringLiteral("Ctrl+")))
            QCOMPARE(QKeySequence(text.value()), QKeySequence(source));
    }
}

void TestInspectorTranslations::areShown()
{
    QFETCH(QString, language);
    const TranslationTexts texts = textsOf(language);
    QCOMPARE(shownTo(language, texts), texts);
    QVERIFY(texts["corvane::MainWindow|&File"] != "&File");
}

void TestInspectorTranslations::areNotShownToReadersOfEnglish()
{
    const TranslationTexts shown = shownTo(QStringLiteral("en_US"), textsOf(QStringLiteral("de")));
    QCOMPARE(shown["corvane::MainWindow|&File"], "&File");
}

CORVANE_GUI_TEST_MAIN(TestInspectorTranslations)
#include "tst_inspectortranslations.moc"
