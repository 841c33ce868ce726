#pragma once

#include "virtualfieldinfo.h"

#include <optional>

namespace corvane {

class OverlayPlan;
struct FieldReference;

/**
 * Finds the number that \a reference names in messages of type \a message, in sub-messages too.
 * Nothing, and the reason in \a problem, where it names no single number.
 */
std::optional<VirtualFieldInfo::Operand> resolveField(const OverlayPlan &plan,
                                                      const MessageInfo *message,
                                                      const FieldReference &reference,
                                                      QString *problem);

/** "message "X" has no field "y"", with a suggestion. */
QString unknownFieldText(const OverlayPlan &plan, const MessageInfo *message, const QString &path);

/** Whether the field is a number, or a list of numbers. */
bool isNumeric(const FieldInfo *field);

} // namespace corvane
