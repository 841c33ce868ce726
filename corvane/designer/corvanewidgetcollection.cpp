#include "corvanewidgetcollection.h"

#include "corvaneforms.h"
#include "formwidget.h"
#include "messagetreewidget.h"
#include "messagewidget.h"

namespace corvane {

namespace {

template <typename Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

#define CORVANE_TEXT(text) QT_TRANSLATE_NOOP("corvane::FormWidget", text)

constexpr FormWidgetDescription descriptions[] = {
    {"corvane::forms::FieldValueLabel", "corvaneforms.h", "fieldValueLabel",
     CORVANE_TEXT("The live value of one field of a message"), ":/corvane/fieldvaluelabel.svg",
     create<forms::FieldValueLabel>},
    {"MessageWidget", "messagewidget.h", "messageWidget",
     CORVANE_TEXT("A form of all fields of one message type"), ":/corvane/messagewidget.svg",
     create<MessageWidget>},
    {"MessageTreeWidget", "messagetreewidget.h", "messageTreeWidget",
     CORVANE_TEXT("A live tree of message types with their fields"),
     ":/corvane/messagetreewidget.svg", create<MessageTreeWidget>},
    {"corvane::forms::MessageStatisticsWidget", "corvaneforms.h", "messageStatisticsWidget",
     CORVANE_TEXT("Reception statistics of all message types; holds the place of one that is made "
                  "with its coordinator"),
     ":/corvane/messagestatisticswidget.svg", create<forms::MessageStatisticsWidget>},
    {"corvane::forms::EventLogTableWidget", "corvaneforms.h", "eventLogTableWidget",
     CORVANE_TEXT("The events of a stream"), ":/corvane/eventlogtablewidget.svg",
     create<forms::EventLogTableWidget>},
    {"corvane::forms::PathExpressionLabel", "corvaneforms.h", "pathExpressionLabel",
     CORVANE_TEXT("Shows a path expression"), ":/corvane/pathexpressionlabel.svg",
     create<forms::PathExpressionLabel>},
    {"corvane::forms::PathExpressionLineEdit", "corvaneforms.h", "pathExpressionLineEdit",
     CORVANE_TEXT("Edits a path expression as a text"), ":/corvane/pathexpressionlineedit.svg",
     create<forms::PathExpressionLineEdit>},
    {"corvane::forms::PathExpressionComboBox", "corvaneforms.h", "pathExpressionComboBox",
     CORVANE_TEXT("Chooses the text of a path expression out of a drop-down list"),
     ":/corvane/pathexpressioncombobox.svg", create<forms::PathExpressionComboBox>},
    {"corvane::forms::PathExpressionListWidget", "corvaneforms.h", "pathExpressionListWidget",
     CORVANE_TEXT("Chooses the text of a path expression out of a list"),
     ":/corvane/pathexpressionlistwidget.svg", create<forms::PathExpressionListWidget>},
};

#undef CORVANE_TEXT

} // namespace

CorvaneWidgetCollection::CorvaneWidgetCollection(QObject *parent)
    : QObject(parent)
{
    for (const FormWidgetDescription &description : descriptions)
        widgets.append(new FormWidget(description, this));
}

QList<QDesignerCustomWidgetInterface *> CorvaneWidgetCollection::customWidgets() const
{
    return widgets;
}

} // namespace corvane
