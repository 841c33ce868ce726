// The library tavguibase: it counts no objects, and writes traces to standard error.

#include "callbackfunctions.h"
#include "memleaktracer.h"

#include <cstdio>

struct corvane::MemLeakTracerData
{};

MemLeakTracer::MemLeakTracer() = default;
MemLeakTracer::~MemLeakTracer() = default;

MemLeakTracer *MemLeakTracer::getInstance()
{
    static MemLeakTracer tracer;
    return &tracer;
}

void MemLeakTracer::doAllocateObject(QString) {}

void MemLeakTracer::doDeallocateObject(QString) {}

// [callbacks]
DbgCallbackFunctions *getCallBackFunctions()
{
    static DbgCallbackFunctions functions = [] {
        DbgCallbackFunctions result{}; // a service that is null is not there
        result.output = [](const char *line, int) { std::fputs(line, stderr); };
        return result;
    }();
    return &functions;
}

// [callbacks]
