// Reads the input as a history of a message tree: messages, types that come and go, filters,
// columns, switches, rows that people open. After each step the tree must show what the model says.

#include "corvane.h"
#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "memleaktracer.h"
#include "messageholder.h"
#include "messageinfo.h"
#include "messagetreefilter.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "testformat.h"
#include "treemodel.h"
#include "treeprinter.h"
#include "widgetapplication.h"

#include <QAction>

#include <array>
#include <memory>
#include <utility>

using namespace corvane::fuzz;
using corvane::test::MessageHolder;
using corvane::test::TestFormat;

namespace {

constexpr char types[] = R"(
    Position 'Where it is'
      mode     uint8 {Manual=0, Auto=2} primary
      height   double optional unit "m"
      name     char[]
      samples  int16[] optional
      status   uint16 mask {Armed=1, Moving=2} technical
        armed  bits 0 bool
        gear   bits 4..7 technical
      words    uint16[]
        low    bits 0..1 {None=0, Some=1}
        code   bits 2..3 confidential
      best     Satellite optional
      sure     Satellite
      sats     Satellite[]
      total    double virtual
      secret   uint8 confidential secondary
      quiet    Satellite[] confidential
      spare    uint8 secondary
    Satellite part 'One in sight'
      id       uint8 primary
      state    uint8 {Lost=0, Good=1}
      signals  uint8[]
      clock    Clock
      clocks   Clock[] optional
    Clock part
      state    uint8 {Good=1, Bad=2} optional
      offset   int8 technical
      label    char[] optional
    Attitude
      roll     float
      mode     from Position
      date     uint32[]
        year   uint16[] optional
      names    char[]
)";

/** Of a format that comes later and may go again. */
constexpr char laterTypes[] = R"(
    Extra
      mode   uint8 {Good=1}
      items  Item[]
    Item part
      state  uint8 {Good=1, Fair=3}
      rest   int32 optional
)";

constexpr std::array filterTexts{"", "Good", "Bad", "1", "nothing", "Lost", "Some"};
constexpr int mostRows = 6;
constexpr unsigned mostElements = 12;

QString literalOf(Input &input, const MessageInfo *type);

QString valueOf(Input &input, const FieldInfo *field)
{
    const MessageInfo *const subType = field->getType().getSubMessageInfo();
    const unsigned choice = input.takeByte();
    if (choice == 0xff)
        return QStringLiteral("invalid");
    return subType != nullptr ? literalOf(input, subType).mid(subType->getName().size())
                              : QString::number(choice % 4);
}

QString valuesOf(Input &input, const FieldInfo *field, unsigned count)
{
    if (field->isStringField())
        return QStringLiteral("\"%1\"").arg(QString(count, QLatin1Char('s')));
    QStringList values;
    for (unsigned i = 0; i < count; ++i)
        values += valueOf(input, field);
    const QString text = values.join(QLatin1String(", "));
    return field->isRepeated() ? QStringLiteral("[%1]").arg(text) : text;
}

QString nameOf(const FieldInfo *field)
{
    const FieldInfo *const parent = field->getParentFieldInfo();
    return parent != nullptr ? nameOf(parent) + QLatin1Char('.') + field->getName()
                             : field->getName();
}

/** A message with as many values of each field as the next byte says. */
QString literalOf(Input &input, const MessageInfo *type)
{
    QStringList fields;
    for (const FieldInfo *field : type->getFieldInfos()) {
        const bool isBits = dynamic_cast<const corvane::test::TestFieldInfo *>(field) == nullptr;
        const unsigned choice = isBits ? 0 : input.takeByte();
        unsigned count = field->isRepeated() ? choice % 4 : choice % 2;
        if (field->isRepeated() && choice > 0xf0)
            count = mostElements;
        if (count > 0)
            fields += nameOf(field) + QLatin1String(": ") + valuesOf(input, field, count);
    }
    return QStringLiteral("%1{%2}").arg(type->getName(), fields.join(QLatin1String(", ")));
}

/** A tree and its model, which go through the same. */
class History
{
public:
    History();
    ~History();

    void doStep(Input &input);
    void compare();

private:
    const MessageInfo *chooseType(unsigned choice) const;
    int chooseRow(unsigned choice) const;
    MessageTreeWidgetItem *rowAt(int row);
    void addRow(const MessageInfo *type);
    void removeRow(int row);
    void process(Input &input);
    void display(Input &input);
    void changeFilter(Input &input);
    void changeColumns(Input &input);
    void changeSwitch(unsigned choice);
    void toggle(QAction *action, MessageTreeWidget::ColumnType type);
    void openOrClose(Input &input);
    void changeLater();

