// Statistics, events and settings. This framework observes nothing: a coordinator has no
// statistics, so nobody ever asks one for its figures.

#include "corvane.h"
#include "eventlog.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"

struct corvane::MessageStatisticsData
{};

class corvane::MessageStatisticsCoordinatorData
{};

struct corvane::CorvaneEventData
{
    QString message;
};

class corvane::EventLogData
{};

const FormatInfo *MessageStatistics::getFormatInfo() const
{
    return nullptr;
}

const MessageInfo *MessageStatistics::getMessageInfo() const
{
    return nullptr;
}

QString MessageStatistics::getMessageName() const
{
    return {};
}

unsigned int MessageStatistics::getCount() const
{
    return 0;
}

unsigned int MessageStatistics::getCountWithUnknownTime() const
{
    return 0;
}

unsigned int MessageStatistics::getCountWithKnownTimeButUnknownInterval() const
{
    return 0;
}

unsigned int MessageStatistics::getNumberOfMissingEpochs() const
{
    return 0;
}

unsigned int MessageStatistics::getNumberOfGaps() const
{
    return 0;
}

bool MessageStatistics::hasUnstoredGaps() const
{
    return false;
}

bool MessageStatistics::isCurrentlyRegular() const
{
    return false;
}

unsigned long long MessageStatistics::getLastInterval() const
{
    return 0;
}

QHash<long long, unsigned int> MessageStatistics::getIntervalCountHash() const
{
    return {};
}

QList<long long> MessageStatistics::getIntervalsSortedOnFrequency(int) const
{
    return {};
}

QList<MessageStatistics::Gap> MessageStatistics::getGaps() const
{
    return {};
}

QString MessageStatistics::getTimeString(unsigned long long time)
{
    return QString::number(time);
}

QString MessageStatistics::getIntervalString(unsigned long long interval)
{
    return QStringLiteral("%1 ms").arg(interval);
}

QList<MessageStatistics *> MessageStatisticsCoordinator::getAllMessageStatistics() const
{
    return {};
}

unsigned int MessageStatisticsCoordinator::getEventCount(CorvaneEvent::Type) const
{
    return 0;
}

CorvaneEvent::CorvaneEvent(const CorvaneEvent &other) = default;

CorvaneEvent::~CorvaneEvent() = default;

QString CorvaneEvent::getMessage() const
{
    return d->message;
}

EventLog::EventLog(QObject *parent)
    : QObject(parent)
{
}

EventLog::~EventLog() = default;

QList<EventLog::Entry> EventLog::getEntries() const
{
    return {};
}

bool Corvane::confidentialInformationDisplayEnabled()
{
    return true;
}

#include "moc_eventlog.cpp"
