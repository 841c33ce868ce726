#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

class NoticeArea;

// What the program did last, for whoever looks into a crash: the latest trace lines, Qt's messages
// and the events of the log are kept in memory, and written to a file of their own when the program
// crashes or an assertion ends it.

/** Where the files are. */
QString getCrashFolder();
/** Begins to keep lines; to be called once, early in main(). */
void keepTrace(const QString &folder);
/** Keeps a line with the present time, if keepTrace() was called. */
void addTraceLine(const QString &text);
/** The files of earlier crashes, latest first. */
QStringList findCrashTraces(const QString &folder);
/** Tells of the files of earlier crashes in \a folder, and lets people look at or delete them. */
void offerCrashTraces(NoticeArea &notices, const QString &folder);

} // namespace corvane
