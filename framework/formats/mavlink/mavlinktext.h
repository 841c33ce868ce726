#pragma once

#include "corvaneframework_export.h"
#include "mavlinkdefinitions.h"

#include <QString>
#include <QtGlobal>

#include <optional>

class QXmlStreamReader;

namespace corvane {

// The small texts that dialect files are made of.

/** Whether \a text is a name: 1 to 200 letters, digits and underscores. */
CORVANEFRAMEWORK_EXPORT bool isMavlinkName(const QString &text);

/** Reads "12", "-1", "0x1F", "0b101" and "2**5" as 64 bits; nothing if it is no whole number. */
CORVANEFRAMEWORK_EXPORT std::optional<quint64> parseMavlinkNumber(const QString &text);

/** Reads "uint16_t" or "uint16_t[10]" into \a field; false when it is no type. */
CORVANEFRAMEWORK_EXPORT bool parseMavlinkType(const QString &text, MavlinkFieldDefinition &field);

/** \a text as an error message quotes it: not longer than 60 characters. */
QString quotable(const QString &text);

/** All text inside the current element, white space made simple; leaves the element. */
QString readInnerText(QXmlStreamReader &xml);

/** Leaves the current element unread. Elements nested too deeply are an error of \a xml. */
void skipElement(QXmlStreamReader &xml);

} // namespace corvane
