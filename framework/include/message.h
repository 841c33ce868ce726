#pragma once

#include "referencecountedobject.h"

class MessageInfo;

/**
 * One received message.
 *
 * What the message holds is read through the FieldInfo objects of its type. The framework
 * subclasses Message for its formats; everybody else only passes pointers on. A message that is
 * kept beyond the signal that delivered it needs a reference.
 */
class CORVANEFRAMEWORK_EXPORT Message : public ReferenceCountedObject
{
public:
    /** The type of the message, never null. One object per type, so pointers can be compared. */
    const MessageInfo *getInfo() const;

protected:
    /** \a mainMessage: the message that holds this one as a sub-message, or null. */
    explicit Message(const MessageInfo *info, const Message *mainMessage = nullptr);
    ~Message() override;

private:
    const MessageInfo *info; ///< Not owned.
};
