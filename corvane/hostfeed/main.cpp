#include "feed.h"
#include "feedoptions.h"

#include <QCoreApplication>
#include <QTcpServer>

#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

using corvane::Feed;
using corvane::FeedOptions;

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
    std::fflush(stream);
}

int complain(int exitCode, const QString &text)
{
    print(stderr, QStringLiteral("corvane-hostfeed: %1\n").arg(text));
    return exitCode;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

/** Hands each connection to the feed as it is, without buffers of its own. */
class Listener : public QTcpServer
{
public:
    explicit Listener(Feed &feed)
        : feed(feed)
    {
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        // A slow receiver then misses rounds early instead of seeing old ones.
        const int bufferBytes = 64 * 1024;
        const auto socket = static_cast<int>(descriptor);
        ::setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &bufferBytes, sizeof bufferBytes);
        if (!feed.addReceiver(socket))
            complain(0, tr("A connection was refused: there are %1 receivers already.")
                            .arg(Feed::maximumReceivers));
    }

private:
    Feed &feed;
};

int serve(Feed &feed, quint16 port)
{
    Listener listener(feed);
    if (!listener.listen(QHostAddress::LocalHost, port))
        return complain(
            1, tr("Cannot listen on 127.0.0.1:%1: %2.").arg(port).arg(listener.errorString()));
    complain(0, tr("Listening on 127.0.0.1:%1.").arg(listener.serverPort()));
    return QCoreApplication::exec();
}

int writeToStandardOutput(Feed &feed)
{
    if (::isatty(STDOUT_FILENO) != 0)
        return complain(2, tr("The stream is not for a terminal to show. Send it to a program or "
                              "a file, or use --listen; see --help."));
    QObject::connect(&feed, &Feed::receiverLost, &feed, [](int error) {
        const bool hasGone = error == EPIPE || error == ECONNRESET;
        if (!hasGone)
            complain(1, tr("Cannot write: %1.").arg(QString::fromLocal8Bit(std::strerror(error))));
        QCoreApplication::exit(hasGone ? 0 : 1);
    });
    feed.addReceiver(STDOUT_FILENO);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication application(argc, argv);
    const FeedOptions options = corvane::parseFeedOptions(QCoreApplication::arguments());
    if (!options.error.isEmpty())
        return complain(2, options.error);
    if (options.wantsHelp) {
        print(stdout, corvane::getFeedHelp());
        return 0;
    }
    if (options.wantsVersion) {
        print(stdout, QStringLiteral("corvane-hostfeed " CORVANE_VERSION "\n"));
        return 0;
    }
    Feed feed{corvane::HostSampler(), options.interval};
    return options.listenPort ? serve(feed, *options.listenPort) : writeToStandardOutput(feed);
}
