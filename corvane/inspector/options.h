#pragma once

#include "fieldtext.h"
#include "mavlinkdecoder.h"
#include "messageexport.h"
#include "sourceaddress.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace corvane {

/** What the command line asks for. */
struct Options
{
    enum class Report {
        None,
        Text,
        Json
    };

    enum class Wish {
        Run,
        ShowHelp,
        ShowVersion,
        Complain ///< Something is wrong with the arguments; error says what.
    };

    /** Reads \a arguments, the first of which is the program's name. */
    static Options parse(const QStringList &arguments);
    static QString getHelpText();

    Wish wish = Wish::Run;
    QString error;
    QStringList definitions;
    QStringList overlays;
    MavlinkFraming framing = MavlinkFraming::Automatic;
    std::optional<double> speed
        = 1.0; ///< Times the recorded pace; nothing for as fast as possible.
    Report report = Report::None;
    std::optional<ExportFormat> exportFormat;
    QStringList selectedPaths; ///< Of an export; everything if empty.
    ValueNames valueNames = ValueNames::Symbolic; ///< Of an export.
    QString outputFile; ///< Of an export; empty for standard output.
    std::optional<double> durationSeconds; ///< Of a report or an export.
    QString screenshotFile;
    double screenshotAfterSeconds = 3.0;
    std::optional<SourceAddress> source;
};

} // namespace corvane
