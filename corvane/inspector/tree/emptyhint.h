#pragma once

#include <QAbstractScrollArea>
#include <QPainter>

namespace corvane {

/** What would fill \a view, in its middle; to be called while the empty view is painted. */
inline void paintEmptyHint(QAbstractScrollArea &view, const QString &text)
{
    QPainter painter(view.viewport());
    painter.setPen(view.palette().color(QPalette::PlaceholderText));
    const int margin = view.fontMetrics().height();
    painter.drawText(view.viewport()->rect().adjusted(margin, 0, -margin, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace corvane
