#pragma once

#include "corvaneframework_export.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>
#include <utility>

class Message;

/**
 * One value of one field: a number, a character, a truth value, a text, bytes, a sub-message, or
 * nothing (an invalid value).
 *
 * Integers are exact over the whole 64-bit range. A value is cheap to copy and holds no reference
 * on a message: a sub-message that it names lives as long as the main message that it came from.
 * A value read from a confidential field remembers that it is confidential; while
 * Corvane::confidentialInformationDisplayEnabled() is false it gives no content away.
 */
class CORVANEFRAMEWORK_EXPORT FieldValue
{
public:
    enum RepresentationMode : qint32 {
        DefaultRepresentation = 0, ///< Decimal, floats as short as they read back exactly.
        HexadecimalRepresentation = 1, ///< Integers and bytes: "0x2A"; others as by default.
        BinaryRepresentation = 2, ///< Integers: "0b101010"; others as by default.
        ScientificRepresentation = 3 ///< Floats: "4.2e+01"; others as by default.
    };

    /** An invalid value. */
    FieldValue();
    ~FieldValue();
    FieldValue(const FieldValue &other);
    FieldValue &operator=(const FieldValue &other);

    // Inline, so that whoever moves values needs no more of a framework than copying does.
    FieldValue(FieldValue &&other) noexcept
        : FieldValue()
    {
        swap(other);
    }

    FieldValue &operator=(FieldValue &&other) noexcept
    {
        swap(other);
        return *this;
    }

    void swap(FieldValue &other) noexcept
    {
        std::swap(bits, other.bits);
        std::swap(kind, other.kind);
        std::swap(sizeBits, other.sizeBits);
        std::swap(confidential, other.confidential);
    }

    static FieldValue invalid();
    /** \a sizeBits: the width for hexadecimal and binary digits, 1 to 64. */
    static FieldValue fromSigned(qint64 value, int sizeBits = 64);
    static FieldValue fromUnsigned(quint64 value, int sizeBits = 64);
    static FieldValue fromFloat(float value);
    static FieldValue fromDouble(double value);
    static FieldValue fromBoolean(bool value);
    /** \a code: a byte, or a Unicode code point where the format has such characters. */
    static FieldValue fromCharacter(char32_t code);
    static FieldValue fromText(const QString &text);
    static FieldValue fromBytes(const QByteArray &bytes);
    /** \a message is not owned and no reference is taken. */
    static FieldValue fromSubMessage(const Message *message);

    bool isValid() const;
    bool isConfidential() const;
    /** Marks the value as one of a confidential field. */
    void setConfidential(bool confidential);

    /**
     * The value as text; an empty text for an invalid value.
     *
     * \a quoted: texts and characters are put in double quotes, with control characters escaped.
     * \a precision: digits after the decimal point of a float, 0 to 17; -1 for as many as are
     *    needed to read the same float back.
     * \a grouped: the digits of decimal integers are separated in groups of three.
     */
    QString toString(bool quoted,
                     signed char precision,
                     FieldValue::RepresentationMode mode,
                     bool grouped) const;

    /** The embedded message of a sub-message value, else null. Not owned. */
    const Message *getSubMessage() const;
    /** The value as a floating point number; nothing where it is hidden or no number. */
    std::optional<double> toDouble() const;
    /** The value as an integer's 64 bits (signed ones sign-extended); nothing as above. */
    std::optional<quint64> toInteger() const;

    /** As toInteger(), hidden or not: for values computed from others, never for showing. */
    std::optional<quint64> bitsOfInteger() const;

    /** Exact equality of kind and content; two NaN with the same bits are equal. */
    friend CORVANEFRAMEWORK_EXPORT bool operator==(const FieldValue &left, const FieldValue &right);

    friend bool operator!=(const FieldValue &left, const FieldValue &right)
    {
        return !(left == right);
    }

private:
    FieldValue(quint8 kind, quint64 bits, int sizeBits);
    bool isHidden() const;

    quint64 bits = 0; ///< The number itself, or a pointer to what does not fit.
    quint8 kind = 0;
    quint8 sizeBits = 0;
    bool confidential = false;
};
