#include "feedoptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::FeedOptions", text);
}

void describe(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("interval"), QString(), QStringLiteral("MS")});
    parser.addOption({QStringLiteral("listen"), QString(), QStringLiteral("PORT")});
    parser.addOption({QStringLiteral("help"), QString()});
    parser.addOption({QStringLiteral("version"), QString()});
}

/** A number within the bounds, or nothing and \a error. */
std::optional<int> readNumber(
    const QCommandLineParser &parser, const QString &name, int minimum, int maximum, QString &error)
{
    const QString text = parser.value(name);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number >= minimum && number <= maximum)
        return number;
    error = tr("--%1 takes a whole number from %2 to %3, not \"%4\".")
                .arg(name)
                .arg(minimum)
                .arg(maximum)
                .arg(text);
    return std::nullopt;
}

void readDestination(const QCommandLineParser &parser, FeedOptions &options)
{
    const QString listen = QStringLiteral("listen");
    const QStringList words = parser.positionalArguments();
    const bool namesStdout = words == QStringList(QStringLiteral("stdout"));
    if (!words.isEmpty() && !namesStdout)
        options.error = tr("\"%1\" is not known; see --help.").arg(words.join(QLatin1Char(' ')));
    else if (namesStdout && parser.isSet(listen))
        options.error = tr("Give either --listen or stdout, not both.");
    else if (parser.isSet(listen))
        options.listenPort = readNumber(parser, listen, 0, 65535, options.error);
}

} // namespace

FeedOptions parseFeedOptions(const QStringList &arguments)
{
    FeedOptions options;
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    options.wantsHelp = parser.isSet(QStringLiteral("help"));
    options.wantsVersion = parser.isSet(QStringLiteral("version"));
    readDestination(parser, options);
    const QString interval = QStringLiteral("interval");
    if (options.error.isEmpty() && parser.isSet(interval))
        options.interval
            = std::chrono::milliseconds(readNumber(parser, interval, FeedOptions::minimumIntervalMs,
                                                   FeedOptions::maximumIntervalMs, options.error)
                                            .value_or(0));
    return options;
}

QString getFeedHelp()
{
    return tr("Usage: corvane-hostfeed [--interval MS] [--listen PORT | stdout]\n"
              "Tells how busy this machine is, as a stream of Protocol Buffers messages\n"
              "(corvane.host.Envelope of host.proto), each preceded by its length as a varint.\n"
              "\n"
              "  --interval MS  Time from one round of messages to the next; 500 by default.\n"
              "  --listen PORT  Serve up to 16 programs at a time that connect to this TCP port\n"
              "                 of 127.0.0.1; 0 for any free port. Only this machine can connect.\n"
              "  stdout         Write to standard output, as without --listen.\n"
              "  --help         Print this help.\n"
              "  --version      Print the version.\n"
              "\n"
              "Rounds that a receiver is too slow for are dropped for it, and counted.\n");
}

} // namespace corvane
