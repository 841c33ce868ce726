#include "corvane.h"
#include "echotranslator.h"
#include "memleaktracer.h"
#include "messageneedmanager.h"
#include "messagetreefilter.h"
#include "messagetreewidgetitem.h"
#include "metaobjects.h"
#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"
#include "testcase.h"
#include "testformat.h"
#include "treeprinter.h"

#include <QApplication>
#include <QSignalSpy>

using namespace corvane::test;

/** What rows show, one expectation for each screen. */
class TestMessageTreeRows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
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
    void displayMessage_otherType_rebuilds();
    void displayMessage_null_empties();
    void processMessage_otherType_changesNothing();
    void clearValues_keepsTheRowsOfFields();
    void setMessageInfo_sameType_keepsTheRows();
    void configure_rebuildsAndShowsTheMessageAgain();
    void singleValue_index();
    void texts_ofMissingColumns_areNotMade();
    void singleValue_nullMessage_clears();
    void stringRow();
    void subMessageRow_indexAndNull();
    void repeatedRow_setFieldInfo_alwaysClears();
    void references_oneForTheShownMainMessage();
    void need_isDeclaredWhileTyped();
    void filter_loadedForTheType();
    void filter_notLoaded();
    void filter_elementWithoutContent();
    void filter_afterTheMessageIsGone();
    void filter_ofScalars_showsAll();
    void filter_replaced_leavesNoConnection();
    void filter_reachesNewRows();
    void texts_areTranslatedInTheirContexts();
    void accounting_countsEachClassOfTheChain();
};

namespace {

const char types[] = R"(
    Position 'Where it is'
      mode     uint8 {Manual=0, Auto=2}
      height   double optional
      name     char[]
      samples  int16[] optional
      best     Satellite optional
      sats     Satellite[]
    Satellite part 'One in sight'
      id       uint8
      state    uint8 {Lost=0, Good=1}
      signals  uint8[]
    Attitude
      roll     float
)";

/** A tree with one row for each named type. */
class Shown
{
public:
    Shown(const TestFormat &format, const QStringList &names)
        : format(format)
    {
        for (const QString &name : names) {
            auto *row = new MessageTreeWidgetItem(&tree, format.type(name));
            tree.addTopLevelItem(row);
            row->configureInTreeWidget();
            tree.expandAll();
        }
    }

    MessageTreeWidgetItem *row(int index = 0)
    {
        return dynamic_cast<MessageTreeWidgetItem *>(tree.topLevelItem(index));
    }

    QString after(const QString &messages)
    {
        for (const MessageHolder &message : format.messages(messages))
            tree.processMessage(message);
        tree.expandAll();
        return printed(tree);
    }

    const TestFormat &format;
    MessageTreeWidget tree;
};

QString withoutRow(const char *type)
{
    return QStringLiteral("No message type set | ") + QLatin1String(type)
           + QStringLiteral(" | No message");
}

} // namespace

void TestMessageTreeRows::cleanup()
{
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap.clear();
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    Corvane::setConfidentialInformationDisplayEnabled(false);
    TestCase::cleanup();
}

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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    QCOMPARE(shown.row()->toolTip(0), "Where it is");
    QCOMPARE(shown.row()->child(0)->toolTip(0), QString());
    QCOMPARE(shown.row()->child(4)->toolTip(0), "One in sight");
}

void TestMessageTreeRows::optionalField_absentAndBack()
{
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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
    const TestFormat format("Demo", types);
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

void TestMessageTreeRows::displayMessage_otherType_rebuilds()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    shown.row()->displayMessage(format.message("Attitude{roll: 1.5}"));
    QCOMPARE(shown.row()->getMessageInfo(), format.type("Attitude"));
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), "Attitude | Message |\n  roll | float | 1.5");
}

void TestMessageTreeRows::displayMessage_null_empties()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    const auto message = format.message("Position{mode: 2}");
    shown.row()->displayMessage(message);
    shown.row()->displayMessage(nullptr);
    QCOMPARE(printed(shown.tree), withoutRow("Message"));
    QCOMPARE(message->getReferenceCount(), 1);
    QVERIFY(shown.row()->getMessageInfo() == nullptr);
}

void TestMessageTreeRows::processMessage_otherType_changesNothing()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    const QString before = shown.after("Position{mode: 2}");
    QCOMPARE(shown.after("Attitude{roll: 1}"), before);
}

