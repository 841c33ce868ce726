// Reads the input as steps of a path expression over the definitions of the example recording and
// types with odd names. The path of each type and field that it matches must lead back to it.

#include "mavlinkformat.h"
#include "pathexpression.h"
#include "testformat.h"

#include <QStringList>

#include <cstdint>
#include <cstdlib>

namespace {

const corvane::MavlinkFormat &format()
{
    static corvane::MavlinkFormat *const loaded = [] {
        auto *made = new corvane::MavlinkFormat;
        if (!made->load(QStringLiteral(CORVANE_SOURCE_FOLDER "/examples/recording/rover.xml"))
                 .errors.isEmpty())
            std::abort();
        return made;
    }();
    static const corvane::test::TestFormat odd(QStringLiteral("Odd \"names\""), QStringLiteral(R"(
        "Type 10"
          x2      uint8
          x010    uint8
          x10     uint8
          "a.b"   int16 {Low=1, High=2}
          parts   "Part \\ of *"[]
        "Part \\ of *" part
          "x y"   double
          "\"q\"" uint16
            low   bits 0..3
    )"));
    return *loaded;
}

void doStep(PathExpression &expression, unsigned choice, const QString &text)
{
    const auto parts = PathExpression::Parts::fromInt(static_cast<int>(choice >> 3 & 7));
    switch (choice % 8) {
    case 0:
        return expression.setWildCard(parts);
    case 1:
        return expression.completeEditing();
    case 2:
        return expression.setConsiderSubMessages((choice & 64) != 0);
    case 3:
    case 4:
        return expression.setStringPrefix(text, parts);
    case 5:
        return expression.setString(text, parts);
    default:
        return expression.setString(text);
    }
}

void checkMatches(const PathExpression &expression)
{
    PathExpression setUp;
    PathExpression readBack;
    readBack.setConsiderSubMessages(true);
    for (const FieldInfo *field : expression.getMatchingFieldInfos()) {
        setUp.setupToMatchUnique(field);
        readBack.setString(setUp.getString(PathExpression::AllParts));
        if (readBack.getMatchingFieldInfos() != QList<const FieldInfo *>{field})
            std::abort();
    }
    for (const MessageInfo *message : expression.getMatchingMessageInfos()) {
        setUp.setupToMatchUnique(message);
        readBack.setString(setUp.getString(PathExpression::AllParts));
        if (readBack.getMatchingMessageInfos() != QList<const MessageInfo *>{message})
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    format();
    PathExpression expression;
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(count));
    for (const QByteArray &step : input.split('\n')) {
        doStep(expression, step.isEmpty() ? 0 : static_cast<unsigned char>(step.at(0)),
               QString::fromUtf8(step.mid(1)));
        for (const PathExpression::Parts parts :
             {PathExpression::Parts(PathExpression::AllParts),
              PathExpression::FormatPart | PathExpression::MessagePart})
        {
            expression.getMatchingExpressionsStringList(parts);
            expression.isWildCard(parts);
        }
    }
    checkMatches(expression);
    return 0;
}
