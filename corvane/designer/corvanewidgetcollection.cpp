#include "corvanewidgetcollection.h"

#include "corvaneforms.h"
#include "embeddedtranslations.h"
#include "formwidget.h"
#include "messagetreewidget.h"
#include "messagewidget.h"

#include <QCoreApplication>
#include <QTranslator>

namespace corvane {

namespace {

template <typename Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

constexpr FormWidgetDescription descriptions[] = {
    {"corvane::forms::FieldValueLabel", "corvaneforms.h", "fieldValueLabel",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "The live value of one field of a message"),
     ":/corvane/fieldvaluelabel.svg", create<forms::FieldValueLabel>},
    {"MessageWidget", "messagewidget.h", "messageWidget",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "A form of all fields of one message type"),
     ":/corvane/messagewidget.svg", create<MessageWidget>},
    {"MessageTreeWidget", "messagetreewidget.h", "messageTreeWidget",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "A live tree of message types with their fields"),
     ":/corvane/messagetreewidget.svg", create<MessageTreeWidget>},
    {"corvane::forms::MessageStatisticsWidget", "corvaneforms.h", "messageStatisticsWidget",
     QT_TRANSLATE_NOOP(
         "corvane::FormWidget",
         "Reception statistics of all message types; holds the place of one that is made "
         "with its coordinator"),
     ":/corvane/messagestatisticswidget.svg", create<forms::MessageStatisticsWidget>},
    {"corvane::forms::EventLogTableWidget", "corvaneforms.h", "eventLogTableWidget",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "The events of a stream"),
     ":/corvane/eventlogtablewidget.svg", create<forms::EventLogTableWidget>},
    {"corvane::forms::PathExpressionLabel", "corvaneforms.h", "pathExpressionLabel",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "Shows a path expression"),
     ":/corvane/pathexpressionlabel.svg", create<forms::PathExpressionLabel>},
    {"corvane::forms::PathExpressionLineEdit", "corvaneforms.h", "pathExpressionLineEdit",
     QT_TRANSLATE_NOOP("corvane::FormWidget", "Edits a path expression as a text"),
     ":/corvane/pathexpressionlineedit.svg", create<forms::PathExpressionLineEdit>},
    {"corvane::forms::PathExpressionComboBox", "corvaneforms.h", "pathExpressionComboBox",
     QT_TRANSLATE_NOOP("corvane::FormWidget",
                       "Chooses the text of a path expression out of a drop-down list"),
     ":/corvane/pathexpressioncombobox.svg", create<forms::PathExpressionComboBox>},
    {"corvane::forms::PathExpressionListWidget", "corvaneforms.h", "pathExpressionListWidget",
     QT_TRANSLATE_NOOP("corvane::FormWidget",
                       "Chooses the text of a path expression out of a list"),
     ":/corvane/pathexpressionlistwidget.svg", create<forms::PathExpressionListWidget>},
};

/** Qt Designer installs those of its own texts only. */
void installTranslations(QObject *owner)
{
    auto *translator = new QTranslator(owner);
    const EmbeddedTranslation *found = findTranslation();
    if (found != nullptr && translator->load(found->bytes, found->size))
        QCoreApplication::installTranslator(translator);
}

} // namespace

CorvaneWidgetCollection::CorvaneWidgetCollection(QObject *parent)
    : QObject(parent)
{
    installTranslations(this);
    for (const FormWidgetDescription &description : descriptions)
        widgets.append(new FormWidget(description, this));
}

QList<QDesignerCustomWidgetInterface *> CorvaneWidgetCollection::customWidgets() const
{
    return widgets;
}

} // namespace corvane
