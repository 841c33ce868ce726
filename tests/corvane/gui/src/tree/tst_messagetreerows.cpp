#include "echotranslator.h"
#include "metaobjects.h"
#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"
#include "treerows.h"

#include <QApplication>

using namespace corvane::test;

class TestMessageTreeRows : public TreeRowCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjects();
    void classTree();
    void treeOfAnotherKind_leavesWhatNeedsTheOwn();
    void row_withoutType();
    void row_texts_beforeTheFirstMessage();
    void row_texts_ofAMessage();
    void customAndFillerColumns();
    void toolTips();
    void optionalField_absentAndBack();
    void optionalSubMessage_absentAndBack();
    void repeatedField_growsAndShrinks();
    void repeatedField_counts();
    void repeatedInsideRepeated();
    void fiveLevels();
    void fewerValues_keepTheOldOne();
    void subFields_haveRowsBelowTheirField();
    void subFields_ofElements_showTheirElement();
    void virtualField_isItalicAndCanBeHidden();
    void secondaryFields_canBeHidden();
    void hiddenRole_withShownPart_keepsItsRow();
    void confidentialFields_areAnnounced();
    void confidentialPart_isAnnouncedToo();
    void onlyConfidentialFields();
    void texts_areTranslatedInTheirContexts();
};

void TestMessageTreeRows::metaObjects()
{
    const QMetaObject &message = MessageTreeWidgetItem::staticMetaObject;
    QCOMPARE(message.className(), "MessageTreeWidgetItem");
    QCOMPARE(message.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(message),
             QStringList({"slot setMessageInfo(const MessageInfo*)",
                          "slot displayMessage(const Message*)", "slot clearValues()",
                          "slot processMessage(const Message*)"}));
    const QMetaObject &repeated = RepeatedFieldTreeWidgetItem::staticMetaObject;
    QCOMPARE(repeated.className(), "RepeatedFieldTreeWidgetItem");
    QCOMPARE(repeated.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(repeated), QStringList({"slot applyFilter()"}));
}

void TestMessageTreeRows::classTree()
{
    MessageTreeWidget tree;
    SingleSubMessageFieldTreeWidgetItem row(&tree, 0);
    // One item, reached both ways.
    QTreeWidgetItem *asMessage = static_cast<MessageTreeWidgetItem *>(&row);
    QTreeWidgetItem *asField = static_cast<AbstractFieldTreeWidgetItem *>(&row);
    QCOMPARE(asMessage, asField);
    QCOMPARE(row.metaObject()->className(), "MessageTreeWidgetItem");
    QCOMPARE(row.type(), static_cast<int>(QTreeWidgetItem::Type));
    static_assert(std::is_base_of_v<AbstractFieldTreeWidgetItem, StringFieldTreeWidgetItem>);
    static_assert(std::is_base_of_v<AbstractFieldTreeWidgetItem, SingleValueFieldTreeWidgetItem>);
    static_assert(std::is_base_of_v<AbstractFieldTreeWidgetItem, RepeatedFieldTreeWidgetItem>);
    static_assert(!std::is_base_of_v<QObject, SingleValueFieldTreeWidgetItem>);
    static_assert(!std::is_base_of_v<QObject, StringFieldTreeWidgetItem>);
    QCOMPARE(row.getInitialExpansionPolicy(), AbstractMessageTreeWidgetItem::AskTreeWidget);
    QCOMPARE(SingleValueFieldTreeWidgetItem(&tree, 0).getInitialExpansionPolicy(),
             AbstractMessageTreeWidgetItem::CollapseInitially);
    QCOMPARE(RepeatedFieldTreeWidgetItem(&tree).getInitialExpansionPolicy(),
             AbstractMessageTreeWidgetItem::AskTreeWidget);
    QVERIFY(row.isInFilter());
}

