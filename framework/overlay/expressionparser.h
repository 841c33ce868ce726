#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace corvane {

/** A field that an expression uses, as it is written: "a", "a.b", "a[2].b", "'odd name'.b". */
struct FieldReference
{
    struct Part
    {
        QString name;
        std::optional<unsigned int> index;
    };

    std::vector<Part> parts;
    QString text;
    qsizetype position = 0; ///< Of its first character in the expression.
};

/**
 * An expression that is known to be well formed. Its code is the expression with v0, v1, ... in
 * place of the references and c0, c1, ... in place of the numbers.
 */
struct ParsedExpression
{
    std::string code;
    std::vector<FieldReference> references;
    std::vector<double> constants;
};

struct ExpressionError
{
    qsizetype position = 0; ///< Of the character where the expression is wrong.
    QString message;
};

/**
 * Checks \a text and takes it apart: numbers, fields, functions, + - * / ^, comparisons, && and
 * ||, the choice "a ? b : c" and parentheses. At most 4096 characters, 64 levels deep. Writes
 * \a parsed only where it returns no error.
 */
std::optional<ExpressionError> parseExpression(const QString &text, ParsedExpression *parsed);

} // namespace corvane
