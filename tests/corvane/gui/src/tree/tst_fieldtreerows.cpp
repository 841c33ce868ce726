#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"
#include "treerows.h"

#include <QApplication>

using namespace corvane::test;

/** The rows of fields, each by itself. */
class TestFieldTreeRows : public TreeRowCase
{
    Q_OBJECT

private Q_SLOTS:
    void singleValue_index();
    void texts_ofMissingColumns_areNotMade();
    void singleValue_nullMessage_clears();
    void stringRow();
    void subMessageRow_indexAndNull();
    void repeatedRow_setFieldInfo_alwaysClears();
};

void TestFieldTreeRows::singleValue_index()
{
    const TestFormat format("Demo", "A\n  words uint16[]\n    low bits 0..7\n");
    MessageTreeWidget tree;
    auto *row = new SingleValueFieldTreeWidgetItem(&tree, 0);
    tree.addTopLevelItem(row);
    QCOMPARE(row->getNameText(), "No field set");
    QCOMPARE(row->getTypeText(), "N/A");
    QCOMPARE(row->getValueText(), "No field set");
    QCOMPARE(row->getRawValueText(), "No field set");
    row->processMessage(nullptr); // nothing without a field
    row->setFieldInfo(format.field("A.words"));
    const auto message = format.message("A{words: [1, 2, 3, 4]}");
    row->processMessage(message);
    QCOMPARE(row->getValueText(), "1");
    row->setIndex(3);
    QCOMPARE(row->getIndex(), 3U);
    QCOMPARE(row->text(0), "words [3]");
    QVERIFY(!row->getFieldValue().isValid());
    QCOMPARE(row->text(2), QString());
    QCOMPARE(row->child(0)->text(0), "low [3]");
    row->processMessage(message);
    QCOMPARE(row->text(2), "4");
    row->setFieldValue(FieldValue::fromUnsigned(77));
    QCOMPARE(row->text(2), "77");
    QCOMPARE(row->child(0)->text(2), "4");
    row->processMessage(format.message("A{words: [9]}"));
    QCOMPARE(row->text(2), "77");
}

void TestFieldTreeRows::texts_ofMissingColumns_areNotMade()
{
    struct Row : SingleValueFieldTreeWidgetItem
    {
        explicit Row(MessageTreeWidget *tree)
            : AbstractMessageTreeWidgetItem(tree)
            , SingleValueFieldTreeWidgetItem(tree, 0)
        {
        }

        QString getRawValueText() override
        {
            ++made;
            return {};
        }

        int made = 0;
    };

    MessageTreeWidget tree;
    Row row(&tree);
    row.setRawValueText();
    QCOMPARE(row.made, 0);
    tree.addColumn(MessageTreeWidget::RawValue, false);
    row.setRawValueText();
    QCOMPARE(row.made, 1);
}

void TestFieldTreeRows::singleValue_nullMessage_clears()
{
    const TestFormat format("Demo", "A\n  s uint8 optional\n    low bits 0..3\n");
    MessageTreeWidget tree;
    auto *row = new SingleValueFieldTreeWidgetItem(&tree, 0);
    tree.addTopLevelItem(row);
    row->setFieldInfo(format.field("A.s"));
    row->processMessage(format.message("A{}"));
    QCOMPARE(row->text(2), "No value for optional field");
    row->processMessage(format.message("A{s: 3}"));
    QCOMPARE(row->child(0)->text(2), "3");
    row->processMessage(nullptr);
    QCOMPARE(row->text(2), QString());
    QCOMPARE(row->child(0)->text(2), QString());
}

void TestFieldTreeRows::stringRow()
{
    const TestFormat format("Demo", "A\n  name char[]\n  code uchar[]\nB\n  x int32\n");
    MessageTreeWidget tree;
    auto *row = new StringFieldTreeWidgetItem(&tree);
    tree.addTopLevelItem(row);
    QCOMPARE(row->getNameText(), "No field set");
    QCOMPARE(row->extractString(nullptr), "No field set");
    row->setFieldInfo(format.field("A.code"));
    row->setFieldInfo(format.field("A.name"));
    QCOMPARE(row->text(0), "name");
    QCOMPARE(row->text(1), "string");
    const auto message = format.message("A{name: \"abc\"}");
    QCOMPARE(row->extractString(message), "abc");
    row->processMessage(message);
    QCOMPARE(row->getString(), "abc");
    QCOMPARE(row->getValueText(), "abc");
    QCOMPARE(row->getRawValueText(), "abc");
    row->processMessage(format.message("B{x: 1}"));
    QCOMPARE(row->text(2), "abc");
    row->processMessage(nullptr);
    QCOMPARE(row->text(2), QString());
    row->setString("set");
    QCOMPARE(row->text(2), "set");
    row->setFieldInfo(nullptr);
    QCOMPARE(row->text(2), QString());
}

void TestFieldTreeRows::subMessageRow_indexAndNull()
{
    const TestFormat format("Demo", rowTypes);
    MessageTreeWidget tree;
    auto *row = new SingleSubMessageFieldTreeWidgetItem(&tree, 1);
    QCOMPARE(row->getNameText(), "No field set");
    QCOMPARE(row->getTypeText(), "N/A");
    tree.addTopLevelItem(row);
    row->setFieldInfo(format.field("Position.sats"));
    QCOMPARE(row->text(0), "sats [1]");
    QCOMPARE(row->text(1), "Satellite");
    const auto message = format.message("Position{sats: [{id: 1}, {id: 2}]}");
    row->processMessage(message);
    QCOMPARE(row->child(0)->text(2), "2");
    row->processMessage(format.message("Position{sats: [{id: 5}]}"));
    QCOMPARE(row->child(0)->text(2), "2");
    row->setIndex(0);
    QCOMPARE(row->text(0), "sats [0]");
    QVERIFY(!row->isMessageDisplayed());
    row->processMessage(message);
    QCOMPARE(row->child(0)->text(2), "1");
    row->processMessage(nullptr);
    QVERIFY(!row->isMessageDisplayed());
    QVERIFY(row->child(0)->isHidden());
    row->setFieldInfo(nullptr);
    QCOMPARE(row->childCount(), 0);
}

void TestFieldTreeRows::repeatedRow_setFieldInfo_alwaysClears()
{
    const TestFormat format("Demo", rowTypes);
    MessageTreeWidget tree;
    auto *row = new RepeatedFieldTreeWidgetItem(&tree);
    tree.addTopLevelItem(row);
    QCOMPARE(row->getNameText(), "No field set");
    QCOMPARE(row->getValueText(), QString());
    row->setFieldInfo(format.field("Position.samples"));
    row->processMessage(format.message("Position{samples: [1, 2]}"));
    QCOMPARE(row->childCount(), 2);
    row->processMessage(format.message("Attitude{}"));
    QCOMPARE(row->childCount(), 2);
    row->setFieldInfo(format.field("Position.samples"));
    QCOMPARE(row->childCount(), 0);
    row->processMessage(format.message("Position{samples: [1, 2]}"));
    row->processMessage(nullptr);
    QCOMPARE(row->childCount(), 0);
    QCOMPARE(row->text(2), "No values for optional field");
}

CORVANE_GUI_TEST_MAIN(TestFieldTreeRows)
#include "tst_fieldtreerows.moc"
