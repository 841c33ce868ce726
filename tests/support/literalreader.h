#pragma once

#include <QString>

#include <vector>

namespace corvane::test {

/** A word of a literal and where it stands. */
struct Token
{
    enum Kind {
        End,
        Name, ///< Letters, digits and underscores.
        Number, ///< As written, sign included.
        Text, ///< What stands between quotes.
        Symbol ///< A single other character.
    };

    bool is(char symbol) const { return kind == Symbol && text == QLatin1Char(symbol); }

    bool is(const char *name) const { return kind == Name && text == QLatin1String(name); }

    Kind kind = End;
    QString text;
    int line = 1; ///< Counted from 1.
    int indent = 0; ///< Characters before it on its line.
    bool firstOnLine = false;
};

/**
 * Cuts a literal into words: names, numbers ("-4.5e3", "0x2A", "0b101", "-inf"), texts in double
 * or single quotes (with \n, \t, \xHH, \\ and escaped quotes inside), and single symbols. What
 * stands behind "//" is not read.
 *
 * What does not fit is the mistake of the test's author: fail() ends the program and shows where.
 */
class LiteralReader
{
public:
    explicit LiteralReader(const QString &text);

    const Token &peek() const { return tokens[next]; }

    bool isAtEnd() const { return peek().kind == Token::End; }

    Token take();
    /** Takes the next word if it is \a symbol. */
    bool takeIf(char symbol);
    /** Takes the next word if it is \a name. */
    bool takeIf(const char *name);
    void expect(char symbol);
    /** Takes a name, or a text in its place where a name has odd characters. */
    QString expectName(const char *what);

    /** Ends the program, with \a problem and the line that \a token stands on. */
    [[noreturn]] void fail(const Token &token, const QString &problem) const;

private:
    void cut();
    Token cutWord(qsizetype &position) const;
    qsizetype endOfNumber(qsizetype start) const;
    void cutText(qsizetype &position, Token &token) const;
    QChar escapedCharacter(qsizetype &position) const;
    QChar at(qsizetype position) const;

    QString text;
    std::vector<Token> tokens;
    size_t next = 0;
};

} // namespace corvane::test
