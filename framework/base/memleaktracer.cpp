#include "memleaktracer.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

namespace corvane {
struct MemLeakTracerData
{
    QMutex mutex;
    QHash<QString, qint64> counts;
};
} // namespace corvane

MemLeakTracer::MemLeakTracer()
    : d(std::make_unique<corvane::MemLeakTracerData>())
{
}

MemLeakTracer::~MemLeakTracer() = default;

MemLeakTracer *MemLeakTracer::getInstance()
{
    // Never destroyed: objects that die during static destruction still report.
    static auto *instance = new MemLeakTracer;
    return instance;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void MemLeakTracer::doAllocateObject(QString name)
{
    const QMutexLocker locker(&d->mutex);
    ++d->counts[name];
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void MemLeakTracer::doDeallocateObject(QString name)
{
    const QMutexLocker locker(&d->mutex);
    --d->counts[name];
}

QMap<QString, qint64> MemLeakTracer::getLiveObjects() const
{
    const QMutexLocker locker(&d->mutex);
    QMap<QString, qint64> result;
    for (auto it = d->counts.cbegin(); it != d->counts.cend(); ++it)
        if (it.value() != 0)
            result.insert(it.key(), it.value());
    return result;
}

QString MemLeakTracer::getReport() const
{
    const auto liveObjects = getLiveObjects();
    QStringList lines;
    for (auto it = liveObjects.cbegin(); it != liveObjects.cend(); ++it)
        lines += QStringLiteral("%1: %2").arg(it.key()).arg(it.value());
    return lines.join(QLatin1Char('\n'));
}