void TestMessageTreeRows::treeOfAnotherKind_leavesWhatNeedsTheOwn()
{
    const TestFormat format("Demo", rowTypes);
    QTreeWidget tree;
    auto *row = new MessageTreeWidgetItem(nullptr, format.type("Attitude"));
    tree.addTopLevelItem(row);
    row->setExpanded(true);
    row->configureInTreeWidget();
    row->processMessage(format.message("Attitude{roll: 1}"));
    QVERIFY(row->isExpanded()); // nobody to ask
    QCOMPARE(row->childCount(), 1);
    QCOMPARE(row->text(0), QString());
    QVERIFY(row->getMessageTreeWidget() == nullptr);
}

void TestMessageTreeRows::row_withoutType()
{
    const TestFormat format("Demo", rowTypes);
    MessageTreeWidget tree;
    auto *row = new MessageTreeWidgetItem(&tree, nullptr);
    QCOMPARE(row->text(0), QString()); // nothing is set before the row is configured
    tree.addTopLevelItem(row);
    row->configureInTreeWidget();
    QCOMPARE(printed(tree), withoutRow("Message"));
    QCOMPARE(row->getNameToolTip(), QString());
    QVERIFY(!row->isMessageDisplayed());
}

void TestMessageTreeRows::row_texts_beforeTheFirstMessage()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    QCOMPARE(printed(shown.tree), lines(R"(
        Position | Message | No message
          mode | uint8 |
          height | double |
          name | string |
          samples |  | No values for optional field
          best | Satellite |
            id | uint8 |
            state | uint8 |
            signals |  | 0 repeated values
          sats |  | 0 submessages
    )"));
}

void TestMessageTreeRows::row_texts_ofAMessage()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.tree.addColumn(MessageTreeWidget::RawValue, true);
    QCOMPARE(shown.after("Position{mode: Auto, height: 4.5, name: \"P\", samples: [3, 4], "
                         "best: {id: 7, state: Good, signals: [1]}, sats: [{id: 9, state: 0}]}"),
             lines(R"(
        Position | Message |  |
          mode | uint8 | Auto | 2
          height | double | 4.5 | 4.5
          name | string | P | P
          samples |  | 2 repeated values | 2 repeated values
            samples [0] | int16 | 3 | 3
            samples [1] | int16 | 4 | 4
          best | Satellite |  |
            id | uint8 | 7 | 7
            state | uint8 | Good | 1
            signals |  | 1 repeated value | 1 repeated value
              signals [0] | uint8 | 1 | 1
          sats |  | 1 submessage | 1 submessage
            sats [0] | Satellite |  |
              id | uint8 | 9 | 9
              state | uint8 | Lost | 0
              signals |  | 0 repeated values | 0 repeated values
    )"));
}

void TestMessageTreeRows::customAndFillerColumns()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Attitude"});
    shown.tree.setColumnCount(4);
    shown.row()->setText(3, "stale");
    shown.tree.addColumn(MessageTreeWidget::Custom3, true);
    QCOMPARE(printed(shown.tree), lines(R"(
        Attitude | Message | No message | stale | Column Custom 3
          roll | float |  |  | Column Custom 3
    )"));
}

void TestMessageTreeRows::toolTips()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    QCOMPARE(shown.row()->toolTip(0), "Where it is");
    QCOMPARE(shown.row()->child(0)->toolTip(0), QString());
    QCOMPARE(shown.row()->child(4)->toolTip(0), "One in sight");
}

void TestMessageTreeRows::optionalField_absentAndBack()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.tree.addColumn(MessageTreeWidget::RawValue, true);
    const auto height = [&] { return shown.row()->child(1)->text(2); };
    shown.after("Position{mode: 2}");
    QCOMPARE(height(), "No value for optional field");
    QCOMPARE(shown.row()->child(1)->text(3), "No value for optional field");
    shown.after("Position{height: 2.5}");
    QCOMPARE(height(), "2.5");
    shown.after("Position{}");
    QCOMPARE(height(), "No value for optional field");
}

