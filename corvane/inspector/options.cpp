#include "options.h"

#include "mcapformat.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::Options", text);
}

struct OptionText
{
    const char *name;
    const char *valueName; ///< Null for an option without a value.
    const char *description;
    const char *shortName = nullptr; ///< Null for an option without one.
};

constexpr std::array optionTexts{
    OptionText{"definitions", "FILE",
               "Definitions of the messages: a MAVLink dialect (.xml), or Protocol Buffers as text "
               "(.proto) or descriptor set (.desc, .pb). May be repeated."},
    OptionText{"root", "TYPE",
               "Protocol Buffers: the type that the stream consists of, package.Type."},
    OptionText{"import-path", "FOLDER",
               "Protocol Buffers: where imports are looked for, beside the folders of the "
               "definitions. May be repeated."},
    OptionText{"overlay", "FILE", "What the definitions cannot say (JSON). May be repeated."},
    OptionText{"framing", "auto|raw|tlog|varint|le32",
               "How frames stand in the stream. MAVLink: raw, or tlog with a time before each. "
               "Protocol Buffers: a length before each, as varint or as 4 bytes, little endian."},
    OptionText{"speed", "N|max",
               "Play recordings N times as fast as recorded, or as fast as possible."},
    OptionText{"report", "text|json",
               "Read the source to its end without a window and print what arrived."},
    OptionText{"follow", nullptr, "Read a file on when it grows."},
    OptionText{"restart", nullptr, "Start a program (exec:) again when it has ended."},
    OptionText{"export", "csv|jsonl",
               "Read the source to its end without a window and write its messages."},
    OptionText{"select", "PATH",
               "With --export: only these messages or fields, FORMAT.MESSAGE.FIELD. May be "
               "repeated."},
    OptionText{"output", "FILE", "With --export: where to write; standard output by default.", "o"},
    OptionText{"raw", nullptr, "With --export: numbers in place of symbolic names."},
    OptionText{"duration", "SECONDS", "With --report and --export: stop after this time."},
    OptionText{"screenshot", "FILE", "Write the window as a PNG file and exit."},
    OptionText{"after", "SECONDS", "With --screenshot: when to write it; 3 by default."},
    OptionText{"help", nullptr, "Print this help."},
    OptionText{"version", nullptr, "Print the version."},
};

constexpr std::array knownFramings{"auto", "raw", "tlog", "varint", "le32"};

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(tr("Shows the decoded messages of a binary stream, live."));
    for (const OptionText &option : optionTexts) {
        QStringList names{QLatin1String(option.name)};
        if (option.shortName != nullptr)
            names.prepend(QLatin1String(option.shortName));
        QCommandLineOption described(names, tr(option.description));
        if (option.valueName != nullptr)
            described.setValueName(QLatin1String(option.valueName));
        parser.addOption(described);
    }
    parser.addPositionalArgument(
        QStringLiteral("SOURCE"),
        tr("A path, - (standard input), tcp://HOST:PORT, tcp-listen://[ADDRESS]:PORT, "
           "udp://[ADDRESS]:PORT, serial:DEVICE[?baud=N] or exec:COMMAND."),
        QStringLiteral("[SOURCE]"));
}

/** Reads the values of a parsed command line; the first thing wrong is kept. */
class OptionReader
{
public:
    OptionReader(const QCommandLineParser &parser, Options &options)
        : parser(parser)
        , options(options)
    {
    }

    void read()
    {
        options.definitions = parser.values(QStringLiteral("definitions"));
        options.importFolders = parser.values(QStringLiteral("import-path"));
        options.root = parser.value(QStringLiteral("root"));
        options.overlays = parser.values(QStringLiteral("overlay"));
        options.restartsProgram = parser.isSet(QStringLiteral("restart"));
        options.screenshotFile = parser.value(QStringLiteral("screenshot"));
        readFraming();
        readReport();
        readExport();
        readSpeed();
        options.durationSeconds = readSeconds("duration");
        options.screenshotAfterSeconds = readSeconds("after").value_or(3.0);
        readSource();
        checkTogether();
    }

private:
    void complain(const QString &text)
    {
        if (options.wish == Options::Wish::Complain)
            return;
        options.wish = Options::Wish::Complain;
        options.error = text;
    }

    void complainOfValue(const char *name, const QString &expected)
    {
        complain(tr("--%1 takes %2, not \"%3\".")
                     .arg(QLatin1String(name), expected, parser.value(QLatin1String(name))));
    }

    void readFraming()
    {
        if (!parser.isSet(QStringLiteral("framing")))
            return;
        options.framing = parser.value(QStringLiteral("framing"));
        const bool known
            = std::any_of(knownFramings.begin(), knownFramings.end(), [this](const char *name) {
                  return options.framing == QLatin1String(name);
              });
        if (!known)
            complainOfValue("framing", tr("auto, raw, tlog, varint or le32"));
    }

    void readReport()
    {
        if (!parser.isSet(QStringLiteral("report")))
            return;
        const QString text = parser.value(QStringLiteral("report"));
        if (text == QLatin1String("text"))
            options.report = Options::Report::Text;
        else if (text == QLatin1String("json"))
            options.report = Options::Report::Json;
        else
            complainOfValue("report", tr("text or json"));
    }

