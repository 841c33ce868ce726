#pragma once

#include <QString>

class Message;
class MessageInfo;

namespace corvane::test {

/**
 * The message as indented text, all that its type's fields give, in their order:
 *
 * @code
 * Position
 *   mode: Auto
 *   status: 3
 *     armed: true
 *   samples: [1, 2]
 *   comment: -
 *   sats[0]
 *     id: 1
 * @endcode
 *
 * The texts are the interpreted ones; "-" stands for a field without a value.
 */
QString printed(const Message *message);

/**
 * The type as indented text: one line for each field with its name, type and what else is said of
 * it, sub-fields indented.
 */
QString printed(const MessageInfo *type);

} // namespace corvane::test