void TestMessageTreeRows::optionalSubMessage_absentAndBack()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.after("Position{best: {id: 1}}");
    QTreeWidgetItem *best = shown.row()->child(4);
    QTreeWidgetItem *id = best->child(0);
    shown.after("Position{}");
    QCOMPARE(best->text(2), "Optional submessage not present");
    QCOMPARE(best->childCount(), 3);
    QVERIFY(id->isHidden());
    QCOMPARE(id->text(2), QString());
    shown.after("Position{best: {id: 5}}");
    QCOMPARE(best->text(2), QString());
    QCOMPARE(best->child(0), id);
    QVERIFY(!id->isHidden());
    QCOMPARE(id->text(2), "5");
}

void TestMessageTreeRows::repeatedField_growsAndShrinks()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    QTreeWidgetItem *samples = shown.row()->child(3);
    shown.after("Position{samples: [1, 2, 3]}");
    QCOMPARE(samples->text(2), "3 repeated values");
    const QList<QTreeWidgetItem *> first{samples->child(0), samples->child(1), samples->child(2)};
    shown.after("Position{samples: [4, 5, 6, 7, 8]}");
    QCOMPARE(samples->text(2), "5 repeated values");
    QCOMPARE(samples->childCount(), 5);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(samples->child(i), first.at(i));
    QCOMPARE(samples->child(4)->text(2), "8");
    samples->child(0)->setSelected(true);
    shown.after("Position{samples: [9, 10]}");
    QCOMPARE(samples->text(2), "2 repeated values");
    QCOMPARE(samples->childCount(), 2);
    QCOMPARE(samples->child(0), first.at(0));
    QVERIFY(samples->child(0)->isSelected());
    QCOMPARE(samples->child(1)->text(2), "10");
}

void TestMessageTreeRows::repeatedField_counts()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    const auto text = [&](int row) { return shown.row()->child(row)->text(2); };
    shown.after("Position{samples: [1], sats: [{}]}");
    QCOMPARE(text(3), "1 repeated value");
    QCOMPARE(text(5), "1 submessage");
    shown.after("Position{}");
    QCOMPARE(text(3), "No values for optional field");
    QCOMPARE(text(5), "0 submessages");
    shown.after("Position{sats: [{}, {}]}");
    QCOMPARE(text(5), "2 submessages");
}

void TestMessageTreeRows::repeatedInsideRepeated()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.after("Position{sats: [{signals: [1, 2]}, {signals: [3]}]}");
    const QString text = shown.after("Position{sats: [{signals: [4]}, {signals: [5, 6]}]}");
    QVERIFY2(text.endsWith(lines(R"(
          sats |  | 2 submessages
            sats [0] | Satellite |
              id | uint8 |
              state | uint8 |
              signals |  | 1 repeated value
                signals [0] | uint8 | 4
            sats [1] | Satellite |
              id | uint8 |
              state | uint8 |
              signals |  | 2 repeated values
                signals [0] | uint8 | 5
                signals [1] | uint8 | 6
)")
                               .replace("\n", "\n  ")
                               .prepend("  ")),
             qPrintable(text));
}