    void readExport()
    {
        options.selectedPaths = parser.values(QStringLiteral("select"));
        options.outputFile = parser.value(QStringLiteral("output"));
        if (options.outputFile == QLatin1String("-"))
            options.outputFile.clear();
        if (parser.isSet(QStringLiteral("raw")))
            options.valueNames = ValueNames::Raw;
        if (!parser.isSet(QStringLiteral("export")))
            return;
        const QString text = parser.value(QStringLiteral("export"));
        if (text == QLatin1String("csv"))
            options.exportFormat = ExportFormat::Csv;
        else if (text == QLatin1String("jsonl"))
            options.exportFormat = ExportFormat::JsonLines;
        else
            complainOfValue("export", tr("csv or jsonl"));
    }

    void readSpeed()
    {
        if (!parser.isSet(QStringLiteral("speed")))
            return;
        const QString text = parser.value(QStringLiteral("speed"));
        bool ok = false;
        const double speed = text.toDouble(&ok);
        if (text == QLatin1String("max"))
            options.speed.reset();
        else if (ok && std::isfinite(speed) && speed > 0)
            options.speed = speed;
        else
            complainOfValue("speed", tr("a number above 0, or max"));
    }

    std::optional<double> readSeconds(const char *name)
    {
        if (!parser.isSet(QLatin1String(name)))
            return std::nullopt;
        constexpr double longest = 2'000'000;
        bool ok = false;
        const double seconds = parser.value(QLatin1String(name)).toDouble(&ok);
        if (!ok || !(seconds >= 0) || seconds > longest)
            complainOfValue(name, tr("a number of seconds from 0 to 2000000"));
        return seconds;
    }

    void readSource()
    {
        const QStringList sources = parser.positionalArguments();
        if (sources.size() > 1)
            complain(
                tr("Only one source can be shown: \"%1\" is one too many.").arg(sources.at(1)));
        if (sources.isEmpty())
            return;
        const SourceAddressResult result = SourceAddress::parse(sources.constFirst());
        if (!result.address)
            complain(result.error);
        options.source = result.address;
        if (options.source)
            options.source->isFollowed = parser.isSet(QStringLiteral("follow"));
    }

    void checkTogether()
    {
        const bool reports = options.report != Options::Report::None;
        const bool photographs = !options.screenshotFile.isEmpty();
        if (reports && photographs)
            complain(tr("--report opens no window, so --screenshot cannot go with it."));
        if (reports && !options.source)
            complain(tr("--report needs a SOURCE to read; see --help."));
        // The window asks for what is missing.
        const bool asks = options.opensWindow() && !photographs;
        if (options.lacksDefinitions() && !asks)
            complain(tr("Messages cannot be read without their definitions: name a MAVLink dialect "
                        "or Protocol Buffers files with --definitions FILE."));
        const bool isFile = options.source && options.source->kind == SourceAddress::Kind::File;
        if (parser.isSet(QStringLiteral("follow")) && !isFile)
            complain(tr("--follow goes with a source that is a file."));
        const bool isProgram
            = options.source && options.source->kind == SourceAddress::Kind::Program;
        if (options.restartsProgram && (!isProgram || reports))
            complain(tr("--restart goes with a source exec:COMMAND that is shown in the window."));
        checkExport();
        if (options.durationSeconds && !reports && !options.exportFormat)
            complain(tr("--duration goes with --report and --export."));
        if (parser.isSet(QStringLiteral("after")) && !photographs)
            complain(tr("--after goes with --screenshot."));
    }

    void checkExport()
    {
        for (const char *name : {"select", "output", "raw"})
            if (parser.isSet(QLatin1String(name)) && !options.exportFormat)
                complain(tr("--%1 goes with --export.").arg(QLatin1String(name)));
        if (!options.exportFormat)
            return;
        if (options.report != Options::Report::None)
            complain(tr("--report and --export cannot go together."));
        if (!options.screenshotFile.isEmpty())
            complain(tr("--export opens no window, so --screenshot cannot go with it."));
        if (!options.source)
            complain(tr("--export needs a SOURCE to read; see --help."));
    }

    const QCommandLineParser &parser;
    Options &options;
};

} // namespace

Options Options::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    Options options;
    if (!parser.parse(arguments)) {
        options.wish = Wish::Complain;
        options.error = parser.errorText();
    } else if (parser.isSet(QStringLiteral("help"))) {
        options.wish = Wish::ShowHelp;
    } else if (parser.isSet(QStringLiteral("version"))) {
        options.wish = Wish::ShowVersion;
    } else {
        OptionReader(parser, options).read();
    }
    return options;
}

QString Options::getHelpText()
{
    QCommandLineParser parser;
    describe(parser);
    return parser.helpText();
}

bool Options::lacksDefinitions() const
{
    return source && definitions.isEmpty() && !bringsDefinitions(*source);
}

bool bringsDefinitions(const SourceAddress &source)
{
    return source.kind == SourceAddress::Kind::File && McapFormat::isMcapFile(source.text);
}

} // namespace corvane
