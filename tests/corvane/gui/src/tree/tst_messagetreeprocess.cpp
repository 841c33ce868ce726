#include "testcase.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

using namespace corvane::test;

/** What needs a process of its own: mistakes that end it, and a second start. */
class TestMessageTreeProcess : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mistake_endsTheProcess_data();
    void mistake_endsTheProcess();
    void lastColumnType_isNoMistake();
    void restart_restoresColumnsAndExpansion();
};

namespace {

struct Ending
{
    bool crashed = false;
    QString output;
    QString errors;
};

Ending run(const QStringList &arguments)
{
    QProcess child;
    child.start(QStringLiteral(TREE_CHILD), arguments);
    child.waitForFinished();
    return {child.exitStatus() == QProcess::CrashExit,
            QString::fromLocal8Bit(child.readAllStandardOutput()),
            QString::fromLocal8Bit(child.readAllStandardError())};
}

} // namespace

void TestMessageTreeProcess::mistake_endsTheProcess_data()
{
    QTest::addColumn<QString>("mistake");
    QTest::addColumn<QStringList>("told");
    const QString widget = "corvane/gui/src/tree/messagetreewidget";
    const QString negative = "ColumnType enum elements should have non-negative values";
    QTest::newRow("addColumn -1") << "addnegative"
                                  << QStringList{"MessageTreeWidget", "addColumn", widget,
                                                 "Ln: 189", negative};
    QTest::newRow("addColumn 1000")
        << "addbeyond"
        << QStringList{"MessageTreeWidget", "addColumn", widget, "Ln: 190",
                       "ColumnType enum elements should have values < 1000"};
    QTest::newRow("hasColumn") << "hasnegative"
                               << QStringList{"MessageTreeWidget", "hasColumn", widget, "Ln: 138",
                                              negative};
    QTest::newRow("getColumnIndex")
        << "indexnegative"
        << QStringList{"MessageTreeWidget", "getColumnIndex", widget, "Ln: 144", negative};
    QTest::newRow("string row")
        << "nostring"
        << QStringList{"StringFieldTreeWidgetItem", "setFieldInfo",
                       "corvane/gui/src/tree/stringfieldtreewidgetitem", "Ln:  43",
                       "StringFieldTreeWidgetItem::setFieldInfo: given field is not a repeated "
                       "char field."};
    QTest::newRow("sub-message row")
        << "nosubmessage"
        << QStringList{"SingleSubMessageFieldTreeWidgetItem::setFieldInfo: non-submessage field "
                       "given!"};
}

void TestMessageTreeProcess::mistake_endsTheProcess()
{
    QFETCH(QString, mistake);
    QFETCH(QStringList, told);
    const Ending ending = run({mistake});
    QVERIFY(ending.crashed);
    QVERIFY2(!ending.output.contains("survived"), qPrintable(ending.output));
    for (const QString &part : told)
        QVERIFY2((ending.output + ending.errors).contains(part),
                 qPrintable(part + " not in: " + ending.output + ending.errors));
}

void TestMessageTreeProcess::lastColumnType_isNoMistake()
{
    const Ending ending = run({"addlast"});
    QVERIFY(!ending.crashed);
    QCOMPARE(ending.output, "survived\n");
}

void TestMessageTreeProcess::restart_restoresColumnsAndExpansion()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("settings.ini");
    QVERIFY(!run({"first", file}).crashed);
    const Ending second = run({"second", file});
    QVERIFY(!second.crashed);
    // Attitude was collapsed, which is not kept; so was the sub-message; the repeated field inside
    // it was expanded, which is.
    QCOMPARE(second.output, "column 2\ncolumn 0\ncolumn 1\nwidth 123\nexpanded 1\nexpanded 1\n"
                            "expanded 1\nexpanded 1\n");
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeProcess)
#include "tst_messagetreeprocess.moc"
