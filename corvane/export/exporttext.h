#pragma once

#include <QStringView>
#include <QtGlobal>

#include <string>

namespace corvane {

// The parts that exported texts are made of. Everything is appended in UTF-8.

/** Half surrogates become question marks. */
void appendUtf8(std::string &out, QStringView text);
/**
 * Appends UTC in ISO 8601, "2026-01-01T12:00:22.200000Z". False (and nothing appended) for an
 * unknown time, and for one before the year 0 or after 9999.
 */
bool appendTime(std::string &out, qint64 timeUs);

/** Makes a JSON string of what stands in \a out from \a begin on. */
void quoteJson(std::string &out, size_t begin);
/**
 * Makes a CSV cell (RFC 4180) of what stands in \a out from \a begin on: in quotes where it holds
 * quotes, commas, line breaks or other control characters, begins or ends with a space, or is empty
 * (a cell without quotes is one without value).
 */
void quoteCsv(std::string &out, size_t begin);

} // namespace corvane
