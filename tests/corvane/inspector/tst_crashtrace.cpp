#include "crashtrace.h"
#include "noticearea.h"
#include "testcase.h"

#include <QApplication>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::test;

class tst_crashtrace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutCrash_nothingIsSaid();
    void crashes_areOfferedLatestFirst();
    void delete_removesThemAll();
    void later_keepsThem();
    void tooMany_areNotKept();
};

namespace {

void addFile(const QTemporaryDir &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

QString said(const NoticeArea &notices)
{
    return notices.getText(QStringLiteral("crashNotice"));
}

void press(const NoticeArea &notices, const QString &text)
{
    for (QPushButton *button : notices.findChildren<QPushButton *>())
        if (button->text() == text)
            return QTest::keyClick(button, Qt::Key_Space);
    QFAIL("no such button");
}

} // namespace

void tst_crashtrace::withoutCrash_nothingIsSaid()
{
    const QTemporaryDir folder;
    addFile(folder, "other.txt");
    NoticeArea notices;
    offerCrashTraces(notices, folder.path());
    offerCrashTraces(notices, folder.filePath("missing"));
    QVERIFY(notices.isHidden());
}

void tst_crashtrace::crashes_areOfferedLatestFirst()
{
    const QTemporaryDir folder;
    addFile(folder, "crash-20260101-120000-5.txt");
    addFile(folder, "crash-20260102-120000-4.txt");
    NoticeArea notices;
    offerCrashTraces(notices, folder.path());
    QVERIFY(said(notices).contains(folder.filePath("crash-20260102-120000-4.txt")));
}

void tst_crashtrace::delete_removesThemAll()
{
    const QTemporaryDir folder;
    addFile(folder, "crash-1.txt");
    addFile(folder, "crash-2.txt");
    addFile(folder, "other.txt");
    NoticeArea notices;
    offerCrashTraces(notices, folder.path());
    press(notices, "&Delete");
    QVERIFY(findCrashTraces(folder.path()).isEmpty());
    QVERIFY(QFile::exists(folder.filePath("other.txt")));
    QCOMPARE(said(notices), QString());
}

void tst_crashtrace::later_keepsThem()
{
    const QTemporaryDir folder;
    addFile(folder, "crash-1.txt");
    NoticeArea notices;
    offerCrashTraces(notices, folder.path());
    press(notices, "Later");
    QCOMPARE(findCrashTraces(folder.path()).size(), 1);
    QCOMPARE(said(notices), QString());
}

void tst_crashtrace::tooMany_areNotKept()
{
    const QTemporaryDir folder;
    for (int i = 100; i < 130; ++i)
        addFile(folder, QStringLiteral("crash-%1.txt").arg(i));
    NoticeArea notices;
    offerCrashTraces(notices, folder.path());
    const QStringList kept = findCrashTraces(folder.path());
    QCOMPARE(kept.size(), 20);
    QCOMPARE(kept.constFirst(), folder.filePath("crash-129.txt"));
}

CORVANE_GUI_TEST_MAIN(tst_crashtrace)
#include "tst_crashtrace.moc"
