#include "sourceaddress.h"

#include "filesource.h"
#include "processsource.h"
#include "serialsource.h"
#include "stdinsource.h"
#include "tcpclientsource.h"
#include "tcplistenersource.h"
#include "udpsource.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QRegularExpression>

namespace corvane {

namespace {

using Kind = SourceAddress::Kind;

struct Scheme
{
    const char *name;
    const char *slashes; ///< What follows the colon.
    Kind kind;
    const char *form; ///< For people.
};

constexpr Scheme schemes[] = {
    {"tcp", "//", Kind::TcpClient, "tcp://HOST:PORT"},
    {"tcp-listen", "//", Kind::TcpListener, "tcp-listen://[ADDRESS]:PORT"},
    {"udp", "//", Kind::Udp, "udp://[ADDRESS]:PORT"},
    {"serial", "", Kind::Serial, "serial:DEVICE[?baud=N]"},
    {"exec", "", Kind::Program, "exec:COMMAND"},
};

/** Reads one text; the first thing that is wrong with it ends the reading. */
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(corvane::SourceAddress)

public:
    explicit Reader(const QString &text)
        : text(text)
    {
        address.text = text;
    }

    SourceAddressResult read();

private:
    SourceAddressResult readOther(const QString &name);
    SourceAddressResult readNetwork(const QString &rest);
    SourceAddressResult readSerial(const QString &rest);
    SourceAddressResult readProgram(const QString &rest);
    SourceAddressResult readBaud(const QString &parameters);
    QString checkHost(const QString &host, bool hasBrackets) const;
    QString checkPort(const QString &port) const;
    SourceAddressResult fail(const QString &problem) const;

    QString text;
    SourceAddress address;
    const Scheme *scheme = nullptr;
};

SourceAddressResult Reader::fail(const QString &problem) const
{
    const QString expected
        = scheme ? tr(" Expected %1.").arg(QLatin1String(scheme->form)) : QString();
    return {std::nullopt, tr("\"%1\" names no source: %2.").arg(text, problem) + expected};
}

SourceAddressResult Reader::read()
{
    if (text.isEmpty())
        return fail(tr("it is empty; expected a file, or - for standard input"));
    if (text == QLatin1String("-")) {
        address.kind = Kind::StandardInput;
        return {address, {}};
    }
    static const QRegularExpression schemePattern(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*):"));
    const QRegularExpressionMatch match = schemePattern.match(text);
    if (!match.hasMatch())
        return {address, {}};
    const QString name = match.captured(1).toLower();
    for (const Scheme &candidate : schemes)
        if (name == QLatin1String(candidate.name))
            scheme = &candidate;
    return readOther(name);
}

SourceAddressResult Reader::readOther(const QString &name)
{
    QString rest = text.mid(name.size() + 1);
    if (!scheme) {
        if (rest.startsWith(QLatin1String("//")))
            return fail(tr("the scheme \"%1\" is unknown; known are tcp://, tcp-listen://, udp://, "
                           "serial: and exec:")
                            .arg(name));
        return {address, {}};
    }
    const QLatin1String slashes(scheme->slashes);
    if (!rest.startsWith(slashes))
        return fail(tr(R"("//" is missing after "%1:")").arg(name));
    rest.remove(0, slashes.size());
    address.kind = scheme->kind;
    if (address.kind == Kind::Serial)
        return readSerial(rest);
    if (address.kind == Kind::Program)
        return readProgram(rest);
    return readNetwork(rest);
}

SourceAddressResult Reader::readNetwork(const QString &rest)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(?:\[(?<v6>[^\]]*)\]|(?<host>[^\[\]]*)):(?<port>[^:]*)$)"));
    const QRegularExpressionMatch match = pattern.match(rest);
    if (!match.hasMatch())
        return fail(tr("the port is missing"));
    const bool hasBrackets = match.capturedStart(QStringLiteral("v6")) >= 0;
    address.host = match.captured(hasBrackets ? QStringLiteral("v6") : QStringLiteral("host"));
    const QString port = match.captured(QStringLiteral("port"));
    for (const QString &problem : {checkHost(address.host, hasBrackets), checkPort(port)})
        if (!problem.isEmpty())
            return fail(problem);
    address.port = port.toUShort();
    return {address, {}};
}

