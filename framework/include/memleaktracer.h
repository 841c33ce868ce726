#pragma once

#include "tavguibase_export.h"

#include <QMap>
#include <QString>

#include <memory>

namespace corvane {
struct MemLeakTracerData;
} // namespace corvane

/**
 * Counts the live objects of each class by name.
 *
 * Classes report each construction and destruction of an object under their own name. May be used
 * from any thread.
 */
class TAVGUIBASE_EXPORT MemLeakTracer
{
public:
    /** The tracer of the process; it is never destroyed. */
    static MemLeakTracer *getInstance();

    void doAllocateObject(QString name);
    void doDeallocateObject(QString name);

    /**
     * Live objects by class name. A name that was deallocated more often than allocated has a
     * negative count; names at 0 are left out.
     */
    QMap<QString, qint64> getLiveObjects() const;
    /** The same as lines "name: count", sorted by name; empty when nothing is alive. */
    QString getReport() const;

private:
    MemLeakTracer();
    ~MemLeakTracer();

    std::unique_ptr<corvane::MemLeakTracerData> d;
};
