#include "noticearea.h"

#include <QAccessible>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace corvane {

NoticeArea::NoticeArea(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    hide();
}

void NoticeArea::say(const QString &name,
                     const QString &text,
                     const QList<Button> &buttons,
                     const QString &closeText)
{
    QStringList buttonTexts;
    for (const Button &button : buttons)
        buttonTexts += button.text;
    buttonTexts += closeText;
    // A line that only tells of progress keeps its buttons, and with them the focus.
    if (Notice *known = find(name); known != nullptr && known->buttonTexts == buttonTexts) {
        known->label->setText(text);
        fitHeight();
        return;
    }
    withdraw(name);
    auto *line = new QFrame(this);
    line->setObjectName(name);
    line->setFrameShape(QFrame::StyledPanel);
    auto *lineLayout = new QHBoxLayout(line);
    lineLayout->setContentsMargins(6, 2, 6, 2);
    QLabel *label = createLabel(text, line);
    lineLayout->addWidget(label, 1);
    for (const Button &button : buttons)
        addButton(*lineLayout, name, button);
    if (!closeText.isEmpty())
        addButton(*lineLayout, name, {closeText, [] {}});
    layout()->addWidget(line);
    notices.push_back({name, line, label, buttonTexts});
    line->show();
    refresh();
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QLabel *NoticeArea::createLabel(const QString &text, QWidget *line)
{
    auto *label = new QLabel(text, line);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void NoticeArea::addButton(QHBoxLayout &layout, const QString &name, const Button &button)
{
    auto *pushButton = new QPushButton(button.text, this);
    layout.addWidget(pushButton);
    connect(pushButton, &QPushButton::clicked, this, [this, name, action = button.action] {
        // The button, and this function with it, may be gone once the line is.
        const auto act = action;
        withdraw(name);
        act();
    });
}

void NoticeArea::withdraw(const QString &name)
{
    Notice *known = find(name);
    if (known == nullptr)
        return;
    known->line->hide();
    known->line->deleteLater();
    layout()->removeWidget(known->line);
    notices.erase(notices.begin() + (known - notices.data()));
    refresh();
}

void NoticeArea::refresh()
{
    fitHeight();
    setVisible(!notices.empty());
    Q_EMIT filled(!notices.empty());
}

/** As high as the wrapped texts are, which bars and docks would not ask for. */
void NoticeArea::fitHeight()
{
    if (notices.empty())
        return;
    // Before it is laid out its own width says nothing; it goes over that of the window.
    const int wide = isVisible() ? width() : window()->width();
    setFixedHeight(layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(wide)
                                                 : layout()->sizeHint().height());
}

void NoticeArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitHeight();
}

QString NoticeArea::getText(const QString &name) const
{
    const auto found = std::find_if(notices.begin(), notices.end(),
                                    [&](const Notice &notice) { return notice.name == name; });
    return found != notices.end() ? found->label->text() : QString();
}

NoticeArea::Notice *NoticeArea::find(const QString &name)
{
    const auto found = std::find_if(notices.begin(), notices.end(),
                                    [&](const Notice &notice) { return notice.name == name; });
    return found != notices.end() ? &*found : nullptr;
}

} // namespace corvane
