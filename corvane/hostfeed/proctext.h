#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QMap>
#include <QtGlobal>

#include <optional>
#include <string>
#include <vector>

/** \file
 * Readers of the kernel's text files. They look at nothing but the text they are given; a line that
 * is not as expected is left out. The formats are those of proc(5).
 */

namespace corvane {

/** Ticks of a core since the system started, by what they were used for. */
struct CpuTimes
{
    quint64 user = 0;
    quint64 nice = 0;
    quint64 system = 0;
    quint64 idle = 0;
    quint64 wait = 0;
    quint64 interrupts = 0; ///< Hard and soft ones.
    quint64 steal = 0;
};

/** /proc/stat */
struct SystemCounters
{
    std::optional<CpuTimes> total;
    QMap<quint32, CpuTimes> cores; ///< By the core's number.
    std::optional<quint64> contextSwitches;
    std::optional<quint64> interrupts;
    std::optional<quint64> forks;
};

/** One direction of a network interface. */
struct TrafficCounters
{
    quint64 bytes = 0;
    quint64 packets = 0;
    quint64 errors = 0;
    quint64 dropped = 0;
};

/** A line of /proc/net/dev */
struct InterfaceCounters
{
    QByteArray name;
    TrafficCounters received;
    TrafficCounters sent;
};

/** A line of /proc/diskstats */
struct DiskCounters
{
    QByteArray name;
    quint64 readBytes = 0;
    quint64 writtenBytes = 0;
    quint64 requestsInProgress = 0;
    quint64 busyMs = 0;
};

/** /proc/PID/stat */
struct ProcessStat
{
    quint32 pid = 0;
    QByteArray name; ///< May contain anything, also spaces and parentheses.
    char state = '?';
    quint32 parentPid = 0;
    quint64 cpuTicks = 0; ///< In programs and the kernel, without ended children.
    qint32 nice = 0;
    quint32 threads = 0;
    quint64 startTicks = 0; ///< Since the system started.
    quint64 residentPages = 0;
};

/** /proc/loadavg */
struct LoadAverages
{
    double oneMinute = 0.0;
    double fiveMinutes = 0.0;
    double fifteenMinutes = 0.0;
    quint32 runnable = 0;
    quint32 threads = 0;
};

SystemCounters parseSystemCounters(QByteArrayView text);
/** /proc/meminfo: sizes in bytes by the kernel's names; figures without a unit are left out. */
QMap<QByteArray, quint64> parseMemorySizes(QByteArrayView text);
std::vector<InterfaceCounters> parseInterfaces(QByteArrayView text);
std::vector<DiskCounters> parseDisks(QByteArrayView text);
std::optional<ProcessStat> parseProcessStat(QByteArrayView text);
/** /proc/PID/cmdline: program and arguments with spaces between; nothing if there are none. */
std::optional<QByteArray> parseCommandLine(QByteArrayView text);
std::optional<LoadAverages> parseLoadAverages(QByteArrayView text);
/** /proc/uptime: seconds since the system started. */
std::optional<double> parseUptime(QByteArrayView text);
/** A file that holds one number, as those of /sys do. */
std::optional<qint64> parseNumber(QByteArrayView text);

/**
 * \a text as valid UTF-8 on one line: control characters become spaces, bytes that are no UTF-8
 * become U+FFFD, white space around goes, and what is longer than \a maximum characters is cut
 * with an ellipsis.
 */
std::string makeShownText(QByteArrayView text, qsizetype maximum = 1000);

/** By how much a counter grew; nothing when it stepped back, which tells of a wrap or a restart. */
std::optional<quint64> getIncrease(quint64 previous, quint64 current);
/** Growth per second; nothing when the counter stepped back or no time passed. */
std::optional<double> getRate(quint64 previous, quint64 current, double seconds);

} // namespace corvane
