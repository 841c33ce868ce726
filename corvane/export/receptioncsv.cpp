#include "receptioncsv.h"

#include "eventlog.h"
#include "exporttext.h"
#include "formatinfo.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"
#include "messagestatisticsdata.h"

#include <QIODevice>

#include <string>

namespace corvane {

namespace {

void appendCell(std::string &out, const QString &text)
{
    const size_t begin = out.size();
    appendUtf8(out, text);
    quoteCsv(out, begin);
}

const char *nameOf(CorvaneEvent::Type type)
{
    switch (type) {
    case CorvaneEvent::UnknownMessage:
        return "UnknownMessage";
    case CorvaneEvent::CrcError:
        return "CrcError";
    case CorvaneEvent::LostBytes:
        return "LostBytes";
    case CorvaneEvent::SequenceGap:
        return "SequenceGap";
    case CorvaneEvent::SourceOpened:
        return "SourceOpened";
    case CorvaneEvent::SourceClosed:
        return "SourceClosed";
    case CorvaneEvent::SourceFailed:
        return "SourceFailed";
    default:
        return "Other";
    }
}

bool writeAll(QIODevice &device, const std::string &text)
{
    const auto size = static_cast<qint64>(text.size());
    return device.write(text.data(), size) == size;
}

} // namespace

bool writeStatisticsCsv(const MessageStatisticsCoordinator &statistics, QIODevice &device)
{
    std::string out = "format,type,count,crcErrors,unknownTime,unknownInterval,gaps,missingEpochs,"
                      "regular,lastIntervalMs\r\n";
    for (const auto &type : statistics.getData()->all) {
        appendCell(out, type->getFormatInfo()->getName());
        out += ',';
        appendCell(out, type->getMessageName());
        const MessageStatisticsData &data = *type->getData();
        for (const quint64 count :
             {data.received, data.crcErrors, data.withUnknownTime, data.intervals.unknownIntervals,
              data.intervals.gapCount, data.intervals.missingEpochs})
            out += ',' + std::to_string(count);
        out += type->isCurrentlyRegular() ? ",true," : ",false,";
        out += std::to_string(type->getLastInterval()) + "\r\n";
    }
    return writeAll(device, out);
}

bool writeEventLogCsv(const EventLog &log, QIODevice &device)
{
    std::string out = "time,type,text\r\n";
    for (const EventLog::Entry &entry : log.getEntries()) {
        if (entry.time.isValid())
            appendTime(out, entry.time.toMSecsSinceEpoch() * 1000);
        out += ',';
        out += nameOf(entry.event.getType());
        out += ',';
        appendCell(out, entry.event.getMessage());
        out += "\r\n";
    }
    return writeAll(device, out);
}

} // namespace corvane
