#pragma once

#include "bytesource.h"

#include <QString>

#include <memory>
#include <optional>

namespace corvane {

struct SourceAddressResult;

/**
 * Names a source of bytes in one text:
 *
 *     PATH                            file, named pipe or device
 *     -                               standard input
 *     tcp://HOST:PORT                 connect to a host, by name, IPv4 or [IPv6]
 *     tcp-listen://[ADDRESS]:PORT     let others connect
 *     udp://[ADDRESS]:PORT            receive datagrams
 *     serial:DEVICE[?baud=N]          serial port
 *     exec:COMMAND                    standard output of a command of the shell
 *
 * ADDRESS is one of this machine (or a multicast group), IPv4 or IPv6 in brackets, or nothing,
 * which means all. PORT 0 of a receiver takes any free one. A file whose name looks like one of
 * the others is written with its folder, such as "./-".
 */
struct CORVANEFRAMEWORK_EXPORT SourceAddress
{
    enum class Kind {
        File,
        StandardInput,
        TcpClient,
        TcpListener,
        Udp,
        Serial,
        Program
    };

    static constexpr qint32 defaultBaud = 57'600; ///< What telemetry radios are delivered with.

    Kind kind = Kind::File;
    QString text; ///< As written; the path of a file.
    QString host; ///< Without brackets; empty for all addresses of this machine.
    quint16 port = 0;
    QString device;
    qint32 baud = defaultBaud;
    QString command;
    bool isFollowed = false; ///< Whether a file is read on when it grows; no part of the text.

    static SourceAddressResult parse(const QString &text);
};

/** An address, or what is wrong with its text and what was expected instead. */
struct SourceAddressResult
{
    std::optional<SourceAddress> address;
    QString error; ///< Empty if there is an address.
};

/** Never null; the source is not open yet. */
CORVANEFRAMEWORK_EXPORT std::unique_ptr<ByteSource> createSource(const SourceAddress &address);

} // namespace corvane
