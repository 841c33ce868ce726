#include "disksampler.h"

#include <QByteArrayList>

#include <algorithm>

namespace corvane {

namespace {

/** Names of devices may hold slashes, which stand as exclamation marks in file names. */
QByteArray getFileName(QByteArray device)
{
    return device.replace('/', '!');
}

/** Without the list of devices, partitions cannot be told from disks. */
bool isShown(const DiskCounters &counters, const QByteArrayList &devices)
{
    if (counters.readBytes == 0 && counters.writtenBytes == 0)
        return false;
    return devices.isEmpty() || devices.contains(getFileName(counters.name));
}

void readProperties(const SystemFiles &sys, const QByteArray &name, host::Disk *disk)
{
    const QByteArray folder = "block/" + getFileName(name) + '/';
    const std::optional<qint64> sectors = sys.readNumber(folder + "size");
    if (sectors && *sectors >= 0)
        disk->set_size_bytes(static_cast<quint64>(*sectors) * 512);
    if (const std::optional<qint64> rotational = sys.readNumber(folder + "queue/rotational"))
        disk->set_rotational(*rotational != 0);
    if (const std::optional<std::string> model = sys.readText(folder + "device/model"))
        disk->set_model(*model);
}

} // namespace

host::Disks DiskSampler::sample(const SystemFiles &proc, const SystemFiles &sys, double seconds)
{
    host::Disks disks;
    QHash<QByteArray, DiskCounters> current;
    const QByteArrayList devices = sys.list("block");
    for (const DiskCounters &counters : parseDisks(proc.read("diskstats").value_or(QByteArray()))) {
        if (!isShown(counters, devices))
            continue;
        host::Disk *disk = disks.add_disks();
        disk->set_name(makeShownText(counters.name));
        readProperties(sys, counters.name, disk);
        disk->set_read_bytes(counters.readBytes);
        disk->set_written_bytes(counters.writtenBytes);
        disk->set_requests_in_progress(static_cast<quint32>(counters.requestsInProgress));
        setRates(disk, counters, seconds);
        current.insert(counters.name, counters);
    }
    previous = current;
    return disks;
}

void DiskSampler::setRates(host::Disk *disk, const DiskCounters &counters, double seconds) const
{
    const auto before = previous.constFind(counters.name);
    if (before == previous.cend())
        return;
    if (const auto rate = getRate(before->readBytes, counters.readBytes, seconds))
        disk->set_read_rate(*rate);
    if (const auto rate = getRate(before->writtenBytes, counters.writtenBytes, seconds))
        disk->set_write_rate(*rate);
    if (const auto busy = getRate(before->busyMs, counters.busyMs, seconds))
        disk->set_busy_percent(std::min(*busy / 10.0, 100.0));
}

} // namespace corvane