void TestMessageTreeRows::clearValues_keepsTheRowsOfFields()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    const QString empty = printed(shown.tree);
    shown.after("Position{mode: 2, samples: [1], best: {id: 1}, sats: [{}], name: \"x\"}");
    QTreeWidgetItem *mode = shown.row()->child(0);
    shown.row()->clearValues();
    QVERIFY(!shown.row()->isMessageDisplayed());
    QCOMPARE(shown.row()->child(0), mode);
    // The row of height goes on saying that the value was absent.
    QCOMPARE(printed(shown.tree),
             QString(empty).replace("height | double |",
                                    "height | double | No value for optional field"));
}

void TestMessageTreeRows::setMessageInfo_sameType_keepsTheRows()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    QTreeWidgetItem *mode = shown.row()->child(0);
    shown.row()->setMessageInfo(format.type("Position"));
    QCOMPARE(shown.row()->child(0), mode);
    shown.row()->setMessageInfo(nullptr);
    QCOMPARE(shown.row()->childCount(), 0);
}

void TestMessageTreeRows::configure_rebuildsAndShowsTheMessageAgain()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    shown.after("Position{mode: 2, sats: [{id: 4}]}");
    const auto *message = shown.row()->getDisplayedMessage();
    const QString before = printed(shown.tree);
    shown.row()->configureInTreeWidget();
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), before);
    QCOMPARE(shown.row()->getDisplayedMessage(), message);
    QCOMPARE(message->getReferenceCount(), 1);
}

void TestMessageTreeRows::texts_ofMissingColumns_areNotMade()
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

void TestMessageTreeRows::singleValue_index()
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

void TestMessageTreeRows::singleValue_nullMessage_clears()
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

void TestMessageTreeRows::stringRow()
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

void TestMessageTreeRows::subMessageRow_indexAndNull()
{
    const TestFormat format("Demo", types);
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

void TestMessageTreeRows::repeatedRow_setFieldInfo_alwaysClears()
{
    const TestFormat format("Demo", types);
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

void TestMessageTreeRows::references_oneForTheShownMainMessage()
{
    const TestFormat format("Demo", types);
    const auto first = format.message("Position{best: {id: 1}, sats: [{id: 2}]}");
    const auto second = format.message("Position{best: {id: 3}}");
    {
        Shown shown(format, {"Position"});
        shown.tree.processMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.processMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.setShowVirtualFields(false);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.processMessage(second);
        QCOMPARE(first->getReferenceCount(), 1);
        QCOMPARE(second->getReferenceCount(), 2);
        shown.row()->clearValues();
        QCOMPARE(second->getReferenceCount(), 1);
        shown.tree.processMessage(second);
        shown.row()->setMessageInfo(format.type("Attitude"));
        QCOMPARE(second->getReferenceCount(), 1);
        shown.row()->displayMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        delete shown.row();
        QCOMPARE(first->getReferenceCount(), 1);
        auto *next = new MessageTreeWidgetItem(&shown.tree, format.type("Position"));
        shown.tree.addTopLevelItem(next);
        next->processMessage(second);
    }
    QCOMPARE(second->getReferenceCount(), 1);
}

void TestMessageTreeRows::need_isDeclaredWhileTyped()
{
    const TestFormat format("Demo", types);
    const auto needed = [&](const char *type) {
        return MessageNeedManager::getDefault()->isNeeded(format.type(QLatin1String(type)));
    };
    {
        Shown shown(format, {"Attitude"});
        QVERIFY(needed("Attitude"));
        shown.row()->setMessageInfo(format.type("Position"));
        QVERIFY(!needed("Attitude"));
        QVERIFY(needed("Position"));
    }
    QVERIFY(!needed("Position"));
}

void TestMessageTreeRows::filter_loadedForTheType()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{state: Good}, {state: Lost}, {state: Good}]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    const auto hidden = [&] {
        QString marks;
        for (int i = 0; i < sats->childCount(); ++i)
            marks += sats->child(i)->isHidden() ? "h" : "s";
        return marks;
    };
    QCOMPARE(hidden(), "sss");
    filter.setSearchString("Good");
    QCOMPARE(hidden(), "shs");
    shown.after("Position{sats: [{state: Lost}, {state: Lost}, {state: Lost}, {state: Good}]}");
    QCOMPARE(hidden(), "hhhs");
    shown.after("Position{sats: [{state: Lost}]}");
    QCOMPARE(hidden(), "h"); // exactly the matching ones: none
    filter.setSearchString("");
    QCOMPARE(hidden(), "s");
    shown.row()->setFilter(nullptr);
    filter.setSearchString("Good");
    QCOMPARE(hidden(), "s");
}

void TestMessageTreeRows::filter_notLoaded()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{id: 7}, {id: 8}]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    filter.setSearchString("8");
    QVERIFY(sats->child(0)->isHidden());
    QVERIFY(!sats->child(1)->isHidden());
    filter.setSearchString("nothing of the kind");
    QVERIFY(!sats->child(0)->isHidden());
    QVERIFY(!sats->child(1)->isHidden());
}