void TestMessageTreeRows::fiveLevels()
{
    const TestFormat format("Demo", "A\n  b B\nB part\n  c C[]\nC part\n  d D\nD part\n  e E[]\n"
                                    "E part\n  x int32\n");
    Shown shown(format, {"A"});
    QCOMPARE(shown.after("A{b: {c: [{d: {e: [{x: 1}, {x: 2}]}}]}}"), lines(R"(
        A | Message |
          b | B |
            c |  | 1 submessage
              c [0] | C |
                d | D |
                  e |  | 2 submessages
                    e [0] | E |
                      x | int32 | 1
                    e [1] | E |
                      x | int32 | 2
    )"));
}

void TestMessageTreeRows::fewerValues_keepTheOldOne()
{
    const TestFormat format("Demo", "A\n  x int32\n  s S\nS part\n  y int32\n");
    Shown shown(format, {"A"});
    const QString before = shown.after("A{x: 5, s: {y: 6}}");
    QCOMPARE(shown.after("A{}"), before);
}

void TestMessageTreeRows::subFields_haveRowsBelowTheirField()
{
    const TestFormat format("Demo", "A\n  status uint16\n    armed bits 0 bool\n"
                                    "    gear bits 4..7\n  x int32\n");
    Shown shown(format, {"A"});
    QCOMPARE(shown.after("A{status: 0x31, x: 1}"), lines(R"(
        A | Message |
          status | uint16 | 49
            armed | bool | true
            gear | uint4 | 3
          x | int32 | 1
    )"));
    QTreeWidgetItem *status = shown.row()->child(0);
    QCOMPARE(dynamic_cast<AbstractMessageTreeWidgetItem *>(status)->getInitialExpansionPolicy(),
             AbstractMessageTreeWidgetItem::AskTreeWidget);
}

void TestMessageTreeRows::subFields_ofElements_showTheirElement()
{
    const TestFormat format("Demo", "A\n  words uint16[]\n    low bits 0..7\n");
    Shown shown(format, {"A"});
    shown.after("A{words: [0x101, 0x102]}");
    QTreeWidgetItem *second = shown.row()->child(0)->child(1);
    QCOMPARE(second->text(2), "258");
    QCOMPARE(second->child(0)->text(2), "2");
}

void TestMessageTreeRows::virtualField_isItalicAndCanBeHidden()
{
    const TestFormat format("Demo", "A\n  x int32\n  twice double virtual\n");
    Shown shown(format, {"A"});
    const auto font = [&](int child, int column) {
        return qvariant_cast<QFont>(shown.row()->child(child)->data(column, Qt::FontRole));
    };
    QCOMPARE(font(1, 0).style(), QFont::StyleItalic);
    QVERIFY(!shown.row()->child(1)->data(2, Qt::FontRole).isValid());
    QVERIFY(!shown.row()->child(0)->data(0, Qt::FontRole).isValid());
    shown.after("A{x: 1, twice: 2}");
    shown.tree.setShowVirtualFields(false);
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), "A | Message |\n  x | int32 | 1");
    shown.tree.setHideVirtualFields(false);
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), "A | Message |\n  x | int32 | 1\n  twice | double | 2");
    QCOMPARE(font(1, 0).style(), QFont::StyleItalic);
}

void TestMessageTreeRows::secondaryFields_canBeHidden()
{
    const TestFormat format("Demo", "A\n  a int32\n  b int32 primary\n  c int32 secondary\n"
                                    "  d int32 technical\n  e int32 role 4\n");
    Shown shown(format, {"A"});
    const auto names = [&] {
        QStringList all;
        for (int i = 0; i < shown.row()->childCount(); ++i)
            all += shown.row()->child(i)->text(0);
        return all.join(" ");
    };
    QCOMPARE(names(), "a b c d e");
    shown.tree.setShowPrimaryFieldsOnly(true);
    QCOMPARE(names(), "a b e");
    shown.tree.setHideSecondaryFields(true); // reads backwards
    QCOMPARE(names(), "a b c d e");
    shown.tree.setHideSecondaryFields(false);
    QCOMPARE(names(), "a b e");
}

void TestMessageTreeRows::hiddenRole_withShownPart_keepsItsRow()
{
    const TestFormat format("Demo",
                            "A\n  s uint8 secondary\n    low bits 0..3 secondary\n"
                            "    high bits 4..7\n  t uint8 secondary\n    x bits 0 technical\n");
    Shown shown(format, {"A"});
    shown.tree.setShowPrimaryFieldsOnly(true);
    QCOMPARE(shown.after("A{s: 0x21, t: 1}"),
             "A | Message |\n  s | uint8 | 33\n    high | uint4 | 2");
}