QString Reader::checkHost(const QString &host, bool hasBrackets) const
{
    const QAbstractSocket::NetworkLayerProtocol protocol = QHostAddress(host).protocol();
    if (hasBrackets)
        return protocol == QAbstractSocket::IPv6Protocol
                   ? QString()
                   : tr("\"%1\" in brackets is no IPv6 address").arg(host);
    if (host.contains(QLatin1Char(':')))
        return tr("an IPv6 address is written in brackets, such as [::1]");
    static const QRegularExpression oddCharacters(QStringLiteral(R"([\s/?#@\\])"));
    if (host.contains(oddCharacters))
        return tr("\"%1\" is no name of a host").arg(host);
    if (address.kind == Kind::TcpClient)
        return host.isEmpty() ? tr("the host is missing") : QString();
    // Shortened forms such as 127.1 would be taken, too.
    const bool isIpv4
        = protocol == QAbstractSocket::IPv4Protocol && host.count(QLatin1Char('.')) == 3;
    const bool isGood = host.isEmpty() || isIpv4;
    return isGood ? QString() : tr("\"%1\" is no IPv4 address of this machine").arg(host);
}

QString Reader::checkPort(const QString &port) const
{
    if (port.isEmpty())
        return tr("the port is missing");
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,5}$"));
    const int smallest = address.kind == Kind::TcpClient ? 1 : 0;
    constexpr int largest = 65'535;
    const bool isGood
        = digits.match(port).hasMatch() && port.toInt() >= smallest && port.toInt() <= largest;
    if (isGood)
        return {};
    return tr("\"%1\" is no port, which is a number from %2 to %3")
        .arg(port, QString::number(smallest), QString::number(largest));
}

SourceAddressResult Reader::readSerial(const QString &rest)
{
    const qsizetype mark = rest.indexOf(QLatin1Char('?'));
    address.device = rest.left(mark);
    if (address.device.isEmpty())
        return fail(tr("the device is missing"));
    if (mark < 0)
        return {address, {}};
    return readBaud(rest.mid(mark + 1));
}

SourceAddressResult Reader::readBaud(const QString &parameters)
{
    static const QRegularExpression pattern(QStringLiteral("^baud=(.*)$"));
    const QRegularExpressionMatch match = pattern.match(parameters);
    if (!match.hasMatch())
        return fail(tr("\"%1\" is unknown after the question mark").arg(parameters));
    static const QRegularExpression number(QStringLiteral("^[1-9][0-9]{0,7}$"));
    if (!number.match(match.captured(1)).hasMatch())
        return fail(tr("\"%1\" is no baud rate, which is a number such as 57600 or 115200")
                        .arg(match.captured(1)));
    address.baud = match.captured(1).toInt();
    return {address, {}};
}

SourceAddressResult Reader::readProgram(const QString &rest)
{
    address.command = rest;
    if (rest.trimmed().isEmpty())
        return fail(tr("the command is missing"));
    return {address, {}};
}

} // namespace

SourceAddressResult SourceAddress::parse(const QString &text)
{
    return Reader(text).read();
}

std::unique_ptr<ByteSource> createSource(const SourceAddress &address)
{
    switch (address.kind) {
    case Kind::StandardInput:
        return std::make_unique<StdinSource>();
    case Kind::TcpClient:
        return std::make_unique<TcpClientSource>(address.host, address.port);
    case Kind::TcpListener:
        return std::make_unique<TcpListenerSource>(address.host, address.port);
    case Kind::Udp:
        return std::make_unique<UdpSource>(address.host, address.port);
    case Kind::Serial:
        return std::make_unique<SerialSource>(address.device, address.baud);
    case Kind::Program:
        return std::make_unique<ProcessSource>(address.command);
    case Kind::File:
        break;
    }
    auto file = std::make_unique<FileSource>(address.text);
    file->setFollowing(address.isFollowed);
    return file;
}

} // namespace corvane
