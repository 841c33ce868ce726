#include "networksampler.h"

#include <QByteArrayView>

#include <array>
#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr std::array<std::pair<QByteArrayView, host::LinkState>, 7> linkStates{{
    {"unknown", host::LINK_UNKNOWN},
    {"up", host::LINK_UP},
    {"down", host::LINK_DOWN},
    {"dormant", host::LINK_DORMANT},
    {"lowerlayerdown", host::LINK_LOWER_LAYER_DOWN},
    {"testing", host::LINK_TESTING},
    {"notpresent", host::LINK_NOT_PRESENT},
}};

host::LinkState getLinkState(QByteArrayView text)
{
    for (const auto &[name, state] : linkStates) {
        if (name == text)
            return state;
    }
    return host::LINK_UNKNOWN;
}

void setTraffic(host::Traffic *traffic, const TrafficCounters &counters)
{
    traffic->set_bytes(counters.bytes);
    traffic->set_packets(counters.packets);
    traffic->set_errors(counters.errors);
    traffic->set_dropped(counters.dropped);
}

/** A speed that is not known reads as -1, or not at all. */
std::optional<quint32> readPositive(const SystemFiles &sys, const QByteArray &path)
{
    const std::optional<qint64> number = sys.readNumber(path);
    if (!number || *number < 0 || *number > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return static_cast<quint32>(*number);
}

void readProperties(const SystemFiles &sys, const QByteArray &name, host::Interface *interface)
{
    const QByteArray folder = "class/net/" + name + '/';
    if (const std::optional<QByteArray> state = sys.read(folder + "operstate"))
        interface->set_state(getLinkState(state->trimmed()));
    if (const std::optional<quint32> speed = readPositive(sys, folder + "speed"))
        interface->set_speed_mbits(*speed);
    if (const std::optional<quint32> mtu = readPositive(sys, folder + "mtu"))
        interface->set_mtu_bytes(*mtu);
    if (const std::optional<std::string> address = sys.readText(folder + "address"))
        interface->set_hardware_address(*address);
}

} // namespace

host::Network
NetworkSampler::sample(const SystemFiles &proc, const SystemFiles &sys, double seconds)
{
    host::Network network;
    QHash<QByteArray, InterfaceCounters> current;
    for (const InterfaceCounters &counters :
         parseInterfaces(proc.read("net/dev").value_or(QByteArray())))
    {
        host::Interface *interface = network.add_interfaces();
        interface->set_name(makeShownText(counters.name));
        readProperties(sys, counters.name, interface);
        setTraffic(interface->mutable_received(), counters.received);
        setTraffic(interface->mutable_sent(), counters.sent);
        current.insert(counters.name, counters);
        const auto before = previous.constFind(counters.name);
        if (before == previous.cend())
            continue;
        if (const auto rate = getRate(before->received.bytes, counters.received.bytes, seconds))
            interface->set_receive_rate(*rate);
        if (const auto rate = getRate(before->sent.bytes, counters.sent.bytes, seconds))
            interface->set_send_rate(*rate);
    }
    previous = current;
    return network;
}

} // namespace corvane
