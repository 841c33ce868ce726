#include "plaintooltips.h"
#include "testcase.h"

#include <QApplication>
#include <QHelpEvent>
#include <QListWidget>
#include <QPushButton>
#include <QTextDocument>
#include <QToolTip>

using namespace corvane;
using namespace corvane::test;

class tst_plaintooltips : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void textOfAWidget_isShownAsItIs_data();
    void textOfAWidget_isShownAsItIs();
    void textOfACell_isShownAsItIs_data();
    void textOfACell_isShownAsItIs();
    void longText_isCut();
    void withoutToolTip_nothingIsShown();
    void withoutTheObject_markupIsFollowed();

private:
    void showToolTip(QWidget *widget, QPoint place = {1, 1});
};

namespace {

/** What a person sees in place of the markup. */
QString shownText()
{
    if (!Qt::mightBeRichText(QToolTip::text()))
        return QToolTip::text();
    QTextDocument document;
    document.setHtml(QToolTip::text());
    return document.toPlainText();
}

void askForToolTip(QWidget *widget, QPoint place)
{
    QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

} // namespace

void tst_plaintooltips::initTestCase()
{
    // Each comes to the front once, and not step by step.
    QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
}

void tst_plaintooltips::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    TestCase::cleanup();
}

void tst_plaintooltips::showToolTip(QWidget *widget, QPoint place)
{
    // The platform without a display knows no front.
    expectWarning(QStringLiteral("raise()"));
    askForToolTip(widget, place);
}

void tst_plaintooltips::textOfAWidget_isShownAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const QString &text, const QString &shown = {}) {
        QTest::newRow(name) << text << (shown.isNull() ? text : shown);
    };
    row("words", "How fast");
    row("markup", "<b>bold</b> <img src=\"file:///etc/hostname\">");
    row("ampersand", "R&D");
    row("arrow", "a -> b");
    row("quotes", "the \"best\" one's");
    row("entity", "&lt;b&gt; &amp;");
    row("end of markup", "</p></body><h1>big");
    row("lines", "one\ntwo  spaces");
    row("NUL", QString::fromLatin1("a\0b", 3), QString::fromUtf8("a\uFFFDb"));
    row("escape sequence", "\x1b[31mred", QString::fromUtf8("\uFFFD[31mred"));
    row("mark of a text block", QString(QChar(0xFDD0)) + "x", QString::fromUtf8("\uFFFDx"));
    row("mark of an object", QString(QChar(0xFFFC)) + "x", QString::fromUtf8("\uFFFDx"));
    row("emoji", QString::fromUtf8("\U0001F600"));
}

void tst_plaintooltips::textOfAWidget_isShownAsItIs()
{
    QFETCH(QString, text);
    const PlainToolTips plain;
    QPushButton button(QStringLiteral("x"));
    button.setToolTip(text);
    button.show();
    showToolTip(&button);
    QTEST(shownText(), "shown");
}

void tst_plaintooltips::textOfACell_isShownAsItIs_data()
{
    textOfAWidget_isShownAsItIs_data();
}

void tst_plaintooltips::textOfACell_isShownAsItIs()
{
    QFETCH(QString, text);
    const PlainToolTips plain;
    QListWidget list;
    list.addItem(QStringLiteral("item"));
    list.item(0)->setToolTip(text);
    list.show();
    showToolTip(list.viewport(), list.visualItemRect(list.item(0)).center());
    QTEST(shownText(), "shown");
}

void tst_plaintooltips::longText_isCut()
{
    const PlainToolTips plain;
    QPushButton button(QStringLiteral("x"));
    button.setToolTip(QStringLiteral("e") + QString(1'000'000, QChar(0x301)));
    button.show();
    showToolTip(&button);
    QVERIFY(shownText().endsWith(QChar(0x2026)));
    QVERIFY(shownText().size() <= 1001);
}

void tst_plaintooltips::withoutToolTip_nothingIsShown()
{
    const PlainToolTips plain;
    QListWidget list;
    list.addItem(QStringLiteral("item"));
    list.show();
    askForToolTip(list.viewport(), {1, 1});
    QVERIFY(!QToolTip::isVisible());
}

void tst_plaintooltips::withoutTheObject_markupIsFollowed()
{
    QPushButton button(QStringLiteral("x"));
    button.setToolTip(QStringLiteral("<b>bold</b>"));
    button.show();
    showToolTip(&button);
    QCOMPARE(shownText(), QStringLiteral("bold"));
}

CORVANE_GUI_TEST_MAIN(tst_plaintooltips)
#include "tst_plaintooltips.moc"
