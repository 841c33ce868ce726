#pragma once

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

} // namespace corvane
