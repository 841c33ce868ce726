#pragma once

#include "descriptions.h"
#include "fieldinfo.h"

#include <QList>
#include <QString>

#include <vector>

namespace corvane {

// What has a meaning of its own in a path expression.
inline constexpr QLatin1Char dot('.');
inline constexpr QLatin1Char star('*');
inline constexpr QLatin1Char questionMark('?');
inline constexpr QLatin1Char quote('"');
inline constexpr QLatin1Char backslash('\\');

/** What one name has to look like: texts with stars between them. */
class NamePattern
{
public:
    void addLiteral(QChar character)
    {
        texts.back().append(character);
        anyCharacter.back().append(false);
    }

    void addAnyCharacter()
    {
        texts.back().append(questionMark);
        anyCharacter.back().append(true);
        hasAnyCharacter = true;
    }

    void addAnyText()
    {
        texts.emplace_back();
        anyCharacter.emplace_back();
    }

    bool matches(const QString &name) const
    {
        if (const QString *only = getOnlyName())
            return name == *only;
        const QString &first = texts.front();
        const QString &last = texts.back();
        if (texts.size() == 1)
            return name.size() == first.size() && isAt(0, name, 0);
        qsizetype position = first.size();
        const qsizetype end = name.size() - last.size();
        if (end < position || !isAt(0, name, 0) || !isAt(texts.size() - 1, name, end))
            return false;
        // The leftmost place of each text leaves the most room for those behind it.
        for (size_t i = 1; i + 1 < texts.size(); ++i) {
            position = find(i, name, position);
            if (position < 0 || position + texts[i].size() > end)
                return false;
            position += texts[i].size();
        }
        return true;
    }

    /** The only name that matches, or null where there may be several. */
    const QString *getOnlyName() const
    {
        return texts.size() == 1 && !hasAnyCharacter ? &texts.front() : nullptr;
    }

private:
    bool isAt(size_t index, const QString &name, qsizetype position) const
    {
        const QString &text = texts[index];
        if (!hasAnyCharacter)
            return QStringView(name).mid(position, text.size()) == text;
        for (qsizetype i = 0; i < text.size(); ++i)
            if (!anyCharacter[index].at(i) && name.at(position + i) != text.at(i))
                return false;
        return true;
    }

    qsizetype find(size_t index, const QString &name, qsizetype position) const
    {
        if (!hasAnyCharacter)
            return name.indexOf(texts[index], position);
        for (; position + texts[index].size() <= name.size(); ++position)
            if (isAt(index, name, position))
                return position;
        return -1;
    }

    std::vector<QString> texts{QString()}; ///< What stands between the stars.
    std::vector<QList<bool>> anyCharacter{QList<bool>()}; ///< By text and character.
    bool hasAnyCharacter = false;
};

/** What the names of one part of an expression have to look like. */
class PartPattern
{
public:
    PartPattern() = default;

    /** \a prefix: whether the last name is still being typed. */
    PartPattern(const QString &text, bool prefix, bool severalNames)
        : everything(text == star)
        , prefix(prefix)
        , names(1)
    {
        bool quoted = false;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text.at(i);
            if (quoted && c == backslash && i + 1 < text.size())
                names.back().addLiteral(text.at(++i));
            else if (c == quote)
                quoted = !quoted;
            else if (!quoted && c == dot && severalNames)
                names.emplace_back();
            else if (!quoted && c == star)
                names.back().addAnyText();
            else if (!quoted && c == questionMark)
                names.back().addAnyCharacter();
            else
                names.back().addLiteral(c);
        }
        if (prefix)
            names.back().addAnyText();
        // A part without any text names nothing, not what has an empty name.
        nothing = text.isEmpty() && !prefix;
    }

    bool isEverything() const { return everything; }

    const QString *getOnlyName() const
    {
        return everything || nothing ? nullptr : names.front().getOnlyName();
    }

    bool matches(const QString &name) const
    {
        return everything || (!nothing && names.front().matches(name));
    }

    /** Whether the names of \a field and of the fields that it lies in match, in their order. */
    bool matches(const FieldInfo *field) const
    {
        if (everything)
            return true;
        if (names.size() == 1 && field->getParentFieldInfo() == nullptr)
            return matches(field->getData()->name);
        size_t depth = 1;
        for (const FieldInfo *f = field->getParentFieldInfo(); f != nullptr;
             f = f->getParentFieldInfo())
            ++depth;
        if (nothing || depth < names.size() || (depth > names.size() && !prefix))
            return false;
        for (; field != nullptr; field = field->getParentFieldInfo())
            if (depth-- <= names.size() && !names[depth].matches(field->getData()->name))
                return false;
        return true;
    }

private:
    bool everything = true;
    bool nothing = false;
    bool prefix = false;
    std::vector<NamePattern> names; ///< Those of a sub-field and of what it lies in.
};

} // namespace corvane
