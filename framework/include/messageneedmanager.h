#pragma once

#include "corvaneframework_export.h"

#include <memory>

class MessageInfo;

namespace corvane {
class MessageNeedCounts;
} // namespace corvane

/** Knows which message types somebody needs. */
class CORVANEFRAMEWORK_EXPORT MessageNeedManager
{
public:
    MessageNeedManager();
    ~MessageNeedManager();
    MessageNeedManager(const MessageNeedManager &) = delete;
    MessageNeedManager &operator=(const MessageNeedManager &) = delete;

    /** The manager of the whole process; it is never destroyed. */
    static MessageNeedManager *getDefault();

    bool isNeeded(const MessageInfo *messageInfo) const;

    /** The framework's own counts. */
    corvane::MessageNeedCounts &getCounts() const { return *d; }

private:
    std::unique_ptr<corvane::MessageNeedCounts> d;
};
