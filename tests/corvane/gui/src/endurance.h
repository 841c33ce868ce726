#pragma once

#include "messageholder.h"
#include "testcase.h"
#include "testformat.h"

#include <QCoreApplication>

#include <malloc.h>

namespace corvane::test {

/**
 * Widgets are made, streamed into and destroyed 10,000 times each. Nothing of them stays: neither
 * in the accounting by class, at which the base looks, nor in the heap.
 */
class EnduranceCase : public TestCase
{
protected:
    /** Fails the case if more than that many bytes stay behind each of the cycles, in the mean. */
    template <typename Cycle>
    static void repeat(Cycle cycle, double mostBytes = fewBytes)
    {
        // What is made once for all: fonts, styles, tables that grow with their first entries.
        for (int i = 0; i < cycles / 10; ++i)
            cycle();
        finishEvents();
        const qint64 before = usedBytes();
        for (int i = 0; i < cycles; ++i) {
            cycle();
            if (i % 100 == 0)
                finishEvents();
        }
        finishEvents();
        const double left = static_cast<double>(usedBytes() - before) / cycles;
        QVERIFY2(left < mostBytes, qPrintable(QStringLiteral("%1 bytes a cycle").arg(left)));
    }

    /** Taken and not given back; always 0 where a sanitizer gives out the memory. */
    static qint64 usedBytes() { return static_cast<qint64>(mallinfo2().uordblks); }

private:
    /** Less than the smallest piece of memory in each cycle; tables that grow once may take it. */
    static constexpr double fewBytes = 16.0;
    static constexpr int cycles = 10'000;

    static void finishEvents()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

/** Two messages of a type with a field of each kind; every optional one is in one of them. */
struct PositionMessages
{
    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        Position
          mode    uint8 {Manual=0, Auto=2}
          height  double optional
          samples int16[]
          best    Satellite optional
          sats    Satellite[]
        Satellite part
          state   uint8 {Lost=0, Good=1}
    )")};
    const MessageHolder first = format.message(
        QStringLiteral("Position{mode: Auto, samples: [1, 2], sats: [{state: Good}, {}]}"));
    const MessageHolder second
        = format.message(QStringLiteral("Position{mode: 0, height: 2, best: {state: Lost}}"));
};

} // namespace corvane::test
