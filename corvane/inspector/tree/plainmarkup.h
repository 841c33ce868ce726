#pragma once

#include <QString>

namespace corvane {

/** Markup that shows \a text as it is, shortened, so that a long one is wrapped. For tool tips. */
QString plainMarkup(const QString &text);

} // namespace corvane
