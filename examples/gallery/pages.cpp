#include "pages.h"

#include <QAction>
#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include <eventlogtablewidget.h>
#include <fieldinfo.h>
#include <fieldvaluelabel.h>
#include <message.h>
#include <messageinfo.h>
#include <messagesource.h>
#include <messagestatisticswidget.h>
#include <messagetreewidget.h>
#include <messagetreewidgetitem.h>
#include <messagewidget.h>
#include <pathexpressioncombobox.h>
#include <pathexpressionlabel.h>
#include <pathexpressionlineedit.h>
#include <pathexpressionlistwidget.h>

namespace {

QFormLayout *createForm(QWidget **page)
{
    *page = new QWidget;
    return new QFormLayout(*page);
}

template <typename Function>
void addSwitch(QFormLayout *form, const QString &name, bool checked, Function function)
{
    auto *box = new QCheckBox(name);
    box->setChecked(checked);
    QObject::connect(box, &QCheckBox::toggled, function);
    form->addRow(box);
}

QList<const MessageInfo *> findTypes(const QString &expression)
{
    PathExpression path;
    path.setString(expression);
    return path.getMatchingMessageInfos();
}

// [find a field]
const FieldInfo *findField(const QString &expression)
{
    PathExpression path;
    path.setString(expression);
    const QList<const FieldInfo *> fields = path.getMatchingFieldInfos();
    return fields.isEmpty() ? nullptr : fields.first();
}

// [find a field]

} // namespace

QWidget *createFieldValueLabelPage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    // [show a field]
    auto *mode = new FieldValueLabel(findField("MAVLink.HEARTBEAT.mode"), data.source);
    mode->setTimeOut(2000); // "N/A" when nothing came for two seconds
    form->addRow("HEARTBEAT.mode", mode);
    // [show a field]
    auto *wheel = new FieldValueLabel(findField("MAVLink.WHEELS.speed"), data.source);
    form->addRow("WHEELS.speed", wheel);

    addSwitch(form, "Symbolic names", mode->getShowInterpretedString(),
              [mode](bool on) { mode->setShowInterpretedString(on); });
    auto *index = new QSpinBox;
    index->setRange(-1, 4);
    index->setValue(-1);
    index->setSpecialValueText("first of all");
    QObject::connect(index, &QSpinBox::valueChanged, wheel, [wheel](int value) {
        if (value < 0)
            wheel->clearIndex();
        else
            wheel->setIndex(static_cast<unsigned int>(value));
    });
    form->addRow("Wheel", index);
    auto *timeOut = new QSpinBox;
    timeOut->setRange(-1, 10'000);
    timeOut->setValue(2000);
    timeOut->setSuffix(" ms");
    QObject::connect(timeOut, &QSpinBox::valueChanged, mode, &FieldValueLabel::setTimeOut);
    form->addRow("Time-out", timeOut);
    return page;
}

QWidget *createMessageWidgetPage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    auto *types = new QComboBox;
    form->addRow("Type", types);
    // [show a form]
    auto *message = new MessageWidget;
    QObject::connect(data.source, &MessageSource::newMessage, message,
                     &MessageWidget::processMessage);
    form->addRow(message);
    // [show a form]
    QObject::connect(types, &QComboBox::currentTextChanged, message,
                     [message](const QString &name) {
                         message->setMessageInfo(findTypes("MAVLink." + name).value(0));
                     });
    for (const MessageInfo *type : findTypes("*.*"))
        types->addItem(type->getName());
    auto *clear = new QPushButton("Clear the values");
    QObject::connect(clear, &QPushButton::clicked, message, &MessageWidget::clearValues);
    form->addRow(clear);
    return page;
}

QWidget *createMessageTreePage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    // [show a tree]
    auto *tree = new MessageTreeWidget;
    for (const MessageInfo *type : findTypes("*.*")) {
        auto *row = new MessageTreeWidgetItem(tree, type);
        tree->addTopLevelItem(row);
        row->configureInTreeWidget();
    }
    QObject::connect(data.source, &MessageSource::newMessage, tree,
                     &MessageTreeWidget::processMessage);
    // [show a tree]
    tree->resizeColumns();
    for (QAction *action : tree->getToggleColumnActions()) {
        addSwitch(form, action->text(), action->isChecked(), [action](bool on) {
            if (action->isChecked() != on)
                action->trigger();
        });
    }
    addSwitch(form, "Primary fields only", false,
              [tree](bool on) { tree->setShowPrimaryFieldsOnly(on); });
    addSwitch(form, "Secondary fields", true,
              [tree](bool on) { tree->setHideSecondaryFields(on); }); // reads backwards
    addSwitch(form, "Virtual fields", true, [tree](bool on) { tree->setShowVirtualFields(on); });
    form->addRow(tree);
    return page;
}

QWidget *createPathTextsPage(const LiveData &)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    auto *expression = new PathExpression(page);
    expression->setString("MAVLink.MOTION.heading");
    auto *edit = new PathExpressionLineEdit(expression, PathExpression::AllParts);
    auto *label = new PathExpressionLabel(expression, PathExpression::AllParts);
    form->addRow("PathExpressionLineEdit", edit);
    form->addRow("PathExpressionLabel", label);
    addSwitch(form, "The label shows the field only", false, [label](bool on) {
        label->setParts(on ? PathExpression::FieldPart : PathExpression::AllParts);
    });
    return page;
}

QWidget *createPathComboBoxPage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    // [choose a field]
    auto *expression = new PathExpression(page);
    expression->setString("MAVLink.MOTION.heading");
    auto *options = new PathExpression(page);
    options->setString("MAVLink.MOTION.*");
    auto *box = new PathExpressionComboBox(expression, PathExpression::FieldPart, options);
    box->setAllOptionEnabled(false, {});
    auto *value = new FieldValueLabel(findField(expression->getString(PathExpression::AllParts)),
                                      data.source);
    QObject::connect(expression, &PathExpression::expressionChanged, value,
                     [value](const QString &path) { value->setFieldInfo(findField(path)); });
    // [choose a field]
    form->addRow("Field of MOTION", box);
    form->addRow("Value", value);
    addSwitch(form, "An entry for all", false,
              [box](bool on) { box->setAllOptionEnabled(on, "all of them"); });
    return page;
}

QWidget *createPathListPage(const LiveData &)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    auto *expression = new PathExpression(page);
    expression->setString("MAVLink.HEARTBEAT.*");
    const PathExpression::Parts typeParts
        = PathExpression::FormatPart | PathExpression::MessagePart;
    form->addRow(new PathExpressionLabel(expression, PathExpression::AllParts));
    form->addRow(new PathExpressionListWidget(expression, typeParts, nullptr));
    return page;
}

QWidget *createStatisticsPage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    // [show statistics]
    auto *statistics = new MessageStatisticsWidget(data.statistics);
    auto *timer = new QTimer(statistics);
    QObject::connect(timer, &QTimer::timeout, statistics, &MessageStatisticsWidget::updateTree);
    timer->start(500);
    // [show statistics]
    statistics->updateTree();
    statistics->header()->resizeSection(0, 200);
    form->addRow(statistics);
    return page;
}

QWidget *createEventLogPage(const LiveData &data)
{
    QWidget *page = nullptr;
    QFormLayout *form = createForm(&page);
    auto *table = new EventLogTableWidget(data.events);
    table->horizontalHeader()->setStretchLastSection(true);
    form->addRow(table);
    auto *clear = new QPushButton("Clear the log");
    QObject::connect(clear, &QPushButton::clicked, data.events, &EventLog::clear);
    form->addRow(clear);
    return page;
}
