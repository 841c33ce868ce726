#include "hostsampler.h"

#include <QMap>

#include <array>
#include <utility>

namespace corvane {

namespace {

using MemorySetter = void (host::Memory::*)(uint64_t);

constexpr std::array<std::pair<const char *, MemorySetter>, 9> memoryFields{{
    {"MemTotal", &host::Memory::set_total_bytes},
    {"MemFree", &host::Memory::set_free_bytes},
    {"MemAvailable", &host::Memory::set_available_bytes},
    {"Buffers", &host::Memory::set_buffers_bytes},
    {"Cached", &host::Memory::set_cached_bytes},
    {"Dirty", &host::Memory::set_dirty_bytes},
    {"Shmem", &host::Memory::set_shared_bytes},
    {"SwapTotal", &host::Memory::set_swap_total_bytes},
    {"SwapFree", &host::Memory::set_swap_free_bytes},
}};

std::optional<double> readCelsius(const SystemFiles &sys, const QByteArray &path)
{
    const std::optional<qint64> milliDegrees = sys.readNumber(path);
    return milliDegrees ? std::optional(static_cast<double>(*milliDegrees) / 1000.0) : std::nullopt;
}

std::optional<double>
getRateOf(std::optional<quint64> previous, std::optional<quint64> current, double seconds)
{
    return previous && current ? getRate(*previous, *current, seconds) : std::nullopt;
}

} // namespace

HostSampler::HostSampler(const QByteArray &procRoot, const QByteArray &sysRoot)
    : proc(procRoot)
    , sys(sysRoot)
{
}

std::vector<host::Envelope> HostSampler::sample(qint64 nowNs)
{
    const double seconds = previousNs ? static_cast<double>(nowNs - *previousNs) / 1e9 : 0.0;
    previousNs = nowNs;
    const SystemCounters counters = parseSystemCounters(proc.read("stat").value_or(QByteArray()));
    const std::optional<double> uptime = parseUptime(proc.read("uptime").value_or(QByteArray()));

    std::vector<host::Envelope> round(8);
    *round[0].mutable_cpu() = cpu.sample(counters, sys);
    *round[1].mutable_memory() = sampleMemory();
    *round[2].mutable_network() = network.sample(proc, sys, seconds);
    *round[3].mutable_disks() = disks.sample(proc, sys, seconds);
    *round[4].mutable_temperatures() = sampleTemperatures();
    *round[5].mutable_processes() = processes.sample(proc, seconds, uptime);
    *round[6].mutable_load() = sampleLoad();
    *round[7].mutable_kernel() = sampleKernel(counters, seconds, uptime);
    previousCounters = counters;
    return round;
}

host::Memory HostSampler::sampleMemory() const
{
    host::Memory memory;
    QMap<QByteArray, quint64> sizes = parseMemorySizes(proc.read("meminfo").value_or(QByteArray()));
    for (const auto &[name, set] : memoryFields) {
        const auto size = sizes.constFind(name);
        if (size == sizes.cend())
            continue;
        (memory.*set)(*size);
        sizes.erase(size);
    }
    for (auto it = sizes.cbegin(); it != sizes.cend(); ++it)
        (*memory.mutable_others())[makeShownText(it.key())] = it.value();
    return memory;
}

host::Temperatures HostSampler::sampleTemperatures() const
{
    host::Temperatures temperatures;
    for (const QByteArray &chip : sys.list("class/hwmon"))
        addChip("class/hwmon/" + chip + '/', temperatures);
    for (const QByteArray &zone : sys.list("class/thermal")) {
        if (zone.startsWith("thermal_zone"))
            addZone("class/thermal/" + zone + '/', temperatures);
    }
    return temperatures;
}

void HostSampler::addChip(const QByteArray &folder, host::Temperatures &temperatures) const
{
    const std::string chip = sys.readText(folder + "name").value_or("hwmon");
    for (const QByteArray &file : sys.list(folder)) {
        if (!file.startsWith("temp") || !file.endsWith("_input"))
            continue;
        const QByteArray name = file.chopped(6);
        host::Sensor *sensor = temperatures.add_sensors();
        sensor->set_chip(chip);
        sensor->set_label(sys.readText(folder + name + "_label").value_or(name.toStdString()));
        if (const auto celsius = readCelsius(sys, folder + file))
            sensor->set_celsius(*celsius);
        if (const auto high = readCelsius(sys, folder + name + "_max"))
            sensor->set_high_celsius(*high);
        if (const auto critical = readCelsius(sys, folder + name + "_crit"))
            sensor->set_critical_celsius(*critical);
    }
}

void HostSampler::addZone(const QByteArray &folder, host::Temperatures &temperatures) const
{
    host::Sensor *sensor = temperatures.add_sensors();
    sensor->set_chip("thermal zone");
    sensor->set_label(sys.readText(folder + "type").value_or("unknown"));
    if (const auto celsius = readCelsius(sys, folder + "temp"))
        sensor->set_celsius(*celsius);
}

host::Load HostSampler::sampleLoad() const
{
    host::Load load;
    const std::optional<LoadAverages> averages
        = parseLoadAverages(proc.read("loadavg").value_or(QByteArray()));
    if (!averages)
        return load;
    load.set_one_minute(averages->oneMinute);
    load.set_five_minutes(averages->fiveMinutes);
    load.set_fifteen_minutes(averages->fifteenMinutes);
    load.set_runnable(averages->runnable);
    load.set_threads(averages->threads);
    return load;
}

host::Kernel HostSampler::sampleKernel(const SystemCounters &counters,
                                       double seconds,
                                       std::optional<double> uptime) const
{
    host::Kernel kernel;
    if (const auto text = proc.readText("sys/kernel/ostype"))
        kernel.set_system(*text);
    if (const auto text = proc.readText("sys/kernel/osrelease"))
        kernel.set_release(*text);
    if (const auto text = proc.readText("sys/kernel/version"))
        kernel.set_version(*text);
    if (const auto text = proc.readText("sys/kernel/hostname"))
        kernel.set_host_name(*text);
    if (uptime)
        kernel.set_uptime_seconds(*uptime);
    const SystemCounters &before = previousCounters;
    if (const auto rate = getRateOf(before.contextSwitches, counters.contextSwitches, seconds))
        kernel.set_context_switch_rate(*rate);
    if (const auto rate = getRateOf(before.interrupts, counters.interrupts, seconds))
        kernel.set_interrupt_rate(*rate);
    if (const auto rate = getRateOf(before.forks, counters.forks, seconds))
        kernel.set_fork_rate(*rate);
    return kernel;
}

} // namespace corvane
