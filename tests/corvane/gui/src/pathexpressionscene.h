#pragma once

#include "pathexpression.h"

#include <QString>
#include <QStringList>

#include <utility>

namespace corvane::test {

inline const char types[] = R"(
    Alpha
      x  int8
    Beta
      x  int8
      y  int8
)";

inline const auto format = PathExpression::FormatPart;
inline const auto message = PathExpression::MessagePart;
inline const auto field = PathExpression::FieldPart;
inline const auto all = PathExpression::AllParts;

/** What the widgets tell an expression, seen by its texts and signals. */
class Watched : public PathExpression
{
public:
    Watched()
    {
        connect(this, &PathExpression::expressionChanged, this,
                [this](const QString &text) { texts.append(text); });
        connect(this, &PathExpression::matchesMayHaveChanged, this, [this] { ++matchChanges; });
    }

    QStringList takeTexts() { return std::exchange(texts, {}); }

    QStringList texts;
    int matchChanges = 0;
};

} // namespace corvane::test
