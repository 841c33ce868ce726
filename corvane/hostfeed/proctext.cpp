#include "proctext.h"

#include <QString>

#include <array>
#include <cmath>

namespace corvane {

namespace {

constexpr quint64 sectorBytes = 512;

using Words = std::vector<QByteArrayView>;

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

Words splitWords(QByteArrayView line)
{
    Words words;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= line.size(); ++i) {
        if (i < line.size() && !isSpace(line[i]))
            continue;
        if (i > begin)
            words.push_back(line.sliced(begin, i - begin));
        begin = i + 1;
    }
    return words;
}

template <typename Function>
void forEachLine(QByteArrayView text, Function function)
{
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf('\n');
        function(end < 0 ? text : text.first(end));
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    }
}

/** Takes one word after another; once one is missing or no number, the whole is not valid. */
class WordReader
{
public:
    WordReader(const Words &words, size_t next)
        : words(words)
        , next(next)
    {
    }

    bool isValid() const { return valid; }

    void skip(size_t count) { next += count; }

    quint64 takeUnsigned()
    {
        bool ok = false;
        const quint64 value = takeWord().toULongLong(&ok);
        return check(value, ok);
    }

    quint32 takeUnsigned32()
    {
        bool ok = false;
        const quint32 value = takeWord().toUInt(&ok);
        return check(value, ok);
    }

    qint32 takeInteger()
    {
        bool ok = false;
        const qint32 value = takeWord().toInt(&ok);
        return check(value, ok);
    }

    double takeDouble()
    {
        bool ok = false;
        const double value = takeWord().toDouble(&ok);
        return check(value, ok && std::isfinite(value));
    }

private:
    QByteArrayView takeWord()
    {
        const size_t index = next++;
        return index < words.size() ? words[index] : QByteArrayView();
    }

    template <typename Number>
    Number check(Number value, bool ok)
    {
        valid = valid && ok;
        return value;
    }

    const Words &words;
    size_t next = 0;
    bool valid = true;
};

std::optional<CpuTimes> readCpuTimes(const Words &words)
{
    // The first four are in every kernel, the others came one after the other.
    std::array<quint64, 8> ticks{};
    WordReader reader(words, 1);
    for (size_t i = 0; i < ticks.size() && (i < 4 || i + 1 < words.size()); ++i)
        ticks[i] = reader.takeUnsigned();
    if (!reader.isValid())
        return std::nullopt;
    return CpuTimes{ticks[0], ticks[1], ticks[2], ticks[3], ticks[4], ticks[5] + ticks[6],
                    ticks[7]};
}

std::optional<quint64> readFirstNumber(const Words &words)
{
    WordReader reader(words, 1);
    const quint64 value = reader.takeUnsigned();
    return reader.isValid() ? std::optional(value) : std::nullopt;
}

void readCpuLine(const Words &words, SystemCounters &counters)
{
    const std::optional<CpuTimes> times = readCpuTimes(words);
    if (words[0] == "cpu") {
        counters.total = times;
        return;
    }
    bool isNumber = false;
    const quint32 number = words[0].sliced(3).toUInt(&isNumber);
    if (isNumber && times)
        counters.cores.insert(number, *times);
}

TrafficCounters readTraffic(WordReader &reader)
{
    TrafficCounters traffic;
    traffic.bytes = reader.takeUnsigned();
    traffic.packets = reader.takeUnsigned();
    traffic.errors = reader.takeUnsigned();
    traffic.dropped = reader.takeUnsigned();
    reader.skip(4);
    return traffic;
}

} // namespace

SystemCounters parseSystemCounters(QByteArrayView text)
{
    SystemCounters counters;
    forEachLine(text, [&counters](QByteArrayView line) {
        // The line of the interrupts is very long, and only its first number is of interest.
        const Words words = splitWords(line.first(qMin<qsizetype>(line.size(), 200)));
        if (words.empty())
            return;
        if (words[0].startsWith("cpu"))
            readCpuLine(words, counters);
        else if (words[0] == "ctxt")
            counters.contextSwitches = readFirstNumber(words);
        else if (words[0] == "intr")
            counters.interrupts = readFirstNumber(words);
        else if (words[0] == "processes")
            counters.forks = readFirstNumber(words);
    });
    return counters;
}

QMap<QByteArray, quint64> parseMemorySizes(QByteArrayView text)
{
    QMap<QByteArray, quint64> sizes;
    forEachLine(text, [&sizes](QByteArrayView line) {
        const Words words = splitWords(line);
        if (words.size() != 3 || !words[0].endsWith(':') || words[2] != "kB")
            return;
        const std::optional<quint64> kilobytes = readFirstNumber(words);
        if (kilobytes)
            sizes.insert(words[0].chopped(1).toByteArray(), *kilobytes * 1024);
    });
    return sizes;
}

