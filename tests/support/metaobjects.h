#pragma once

#include <QMetaMethod>
#include <QMetaObject>
#include <QStringList>

namespace corvane::test {

/** The methods that a class itself adds, "kind signature" in the order of its meta-object. */
inline QStringList ownMethods(const QMetaObject &metaObject)
{
    QStringList lines;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        const char *kind = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
        lines += QLatin1String(kind) + QString::fromLatin1(method.methodSignature());
    }
    return lines;
}

} // namespace corvane::test
