#pragma once

#include "corvaneframework_export.h"
#include "fieldtype.h"
#include "fieldvalue.h"

#include <QList>
#include <QString>

#include <memory>

class Message;
class MessageInfo;

namespace corvane {
struct FieldInfoData;
} // namespace corvane

/**
 * The description of one field of one or more message types, and the way to its values.
 *
 * A field has any number of values in a message: none where it is absent, one where it is single
 * and present, n where it is repeated. A sub-field is a part of another field (a bit of a word, a
 * member of a group): it has a parent and reads its values from the same message.
 *
 * Descriptions are owned by the framework. Formats subclass FieldInfo; its virtual operations are
 * what a format supplies, all texts and symbols are data.
 */
class CORVANEFRAMEWORK_EXPORT FieldInfo
{
public:
    /** How important a field is to a reader. The values 2 and 3 are the secondary roles. */
    enum Role : qint32 {
        Ordinary = 0,
        Primary = 1, ///< What the message is about.
        Secondary = 2, ///< Details that few readers want.
        Technical = 3 ///< Of use to the protocol alone: checksums, counters, reserved parts.
    };

    FieldInfo(const FieldInfo &) = delete;
    FieldInfo &operator=(const FieldInfo &) = delete;

    // The virtual operations keep this order, the destructor behind them: it is part of the
    // binary interface.

    /** 0 when absent, 1 for a present single field, n for n elements; fits a signed 32-bit int. */
    virtual unsigned int getNumberOfValues(const Message *message) const = 0;
    /** The value at \a index, which counts from 0; an invalid value at or beyond the count. */
    virtual FieldValue getValue(const Message *message, unsigned int index) const = 0;
    /**
     * Where the value at \a index lies in the bytes of \a message, also where they say that there
     * is none: true and the range, or false (and nothing written) without a place, as computed.
     */
    virtual bool getByteRange(const Message *message,
                              unsigned int index,
                              quint32 *offset,
                              quint32 *length) const;
    /** The whole text of a string field; empty for any other field. */
    virtual QString getString(const Message *message) const;
    /** The text of the value at \a index, symbolic when \a interpreted, else raw. */
    virtual QString
    getValueText(const Message *message, unsigned int index, bool interpreted) const;

    virtual ~FieldInfo();

    QString getName() const;
    bool occursIn(const MessageInfo *messageInfo) const;
    /** All message types in which the field occurs. */
    QList<const MessageInfo *> getMessageInfos() const;
    QList<const FieldInfo *> getSubFieldInfos() const;
    /** The field that this one is a part of, or null. */
    const FieldInfo *getParentFieldInfo() const;
    bool isRepeated() const;
    /** Whether a message may come without a value of the field. */
    bool isOptional() const;
    /** Whether the field is a repeated character field that reads as one text. */
    bool isStringField() const;
    /** Whether the values are computed, not transmitted. */
    bool isVirtual() const;
    /** Whether the values are hidden unless Corvane::confidentialInformationDisplayEnabled(). */
    bool isConfidential() const;
    FieldInfo::Role getRole() const;
    /** Whether \a text is one of the symbolic names that values of the field have. */
    bool isSymbolicRepresentation(QString text) const;
    /**
     * \a value as a person reads it: its symbolic name (the names of its bits, joined by " | ",
     * for a bit mask) where it has one and \a symbolic is true, else its plain text.
     */
    QString getInterpretedString(const FieldValue &value, bool symbolic) const;
    /** \a value as a plain number or text. */
    QString getRawString(const FieldValue &value) const;

    const FieldType &getType() const { return type; }

    /** The framework's own record of the field. */
    corvane::FieldInfoData *getData() const { return d.get(); }

protected:
    FieldInfo(const FieldType &type, std::unique_ptr<corvane::FieldInfoData> data);

private:
    bool isHidden() const;

    FieldType type;
    std::unique_ptr<corvane::FieldInfoData> d;
};
