#include "exportdialog.h"
#include "inspectortranslations.h"
#include "openpanel.h"
#include "shownwindow.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

using namespace corvane;
using namespace corvane::test;

/** Alt and a letter do one thing each, in every language. */
class tst_mnemonics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void window_data() { addLanguages(); }

    void window();

    void startPage_data() { addLanguages(); }

    void startPage();

    void exportDialog_data() { addLanguages(); }

    void exportDialog();

private:
    static void addLanguages();
};

namespace {

/** Has texts in the language of a row for as long as it lives. */
class Reader
{
public:
    explicit Reader(const QString &language)
    {
        QLocale::setDefault(QLocale(language));
        installInspectorTranslations();
    }

    ~Reader()
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
        QLocale::setDefault(former);
    }

    Q_DISABLE_COPY_MOVE(Reader)

private:
    const QLocale former;
};

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions)
        texts += action->text();
    return texts;
}

/** The texts that a letter with Alt may belong to, but for those inside of menus. */
QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<QLabel *>())
        if (label->buddy() != nullptr)
            texts += label->text();
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        texts += button->text();
    for (const QGroupBox *box : window.findChildren<QGroupBox *>())
        texts += box->title();
    for (const QMenuBar *bar : window.findChildren<QMenuBar *>())
        texts += textsOf(bar->actions());
    return texts;
}

/** "A: &Add, &About" for each letter of several texts. */
QStringList collisionsOf(const QStringList &texts)
{
    QMap<QString, QStringList> byKey;
    for (const QString &text : texts)
        if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
            byKey[key.toString(QKeySequence::PortableText)] += text;
    QStringList collisions;
    for (auto entry = byKey.begin(); entry != byKey.end(); ++entry)
        if (entry->size() > 1)
            collisions += entry.key() + QStringLiteral(": ") + entry->join(QStringLiteral(", "));
    return collisions;
}

} // namespace

void tst_mnemonics::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "es", "fr", "ja", "zh_CN"})
        QTest::newRow(language) << language;
}

void tst_mnemonics::window()
{
    QFETCH(QString, language);
    const Reader reader(language);
    const ShownWindow shown;
    QVERIFY(
        !QKeySequence::mnemonic(shown.window->menuBar()->actions().constFirst()->text()).isEmpty());
    QCOMPARE(collisionsOf(textsOf(*shown.window)), QStringList());
    const auto menus = shown.window->findChildren<QMenu *>();
    QVERIFY(menus.size() >= 4);
    for (const QMenu *menu : menus)
        QCOMPARE(collisionsOf(textsOf(menu->actions())), QStringList());
}

void tst_mnemonics::startPage()
{
    QFETCH(QString, language);
    const Reader reader(language);
    const ShownWindow shown;
    const OpenPanel page(const_cast<QSettings &>(shown.settings));
    const QStringList texts = textsOf(page);
    QVERIFY(texts.size() > 8);
    // Some desktops show the menu bar of a program for all of its windows.
    QCOMPARE(collisionsOf(texts + textsOf(shown.window->menuBar()->actions())), QStringList());
}

void tst_mnemonics::exportDialog()
{
    QFETCH(QString, language);
    const Reader reader(language);
    const ShownWindow shown;
    Reception &reception = const_cast<Session &>(shown.session).getReception();
    const ExportDialog dialog(*reception.getFormat(), *reception.getStatistics(), {});
    QCOMPARE(collisionsOf(textsOf(dialog)), QStringList());
}

CORVANE_GUI_TEST_MAIN(tst_mnemonics)
#include "tst_mnemonics.moc"