    TestFormat format{QStringLiteral("Demo"), types};
    std::unique_ptr<TestFormat> later;
    std::array<MessageTreeFilter, 2> filters{MessageTreeFilter{nullptr},
                                             MessageTreeFilter{nullptr}};
    MessageTreeWidget tree{nullptr};
    TreeModel model;
};

History::History()
{
    addRow(format.type(QStringLiteral("Position")));
    rowAt(0)->setFilter(&filters.front());
    model.setFilter(0, &filters.front());
}

History::~History()
{
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap.clear();
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    Corvane::setConfidentialInformationDisplayEnabled(false);
}

void History::doStep(Input &input)
{
    const unsigned choice = input.takeByte();
    const int row = chooseRow(choice >> 4);
    switch (choice % 16) {
    case 0:
        return addRow(chooseType(choice >> 4));
    case 1:
        return removeRow(row);
    case 2:
        return display(input);
    case 3:
        return changeFilter(input);
    case 4:
        return changeColumns(input);
    case 5:
        return changeSwitch(choice >> 4);
    case 6:
    case 7:
        return openOrClose(input);
    case 8:
        return changeLater();
    case 9:
        if (row >= 0) {
            rowAt(row)->clearValues();
            model.clear(row);
        }
        return;
    default:
        return process(input);
    }
}

/** Of eight, one is none and two are gone most of the time. */
const MessageInfo *History::chooseType(unsigned choice) const
{
    switch (choice % 8) {
    case 0:
        return nullptr;
    case 1:
    case 2:
        return format.type(QStringLiteral("Attitude"));
    case 3:
    case 4:
        if (later != nullptr)
            return later->type(QStringLiteral("Extra"));
        [[fallthrough]];
    default:
        return format.type(QStringLiteral("Position"));
    }
}

int History::chooseRow(unsigned choice) const
{
    return tree.topLevelItemCount() == 0 ? -1 : static_cast<int>(choice) % tree.topLevelItemCount();
}

MessageTreeWidgetItem *History::rowAt(int row)
{
    return dynamic_cast<MessageTreeWidgetItem *>(tree.topLevelItem(row));
}

void History::addRow(const MessageInfo *type)
{
    if (tree.topLevelItemCount() == mostRows)
        return;
    auto *const row = new MessageTreeWidgetItem(&tree, type);
    tree.addTopLevelItem(row);
    row->configureInTreeWidget();
    model.addRow(type);
}

void History::removeRow(int row)
{
    if (row < 0)
        return;
    delete tree.topLevelItem(row);
    model.removeRow(row);
}

void History::process(Input &input)
{
    const MessageInfo *const type = chooseType(input.takeByte());
    if (type == nullptr)
        return;
    const TestFormat &from = later != nullptr && type == chooseType(3) ? *later : format;
    const MessageHolder message = from.message(literalOf(input, type));
    tree.processMessage(message);
    model.process(message);
}

void History::display(Input &input)
{
    const unsigned choice = input.takeByte();
    const int row = chooseRow(choice >> 4);
    if (row < 0)
        return;
    const MessageInfo *const type = choice % 8 < 3 ? chooseType(choice) : nullptr;
    const MessageHolder message(type != nullptr ? format.message(literalOf(input, type))
                                                : MessageHolder());
    rowAt(row)->displayMessage(message);
    model.display(row, message);
}

void History::changeFilter(Input &input)
{
    const unsigned choice = input.takeByte();
    MessageTreeFilter *const filter = &filters.at(choice % 2);
    const int row = chooseRow(choice >> 4);
    if ((choice & 2) != 0) {
        filter->setSearchString(QLatin1String(filterTexts.at((choice >> 2) % filterTexts.size())));
        model.applyFilter(filter);
    } else if (row >= 0) {
        rowAt(row)->setFilter((choice & 4) != 0 ? nullptr : filter);
        model.setFilter(row, (choice & 4) != 0 ? nullptr : filter);
    }
}

