#pragma once

class FormatInfo;
class QSettings;

namespace corvane {

// Which message types of a format people have collapsed in the tree. The tree itself remembers
// only what is expanded, and types are unless people collapse them.

/** Adds those of \a format to the settings, in place of what they held of its types. */
void saveCollapsedTypes(QSettings &settings, const FormatInfo &format);
/** To be called before the rows are made. */
void restoreCollapsedTypes(const QSettings &settings, const FormatInfo &format);

} // namespace corvane
