#include "eventgatherer.h"

#include "decodedmessage.h"
#include "eventlog.h"

#include <QDateTime>

#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 secondMs = 1000;
constexpr qint64 secondUs = 1'000'000;
constexpr quint64 otherSubjects = std::numeric_limits<quint64>::max();

QString subjectOfMany(CorvaneEvent::Type type)
{
    switch (type) {
    case CorvaneEvent::UnknownMessage:
        return EventGatherer::tr("Unknown messages of various ids");
    case CorvaneEvent::CrcError:
        return EventGatherer::tr("CRC errors of various messages");
    case CorvaneEvent::SequenceGap:
        return EventGatherer::tr("Messages of various senders lost");
    default:
        return EventGatherer::tr("Various events");
    }
}

} // namespace

EventGatherer::EventGatherer(EventLog &log, QObject *parent)
    : QObject(parent)
    , log(log)
{
    endTimer.setSingleShot(true);
    endTimer.setInterval(secondMs);
    connect(&endTimer, &QTimer::timeout, this, &EventGatherer::flush);
}

EventGatherer::~EventGatherer() = default;

void EventGatherer::add(EventKind kind, qint64 timeUs, const std::function<Text()> &makeText)
{
    if (!gathered.empty() && endsSecond(timeUs))
        flush();
    if (gathered.empty()) {
        startUs = timeUs;
        sinceStart.start();
    }
    bool isOneOfMany = false;
    if (!places.contains(kind) && kindsOfType.value(kind.type) >= maximumKinds) {
        kind.subject = otherSubjects;
        isOneOfMany = true;
    }
    const auto place = places.constFind(kind);
    if (place == places.cend()) {
        const Text text = makeText();
        places.insert(kind, gathered.size());
        ++kindsOfType[kind.type];
        gathered.push_back(
            {kind, isOneOfMany ? subjectOfMany(kind.type) : text.subject, 0, timeUs});
        write(kind, timeUs, text.whole);
        return;
    }
    Gathered &known = gathered[*place];
    ++known.count;
    known.latestUs = timeUs;
    if (!endTimer.isActive())
        endTimer.start();
}

bool EventGatherer::endsSecond(qint64 timeUs) const
{
    const bool known = timeUs != DecodedMessage::unknownTime;
    if (known != (startUs != DecodedMessage::unknownTime))
        return true;
    return known ? timeUs < startUs || timeUs - startUs >= secondUs
                 : sinceStart.hasExpired(secondMs);
}

void EventGatherer::flush()
{
    endTimer.stop();
    const auto finished = std::exchange(gathered, {});
    places.clear();
    kindsOfType.clear();
    for (const Gathered &known : finished)
        if (known.count > 0)
            write(known.kind, known.latestUs,
                  tr("%1: %2 more in the same second").arg(known.subject).arg(known.count));
}

void EventGatherer::write(const EventKind &kind, qint64 timeUs, const QString &text)
{
    const bool known = timeUs != DecodedMessage::unknownTime;
    const auto time = known ? QDateTime::fromMSecsSinceEpoch(timeUs / 1000, Qt::UTC) : QDateTime();
    log.addEntry({time, CorvaneEvent(kind.type, text)});
}

} // namespace corvane
