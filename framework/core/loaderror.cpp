#include "loaderror.h"

#include <QStringList>

namespace corvane {

QString LoadError::toString() const
{
    QStringList parts;
    if (!file.isEmpty())
        parts.append(file);
    if (line > 0)
        parts.append(QString::number(line));
    if (line > 0 && column > 0)
        parts.append(QString::number(column));
    const QString place = parts.join(QLatin1Char(':'));
    return place.isEmpty() ? message : place + QStringLiteral(": ") + message;
}

} // namespace corvane
