#pragma once

#include "fieldvalue.h"

#include <QtGlobal>

class FieldInfo;

namespace corvane::test {

class LiteralReader;

/** Reads one value of \a field, which is no sub-message. */
FieldValue parseValue(LiteralReader &reader, const FieldInfo *field);

/** Reads an integer and gives its 64 bits, sign-extended; \a isSigned: whether "-" is allowed. */
quint64 parseInteger(LiteralReader &reader, bool isSigned, int sizeBits);

} // namespace corvane::test
