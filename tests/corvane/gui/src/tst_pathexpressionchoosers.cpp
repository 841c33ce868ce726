#include "pathexpressioncombobox.h"
#include "pathexpressionlistwidget.h"
#include "pathexpressionscene.h"
#include "testcase.h"
#include "testformat.h"

#include <QAbstractItemView>
#include <QApplication>

using namespace corvane::test;

namespace {

QStringList entriesOf(const QComboBox &box)
{
    QStringList entries;
    for (int i = 0; i < box.count(); ++i)
        entries += (i == box.currentIndex() ? "> " : "") + box.itemText(i);
    return entries;
}

QStringList entriesOf(const QListWidget &list)
{
    QStringList entries;
    for (int i = 0; i < list.count(); ++i)
        entries += (i == list.currentRow() ? "> " : "") + list.item(i)->text();
    return entries;
}

} // namespace

class TestPathExpressionChoosers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comboBox_showsTheOptions();
    void comboBox_unknownText_isShownFirst();
    void comboBox_allEntry_disabled();
    void comboBox_allEntry_configured();
    void comboBox_picking_setsTheParts();
    void comboBox_pickingAll_setsAWildCard();
    void comboBox_textOfTheAllEntry_isAWildCardEvenWhenDisabled();
    void comboBox_missingObjects();
    void comboBox_refilling_doesNotWrite();
    void comboBox_optionsChange_whileTheListIsOpen();
    void comboBox_ownSource_isAChild();
    void list_showsTheOptions();
    void list_picking_setsTheParts();
    void list_unknownText_choosesNone();
    void list_missingObjects();
    void list_refilling_writesTheSameTextAgain();
    void list_replacedSource_isLeft();

private:
    const TestFormat demo{"Demo", types};
};

void TestPathExpressionChoosers::comboBox_showsTheOptions()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    QVERIFY(box.getAllOptionEnabled());
    QCOMPARE(box.getParts(), PathExpression::Parts(message));
    QCOMPARE(entriesOf(box), QStringList({"All", "Alpha", "> Beta"}));
    expression.setString("Alpha", message);
    QCOMPARE(entriesOf(box), QStringList({"All", "> Alpha", "Beta"}));
    expression.setWildCard(message);
    QCOMPARE(entriesOf(box), QStringList({"> All", "Alpha", "Beta"}));
    box.setParts(field);
    QCOMPARE(entriesOf(box), QStringList({"> All", "x", "y"}));
}

void TestPathExpressionChoosers::comboBox_unknownText_isShownFirst()
{
    PathExpression expression;
    expression.setString("X", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    QCOMPARE(entriesOf(box), QStringList({"> X", "All", "Alpha", "Beta"}));
    expression.setString("beta", message); // another name, for its case
    QCOMPARE(entriesOf(box), QStringList({"> beta", "All", "Alpha", "Beta"}));
}

void TestPathExpressionChoosers::comboBox_allEntry_disabled()
{
    PathExpression expression;
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(false, "Everything");
    QVERIFY(!box.getAllOptionEnabled());
    QCOMPARE(entriesOf(box), QStringList({"> Everything", "Alpha", "Beta"}));
    expression.setString("Beta", message);
    QCOMPARE(entriesOf(box), QStringList({"Alpha", "> Beta"}));
}

void TestPathExpressionChoosers::comboBox_allEntry_configured()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(true, "Any type");
    QCOMPARE(entriesOf(box), QStringList({"Any type", "Alpha", "> Beta"}));
}

void TestPathExpressionChoosers::comboBox_picking_setsTheParts()
{
    Watched expression;
    expression.setString("Demo.*.x");
    PathExpressionComboBox box(&expression, message, nullptr);
    expression.takeTexts();
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(expression.takeTexts(), QStringList("Demo.Alpha.x"));
    QCOMPARE(entriesOf(box), QStringList({"All", "> Alpha", "Beta"}));
    expression.setStringPrefix("Be", message);
    box.setCurrentIndex(box.findText("Beta"));
    QCOMPARE(expression.getString(all), "Demo.Beta.x");
    QCOMPARE(expression.getMatchingMessageInfos(), QList<const MessageInfo *>{demo.type("Beta")});
}

void TestPathExpressionChoosers::comboBox_pickingAll_setsAWildCard()
{
    PathExpression expression;
    expression.setString("Demo.Beta.x");
    PathExpressionComboBox box(&expression, message | field, nullptr);
    box.setCurrentIndex(0);
    QCOMPARE(box.currentText(), "All");
    QVERIFY(expression.isWildCard(message | field));
    QCOMPARE(expression.getString(all), "Demo.*.*");
}

void TestPathExpressionChoosers::comboBox_textOfTheAllEntry_isAWildCardEvenWhenDisabled()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(false, "Alpha");
    box.setCurrentIndex(0);
    QVERIFY(expression.isWildCard(message));
}

void TestPathExpressionChoosers::comboBox_missingObjects()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(nullptr, message, nullptr);
    QCOMPARE(entriesOf(box), QStringList("> Null path expression set!"));
    box.setPathExpression(&expression);
    QCOMPARE(box.getPathExpression(), &expression);
    box.setOptionsSourcePathExpression(nullptr);
    QCOMPARE(entriesOf(box), QStringList("> Null options source path expression set!"));
    PathExpression nothing;
    nothing.setString("Nobody");
    box.setOptionsSourcePathExpression(&nothing);
    QCOMPARE(entriesOf(box), QStringList("> No options"));
    QCOMPARE(expression.getString(message), "Beta");
    box.setPathExpression(nullptr);
    QCOMPARE(entriesOf(box), QStringList("> Null path expression set!"));
}

