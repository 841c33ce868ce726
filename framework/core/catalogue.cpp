#include "catalogue.h"

namespace corvane {

Catalogue *Catalogue::getInstance()
{
    static auto *instance = new Catalogue;
    return instance;
}

void Catalogue::addFormat(const FormatInfo *format)
{
    if (formats.contains(format))
        return;
    formats.append(format);
    Q_EMIT changed();
}

void Catalogue::removeFormat(const FormatInfo *format)
{
    if (formats.removeAll(format) > 0)
        Q_EMIT changed();
}

void Catalogue::announceChange()
{
    Q_EMIT changed();
}

} // namespace corvane
