#include "processsampler.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

namespace corvane {

namespace {

constexpr std::array<std::pair<char, host::ProcessState>, 11> processStates{{
    {'R', host::STATE_RUNNING},
    {'S', host::STATE_SLEEPING},
    {'D', host::STATE_DISK_SLEEP},
    {'K', host::STATE_DISK_SLEEP},
    {'Z', host::STATE_ZOMBIE},
    {'T', host::STATE_STOPPED},
    {'t', host::STATE_TRACED},
    {'X', host::STATE_DEAD},
    {'x', host::STATE_DEAD},
    {'I', host::STATE_IDLE},
    {'P', host::STATE_SLEEPING},
}};

host::ProcessState getProcessState(char letter)
{
    for (const auto &[known, state] : processStates) {
        if (known == letter)
            return state;
    }
    return host::STATE_UNKNOWN;
}

double getTicksPerSecond()
{
    static const auto ticks = static_cast<double>(::sysconf(_SC_CLK_TCK));
    return ticks;
}

quint64 getPageBytes()
{
    static const auto bytes = static_cast<quint64>(::sysconf(_SC_PAGESIZE));
    return bytes;
}

void setFigures(host::Process *process, const ProcessStat &stat)
{
    process->set_pid(stat.pid);
    process->set_parent_pid(stat.parentPid);
    process->set_name(makeShownText(stat.name));
    process->set_state(getProcessState(stat.state));
    process->set_cpu_seconds(static_cast<double>(stat.cpuTicks) / getTicksPerSecond());
    process->set_resident_bytes(stat.residentPages * getPageBytes());
    process->set_threads(stat.threads);
    process->set_nice(stat.nice);
}

/** A process can have ended since; its command line is then absent, too. */
void readCommandLine(const SystemFiles &proc, host::Process *process)
{
    const std::optional<QByteArray> text
        = proc.read(QByteArray::number(process->pid()) + "/cmdline");
    const std::optional<QByteArray> line = text ? parseCommandLine(*text) : std::nullopt;
    if (line)
        process->set_command_line(makeShownText(*line));
}

void setAge(host::Process *process, const ProcessStat &stat, std::optional<double> uptime)
{
    const double start = static_cast<double>(stat.startTicks) / getTicksPerSecond();
    // The start is told in whole ticks, the time since in hundredths of a second.
    if (uptime)
        process->set_age_seconds(std::max(*uptime - start, 0.0));
}

template <typename Processes>
void setTotals(host::Processes &result, const Processes &processes)
{
    quint32 threads = 0;
    std::map<host::ProcessState, quint32> states;
    for (const auto &process : processes) {
        threads += process.stat.threads;
        ++states[getProcessState(process.stat.state)];
    }
    result.set_total(static_cast<quint32>(processes.size()));
    result.set_threads(threads);
    for (const auto &[state, count] : states) {
        host::StateCount *entry = result.add_states();
        entry->set_state(state);
        entry->set_count(count);
    }
}

} // namespace

host::Processes
ProcessSampler::sample(const SystemFiles &proc, double seconds, std::optional<double> uptime)
{
    host::Processes result;
    std::vector<Seen> processes = readAll(proc);
    setTotals(result, processes);
    sortBusiestFirst(processes);
    for (size_t i = 0; i < std::min(processes.size(), maximumListed); ++i) {
        const Seen &seen = processes[i];
        if (i >= minimumListed && seen.newTicks.value_or(0) == 0)
            break;
        host::Process *process = result.add_busiest();
        setFigures(process, seen.stat);
        setAge(process, seen.stat, uptime);
        readCommandLine(proc, process);
        if (seen.newTicks && seconds > 0.0)
            process->set_cpu_percent(100.0 * static_cast<double>(*seen.newTicks)
                                     / getTicksPerSecond() / seconds);
    }
    return result;
}

std::vector<ProcessSampler::Seen> ProcessSampler::readAll(const SystemFiles &proc)
{
    std::vector<Seen> processes;
    QHash<quint32, Ticks> current;
    for (const QByteArray &name : proc.list("")) {
        if (name[0] < '1' || name[0] > '9')
            continue;
        const std::optional<QByteArray> text = proc.read(name + "/stat");
        const std::optional<ProcessStat> stat = text ? parseProcessStat(*text) : std::nullopt;
        if (!stat)
            continue;
        const auto before = previous.constFind(stat->pid);
        std::optional<quint64> newTicks;
        if (before != previous.cend() && before->start == stat->startTicks)
            newTicks = getIncrease(before->used, stat->cpuTicks);
        else if (hasPrevious)
            newTicks = stat->cpuTicks;
        processes.push_back({*stat, newTicks});
        current.insert(stat->pid, {stat->startTicks, stat->cpuTicks});
    }
    previous = current;
    hasPrevious = true;
    return processes;
}

void ProcessSampler::sortBusiestFirst(std::vector<Seen> &processes)
{
    const auto getRank = [](const Seen &seen) {
        return std::tuple(seen.newTicks.value_or(0), seen.stat.residentPages);
    };
    std::stable_sort(
        processes.begin(), processes.end(),
        [getRank](const Seen &left, const Seen &right) { return getRank(left) > getRank(right); });
}

} // namespace corvane
