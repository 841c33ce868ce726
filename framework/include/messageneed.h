#pragma once

#include "corvaneframework_export.h"

#include <QList>
#include <QtGlobal>

class MessageInfo;
class MessageNeedManager;

/**
 * A declaration that messages of certain types are needed; only needed types are decoded.
 *
 * The declaration holds until it is replaced, cleared or destroyed. Declaring and withdrawing one
 * type takes constant time, whatever the number of types and of other needs. A need must not
 * outlive its manager.
 */
class CORVANEFRAMEWORK_EXPORT MessageNeed
{
public:
    /** \a manager: null for the manager of the whole process. */
    explicit MessageNeed(MessageNeedManager *manager);
    ~MessageNeed();
    MessageNeed(const MessageNeed &) = delete;
    MessageNeed &operator=(const MessageNeed &) = delete;

    /** Declares one type, in place of all before; null means none. */
    void setMessageNeeded(const MessageInfo *messageInfo);
    /** Declares these types, in place of all before; null entries are passed over. */
    void setMessagesNeeded(QList<const MessageInfo *> messageInfos);
    /** Withdraws all. \a releaseMemory: also frees the room that a long list has taken. */
    void clearMessagesNeeded(bool releaseMemory);

private:
    void declare(const MessageInfo *messageInfo);

    MessageNeedManager *manager; ///< Not owned.
    quint32 firstSlot = 0; ///< The one declared type, as the manager counts them; 0 for none.
    QList<quint32> *furtherSlots = nullptr; ///< Owned; null until more than one was declared.
};
