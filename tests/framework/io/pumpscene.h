#pragma once

#include "linedecoder.h"
#include "memorysource.h"
#include "streampump.h"

#include <QSignalSpy>

#include <ctime>

namespace corvane::test {

/** \a count lines of the text \a line. */
inline QByteArray lines(int count, const QByteArray &line = "line")
{
    return (line + '\n').repeated(count);
}

/** Lines with the recorded times 0, \a intervalUs, ... */
inline QByteArray timedLines(int count, qint64 intervalUs)
{
    QByteArray result;
    for (int i = 0; i < count; ++i)
        result += QByteArray::number(i * intervalUs) + " x\n";
    return result;
}

inline double getProcessorMs()
{
    return double(std::clock()) * 1000.0 / CLOCKS_PER_SEC;
}

/** A pump with everything that it needs. */
struct Fixture
{
    explicit Fixture(ReplayClock *clock = nullptr)
        : pump(source, decoder, clock)
        , finished(&pump, &StreamPump::finished)
        , failed(&pump, &StreamPump::failed)
    {
    }

    MemorySource source;
    LineDecoder decoder;
    StreamPump pump;
    QSignalSpy finished;
    QSignalSpy failed;
};

} // namespace corvane::test
