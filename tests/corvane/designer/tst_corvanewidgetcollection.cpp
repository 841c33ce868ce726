#include "testcase.h"
#include "translationtexts.h"
#include "ui_everywidget.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

#include <algorithm>
#include <memory>

using namespace corvane::test;

namespace {

const QString plugin = QStringLiteral(CORVANE_DESIGNER_PLUGIN);

QList<QDesignerCustomWidgetInterface *> offeredWidgets()
{
    static QPluginLoader loader(plugin);
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    if (collection == nullptr)
        qWarning("%s", qPrintable(loader.errorString()));
    return collection != nullptr ? collection->customWidgets()
                                 : QList<QDesignerCustomWidgetInterface *>();
}

TranslationTexts toolTipsIn(const QString &language)
{
    return readTranslations(sourceFile(
        QStringLiteral("corvane/designer/translations/corvane-designer_%1.ts").arg(language)));
}

QString withoutNamespace(const QString &className)
{
    return className.section(QStringLiteral("::"), -1);
}

/** The classes of the library's public headers that stand by themselves in a form. */
QStringList publicWidgets()
{
    static const QRegularExpression declaration(QStringLiteral(
        R"(class CORVANEGUI_EXPORT (\w+) : public (Q\w*(Widget|Label|Edit|Box)|SteadyTreeWidget)\s)"));
    QStringList result;
    const QDir headers(sourceFile(QStringLiteral("corvane/gui/include")));
    for (const QFileInfo &header : headers.entryInfoList({QStringLiteral("*.h")})) {
        QFile file(header.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const auto match = declaration.match(QString::fromUtf8(file.readAll()));
        if (match.hasMatch() && match.captured(1) != QStringLiteral("SteadyTreeWidget"))
            result += match.captured(1);
    }
    result.sort();
    return result;
}

} // namespace

class TestCorvaneWidgetCollection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersEveryPublicWidget();
    void describesEachWidget();
    void speaksTheReadersLanguage();
    void translatesIntoEachLanguage_data();
    void translatesIntoEachLanguage();
    void createsWhatItNames();
    void makesAFormAtRunTime();
    void makesAFormAtCompileTime();
    void givesTheFormsWidgetsAll();
};

/** The plug-in asks for the language when it is loaded; the widgets' own texts stay in English. */
void TestCorvaneWidgetCollection::initTestCase()
{
    const QLocale former;
    QLocale::setDefault(QLocale(QStringLiteral("de")));
    offeredWidgets();
    QLocale::setDefault(former);
}

void TestCorvaneWidgetCollection::offersEveryPublicWidget()
{
    QStringList names;
    for (const auto *widget : offeredWidgets())
        names += withoutNamespace(widget->name());
    names.sort();
    QCOMPARE(names, publicWidgets());
    QCOMPARE(names.size(), 9);
}

void TestCorvaneWidgetCollection::describesEachWidget()
{
    for (const auto *widget : offeredWidgets()) {
        QCOMPARE(widget->group(), "Corvane");
        QVERIFY2(widget->toolTip().size() > 10, qPrintable(widget->name()));
        QVERIFY(!widget->isContainer());

        QVERIFY2(!widget->icon().availableSizes().isEmpty(), qPrintable(widget->name()));
        const QImage picture = widget->icon().pixmap(22, 22).toImage();
        QVERIFY2(!picture.isNull(), qPrintable(widget->name()));
        QVERIFY2(picture != QImage(picture.size(), picture.format()), qPrintable(widget->name()));

        const QStringList folders{"corvane/gui/include", "corvane/forms"};
        QVERIFY(std::any_of(folders.begin(), folders.end(), [&](const QString &folder) {
            return QFileInfo::exists(sourceFile(folder + '/' + widget->includeFile()));
        }));
    }
}

void TestCorvaneWidgetCollection::speaksTheReadersLanguage()
{
#ifdef CORVANE_HAS_TRANSLATIONS
    QStringList toolTips;
    for (const auto *widget : offeredWidgets())
        toolTips += widget->toolTip();
    toolTips.sort();
    QStringList german = toolTipsIn(QStringLiteral("de")).values();
    german.sort();
    QCOMPARE(toolTips, german);
#else
    QSKIP("built without Qt's LinguistTools");
#endif
}

void TestCorvaneWidgetCollection::translatesIntoEachLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"de", "es", "fr", "ja", "zh_CN"})
        QTest::newRow(language) << language;
}

void TestCorvaneWidgetCollection::translatesIntoEachLanguage()
{
    QFETCH(QString, language);
    const TranslationTexts texts = toolTipsIn(language);
    QCOMPARE(texts.keys(), toolTipsIn(QStringLiteral("de")).keys());
    QCOMPARE(texts.size(), offeredWidgets().size());
    for (auto text = texts.begin(); text != texts.end(); ++text)
        QVERIFY2(!text.value().isEmpty(), qPrintable(text.key()));
}

void TestCorvaneWidgetCollection::createsWhatItNames()
{
    for (auto *widget : offeredWidgets()) {
        QWidget parent;
        const QWidget *created = widget->createWidget(&parent);
        QCOMPARE(created->parentWidget(), &parent);
        QCOMPARE(created->metaObject()->className(), widget->name());
        parent.show();
    }
}

void TestCorvaneWidgetCollection::makesAFormAtRunTime()
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(plugin).path());
    QFile file(sourceFile(QStringLiteral("tests/corvane/designer/everywidget.ui")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    QVERIFY2(form != nullptr, qPrintable(loader.errorString()));
    form->show();

    for (const auto *widget : offeredWidgets()) {
        const QString name = withoutNamespace(widget->name());
        const auto *made = form->findChild<QWidget *>(name.left(1).toLower() + name.mid(1));
        QVERIFY2(made != nullptr, qPrintable(name));
        QCOMPARE(made->metaObject()->className(), widget->name());
    }
    QCOMPARE(form->findChild<FieldValueLabel *>()->text(), "N/A");
    QCOMPARE(form->findChild<PathExpressionLabel *>()->text(), "No path expression set!");
}

void TestCorvaneWidgetCollection::makesAFormAtCompileTime()
{
    QWidget form;
    Ui::EveryWidget ui;
    ui.setupUi(&form);
    form.show();
    QCOMPARE(ui.fieldValueLabel->text(), "N/A");
    QCOMPARE(ui.fieldValueLabel->parentWidget(), &form);
    QCOMPARE(ui.messageTreeWidget->columnCount(), 3);
}

void TestCorvaneWidgetCollection::givesTheFormsWidgetsAll()
{
    PathExpression expression;
    corvane::forms::PathExpressionLabel label;
    label.setPathExpression(&expression);
    expression.setString(QStringLiteral("a.b.c"));
    QCOMPARE(label.text(), "a.b.c");

    EventLog log;
    corvane::forms::EventLogTableWidget table;
    table.setEventLog(&log);
    log.addEntry({{}, CorvaneEvent(CorvaneEvent::Other, QStringLiteral("seen"))});
    QCOMPARE(table.rowCount(), 1);
}

CORVANE_GUI_TEST_MAIN(TestCorvaneWidgetCollection)
#include "tst_corvanewidgetcollection.moc"
