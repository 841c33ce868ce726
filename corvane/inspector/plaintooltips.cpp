#include "plaintooltips.h"

#include "inspectortree.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>

namespace corvane {

namespace {

/** Characters that mean something to a text document, or nothing to anybody. */
bool isUnfit(QChar character)
{
    if (character == QLatin1Char('\n') || character == QLatin1Char('\t'))
        return false;
    return character.category() == QChar::Other_Control
           || character.category() == QChar::Other_NotAssigned
           || character == QChar::ObjectReplacementCharacter;
}

/** Markup that shows \a text, so that a long one is wrapped. */
QString markupOf(const QString &text)
{
    QString plain = SteadyTreeWidget::shortened(text);
    for (QChar &character : plain)
        if (isUnfit(character))
            character = QChar::ReplacementCharacter;
    return QStringLiteral("<p style=\"white-space: pre-wrap\">") + plain.toHtmlEscaped()
           + QStringLiteral("</p>");
}

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
    QToolTip::showText(help->globalPos(), markupOf(text), widget, area);
    return true;
}

} // namespace corvane
