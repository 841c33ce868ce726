#pragma once

#include <QIcon>

namespace corvane {

/**
 * The icon that the desktop's theme has under \a name, else our own, which is drawn in the colour
 * of the text around it and so follows light and dark.
 */
QIcon makeIcon(const QString &name);

/** The program's own icon. */
QIcon makeProgramIcon();

} // namespace corvane
