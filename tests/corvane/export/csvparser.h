#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace corvane::test {

/**
 * Reads CSV as strictly as RFC 4180 writes it: CR LF behind each line, as many cells on each as on
 * the first, quotes only around whole cells and doubled inside these. Nothing where it is not so.
 * A cell without quotes that is empty is a null text, one with quotes an empty text.
 */
class CsvParser
{
public:
    static std::optional<QList<QStringList>> parse(const QByteArray &text)
    {
        CsvParser parser(text);
        QList<QStringList> rows;
        while (parser.position < text.size()) {
            const auto row = parser.readRow();
            if (!row || row->size() != (rows.isEmpty() ? *row : rows.constFirst()).size())
                return std::nullopt;
            rows.append(*row);
        }
        return rows;
    }

private:
    explicit CsvParser(const QByteArray &text)
        : text(text)
    {
    }

    char peek() const { return position < text.size() ? text.at(position) : '\0'; }

    std::optional<QStringList> readRow()
    {
        QStringList cells;
        do {
            const auto cell = peek() == '"' ? readQuoted() : readPlain();
            if (!cell)
                return std::nullopt;
            cells.append(*cell);
        } while (peek() == ',' && ++position > 0);
        if (!QByteArrayView(text).sliced(position).startsWith("\r\n"))
            return std::nullopt;
        position += 2;
        return cells;
    }

    std::optional<QString> readPlain()
    {
        const qsizetype begin = position;
        while (position < text.size() && peek() != ',' && peek() != '\r') {
            if (peek() == '"' || static_cast<unsigned char>(peek()) < 0x20)
                return std::nullopt;
            ++position;
        }
        return begin == position ? QString() : QString::fromUtf8(text.mid(begin, position - begin));
    }

    std::optional<QString> readQuoted()
    {
        QByteArray content("");
        for (++position; position < text.size(); ++position) {
            if (peek() == '"') {
                ++position;
                if (position >= text.size() || peek() != '"')
                    return QString::fromUtf8(content);
            }
            content += peek();
        }
        return std::nullopt;
    }

    const QByteArray &text;
    qsizetype position = 0;
};

} // namespace corvane::test
