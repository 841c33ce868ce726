#include "literalreader.h"

#include <QStringList>

namespace corvane::test {

namespace {

bool isNameCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

} // namespace

LiteralReader::LiteralReader(const QString &text)
    : text(text)
{
    cut();
}

QChar LiteralReader::at(qsizetype position) const
{
    return position < text.size() ? text.at(position) : QChar();
}

void LiteralReader::cut()
{
    int line = 1;
    qsizetype lineStart = 0;
    bool firstOnLine = true;
    for (qsizetype position = 0; position < text.size();) {
        const QChar c = at(position);
        if (c == QLatin1Char('\n')) {
            ++line;
            lineStart = ++position;
            firstOnLine = true;
        } else if (c.isSpace()) {
            ++position;
        } else if (c == QLatin1Char('/') && at(position + 1) == QLatin1Char('/')) {
            const auto end = text.indexOf(QLatin1Char('\n'), position);
            position = end < 0 ? text.size() : end;
        } else {
            const int indent = static_cast<int>(position - lineStart);
            Token token = cutWord(position);
            token.line = line;
            token.indent = indent;
            token.firstOnLine = std::exchange(firstOnLine, false);
            tokens.push_back(token);
        }
    }
    tokens.push_back({Token::End, {}, line, static_cast<int>(text.size() - lineStart), true});
}

Token LiteralReader::cutWord(qsizetype &position) const
{
    Token token;
    const qsizetype start = position;
    const QChar c = at(start);
    const bool signedNumber
        = c == QLatin1Char('-') && (at(start + 1).isDigit() || at(start + 1) == QLatin1Char('i'));
    if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
        cutText(position, token);
        return token;
    }
    if (c.isDigit() || signedNumber) {
        token.kind = Token::Number;
        position = endOfNumber(start);
    } else if (isNameCharacter(c)) {
        token.kind = Token::Name;
        while (isNameCharacter(at(position)))
            ++position;
    } else {
        token.kind = Token::Symbol;
        ++position;
    }
    token.text = text.mid(start, position - start);
    return token;
}

qsizetype LiteralReader::endOfNumber(qsizetype start) const
{
    qsizetype position = start + 1;
    const auto inNumber = [&](QChar c) {
        const bool fraction = c == QLatin1Char('.') && at(position + 1).isDigit();
        const bool exponentSign = (c == QLatin1Char('-') || c == QLatin1Char('+'))
                                  && at(position - 1).toLower() == QLatin1Char('e');
        return isNameCharacter(c) || fraction || exponentSign;
    };
    while (inNumber(at(position)))
        ++position;
    return position;
}

void LiteralReader::cutText(qsizetype &position, Token &token) const
{
    token.kind = Token::Text;
    const QChar quote = at(position);
    for (++position; at(position) != quote; ++position) {
        if (position >= text.size()) {
            const auto before = text.left(position);
            token.line = static_cast<int>(before.count(QLatin1Char('\n'))) + 1;
            fail(token, QStringLiteral("a text without closing quote"));
        }
        token.text += at(position) == QLatin1Char('\\') ? escapedCharacter(position) : at(position);
    }
    ++position;
}

QChar LiteralReader::escapedCharacter(qsizetype &position) const
{
    const QChar c = at(++position);
    if (c == QLatin1Char('n'))
        return QLatin1Char('\n');
    if (c == QLatin1Char('t'))
        return QLatin1Char('\t');
    if (c != QLatin1Char('x'))
        return c;
    const QString digits = text.mid(position + 1, 2);
    position += digits.size();
    return QChar(digits.toUShort(nullptr, 16));
}

Token LiteralReader::take()
{
    const Token token = peek();
    if (token.kind != Token::End)
        ++next;
    return token;
}

bool LiteralReader::takeIf(char symbol)
{
    const bool found = peek().is(symbol);
    if (found)
        take();
    return found;
}

bool LiteralReader::takeIf(const char *name)
{
    const bool found = peek().is(name);
    if (found)
        take();
    return found;
}

void LiteralReader::expect(char symbol)
{
    if (!takeIf(symbol))
        fail(peek(), QStringLiteral("expected '%1'").arg(QLatin1Char(symbol)));
}

QString LiteralReader::expectName(const char *what)
{
    if (peek().kind != Token::Name && peek().kind != Token::Text)
        fail(peek(), QStringLiteral("expected %1").arg(QLatin1String(what)));
    return take().text;
}

void LiteralReader::fail(const Token &token, const QString &problem) const
{
    const QString line = text.split(QLatin1Char('\n')).value(token.line - 1);
    const QString marker = QString(token.indent, QLatin1Char(' ')) + QLatin1Char('^');
    qFatal("test literal, line %d, column %d: %s\n%s\n%s", token.line, token.indent + 1,
           qPrintable(problem), qPrintable(line), qPrintable(marker));
}

} // namespace corvane::test