void TestPathExpressionChoosers::comboBox_refilling_doesNotWrite()
{
    Watched expression;
    expression.setString("Demo.X.x");
    PathExpressionComboBox box(&expression, message, nullptr);
    expression.takeTexts();
    const int before = expression.matchChanges;
    box.updateContents();
    box.setAllOptionEnabled(false, "All");
    QCOMPARE(expression.takeTexts(), QStringList());
    QCOMPARE(expression.matchChanges, before);
}

void TestPathExpressionChoosers::comboBox_optionsChange_whileTheListIsOpen()
{
    PathExpression expression;
    PathExpressionComboBox box(&expression, message, nullptr);
    box.show();
    expectWarning("This plugin does not support raise()");
    expectWarning("This plugin does not support grabbing the keyboard");
    box.showPopup();
    {
        const TestFormat added("Added", "Gamma\n  z int8\n");
        QCOMPARE(entriesOf(box), QStringList({"> All", "Alpha", "Beta", "Gamma"}));
    }
    QCOMPARE(entriesOf(box), QStringList({"> All", "Alpha", "Beta"}));
    box.hidePopup();
}

void TestPathExpressionChoosers::comboBox_ownSource_isAChild()
{
    PathExpression source;
    PathExpressionComboBox own(nullptr, message, nullptr);
    QCOMPARE(own.getOptionsSourcePathExpression()->parent(), &own);
    PathExpressionComboBox given(nullptr, message, &source);
    QCOMPARE(given.getOptionsSourcePathExpression(), &source);
    QVERIFY(source.parent() == nullptr);
}

void TestPathExpressionChoosers::list_showsTheOptions()
{
    PathExpression expression;
    expression.setString("Demo.Beta.x");
    PathExpression source;
    source.setString("Demo.Beta");
    PathExpressionListWidget list(&expression, field, &source);
    QCOMPARE(entriesOf(list), QStringList({"> x", "y"}));
    source.setString("Demo.Alpha");
    QCOMPARE(entriesOf(list), QStringList("> x"));
    list.setParts(message | field);
    QCOMPARE(list.getParts(), message | field);
    QCOMPARE(entriesOf(list), QStringList("Alpha.x"));
}

void TestPathExpressionChoosers::list_picking_setsTheParts()
{
    Watched expression;
    expression.setString("Demo.Beta.x");
    PathExpressionListWidget list(&expression, field, nullptr);
    list.show();
    expression.takeTexts();
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(expression.takeTexts(), QStringList("Demo.Beta.y"));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(0)).center());
    QCOMPARE(expression.takeTexts(), QStringList("Demo.Beta.x"));
    // A click on the current row writes it once more.
    expression.setStringPrefix("x", field);
    const int before = expression.matchChanges;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(0)).center());
    QCOMPARE(expression.matchChanges, before + 1);
}

void TestPathExpressionChoosers::list_unknownText_choosesNone()
{
    PathExpression expression;
    expression.setString("Demo.Beta.z");
    PathExpressionListWidget list(&expression, field, nullptr);
    QCOMPARE(entriesOf(list), QStringList({"x", "y"}));
    QVERIFY(list.currentItem() == nullptr);
    QCOMPARE(expression.getString(field), "z");
}

void TestPathExpressionChoosers::list_missingObjects()
{
    PathExpressionListWidget list(nullptr, field, nullptr);
    QCOMPARE(list.getOptionsSourcePathExpression()->parent(), &list);
    QCOMPARE(entriesOf(list), QStringList({"x", "y"}));
    list.setCurrentRow(1); // nobody to tell
    list.setOptionsSourcePathExpression(nullptr);
    QCOMPARE(entriesOf(list), QStringList("Null options source path expression set!"));
    PathExpression nothing;
    nothing.setString("Nobody");
    list.setOptionsSourcePathExpression(&nothing);
    QCOMPARE(entriesOf(list), QStringList("No options"));
    QVERIFY(list.getPathExpression() == nullptr);
}

void TestPathExpressionChoosers::list_refilling_writesTheSameTextAgain()
{
    Watched expression;
    expression.setString("Demo.Beta.x");
    PathExpressionListWidget list(&expression, field, nullptr);
    expression.setStringPrefix("y", field); // refills, and the row that fits completes the edit
    QCOMPARE(entriesOf(list), QStringList({"x", "> y"}));
    const int before = expression.matchChanges;
    expression.completeEditing();
    QCOMPARE(expression.matchChanges, before);
}

void TestPathExpressionChoosers::list_replacedSource_isLeft()
{
    PathExpression expression;
    PathExpression first;
    PathExpression second;
    PathExpressionListWidget list(&expression, message, &first);
    list.setOptionsSourcePathExpression(&second);
    list.setPathExpression(nullptr);
    list.clear();
    first.setString("Demo.Alpha");
    expression.setString("Demo.Alpha");
    QCOMPARE(list.count(), 0);
    second.setString("Demo.Beta");
    QCOMPARE(entriesOf(list), QStringList("Beta"));
}

CORVANE_GUI_TEST_MAIN(TestPathExpressionChoosers)
#include "tst_pathexpressionchoosers.moc"
