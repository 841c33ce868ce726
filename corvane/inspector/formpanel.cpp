#include "formpanel.h"

#include "corvane.h"
#include "descriptions.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagewidget.h"
#include "steadytreewidget.h"

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace corvane {

namespace {

/** Texts of streams and definitions may be of any length, which a label would lay out as a whole.
 */
void shorten(QLabel &label)
{
    const QString text = SteadyTreeWidget::shortened(label.text());
    if (text != label.text())
        label.setText(text);
}

} // namespace

FormPanel::FormPanel(const LatestMessages &latest, QWidget *parent)
    : QWidget(parent)
    , latest(latest)
    , heading(new QLabel(this))
    , description(new QLabel(this))
    , form(new MessageWidget)
{
    fitHeading();
    heading->setTextFormat(Qt::PlainText);
    description->setTextFormat(Qt::PlainText);
    description->setWordWrap(true);
    form->setAccessibleName(tr("Fields of the chosen message type"));

    auto *content = new QWidget;
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->addWidget(form);
    contentLayout->addStretch(1); // a short form stays at the top instead of spreading
    auto *formArea = new QScrollArea(this);
    formArea->setAccessibleName(tr("Form"));
    formArea->setWidgetResizable(true);
    formArea->setFrameShape(QFrame::NoFrame);
    formArea->setWidget(content);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(description);
    layout->addWidget(formArea, 1);
    connect(&latest, &MessageSource::newMessage, this, &FormPanel::showMessage);
    connect(&latest, &LatestMessages::senderChanged, form, &MessageWidget::clearValues);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this,
            &FormPanel::showLatest);
}

void FormPanel::fitHeading()
{
    QFont headingFont = font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.3);
    headingFont.setBold(true);
    heading->setFont(headingFont);
}

void FormPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitHeading();
}

void FormPanel::showType(const MessageInfo *newType)
{
    if (newType != nullptr && newType == type)
        return showLatest();
    if (newType != nullptr)
        setContent(newType->getName(), newType->getData()->description, newType);
    else
        setContent({}, {}, nullptr);
    showLatest();
}

void FormPanel::showLatest()
{
    const Message *message = type != nullptr ? latest.get(type) : nullptr;
    if (message != nullptr)
        showMessage(message);
}

void FormPanel::showMessage(const Message *message)
{
    form->processMessage(message);
    for (QLabel *label : std::as_const(labels))
        shorten(*label);
}

void FormPanel::showText(const QString &title, const QString &text)
{
    setContent(title, text, nullptr);
}

void FormPanel::setContent(const QString &title, const QString &text, const MessageInfo *newType)
{
    type = newType;
    heading->setText(title);
    description->setText(text);
    form->setMessageInfo(type);
    labels = form->findChildren<QLabel *>();
    for (QLabel *label : std::as_const(labels))
        label->setTextFormat(Qt::PlainText);
    for (QLabel *label : {heading, description})
        shorten(*label);
}

} // namespace corvane
