#pragma once

#include "corvaneframework_export.h"

#include <QString>
#include <QtGlobal>

namespace corvane {

// Numbers as people read them: integers exact, floats with the fewest digits that read back as
// the same float of their own width. Plain notation from 1e-6 up to below 1e16 (1e8 for a float of
// 32 bits), scientific notation outside ("1e+16", "1.5e-07"); "NaN", "Infinity" and "-Infinity".

CORVANEFRAMEWORK_EXPORT QString textOf(float value);
CORVANEFRAMEWORK_EXPORT QString textOf(double value);
/** \a precision: digits after the decimal point, 0 to 17; more count as 17. */
CORVANEFRAMEWORK_EXPORT QString fixedTextOf(double value, int precision);
/** \a precision: the same; -1 for the fewest digits that read back. */
CORVANEFRAMEWORK_EXPORT QString scientificTextOf(double value, int precision);
CORVANEFRAMEWORK_EXPORT QString scientificTextOf(float value, int precision);
/** The digits of an integer or of a number's integer part, in groups of three apart. */
CORVANEFRAMEWORK_EXPORT QString groupedDigits(const QString &number);

} // namespace corvane
