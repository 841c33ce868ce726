#pragma once

#include "fieldtext.h"
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

    /** Whether the source is watched in a window, rather than read through once. */
    bool opensWindow() const { return report == Report::None && !exportFormat; }

    /** Whether there is a source whose messages nothing describes. */
    bool lacksDefinitions() const;

    Wish wish = Wish::Run;
    QString error;
    QStringList definitions;
    QStringList importFolders; ///< Where definitions look for what they import.
    QString root; ///< The message type that a stream consists of, where that has to be said.
    QStringList overlays;
    QString framing; ///< One of the format's framings; empty for its default one.
    std::optional<double> speed
        = 1.0; ///< Times the recorded pace; nothing for as fast as possible.
    Report report = Report::None;
    bool restartsProgram = false; ///< When a source that is a program has ended.
    std::optional<ExportFormat> exportFormat;
    QStringList selectedPaths; ///< Of an export; everything if empty.
    ValueNames valueNames = ValueNames::Symbolic; ///< Of an export.
    QString outputFile; ///< Of an export; empty for standard output.
    std::optional<double> durationSeconds; ///< Of a report or an export.
    QString screenshotFile;
    double screenshotAfterSeconds = 3.0;
    std::optional<SourceAddress> source;
};

/** Whether \a source is a file that defines its messages itself. */
bool bringsDefinitions(const SourceAddress &source);

} // namespace corvane