void TestMessageTreeRows::confidentialFields_areAnnounced()
{
    const TestFormat format("Demo", "A\n  x int32\n  secret int32 confidential\n");
    Shown shown(format, {"A"});
    QCOMPARE(shown.after("A{x: 1, secret: 2}"),
             "A | Message |\n  Hidden data |  |\n  x | int32 | 1");
    QCOMPARE(shown.row()->child(0)->toolTip(0),
             "Due to confidentiality, the data in this message has been (partly) hidden.");
    shown.row()->showConfidentialityMessage();
    QCOMPARE(shown.row()->childCount(), 2);
    shown.row()->setChildItemsHidden(true);
    QVERIFY(shown.row()->child(0)->isHidden());
    Corvane::setConfidentialInformationDisplayEnabled(true);
    shown.tree.reconfigureTopLevelAbstractMessageTreeWidgetItems();
    QCOMPARE(printed(shown.tree), "A | Message |\n  x | int32 | 1\n  secret | int32 | 2");
    shown.row()->showConfidentialityMessage();
    QCOMPARE(shown.row()->child(0)->text(0), "Hidden data");
    shown.row()->hideConfidentialityMessage();
    QCOMPARE(shown.row()->childCount(), 2);
}

void TestMessageTreeRows::confidentialPart_isAnnouncedToo()
{
    const TestFormat format("Demo", "A\n  s uint8\n    low bits 0..3\n"
                                    "    high bits 4..7 confidential\n");
    Shown shown(format, {"A"});
    QCOMPARE(printed(shown.tree),
             "A | Message | No message\n  Hidden data |  |\n  s | uint8 |\n    low | uint4 |");
}

void TestMessageTreeRows::onlyConfidentialFields()
{
    const TestFormat format("Demo", "A\n  a int32 confidential\n  b int32 confidential\nEmpty\n");
    Shown shown(format, {"A", "Empty"});
    QCOMPARE(printed(shown.tree),
             "A | Message | No message\n  Hidden data |  |\nEmpty | Message | No message");
}

void TestMessageTreeRows::texts_areTranslatedInTheirContexts()
{
    const TestFormat format("Demo", "A\n  x int32 optional\n  r int32[] optional\n  n int32[]\n"
                                    "  s S optional\n  t char[]\n  h int32 confidential\n"
                                    "S part\n  y int32\n");
    const EchoTranslator translator;
    Shown shown(format, {"A"});
    shown.tree.setColumns({MessageTreeWidget::Name, MessageTreeWidget::Type,
                           MessageTreeWidget::Value, MessageTreeWidget::Custom1});
    shown.after("A{n: [1, 2]}");
    const QString text = printed(shown.tree);
    for (const char *part :
         {"MessageTreeWidgetItem|Message", "MessageTreeWidgetItem|Hidden data",
          "QObject|No value for optional field", "QObject|No values for optional field",
          "QObject|Optional submessage not present", "QObject|string", "QObject|Column "})
        QVERIFY2(text.contains(QLatin1String(part)), part);
    QCOMPARE(shown.row()->child(0)->toolTip(0),
             "MessageTreeWidgetItem|Due to confidentiality, the data in this message has been "
             "(partly) hidden.");
    const MessageTreeWidgetItem none(&shown.tree, nullptr);
    QCOMPARE(const_cast<MessageTreeWidgetItem &>(none).getNameText(),
             "MessageTreeWidgetItem|No message type set");
    QCOMPARE(const_cast<MessageTreeWidgetItem &>(none).getValueText(),
             "MessageTreeWidgetItem|No message");
    SingleValueFieldTreeWidgetItem single(&shown.tree, 0);
    QCOMPARE(single.getTypeText(), "QObject|N/A");
    QCOMPARE(single.getNameText(), "QObject|No field set");
    SingleSubMessageFieldTreeWidgetItem sub(&shown.tree, 0);
    QCOMPARE(sub.getNameText(), "QObject|No field set");
    RepeatedFieldTreeWidgetItem repeated(&shown.tree);
    QCOMPARE(repeated.getNameText(), "QObject|No field set");
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeRows)
#include "tst_messagetreerows.moc"
