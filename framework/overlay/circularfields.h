#pragma once

#include "newfieldreader.h"

namespace corvane {

/**
 * Puts the virtual fields in an order in which each one comes behind those that it uses, and
 * completes them in that order. Fields that use each other, and fields that read too many others
 * for one value, are errors in the source.
 */
void completeInOrder(const std::vector<UnboundVirtualField> &fields, JsonSource &source);

} // namespace corvane
