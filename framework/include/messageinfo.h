#pragma once

#include "corvaneframework_export.h"

#include <QList>
#include <QString>

#include <memory>

class FieldInfo;

namespace corvane {
struct MessageInfoData;
} // namespace corvane

/**
 * The description of one message type: its name and its fields.
 *
 * Descriptions are owned by the framework and live until the format that they belong to is
 * removed; there is exactly one object per type.
 */
class CORVANEFRAMEWORK_EXPORT MessageInfo
{
public:
    explicit MessageInfo(std::unique_ptr<corvane::MessageInfoData> data);
    ~MessageInfo();
    MessageInfo(const MessageInfo &) = delete;
    MessageInfo &operator=(const MessageInfo &) = delete;

    /** All fields in their defined order, sub-fields included (directly behind their parent). */
    QList<const FieldInfo *> getFieldInfos() const;
    QString getName() const;
    /** One line that says what the message is for; may be empty. */
    QString getShortDescriptiveText() const;
    /** Whether messages of this type arrive by themselves, not only as part of other messages. */
    bool isMain() const;

    /** The framework's own record of the type. */
    corvane::MessageInfoData *getData() const { return d.get(); }

private:
    std::unique_ptr<corvane::MessageInfoData> d;
};
