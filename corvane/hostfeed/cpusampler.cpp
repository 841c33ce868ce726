#include "cpusampler.h"

#include <QByteArray>

#include <array>

namespace corvane {

namespace {

/** The kernel lets some of these counters step back a little, above all the waiting time. */
quint64 getGrowth(quint64 previous, quint64 current)
{
    return getIncrease(previous, current).value_or(0);
}

void setLoad(host::CpuLoad *load, const CpuTimes &previous, const CpuTimes &current)
{
    const std::array<quint64, 7> parts{getGrowth(previous.user, current.user),
                                       getGrowth(previous.nice, current.nice),
                                       getGrowth(previous.system, current.system),
                                       getGrowth(previous.interrupts, current.interrupts),
                                       getGrowth(previous.wait, current.wait),
                                       getGrowth(previous.steal, current.steal),
                                       getGrowth(previous.idle, current.idle)};
    quint64 total = 0;
    for (const quint64 part : parts)
        total += part;
    if (total == 0)
        return;
    const auto percent = [total](quint64 ticks) {
        return 100.0 * static_cast<double>(ticks) / static_cast<double>(total);
    };
    load->set_busy_percent(percent(total - parts[6] - parts[4]));
    load->set_user_percent(percent(parts[0]));
    load->set_nice_percent(percent(parts[1]));
    load->set_system_percent(percent(parts[2] + parts[3]));
    load->set_wait_percent(percent(parts[4]));
    load->set_steal_percent(percent(parts[5]));
}

std::optional<double> readFrequency(const SystemFiles &sys, quint32 core)
{
    const std::optional<qint64> kilohertz = sys.readNumber(
        "devices/system/cpu/cpu" + QByteArray::number(core) + "/cpufreq/scaling_cur_freq");
    return kilohertz ? std::optional(static_cast<double>(*kilohertz) / 1000.0) : std::nullopt;
}

} // namespace

host::Cpu CpuSampler::sample(const SystemCounters &counters, const SystemFiles &sys)
{
    host::Cpu cpu;
    if (counters.total && previous.total)
        setLoad(cpu.mutable_total(), *previous.total, *counters.total);
    for (auto it = counters.cores.cbegin(); it != counters.cores.cend(); ++it) {
        host::Core *core = cpu.add_cores();
        core->set_number(it.key());
        if (previous.cores.contains(it.key()))
            setLoad(core->mutable_load(), previous.cores[it.key()], it.value());
        if (const std::optional<double> frequency = readFrequency(sys, it.key()))
            core->set_frequency_mhz(*frequency);
    }
    previous = counters;
    return cpu;
}

} // namespace corvane
