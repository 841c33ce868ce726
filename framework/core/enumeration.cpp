#include "enumeration.h"

#include <QStringList>

#include <utility>

namespace corvane {

Enumeration::Enumeration(QString name, bool isBitMask)
    : name(std::move(name))
    , bitMask(isBitMask)
{
}

bool Enumeration::add(const Entry &entry)
{
    if (indexByValue.contains(entry.value) || indexByName.contains(entry.name))
        return false;
    indexByValue.insert(entry.value, entries.size());
    indexByName.insert(entry.name, entries.size());
    entries.push_back(entry);
    return true;
}

QString Enumeration::getText(quint64 value) const
{
    const auto found = indexByValue.constFind(value);
    if (found != indexByValue.cend())
        return entries[*found].name;
    return bitMask ? getBitsText(value) : QString();
}

QString Enumeration::getBitsText(quint64 value) const
{
    QStringList names;
    quint64 rest = value;
    for (const Entry &entry : entries) {
        if (entry.value == 0 || (value & entry.value) != entry.value)
            continue;
        names.append(entry.name);
        rest &= ~entry.value;
    }
    if (names.isEmpty())
        return {};
    if (rest != 0)
        names.append(QStringLiteral("0x") + QString::number(rest, 16).toUpper());
    return names.join(QStringLiteral(" | "));
}

} // namespace corvane