std::vector<InterfaceCounters> parseInterfaces(QByteArrayView text)
{
    std::vector<InterfaceCounters> interfaces;
    forEachLine(text, [&interfaces](QByteArrayView line) {
        const qsizetype colon = line.lastIndexOf(':');
        if (colon < 0)
            return;
        const Words words = splitWords(line.sliced(colon + 1));
        WordReader reader(words, 0);
        InterfaceCounters counters;
        counters.name = line.first(colon).trimmed().toByteArray();
        counters.received = readTraffic(reader);
        counters.sent = readTraffic(reader);
        if (reader.isValid() && !counters.name.isEmpty())
            interfaces.push_back(counters);
    });
    return interfaces;
}

std::vector<DiskCounters> parseDisks(QByteArrayView text)
{
    std::vector<DiskCounters> disks;
    forEachLine(text, [&disks](QByteArrayView line) {
        const Words words = splitWords(line);
        if (words.size() < 14)
            return;
        DiskCounters counters;
        counters.name = words[2].toByteArray();
        WordReader reader(words, 5);
        counters.readBytes = reader.takeUnsigned() * sectorBytes;
        reader.skip(3);
        counters.writtenBytes = reader.takeUnsigned() * sectorBytes;
        reader.skip(1);
        counters.requestsInProgress = reader.takeUnsigned();
        counters.busyMs = reader.takeUnsigned();
        if (reader.isValid())
            disks.push_back(counters);
    });
    return disks;
}

std::optional<ProcessStat> parseProcessStat(QByteArrayView text)
{
    const qsizetype open = text.indexOf('(');
    const qsizetype close = text.lastIndexOf(')');
    if (open < 0 || close < open)
        return std::nullopt;
    ProcessStat stat;
    bool isNumber = false;
    stat.pid = text.first(open).trimmed().toUInt(&isNumber);
    stat.name = text.sliced(open + 1, close - open - 1).toByteArray();
    const Words words = splitWords(text.sliced(close + 1));
    if (!isNumber || words.empty() || words[0].size() != 1)
        return std::nullopt;
    stat.state = words[0][0];
    WordReader reader(words, 1);
    stat.parentPid = reader.takeUnsigned32();
    reader.skip(9);
    stat.cpuTicks = reader.takeUnsigned();
    stat.cpuTicks += reader.takeUnsigned();
    reader.skip(3);
    stat.nice = reader.takeInteger();
    stat.threads = reader.takeUnsigned32();
    reader.skip(1);
    stat.startTicks = reader.takeUnsigned();
    reader.skip(1);
    stat.residentPages = reader.takeUnsigned();
    return reader.isValid() ? std::optional(stat) : std::nullopt;
}

std::optional<QByteArray> parseCommandLine(QByteArrayView text)
{
    while (text.endsWith('\0'))
        text.chop(1);
    if (text.isEmpty())
        return std::nullopt;
    return text.toByteArray().replace('\0', ' ');
}

std::optional<LoadAverages> parseLoadAverages(QByteArrayView text)
{
    QByteArray spaced = text.toByteArray();
    spaced.replace('/', ' ');
    const Words words = splitWords(spaced);
    WordReader reader(words, 0);
    LoadAverages load;
    load.oneMinute = reader.takeDouble();
    load.fiveMinutes = reader.takeDouble();
    load.fifteenMinutes = reader.takeDouble();
    load.runnable = reader.takeUnsigned32();
    load.threads = reader.takeUnsigned32();
    return reader.isValid() ? std::optional(load) : std::nullopt;
}

std::optional<double> parseUptime(QByteArrayView text)
{
    const Words words = splitWords(text);
    WordReader reader(words, 0);
    const double seconds = reader.takeDouble();
    return reader.isValid() ? std::optional(seconds) : std::nullopt;
}

std::optional<qint64> parseNumber(QByteArrayView text)
{
    bool isNumber = false;
    const qint64 number = text.trimmed().toLongLong(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string makeShownText(QByteArrayView text, qsizetype maximum)
{
    QString shown = QString::fromUtf8(text);
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    shown = shown.trimmed();
    if (shown.size() > maximum) {
        // Half of a pair of surrogates would not be valid.
        const bool cutsPair = shown[maximum - 1].isHighSurrogate();
        shown = shown.first(cutsPair ? maximum - 1 : maximum) + QChar(0x2026);
    }
    return shown.toStdString();
}

std::optional<quint64> getIncrease(quint64 previous, quint64 current)
{
    return current < previous ? std::nullopt : std::optional(current - previous);
}

std::optional<double> getRate(quint64 previous, quint64 current, double seconds)
{
    const std::optional<quint64> increase = getIncrease(previous, current);
    if (!increase || seconds <= 0.0)
        return std::nullopt;
    return static_cast<double>(*increase) / seconds;
}

} // namespace corvane