void History::changeColumns(Input &input)
{
    const unsigned choice = input.takeByte();
    QList<MessageTreeWidget::ColumnType> columns = tree.getColumns();
    const auto type = static_cast<MessageTreeWidget::ColumnType>((choice >> 3) % 14);
    switch (choice % 8) {
    case 0:
        tree.clearColumns(true);
        return model.setColumns({});
    case 1:
        return toggle(tree.getToggleTypeColumnAction(), MessageTreeWidget::Type);
    case 2:
        return toggle(tree.getToggleRawValueColumnAction(), MessageTreeWidget::RawValue);
    case 3:
        return tree.setColumnHidden(static_cast<int>(choice >> 3) % 4, (choice & 0x80) != 0);
    case 4:
        columns.removeOne(type);
        columns.prepend(type);
        tree.setColumns(columns);
        return model.setColumns(columns);
    default:
        if (columns.contains(type))
            return;
        tree.addColumn(type, true);
        return model.setColumns(columns << type);
    }
}

void History::toggle(QAction *action, MessageTreeWidget::ColumnType type)
{
    QList<MessageTreeWidget::ColumnType> columns = tree.getColumns();
    require(action->isChecked() == columns.contains(type), "an action is checked with its column");
    if (!columns.removeOne(type))
        columns.append(type);
    action->trigger();
    model.setColumns(columns);
}

void History::changeSwitch(unsigned choice)
{
    const bool isOn = (choice & 1) != 0;
    switch (choice >> 1 & 7) {
    case 0:
        tree.setShowPrimaryFieldsOnly(isOn);
        return model.setShowPrimaryOnly(isOn);
    case 1:
        tree.setHideSecondaryFields(isOn);
        return model.setShowPrimaryOnly(!isOn); // kept as it is, though it reads backwards
    case 2:
        tree.setShowVirtualFields(isOn);
        return model.setShowVirtual(isOn);
    case 3:
        tree.setHideVirtualFields(isOn);
        return model.setShowVirtual(!isOn);
    case 4:
        // Rows that are made from now on follow, and the others once they are configured.
        return Corvane::setConfidentialInformationDisplayEnabled(isOn);
    case 5:
        tree.setVisible(isOn);
        return;
    case 6:
        return QApplication::processEvents();
    default:
        tree.reconfigureTopLevelAbstractMessageTreeWidgetItems();
        return model.configure();
    }
}

void History::openOrClose(Input &input)
{
    const int top = chooseRow(input.takeByte());
    if (top < 0 || tree.columnCount() == 0)
        return;
    QTreeWidgetItem *item = tree.topLevelItem(top);
    ModelRow *row = model.getRows().at(top).get();
    for (unsigned choice = input.takeByte(); choice != 0 && item->childCount() > 0;
         choice = input.takeByte())
    {
        const int below = static_cast<int>(choice) % item->childCount();
        item = item->child(below);
        row = row->rows.at(below).get();
    }
    const bool isExpanded = item->isExpanded();
    item->setExpanded(!isExpanded);
    model.setExpanded(*row, !isExpanded);
}

/** Its rows go before the types do, and what is remembered of them as well. */
void History::changeLater()
{
    if (later == nullptr) {
        later = std::make_unique<TestFormat>(QStringLiteral("Later"), QLatin1String(laterTypes));
        return;
    }
    const MessageInfo *const extra = later->type(QStringLiteral("Extra"));
    for (int row = tree.topLevelItemCount() - 1; row >= 0; --row)
        if (rowAt(row)->getMessageInfo() == extra)
            removeRow(row);
    for (const MessageInfo *type : {extra, later->type(QStringLiteral("Item"))}) {
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap.remove(type);
        for (const FieldInfo *field : type->getFieldInfos())
            MessageTreeWidget::sFieldInfoExpandedCollapsedMap.remove(field);
        model.removeType(type);
    }
    later.reset();
}

void History::compare()
{
    require(tree.topLevelItemCount() == static_cast<int>(model.getRows().size()), "row for row");
    for (int row = 0; row < tree.topLevelItemCount(); ++row)
        require(rowAt(row)->getDisplayedMessage() == model.getRows().at(row)->message,
                "the newest message is shown");
    // Without columns a view can tell neither what is hidden nor what is expanded.
    if (tree.columnCount() > 0)
        requireEqual(corvane::test::printed(tree), model.print(), "the tree shows the history");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeWidgetApplication();
    const auto liveObjects = MemLeakTracer::getInstance()->getLiveObjects();
    {
        Input input(bytes, count);
        History history;
        while (!input.isEmpty()) {
            history.doStep(input);
            history.compare();
        }
    }
    require(MemLeakTracer::getInstance()->getLiveObjects() == liveObjects, "nothing is left");
    return 0;
}
