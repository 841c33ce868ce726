#pragma once

class EventLog;
class MessageStatisticsCoordinator;
class QIODevice;

namespace corvane {

// What a stream consisted of, as CSV (RFC 4180) in UTF-8. \a device is open for writing; false when
// it did not take the text, then its errorString() says why.

/** One row for each message type that has been seen, in the order of first sight. */
bool writeStatisticsCsv(const MessageStatisticsCoordinator &statistics, QIODevice &device);
/** One row for each entry of the log, oldest first: time, type, text. */
bool writeEventLogCsv(const EventLog &log, QIODevice &device);

} // namespace corvane
