#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <chrono>
#include <optional>

namespace corvane {

/** What the command line asks for. */
struct FeedOptions
{
    static constexpr int minimumIntervalMs = 50;
    static constexpr int maximumIntervalMs = 3600000;

    std::chrono::milliseconds interval{500};
    std::optional<quint16> listenPort; ///< 0: any that is free. Nothing: standard output.
    bool wantsHelp = false;
    bool wantsVersion = false;
    QString error; ///< What is wrong with the command line; empty when nothing is.
};

/** \a arguments: the program's name first. */
FeedOptions parseFeedOptions(const QStringList &arguments);
QString getFeedHelp();

} // namespace corvane
