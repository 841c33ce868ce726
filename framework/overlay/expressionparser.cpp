#include "expressionparser.h"

#include "expressionfunctions.h"
#include "names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace corvane {

namespace {

constexpr qsizetype maximumLength = 4096;
constexpr size_t maximumDepth = 64;
constexpr unsigned int maximumIndex = 65'535;

// The longer ones first, so that "<" is not found in "<=".
constexpr std::array operators
    = {"<=", ">=", "==", "!=", "&&", "||", "<", ">", "+", "-", "*", "/", "^"};

bool startsName(QChar c)
{
    return c.isLetter() || c == QLatin1Char('_');
}

bool isInName(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

class Parser
{
public:
    explicit Parser(const QString &text)
        : text(text)
    {
    }

    std::optional<ExpressionError> parse();

    ParsedExpression result;

private:
    /** What is open: a parenthesis, a call's, or one of the two halves of a choice. */
    struct Level
    {
        enum Kind {
            Group,
            Call,
            Condition,
            Otherwise
        };

        Kind kind = Group;
        qsizetype position = 0;
        const ExpressionFunction *function = nullptr;
        int arguments = 0;
    };

    bool fail(qsizetype position, const QString &message);

    QChar peek() const { return at < text.size() ? text.at(at) : QChar(); }

    void skipSpace();
    QString currentToken() const;
    bool open(Level::Kind kind, const ExpressionFunction *function = nullptr);
    void closeChoices();
    void emitCode(const std::string &token);

    bool parseOperand();
    bool parseSign();
    bool parseNumber();
    bool parseHexadecimal();
    bool parseNameOrCall();
    bool parseCall(const QString &name, qsizetype start);
    bool parseReference();
    bool parsePart(FieldReference &reference);
    bool parseName(QString *name);
    bool parseQuotedName(QString *name);
    bool parseIndex(FieldReference::Part &part);

    bool parseAfterOperand();
    bool parseOperator();
    bool parseColon();
    bool parseComma();
    bool parseClosing();
    bool checkArguments(const Level &call);
    bool finish();

    const QString &text;
    qsizetype at = 0;
    std::vector<Level> levels;
    bool operandExpected = true;
    bool afterSign = false;
    ExpressionError error;
};

bool Parser::fail(qsizetype position, const QString &message)
{
    error = {position, message};
    return false;
}

void Parser::skipSpace()
{
    while (at < text.size() && text.at(at).isSpace())
        ++at;
}

QString Parser::currentToken() const
{
    return at < text.size() ? quoted(text.mid(at, 1)) : QStringLiteral("the end");
}

bool Parser::open(Level::Kind kind, const ExpressionFunction *function)
{
    if (levels.size() >= maximumDepth)
        return fail(at, QStringLiteral("nested more than %1 levels deep").arg(maximumDepth));
    levels.push_back({kind, at, function, 1});
    return true;
}

void Parser::closeChoices()
{
    while (!levels.empty() && levels.back().kind == Level::Otherwise)
        levels.pop_back();
}

void Parser::emitCode(const std::string &token)
{
    result.code += ' ';
    result.code += token;
}

std::optional<ExpressionError> Parser::parse()
{
    if (text.size() > maximumLength)
        return ExpressionError{
            maximumLength,
            QStringLiteral("an expression has at most %1 characters").arg(maximumLength)};
    bool good = true;
    for (skipSpace(); good && at < text.size(); skipSpace())
        good = operandExpected ? parseOperand() : parseAfterOperand();
    if (!good || !finish())
        return error;
    return std::nullopt;
}

bool Parser::finish()
{
    if (operandExpected)
        return fail(at, QStringLiteral("expected a number, a field or a function at the end"));
    closeChoices();
    if (levels.empty())
        return true;
    const Level &level = levels.back();
    if (level.kind == Level::Condition)
        return fail(level.position, QStringLiteral("\"?\" without the \":\" that belongs to it"));
    return fail(level.position, QStringLiteral("\"(\" without the \")\" that belongs to it"));
}

bool Parser::parseOperand()
{
    const QChar c = peek();
    const bool startsNumber
        = isDigit(c) || (c == QLatin1Char('.') && at + 1 < text.size() && isDigit(text.at(at + 1)));
    if (startsNumber)
        return parseNumber();
    if (startsName(c) || c == QLatin1Char('\''))
        return parseNameOrCall();
    if (c == QLatin1Char('+') || c == QLatin1Char('-'))
        return parseSign();
    if (c != QLatin1Char('('))
        return fail(at, QStringLiteral("expected a number, a field or a function, found %1")
                            .arg(currentToken()));
    if (!open(Level::Group))
        return false;
    emitCode("(");
    ++at;
    afterSign = false;
    return true;
}

bool Parser::parseSign()
{
    if (afterSign)
        return fail(at, QStringLiteral("two signs in a row; put parentheses around the second"));
    emitCode(peek() == QLatin1Char('-') ? "-" : "+");
    ++at;
    afterSign = true;
    return true;
}

bool Parser::parseNumber()
{
    if (peek() == QLatin1Char('0') && at + 1 < text.size()
        && text.at(at + 1).toLower() == QLatin1Char('x'))
        return parseHexadecimal();
    const qsizetype start = at;
    const auto skipDigits = [this] {
        while (isDigit(peek()))
            ++at;
    };
    skipDigits();
    if (peek() == QLatin1Char('.')) {
        ++at;
        skipDigits();
    }
    if (peek().toLower() == QLatin1Char('e')) {
        ++at;
        if (peek() == QLatin1Char('+') || peek() == QLatin1Char('-'))
            ++at;
        skipDigits();
    }
    bool good = false;
    const double value = text.mid(start, at - start).toDouble(&good);
    if (!good || !std::isfinite(value) || isInName(peek()))
        return fail(start, QStringLiteral("not a number that can be calculated with"));
    emitCode("c" + std::to_string(result.constants.size()));
    result.constants.push_back(value);
    operandExpected = false;
    return true;
}

bool Parser::parseHexadecimal()
{
    const qsizetype start = at;
    while (isInName(peek()))
        ++at;
    bool good = false;
    const quint64 value = text.mid(start, at - start).toULongLong(&good, 16);
    if (!good)
        return fail(start, QStringLiteral("not a hexadecimal number of at most 64 bits"));
    emitCode("c" + std::to_string(result.constants.size()));
    result.constants.push_back(static_cast<double>(value));
    operandExpected = false;
    return true;
}

bool Parser::parseNameOrCall()
{
    const qsizetype start = at;
    QString name;
    if (startsName(peek())) {
        while (isInName(peek()))
            ++at;
        name = text.mid(start, at - start);
        const qsizetype afterName = at;
        skipSpace();
        if (peek() == QLatin1Char('('))
            return parseCall(name, start);
        at = afterName;
    }
    if (name == QLatin1String("pi")) {
        emitCode("c" + std::to_string(result.constants.size()));
        result.constants.push_back(std::numbers::pi);
        operandExpected = false;
        return true;
    }
    at = start;
    return parseReference();
}

bool Parser::parseCall(const QString &name, qsizetype start)
{
    const ExpressionFunction *function = findExpressionFunction(name);
    if (function == nullptr)
        return fail(start, QStringLiteral("there is no function %1%2")
                               .arg(quoted(name), suggestion(name, expressionFunctionNames())));
    if (!open(Level::Call, function))
        return false;
    levels.back().position = start;
    emitCode(std::string(function->name) + "(");
    ++at;
    afterSign = false;
    return true;
}

bool Parser::parseReference()
{
    FieldReference reference;
    reference.position = at;
    if (!parsePart(reference))
        return false;
    while (peek() == QLatin1Char('.')) {
        ++at;
        if (!parsePart(reference))
            return false;
    }
    reference.text = text.mid(reference.position, at - reference.position);
    const auto isSame = [&](const FieldReference &other) { return other.text == reference.text; };
    auto &known = result.references;
    const auto found = std::find_if(known.begin(), known.end(), isSame);
    emitCode("v" + std::to_string(found - known.begin()));
    if (found == known.end())
        known.push_back(reference);
    operandExpected = false;
    return true;
}

bool Parser::parsePart(FieldReference &reference)
{
    FieldReference::Part part;
    if (!parseName(&part.name))
        return false;
    if (peek() == QLatin1Char('[') && !parseIndex(part))
        return false;
    reference.parts.push_back(part);
    return true;
}

bool Parser::parseName(QString *name)
{
    if (peek() == QLatin1Char('\''))
        return parseQuotedName(name);
    if (!startsName(peek()))
        return fail(at,
                    QStringLiteral("expected the name of a field, found %1").arg(currentToken()));
    const qsizetype start = at;
    while (isInName(peek()))
        ++at;
    *name = text.mid(start, at - start);
    return true;
}

bool Parser::parseQuotedName(QString *name)
{
    const qsizetype start = at;
    const qsizetype end = text.indexOf(QLatin1Char('\''), start + 1);
    if (end < 0)
        return fail(start, QStringLiteral("a quoted name without its closing '"));
    *name = text.mid(start + 1, end - start - 1);
    at = end + 1;
    return true;
}

bool Parser::parseIndex(FieldReference::Part &part)
{
    const qsizetype start = ++at;
    while (isDigit(peek()))
        ++at;
    bool good = false;
    const unsigned int index = text.mid(start, at - start).toUInt(&good);
    if (!good || index > maximumIndex || peek() != QLatin1Char(']'))
        return fail(
            start,
            QStringLiteral("expected an index between 0 and %1, then \"]\"").arg(maximumIndex));
    ++at;
    part.index = index;
    return true;
}

bool Parser::parseAfterOperand()
{
    afterSign = false;
    switch (peek().unicode()) {
    case '?':
        operandExpected = true;
        if (!open(Level::Condition))
            return false;
        emitCode("?");
        ++at;
        return true;
    case ':':
        return parseColon();
    case ',':
        return parseComma();
    case ')':
        return parseClosing();
    default:
        return parseOperator();
    }
}

bool Parser::parseOperator()
{
    for (const char *candidate : operators) {
        const QLatin1String symbol(candidate);
        if (!QStringView(text).mid(at).startsWith(symbol))
            continue;
        emitCode(candidate);
        at += symbol.size();
        operandExpected = true;
        return true;
    }
    if (peek() == QLatin1Char('='))
        return fail(at, QStringLiteral("nothing can be assigned here; \"==\" compares"));
    return fail(at, QStringLiteral("expected an operator, found %1").arg(currentToken()));
}

bool Parser::parseColon()
{
    closeChoices();
    if (levels.empty() || levels.back().kind != Level::Condition)
        return fail(at, QStringLiteral("\":\" without the \"?\" that belongs to it"));
    levels.back().kind = Level::Otherwise;
    emitCode(":");
    ++at;
    operandExpected = true;
    return true;
}

bool Parser::parseComma()
{
    closeChoices();
    if (levels.empty() || levels.back().kind != Level::Call)
        return fail(at, QStringLiteral("\",\" is for the arguments of a function"));
    ++levels.back().arguments;
    emitCode(",");
    ++at;
    operandExpected = true;
    return true;
}

bool Parser::parseClosing()
{
    closeChoices();
    if (levels.empty())
        return fail(at, QStringLiteral("\")\" without the \"(\" that belongs to it"));
    const Level level = levels.back();
    if (level.kind == Level::Condition)
        return fail(level.position, QStringLiteral("\"?\" without the \":\" that belongs to it"));
    if (level.kind == Level::Call && !checkArguments(level))
        return false;
    levels.pop_back();
    emitCode(")");
    ++at;
    return true;
}

bool Parser::checkArguments(const Level &call)
{
    const ExpressionFunction &function = *call.function;
    if (call.arguments >= function.minimumArguments && call.arguments <= function.maximumArguments)
        return true;
    const QString expected = function.minimumArguments == function.maximumArguments
                                 ? QString::number(function.minimumArguments)
                                 : QStringLiteral("%1 to %2")
                                       .arg(function.minimumArguments)
                                       .arg(function.maximumArguments);
    return fail(call.position, QStringLiteral("\"%1\" takes %2 arguments, not %3")
                                   .arg(QLatin1String(function.name), expected)
                                   .arg(call.arguments));
}

} // namespace

std::optional<ExpressionError> parseExpression(const QString &text, ParsedExpression *parsed)
{
    Parser parser(text);
    auto error = parser.parse();
    if (!error)
        *parsed = std::move(parser.result);
    return error;
}

} // namespace corvane
