#include "elidinglabel.h"

#include <QPainter>
#include <QStyle>

namespace corvane {

namespace {

constexpr int leastCharacters = 8;

} // namespace

ElidingLabel::ElidingLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void ElidingLabel::say(const QString &text)
{
    setText(text);
    setToolTip(text);
}

QSize ElidingLabel::minimumSizeHint() const
{
    const int least = fontMetrics().averageCharWidth() * leastCharacters;
    return QLabel::minimumSizeHint().boundedTo({least, QWIDGETSIZE_MAX});
}

void ElidingLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
}

} // namespace corvane
