#include "noticearea.h"
#include "testcase.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

using namespace corvane;
using namespace corvane::test;

class tst_noticearea : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutNotice_isHidden();
    void notice_isClosedByItsLastButton();
    void button_actsOnceTheLineIsGone();
    void sameName_takesThePlace();
    void progress_keepsTheButtonAndItsFocus();
    void text_isNeverTakenForMarkup();
};

namespace {

QPushButton *buttonOf(const NoticeArea &area, const QString &text)
{
    for (QPushButton *button : area.findChildren<QPushButton *>())
        if (button->text() == text && button->isVisibleTo(&area))
            return button;
    return nullptr;
}

} // namespace

void tst_noticearea::withoutNotice_isHidden()
{
    NoticeArea area;
    QVERIFY(area.isHidden());
    area.say("a", "Something");
    QVERIFY(!area.isHidden());
    QCOMPARE(area.getText("a"), QStringLiteral("Something"));
    area.withdraw("b");
    QVERIFY(!area.isHidden());
    area.withdraw("a");
    QVERIFY(area.isHidden());
    QCOMPARE(area.getText("a"), QString());
}

void tst_noticearea::notice_isClosedByItsLastButton()
{
    NoticeArea area;
    area.say("a", "First");
    area.say("b", "Second");
    QTest::keyClick(buttonOf(area, "Close"), Qt::Key_Space);
    QCOMPARE(area.getText("a"), QString());
    QCOMPARE(area.getText("b"), QStringLiteral("Second"));
}

void tst_noticearea::button_actsOnceTheLineIsGone()
{
    NoticeArea area;
    QString textWhenActing = "not called";
    area.say("a", "Sure?", {{"Yes", [&] {
                                 textWhenActing = area.getText("a");
                                 area.say("a", "Done.");
                             }}});
    buttonOf(area, "Yes")->click();
    QCOMPARE(textWhenActing, QString());
    QCOMPARE(area.getText("a"), QStringLiteral("Done."));
}

void tst_noticearea::sameName_takesThePlace()
{
    NoticeArea area;
    area.say("a", "Sure?", {{"Yes", [] {}}});
    area.say("a", "Done.");
    QCOMPARE(area.getText("a"), QStringLiteral("Done."));
    QVERIFY(buttonOf(area, "Yes") == nullptr);
}

void tst_noticearea::progress_keepsTheButtonAndItsFocus()
{
    NoticeArea area;
    area.say("a", "10 bytes", {{"Stop", [] {}}});
    const QPushButton *before = buttonOf(area, "Stop");
    area.say("a", "20 bytes", {{"Stop", [] {}}});
    QCOMPARE(buttonOf(area, "Stop"), before);
    QCOMPARE(area.getText("a"), QStringLiteral("20 bytes"));
}

void tst_noticearea::text_isNeverTakenForMarkup()
{
    NoticeArea area;
    area.say("a", "<b>file</b>");
    QCOMPARE(area.findChild<QLabel *>()->textFormat(), Qt::PlainText);
}

CORVANE_GUI_TEST_MAIN(tst_noticearea)
#include "tst_noticearea.moc"
