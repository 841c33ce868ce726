#include "echotranslator.h"
#include "memleaktracer.h"
#include "metaobjects.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlabel.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "testcase.h"
#include "testformat.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Alpha
      x  int8
    Beta
      x  int8
      y  int8
)";

const auto format = PathExpression::FormatPart;
const auto message = PathExpression::MessagePart;
const auto field = PathExpression::FieldPart;
const auto all = PathExpression::AllParts;

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

/** What the widgets tell an expression, seen by its texts and signals. */
class Watched : public PathExpression
{
public:
    Watched()
    {
        connect(this, &PathExpression::expressionChanged, this,
                [this](const QString &text) { texts.append(text); });
        connect(this, &PathExpression::matchesMayHaveChanged, this, [this] { ++matchChanges; });
    }

    QStringList takeTexts() { return std::exchange(texts, {}); }

    QStringList texts;
    int matchChanges = 0;
};

} // namespace

class TestPathExpressionEditors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjects();
    void accounting();
    void parts_travelThroughQueuedConnections();

    void label_followsItsParts();
    void label_withoutExpression();
    void label_ofNoParts();
    void label_anotherExpression_leavesTheFirst();

    void lineEdit_typing_setsAPrefix();
    void lineEdit_return_completes();
    void lineEdit_withFocus_keepsTheTypedText();
    void lineEdit_withoutExpression();
    void lineEdit_returnAfterASecondExpression_comesTwice();
    void lineEdit_ofOtherParts_isNotTouched();

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

    void texts_areTranslatedInTheirContexts();

private:
    const TestFormat demo{"Demo", types};
};

