#include "plaintooltips.h"

#include "inspectortree.h"
#include "plainmarkup.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace corvane {

namespace {

/** The view that shows its cells in \a widget, or null. */
const QAbstractItemView *viewOf(const QWidget *widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget->parentWidget());
    return view != nullptr && view->viewport() == widget ? view : nullptr;
}

} // namespace

PlainToolTips::PlainToolTips()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PlainToolTips::eventFilter(QObject *object, QEvent *event)
{
    auto *widget = event->type() == QEvent::ToolTip ? qobject_cast<QWidget *>(object) : nullptr;
    if (widget == nullptr)
        return false;
    const auto *help = static_cast<const QHelpEvent *>(event);
    QString text = widget->toolTip();
    QRect area;
    if (const QAbstractItemView *view = viewOf(widget)) {
        if (qobject_cast<const InspectorTree *>(view) != nullptr)
            return false; // which tells more, and as plainly
        const QModelIndex index = view->indexAt(help->pos());
        text = index.data(Qt::ToolTipRole).toString();
        area = view->visualRect(index);
    }
    if (text.isEmpty())
        return false;
    QToolTip::showText(help->globalPos(), plainMarkup(text), widget, area);
    return true;
}

} // namespace corvane
