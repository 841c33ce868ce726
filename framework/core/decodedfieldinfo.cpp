#include "decodedfieldinfo.h"

#include "corvane.h"
#include "decodedmessage.h"
#include "descriptions.h"

namespace corvane {

QString confidentialText()
{
    return QStringLiteral("(confidential)");
}

DecodedFieldInfo::DecodedFieldInfo(const FieldType &type, std::unique_ptr<FieldInfoData> data)
    : FieldInfo(type, std::move(data))
{
}

bool DecodedFieldInfo::isConfidentialIn(const Message *message) const
{
    // A part of a confidential sub-message is as confidential as the whole.
    return isConfidential() || static_cast<const DecodedMessage *>(message)->isConfidential();
}

FieldValue DecodedFieldInfo::getValue(const Message *message, unsigned int index) const
{
    FieldValue value = readValue(message, index);
    if (value.isValid() && isConfidentialIn(message))
        value.setConfidential(true);
    return value;
}

QString DecodedFieldInfo::getString(const Message *message) const
{
    if (!isStringField())
        return {};
    if (isConfidentialIn(message) && !Corvane::confidentialInformationDisplayEnabled())
        return confidentialText();
    return readString(message);
}

QString DecodedFieldInfo::readString(const Message *message) const
{
    QString text;
    const unsigned int count = getNumberOfValues(message);
    for (unsigned int index = 0; index < count; ++index)
        text += readValue(message, index)
                    .toString(false, -1, FieldValue::DefaultRepresentation, false);
    return text;
}

} // namespace corvane
