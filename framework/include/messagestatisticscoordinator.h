#pragma once

#include "corvaneevent.h"
#include "corvaneframework_export.h"

#include <QList>

#include <memory>

class MessageStatistics;

namespace corvane {
class MessageStatisticsCoordinatorData;
} // namespace corvane

/** The statistics of all message types of one stream, and the counts of its events. */
class CORVANEFRAMEWORK_EXPORT MessageStatisticsCoordinator
{
public:
    MessageStatisticsCoordinator();
    ~MessageStatisticsCoordinator();
    MessageStatisticsCoordinator(const MessageStatisticsCoordinator &) = delete;
    MessageStatisticsCoordinator &operator=(const MessageStatisticsCoordinator &) = delete;

    /** One object per message type received so far, in the order of first sight. Not owned. */
    QList<MessageStatistics *> getAllMessageStatistics() const;
    /** How many events of \a type have occurred; stays at its largest value. */
    unsigned int getEventCount(CorvaneEvent::Type type) const;

    /** The framework's own record. */
    corvane::MessageStatisticsCoordinatorData *getData() const { return d.get(); }

private:
    std::unique_ptr<corvane::MessageStatisticsCoordinatorData> d;
};