void TestPathExpressionEditors::metaObjects()
{
    const auto methods = [](const QMetaObject &metaObject) {
        return QString::fromLatin1(metaObject.className()) + ": "
               + ownMethods(metaObject).join(", ");
    };
    QCOMPARE(methods(PathExpressionLabel::staticMetaObject),
             "PathExpressionLabel: slot processPartsChanged(PathExpression::Parts), "
             "slot updateLabel()");
    QCOMPARE(methods(PathExpressionLineEdit::staticMetaObject),
             "PathExpressionLineEdit: slot processPartsChanged(PathExpression::Parts), "
             "slot processReturnPressed(), slot processTextEdited(), slot updateText()");
    QCOMPARE(methods(PathExpressionComboBox::staticMetaObject),
             "PathExpressionComboBox: slot updateContents(), slot setPathExpressionFromCurrent()");
    QCOMPARE(methods(PathExpressionListWidget::staticMetaObject),
             "PathExpressionListWidget: slot updateContents(), "
             "slot setPathExpressionFromCurrent()");
    QCOMPARE(PathExpressionLabel::staticMetaObject.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(PathExpressionLineEdit::staticMetaObject.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(PathExpressionComboBox::staticMetaObject.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(PathExpressionListWidget::staticMetaObject.superClass(),
             &QListWidget::staticMetaObject);
}

void TestPathExpressionEditors::accounting()
{
    const auto live = [] { return MemLeakTracer::getInstance()->getLiveObjects(); };
    const auto before = live();
    {
        const PathExpressionLabel label(nullptr, all);
        const PathExpressionLineEdit edit(nullptr, all);
        const PathExpressionComboBox box(nullptr, all, nullptr);
        const PathExpressionListWidget list(nullptr, all, nullptr);
        for (const char *name : {"PathExpressionLabel", "PathExpressionLineEdit",
                                 "PathExpressionComboBox", "PathExpressionListWidget"})
            QCOMPARE(live().value(QLatin1String(name)), before.value(QLatin1String(name)) + 1);
    }
    QCOMPARE(live(), before);
}

void TestPathExpressionEditors::parts_travelThroughQueuedConnections()
{
    PathExpression expression;
    PathExpressionLabel label(nullptr, message);
    PathExpression::Parts received;
    connect(
        &expression, &PathExpression::partsChanged, this,
        [&](PathExpression::Parts parts) { received = parts; }, Qt::QueuedConnection);
    expression.setString("Beta", message);
    QTRY_COMPARE(received, PathExpression::Parts(message));
}

void TestPathExpressionEditors::label_followsItsParts()
{
    PathExpression expression;
    expression.setString("Demo.Alpha.x");
    QWidget parent;
    auto *label = new PathExpressionLabel(&expression, format | message, &parent);
    QCOMPARE(label->parent(), &parent);
    QCOMPARE(label->text(), "Demo.Alpha");
    QCOMPARE(label->getPathExpression(), &expression);
    label->setText("stale");
    expression.setString("y", field);
    QCOMPARE(label->text(), "stale");
    expression.setString("Beta.x", message | field);
    QCOMPARE(label->text(), "Demo.Beta");
    label->setParts(field);
    QCOMPARE(label->getParts(), PathExpression::Parts(field));
    QCOMPARE(label->text(), "x");
}

void TestPathExpressionEditors::label_withoutExpression()
{
    PathExpression expression;
    PathExpressionLabel label(nullptr, all);
    QCOMPARE(label.text(), "No path expression set!");
    label.setPathExpression(&expression);
    QCOMPARE(label.text(), "*.*.*");
    label.setPathExpression(nullptr);
    QCOMPARE(label.text(), "No path expression set!");
    QVERIFY(label.getPathExpression() == nullptr);
}

void TestPathExpressionEditors::label_ofNoParts()
{
    PathExpression expression;
    const PathExpressionLabel label(&expression, {});
    QCOMPARE(label.text(), QString());
}

void TestPathExpressionEditors::label_anotherExpression_leavesTheFirst()
{
    PathExpression first;
    PathExpression second;
    PathExpressionLabel label(&first, all);
    label.setPathExpression(&second);
    label.setText("stale");
    first.setString("Demo");
    QCOMPARE(label.text(), "stale");
    second.setString("Demo");
    QCOMPARE(label.text(), "Demo.*.*");
}

void TestPathExpressionEditors::lineEdit_typing_setsAPrefix()
{
    Watched expression;
    PathExpressionLineEdit edit(&expression, message);
    QCOMPARE(edit.text(), "*");
    edit.clear(); // not by a person
    QCOMPARE(expression.takeTexts(), QStringList());
    QTest::keyClicks(&edit, "Be");
    QCOMPARE(expression.takeTexts(), QStringList({"*.B.*", "*.Be.*"}));
    QCOMPARE(expression.getMatchingMessageInfos(), QList<const MessageInfo *>{demo.type("Beta")});
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(expression.takeTexts(), QStringList("*.B.*"));
}

void TestPathExpressionEditors::lineEdit_return_completes()
{
    Watched expression;
    PathExpressionLineEdit edit(&expression, all);
    edit.clear();
    QTest::keyClicks(&edit, "Demo.Be");
    QVERIFY(!expression.getMatchingMessageInfos().isEmpty());
    QTest::keyClick(&edit, Qt::Key_Return);
    QVERIFY(expression.getMatchingMessageInfos().isEmpty()); // Be is no prefix any more
    QCOMPARE(expression.getString(all), "Demo.Be.*");
    edit.clear();
    QTest::keyClicks(&edit, "Demo.Beta");
    QTest::keyClick(&edit, Qt::Key_Enter);
    QCOMPARE(expression.getMatchingMessageInfos(), QList<const MessageInfo *>{demo.type("Beta")});
}

void TestPathExpressionEditors::lineEdit_withFocus_keepsTheTypedText()
{
    PathExpression expression;
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *edit = new PathExpressionLineEdit(&expression, message);
    auto *other = new QLineEdit;
    layout->addWidget(edit);
    layout->addWidget(other);
    window.show();
    QApplication::setActiveWindow(&window);
    edit->setFocus();
    QTRY_VERIFY(edit->hasFocus());
    edit->selectAll();
    QTest::keyClicks(edit, "Al");
    expression.setString("Beta", message);
    QCOMPARE(edit->text(), "Al");
    other->setFocus();
    QTRY_VERIFY(!edit->hasFocus());
    QCOMPARE(edit->text(), "Al"); // the next change is shown
    expression.setString("Alpha", message);
    QCOMPARE(edit->text(), "Alpha");
}

void TestPathExpressionEditors::lineEdit_withoutExpression()
{
    Watched expression;
    PathExpressionLineEdit edit(&expression, message);
    edit.setPathExpression(nullptr);
    QCOMPARE(edit.text(), "No path expression set!");
    QTest::keyClicks(&edit, "x");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(expression.takeTexts(), QStringList());
    PathExpressionLineEdit none(nullptr, all);
    QCOMPARE(none.text(), "No path expression set!");
    QTest::keyClick(&none, Qt::Key_Return);
}

void TestPathExpressionEditors::lineEdit_returnAfterASecondExpression_comesTwice()
{
    Watched first;
    Watched second;
    PathExpressionLineEdit edit(&first, message);
    edit.setPathExpression(&second);
    edit.setText("Beta");
    // The first round completes it; whoever changes the text then sees the second round.
    QList<QString> told;
    connect(&second, &PathExpression::partsChanged, this, [&] {
        told.append(second.getString(message));
        edit.setText(told.size() == 1 ? "Alpha" : "Gamma");
    });
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(told, QList<QString>({"Beta", "Alpha"}));
    QCOMPARE(first.takeTexts(), QStringList());
}

void TestPathExpressionEditors::lineEdit_ofOtherParts_isNotTouched()
{
    PathExpression expression;
    PathExpressionLineEdit edit(&expression, message);
    QCOMPARE(edit.getParts(), PathExpression::Parts(message));
    edit.setText("stale");
    expression.setString("x", field);
    QCOMPARE(edit.text(), "stale");
    edit.setParts(field);
    QCOMPARE(edit.text(), "x");
}

void TestPathExpressionEditors::comboBox_showsTheOptions()
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

void TestPathExpressionEditors::comboBox_unknownText_isShownFirst()
{
    PathExpression expression;
    expression.setString("X", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    QCOMPARE(entriesOf(box), QStringList({"> X", "All", "Alpha", "Beta"}));
    expression.setString("beta", message); // another name, for its case
    QCOMPARE(entriesOf(box), QStringList({"> beta", "All", "Alpha", "Beta"}));
}

void TestPathExpressionEditors::comboBox_allEntry_disabled()
{
    PathExpression expression;
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(false, "Everything");
    QVERIFY(!box.getAllOptionEnabled());
    QCOMPARE(entriesOf(box), QStringList({"> Everything", "Alpha", "Beta"}));
    expression.setString("Beta", message);
    QCOMPARE(entriesOf(box), QStringList({"Alpha", "> Beta"}));
}

void TestPathExpressionEditors::comboBox_allEntry_configured()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(true, "Any type");
    QCOMPARE(entriesOf(box), QStringList({"Any type", "Alpha", "> Beta"}));
}

void TestPathExpressionEditors::comboBox_picking_setsTheParts()
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

void TestPathExpressionEditors::comboBox_pickingAll_setsAWildCard()
{
    PathExpression expression;
    expression.setString("Demo.Beta.x");
    PathExpressionComboBox box(&expression, message | field, nullptr);
    box.setCurrentIndex(0);
    QCOMPARE(box.currentText(), "All");
    QVERIFY(expression.isWildCard(message | field));
    QCOMPARE(expression.getString(all), "Demo.*.*");
}

void TestPathExpressionEditors::comboBox_textOfTheAllEntry_isAWildCardEvenWhenDisabled()
{
    PathExpression expression;
    expression.setString("Beta", message);
    PathExpressionComboBox box(&expression, message, nullptr);
    box.setAllOptionEnabled(false, "Alpha");
    box.setCurrentIndex(0);
    QVERIFY(expression.isWildCard(message));
}

void TestPathExpressionEditors::comboBox_missingObjects()
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

void TestPathExpressionEditors::comboBox_refilling_doesNotWrite()
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

void TestPathExpressionEditors::comboBox_optionsChange_whileTheListIsOpen()
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

void TestPathExpressionEditors::comboBox_ownSource_isAChild()
{
    PathExpression source;
    PathExpressionComboBox own(nullptr, message, nullptr);
    QCOMPARE(own.getOptionsSourcePathExpression()->parent(), &own);
    PathExpressionComboBox given(nullptr, message, &source);
    QCOMPARE(given.getOptionsSourcePathExpression(), &source);
    QVERIFY(source.parent() == nullptr);
}

void TestPathExpressionEditors::list_showsTheOptions()
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

void TestPathExpressionEditors::list_picking_setsTheParts()
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

void TestPathExpressionEditors::list_unknownText_choosesNone()
{
    PathExpression expression;
    expression.setString("Demo.Beta.z");
    PathExpressionListWidget list(&expression, field, nullptr);
    QCOMPARE(entriesOf(list), QStringList({"x", "y"}));
    QVERIFY(list.currentItem() == nullptr);
    QCOMPARE(expression.getString(field), "z");
}

void TestPathExpressionEditors::list_missingObjects()
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

void TestPathExpressionEditors::list_refilling_writesTheSameTextAgain()
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

void TestPathExpressionEditors::list_replacedSource_isLeft()
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

void TestPathExpressionEditors::texts_areTranslatedInTheirContexts()
{
    const EchoTranslator translator;
    QCOMPARE(PathExpressionLabel(nullptr, all).text(),
             "PathExpressionLabel|No path expression set!");
    QCOMPARE(PathExpressionLineEdit(nullptr, all).text(),
             "PathExpressionLineEdit|No path expression set!");
    PathExpression expression;
    PathExpression nothing;
    nothing.setString("Nobody");
    PathExpressionComboBox box(nullptr, all, &nothing);
    QCOMPARE(box.currentText(), "PathExpressionComboBox|Null path expression set!");
    box.setPathExpression(&expression);
    QCOMPARE(box.currentText(), "PathExpressionComboBox|No options");
    box.setOptionsSourcePathExpression(nullptr);
    QCOMPARE(box.currentText(), "PathExpressionComboBox|Null options source path expression set!");
    PathExpressionListWidget list(nullptr, all, &nothing);
    QCOMPARE(list.item(0)->text(), "PathExpressionListWidget|No options");
    list.setOptionsSourcePathExpression(nullptr);
    QCOMPARE(list.item(0)->text(),
             "PathExpressionListWidget|Null options source path expression set!");
    PathExpressionComboBox all(&expression, PathExpression::FieldPart, nullptr);
    QCOMPARE(all.itemText(0), "All"); // the same in every language
}

CORVANE_GUI_TEST_MAIN(TestPathExpressionEditors)
#include "tst_pathexpressioneditors.moc"
