#include "echotranslator.h"
#include "memleaktracer.h"
#include "metaobjects.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlabel.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "pathexpressionscene.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QVBoxLayout>

using namespace corvane::test;

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
