#pragma once

#include "corvaneevent.h"
#include "corvaneframework_export.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <vector>

class EventLog;

namespace corvane {

/** Which events are equal: those of one sort that concern the same message type and sender. */
struct EventKind
{
    CorvaneEvent::Type type = CorvaneEvent::Other;
    quint64 subject = 0;

    friend bool operator==(const EventKind &, const EventKind &) = default;
};

inline size_t qHash(const EventKind &kind, size_t seed = 0)
{
    return qHashMulti(seed, static_cast<int>(kind.type), kind.subject);
}

/**
 * Keeps a log readable: of equal events the first enters at once, and the others of that second as
 * one entry with their number.
 *
 * A second is one of the events' own time, or of the clock on the wall where they have none. It
 * ends with the first event that does not belong to it, or by itself once a second has passed.
 */
class CORVANEFRAMEWORK_EXPORT EventGatherer : public QObject
{
    Q_OBJECT

public:
    struct Text
    {
        QString whole; ///< The event in words.
        QString subject; ///< What all events of the kind have in common, to be counted.
    };

    /** So many kinds of a sort are told apart in a second; further ones are counted as one. */
    static constexpr int maximumKinds = 64;

    /** \a log: not owned, must outlive the gatherer. */
    explicit EventGatherer(EventLog &log, QObject *parent = nullptr);
    ~EventGatherer() override;

    /** \a timeUs: since 1970, or DecodedMessage::unknownTime. \a makeText is called when needed. */
    void add(EventKind kind, qint64 timeUs, const std::function<Text()> &makeText);
    /** Ends the second: what was only counted so far enters the log. */
    void flush();

private:
    struct Gathered
    {
        EventKind kind;
        QString subject;
        quint64 count = 0; ///< Behind the first one.
        qint64 latestUs = 0;
    };

    bool endsSecond(qint64 timeUs) const;
    void write(const EventKind &kind, qint64 timeUs, const QString &text);

    EventLog &log;
    QHash<EventKind, size_t> places; ///< In gathered.
    std::vector<Gathered> gathered; ///< In the order of their first event in this second.
    QHash<int, int> kindsOfType; ///< How many different kinds of each sort there are.
    qint64 startUs = 0;
    QElapsedTimer sinceStart;
    QTimer endTimer;
};

} // namespace corvane
