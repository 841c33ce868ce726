#pragma once

#include "pathexpression.h"

namespace corvane {

/** Cuts all connections between \a widget and \a expression, which may be null. */
inline void disconnectFrom(PathExpression *expression, QObject *widget)
{
    if (expression == nullptr)
        return;
    QObject::disconnect(expression, nullptr, widget, nullptr);
    QObject::disconnect(widget, nullptr, expression, nullptr);
}

/** \a signal of \a next, which may be null, updates \a widget in place of that of \a followed. */
inline void
follow(PathExpression *&followed, PathExpression *next, const char *signal, QObject *widget)
{
    disconnectFrom(followed, widget);
    followed = next;
    if (next != nullptr)
        QObject::connect(next, signal, widget, SLOT(updateContents()));
}

} // namespace corvane
