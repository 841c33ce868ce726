#pragma once

#include "corvaneframework_export.h"
#include "mavlinkdefinitions.h"

#include <QHash>
#include <QString>

#include <memory>

class FormatInfo;
class MessageInfo;

namespace corvane {

class Enumeration;

using MavlinkEnumerations = QHash<QString, std::shared_ptr<Enumeration>>;

/** Makes the description of a message type from its definition. */
std::unique_ptr<MessageInfo> makeMavlinkMessageInfo(const MavlinkMessageDefinition &definition,
                                                    const FormatInfo *format,
                                                    const MavlinkEnumerations &enumerations);

/** The first sentence of \a text, cut (with an ellipsis) at 160 characters. */
CORVANEFRAMEWORK_EXPORT QString firstSentence(const QString &text);

} // namespace corvane
