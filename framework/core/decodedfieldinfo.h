#pragma once

#include "corvaneframework_export.h"
#include "fieldinfo.h"

namespace corvane {

struct FieldInfoData;

/** What is shown in place of every confidential value while such values are hidden. */
CORVANEFRAMEWORK_EXPORT QString confidentialText();

/**
 * Base of the formats' fields: keeps confidential values hidden, so that a format only says how
 * many values there are and how one is read.
 */
class CORVANEFRAMEWORK_EXPORT DecodedFieldInfo : public FieldInfo
{
public:
    DecodedFieldInfo(const FieldType &type, std::unique_ptr<FieldInfoData> data);

    FieldValue getValue(const Message *message, unsigned int index) const final;
    QString getString(const Message *message) const final;

protected:
    /** Reads the value at \a index; an invalid one at or beyond getNumberOfValues(). */
    virtual FieldValue readValue(const Message *message, unsigned int index) const = 0;
    /** The whole text of a string field; by default its characters one behind the other. */
    virtual QString readString(const Message *message) const;

private:
    bool isConfidentialIn(const Message *message) const;
};

} // namespace corvane