void TestMessageTreeRows::filter_elementWithoutContent()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    filter.setSearchString("Good");
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{state: Good}, invalid]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    QVERIFY(!sats->child(0)->isHidden());
    QVERIFY(sats->child(1)->isHidden());
}

void TestMessageTreeRows::filter_afterTheMessageIsGone()
{
    const TestFormat format("Demo", "A\n b B\nB part\n list C[]\nC part\n x uint8 {P=1, Q=2}\n");
    Shown shown(format, {"A"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    const QString before = shown.after("A{b: {list: [{x: P}, {x: Q}]}}");
    // The second message has no b, so its rows stay, but what they showed is deleted.
    QCOMPARE(shown.after("A{}"), before);
    auto *b = dynamic_cast<MessageTreeWidgetItem *>(shown.row()->child(0));
    auto *element = dynamic_cast<MessageTreeWidgetItem *>(b->child(0)->child(0));
    QCOMPARE(b->getDisplayedMessage(), nullptr);
    QCOMPARE(element->getDisplayedMessage(), nullptr);

    filter.setSearchString("P");
    QVERIFY(element->isHidden());
    filter.setSearchString("");
    QCOMPARE(printed(shown.tree), before);
}

void TestMessageTreeRows::filter_ofScalars_showsAll()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{samples: [7, 8]}");
    filter.setSearchString("8");
    QVERIFY(!shown.row()->child(3)->child(0)->isHidden());
}

void TestMessageTreeRows::filter_replaced_leavesNoConnection()
{
    const TestFormat format("Demo", types);
    Shown shown(format, {"Position"});
    MessageTreeFilter first;
    MessageTreeFilter second;
    shown.row()->setFilter(&first);
    shown.after("Position{sats: [{state: Good}, {state: Lost}]}");
    shown.row()->setFilter(&second);
    QCOMPARE(shown.row()->getFilter(), &second);
    second.setSearchString("Lost");
    QTreeWidgetItem *sats = shown.row()->child(5);
    QVERIFY(sats->child(0)->isHidden());
    sats->child(0)->setHidden(false);
    first.setSearchString("Lost");
    QVERIFY(!sats->child(0)->isHidden()); // nobody filtered again
}

void TestMessageTreeRows::filter_reachesNewRows()
{
    const TestFormat format("Demo", types);
    MessageTreeFilter filter;
    MessageTreeWidget tree;
    auto *row = new MessageTreeWidgetItem(&tree, nullptr);
    tree.addTopLevelItem(row);
    row->setFilter(&filter);
    filter.setSearchString("Good");
    row->displayMessage(format.message("Position{sats: [{state: Lost}, {state: Good}]}"));
    auto *sats = dynamic_cast<AbstractMessageTreeWidgetItem *>(row->child(5));
    QCOMPARE(sats->getFilter(), &filter);
    QVERIFY(sats->child(0)->isHidden());
    auto *inner = dynamic_cast<AbstractMessageTreeWidgetItem *>(sats->child(1)->child(2));
    QCOMPARE(inner->getFilter(), &filter);
    row->setMessageInfo(nullptr);
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

void TestMessageTreeRows::accounting_countsEachClassOfTheChain()
{
    const TestFormat format("Demo", types);
    const auto live = [] { return MemLeakTracer::getInstance()->getLiveObjects(); };
    const auto before = live();
    MessageTreeWidget tree;
    {
        const SingleSubMessageFieldTreeWidgetItem sub(&tree, 0);
        const RepeatedFieldTreeWidgetItem repeated(&tree);
        const StringFieldTreeWidgetItem string(&tree);
        const SingleValueFieldTreeWidgetItem single(&tree, 0);
        auto now = live();
        const auto more = [&](const char *name) {
            return now.value(QLatin1String(name)) - before.value(QLatin1String(name));
        };
        QCOMPARE(more("AbstractMessageTreeWidgetItem"), 4);
        QCOMPARE(more("AbstractFieldTreeWidgetItem"), 4);
        QCOMPARE(more("MessageTreeWidgetItem"), 1);
        QCOMPARE(more("SingleSubMessageFieldTreeWidgetItem"), 1);
        QCOMPARE(more("RepeatedFieldTreeWidgetItem"), 1);
        QCOMPARE(more("StringFieldTreeWidgetItem"), 1);
        QCOMPARE(more("SingleValueFieldTreeWidgetItem"), 1);
    }
    QCOMPARE(live().value("AbstractMessageTreeWidgetItem"),
             before.value("AbstractMessageTreeWidgetItem"));
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeRows)
#include "tst_messagetreerows.moc"
