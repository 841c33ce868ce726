#pragma once

#include "messageholder.h"
#include "testfieldinfo.h"

#include <QList>
#include <QString>

#include <memory>

class FieldInfo;
class FormatInfo;
class MessageInfo;

namespace corvane::test {

/**
 * A message format whose types and messages are written as text.
 *
 * @code
 * TestFormat format("Demo", R"(
 *     Position 'Where the vehicle is'
 *       lat     double primary unit "deg"
 *       mode    uint8 {Manual=0, Auto=2}
 *       status  uint16 mask {Armed=1, Moving=2}
 *         armed bits 0 bool
 *         gear  bits 4..7 signed
 *       name    char[] confidential
 *       samples int16[] optional
 *       sats    Satellite[]
 *       total   double virtual
 *     Satellite part 'One of the satellites in sight'
 *       id      uint8
 *     Attitude as "Vehicle attitude"
 *       mode    from Position
 * )");
 * const auto message = format.message("Position{lat: 4.5, mode: Auto, sats: [{id: 1}, {id: 2}]}");
 * @endcode
 *
 * Types. A line without indentation begins a type: its name, "part" for a type that occurs only
 * inside others, "as" and a display name, a description in quotes. Indented lines are its fields;
 * a line indented further is a sub-field of the one that it stands under.
 *
 * A field has a name and a type: int1 to int64, uint1 to uint64, float, double, char, uchar, bool,
 * text, bytes, or the name of a message type, with "[]" for a repeated field (char[] and uchar[]
 * are string fields). "bits 3" and "bits 4..7" are parts of the integer field above; "from" and a
 * type's name lists a field of that earlier type here as well, the same object. Then follow, in any
 * order: primary, secondary, technical or "role" and a number; optional, confidential, virtual,
 * instance; "as" and a display name; "unit" and a unit; a description in quotes; symbols, "{A=1,
 * B=4}", or "mask {A=1, B=4}" where each is a bit. A symbol without value has one more than the one
 * before it. Odd names are put in quotes. "//" begins a comment.
 *
 * Messages. The fields that a message names have the values written there; those that it does not
 * name have none. Integers are decimal, 0x2A or 0b101, or symbols ("Armed|Moving" for bits); floats
 * may be nan, inf or -inf; characters are texts of one character or codes; string fields are texts
 * or lists of characters; bytes are texts of hexadecimal digits; "invalid" is the invalid value of
 * any type. Sub-fields that are no bits are named with their parents, "date.year: 5". A virtual
 * field takes its values from the message too, unless setVirtual() gives a computation. Behind the
 * type's name may stand the time in microseconds and the sender: "Position @1500000 #3 {}".
 *
 * A mistake in a literal ends the program and shows where it is. The format is in the catalogue for
 * as long as it lives; its messages must not be read after it is gone.
 */
class TestFormat
{
public:
    using Computation = TestFieldInfo::Computation;

    TestFormat(const QString &name, const QString &types);
    ~TestFormat();
    TestFormat(const TestFormat &) = delete;
    TestFormat &operator=(const TestFormat &) = delete;

    const FormatInfo *getInfo() const { return info.get(); }

    /** The type of that name; there must be one. */
    const MessageInfo *type(const QString &name) const;
    /** The field of a path such as "Position.status.armed"; there must be one. */
    const FieldInfo *field(const QString &path) const;

    /** One message. */
    MessageHolder message(const QString &text) const;
    /** Any number of messages, one literal behind the other. */
    QList<MessageHolder> messages(const QString &text) const;

    /** Lets a field that is no bits compute its values from the message. */
    void setVirtual(const QString &path, Computation computation);
    /** The same for a field that always has one value. */
    void setVirtual(const QString &path, std::function<FieldValue(const Message *)> computation);

private:
    std::unique_ptr<FormatInfo> info;
};

} // namespace corvane::test
