#include "DbgMsgBuffer.h"
#include "testcase.h"
#include "tracechildren.h"

#include <cstring>

using corvane::test::ChildResult;
using corvane::test::runChild;

namespace {

alignas(8) char area[65536];

/** All lines, each followed by a stroke. */
QString allLines(bool backwards = false)
{
    QString all;
    uint64_t cursor = 0;
    while (const char *text = Tav::dbgMsgBufferPeekNext(cursor, backwards))
        all += QString(text) + '|';
    return all;
}

void pushAll(const QStringList &lines)
{
    for (const QString &line : lines)
        Tav::dbgMsgBufferPush(qPrintable(line));
}

/** The next line of a dump with the given size of its buffer. */
QByteArray dumped(uint64_t outSize, int number, uint64_t &cursor, bool backwards = false)
{
    QByteArray out(4096, '#');
    const uint64_t length
        = Tav::DbgDump_getNextLine(out.data(), outSize, number, cursor, backwards);
    if (length == 0)
        return "none";
    return qstrlen(out.constData()) == length ? out.left(static_cast<int>(length)) : "bad length";
}

} // namespace

class TestDbgMsgBuffer : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nodeSize_keepsRoomForTheTerminator_data();
    void nodeSize_keepsRoomForTheTerminator();
    void withoutArea_nothingHappens();
    void setArea_null_switchesOff();
    void setArea_emptiesTheRing();
    void reset_emptiesTheRing();
    void push_null_isAnEmptyLine();
    void push_longLine_isCut_data();
    void push_longLine_isCut();
    void push_layout_isTheFixedOne();
    void push_droppingOlderLines_returnsFalse();
    void push_wrapped_keepsTheOrder();
    void push_areaTooSmall_refuses();
    void push_besideTheNewest_refuses();
    void push_misalignedArea_isAlignedUp();
    void peek_bothDirections();
    void peek_atTheEnd_keepsTheCursor();
    void peek_turningAround();
    void dump_numbersTheLines();
    void dump_cutsToTheSize_data();
    void dump_cutsToTheSize();
    void dump_tooSmallForALine_writesNothing();
    void dump_notAllowed_onlySteps();
    void setVersion_isIgnored();
    void brokenList_stopsTheProcess_data();
    void brokenList_stopsTheProcess();
};

void TestDbgMsgBuffer::cleanup()
{
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
    Tav::DbgDump_enableDump(true);
}

void TestDbgMsgBuffer::nodeSize_keepsRoomForTheTerminator_data()
{
    QTest::addColumn<quint64>("length");
    QTest::addColumn<quint64>("size");

    QTest::newRow("0") << quint64(0) << quint64(24);
    QTest::newRow("1") << quint64(1) << quint64(24);
    QTest::newRow("7") << quint64(7) << quint64(24);
    QTest::newRow("8") << quint64(8) << quint64(32);
    QTest::newRow("15") << quint64(15) << quint64(32);
    QTest::newRow("2047") << quint64(2047) << quint64(2064);
    QTest::newRow("2048") << quint64(2048) << quint64(2072);
}

void TestDbgMsgBuffer::nodeSize_keepsRoomForTheTerminator()
{
    QFETCH(quint64, length);
    QTEST(quint64(Tav::msgNodeSizeAligned(length)), "size");
}

void TestDbgMsgBuffer::withoutArea_nothingHappens()
{
    uint64_t cursor = 0;
    char out[16] = "unchanged";
    Tav::dbgMsgBufferReset();
    QVERIFY(!Tav::dbgMsgBufferPush("line"));
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), nullptr);
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, true), nullptr);
    QCOMPARE(Tav::DbgDump_getNextLine(out, sizeof out, 1, cursor, false), 0u);
    QCOMPARE(cursor, 0u);
    QCOMPARE(out, "unchanged");
}

void TestDbgMsgBuffer::setArea_null_switchesOff()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"line"});
    Tav::DbgDump_setTraceBuffer(nullptr, 1000);
    QVERIFY(!Tav::dbgMsgBufferPush("line"));
    QCOMPARE(allLines(), "");
}

void TestDbgMsgBuffer::setArea_emptiesTheRing()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a", "b"});
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    QCOMPARE(allLines(), "");
    pushAll({"c"});
    QCOMPARE(allLines(), "c|");
}

void TestDbgMsgBuffer::reset_emptiesTheRing()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a", "b"});
    Tav::dbgMsgBufferReset();
    QCOMPARE(allLines(), "");
    QVERIFY(Tav::dbgMsgBufferPush("c"));
    QCOMPARE(allLines(), "c|");
    QCOMPARE(area + 16, "c");
}

void TestDbgMsgBuffer::push_null_isAnEmptyLine()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    QVERIFY(Tav::dbgMsgBufferPush(nullptr));
    QVERIFY(Tav::dbgMsgBufferPush(""));
    QCOMPARE(allLines(), "||");
}

void TestDbgMsgBuffer::push_longLine_isCut_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");

    QTest::newRow("2047") << 2047 << 2047;
    QTest::newRow("2048") << 2048 << 2048;
    QTest::newRow("2049") << 2049 << 2048;
    QTest::newRow("5000") << 5000 << 2048;
}

void TestDbgMsgBuffer::push_longLine_isCut()
{
    QFETCH(int, length);
    QFETCH(int, kept);
    QString line;
    while (line.size() < length)
        line += QString::number(line.size());
    line.truncate(length);
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({line, "next"});
    QCOMPARE(allLines(), line.left(kept) + "|next|");
}

void TestDbgMsgBuffer::push_layout_isTheFixedOne()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"first", "eight ch", "third"});
    const auto pointerAt = [](size_t offset) {
        char *pointer = nullptr;
        std::memcpy(&pointer, area + offset, sizeof pointer);
        return pointer;
    };
    QCOMPARE(pointerAt(0), area + 24);
    QCOMPARE(pointerAt(8), nullptr);
    QCOMPARE(area + 16, "first");
    QCOMPARE(pointerAt(24), area + 56);
    QCOMPARE(pointerAt(32), area);
    QCOMPARE(area + 40, "eight ch");
    QCOMPARE(pointerAt(56), nullptr);
    QCOMPARE(pointerAt(64), area + 24);
    QCOMPARE(area + 72, "third");
}

void TestDbgMsgBuffer::push_droppingOlderLines_returnsFalse()
{
    Tav::DbgDump_setTraceBuffer(area, 72);
    QVERIFY(Tav::dbgMsgBufferPush("1"));
    QVERIFY(Tav::dbgMsgBufferPush("2"));
    QVERIFY(Tav::dbgMsgBufferPush("3"));
    QVERIFY(!Tav::dbgMsgBufferPush("4"));
    QCOMPARE(allLines(), "2|3|4|");
    QVERIFY(!Tav::dbgMsgBufferPush("16 characters   "));
    QCOMPARE(allLines(), "4|16 characters   |");
}

void TestDbgMsgBuffer::push_wrapped_keepsTheOrder()
{
    Tav::DbgDump_setTraceBuffer(area, 240);
    QString newest;
    for (int i = 0; i < 1000; ++i) {
        const QString line = QString::number(i);
        Tav::dbgMsgBufferPush(qPrintable(line));
        newest += line + '|';
        newest = newest.section('|', -11);
        QCOMPARE(allLines(), newest);
    }
}

void TestDbgMsgBuffer::push_areaTooSmall_refuses()
{
    const QByteArray untouched(64, '#');
    for (uint64_t size = 0; size < 24; ++size) {
        std::memcpy(area, untouched.constData(), 64);
        Tav::DbgDump_setTraceBuffer(area, size);
        QVERIFY(!Tav::dbgMsgBufferPush("text"));
        QCOMPARE(allLines(), "");
        QCOMPARE(QByteArray(area, 64), untouched);
    }
    Tav::DbgDump_setTraceBuffer(area, 31);
    QVERIFY(!Tav::dbgMsgBufferPush("8 or more"));
    QVERIFY(Tav::dbgMsgBufferPush("7 chars"));
}

void TestDbgMsgBuffer::push_besideTheNewest_refuses()
{
    Tav::DbgDump_setTraceBuffer(area, 72);
    pushAll({"1", "2", "3"});
    // A node of 56 bytes fits into the area, but not without the newest line's place.
    const char *line = "a line of thirty-two characters ";
    QVERIFY(!Tav::dbgMsgBufferPush(line));
    QCOMPARE(allLines(), "1|2|3|");
    Tav::dbgMsgBufferReset();
    QVERIFY(Tav::dbgMsgBufferPush(line));
    QVERIFY(!Tav::dbgMsgBufferPush(line));
    QCOMPARE(allLines(), QString(line) + '|');
}

void TestDbgMsgBuffer::push_misalignedArea_isAlignedUp()
{
    for (int misalignment = 1; misalignment < 8; ++misalignment) {
        std::memset(area, '#', 64);
        Tav::DbgDump_setTraceBuffer(area + misalignment, static_cast<uint64_t>(40 - misalignment));
        QVERIFY(Tav::dbgMsgBufferPush("text"));
        QCOMPARE(area + 24, "text");
        QCOMPARE(QByteArray(area, 8), QByteArray(8, '#'));
        QVERIFY(!Tav::dbgMsgBufferPush("no place for two"));
    }
}

void TestDbgMsgBuffer::peek_bothDirections()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a", "b", "c"});
    QCOMPARE(allLines(), "a|b|c|");
    QCOMPARE(allLines(true), "c|b|a|");
}

void TestDbgMsgBuffer::peek_atTheEnd_keepsTheCursor()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a"});
    uint64_t cursor = 0;
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), "a");
    const uint64_t atTheLine = cursor;
    QVERIFY(atTheLine != 0);
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), nullptr);
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, true), nullptr);
    QCOMPARE(cursor, atTheLine);

    // A reader at the end finds what comes later.
    pushAll({"b"});
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), "b");
}

void TestDbgMsgBuffer::peek_turningAround()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a", "b", "c"});
    uint64_t cursor = 0;
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), "a");
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), "b");
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, true), "a");
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, true), nullptr);
    QCOMPARE(Tav::dbgMsgBufferPeekNext(cursor, false), "b");
}

void TestDbgMsgBuffer::dump_numbersTheLines()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"x\n", "y\n"});
    uint64_t cursor = 0;
    QCOMPARE(dumped(100, 7, cursor), "  7 x\n");
    QCOMPARE(dumped(100, 1234, cursor), "1234 y\n");
    QCOMPARE(dumped(100, 9, cursor), "none");
    cursor = 0;
    QCOMPARE(dumped(100, -1, cursor, true), " -1 y\n");
    QCOMPARE(dumped(100, 10, cursor, true), " 10 x\n");
}

void TestDbgMsgBuffer::dump_cutsToTheSize_data()
{
    QTest::addColumn<int>("outSize");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("2") << 2 << QByteArray("\n");
    QTest::newRow("3") << 3 << QByteArray(" \n");
    QTest::newRow("6") << 6 << QByteArray("  7 \n");
    QTest::newRow("9, one too small") << 9 << QByteArray("  7 abc\n");
    QTest::newRow("10, newline is the last") << 10 << QByteArray("  7 abcd\n");
    // The terminator is one of the last two bytes, so a newline takes its place.
    QTest::newRow("11, one to spare") << 11 << QByteArray("  7 abcd\n\n");
    QTest::newRow("12, two to spare") << 12 << QByteArray("  7 abcd\n");
    QTest::newRow("4096") << 4096 << QByteArray("  7 abcd\n");
}

void TestDbgMsgBuffer::dump_cutsToTheSize()
{
    QFETCH(int, outSize);
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"abcd\n"});
    uint64_t cursor = 0;
    QTEST(dumped(static_cast<uint64_t>(outSize), 7, cursor), "line");
}

void TestDbgMsgBuffer::dump_tooSmallForALine_writesNothing()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    for (uint64_t outSize = 0; outSize < 2; ++outSize) {
        pushAll({"a"});
        uint64_t cursor = 0;
        char out[] = "##";
        QCOMPARE(Tav::DbgDump_getNextLine(out, outSize, 1, cursor, false), 0u);
        QCOMPARE(out, "##");
        QVERIFY(cursor != 0);
    }
    uint64_t cursor = 0;
    QCOMPARE(Tav::DbgDump_getNextLine(nullptr, 100, 1, cursor, false), 0u);
}

void TestDbgMsgBuffer::dump_notAllowed_onlySteps()
{
    QVERIFY(Tav::dbgDumpAllowed);
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a", "b", "c"});
    Tav::DbgDump_enableDump(false);
    QVERIFY(!Tav::dbgDumpAllowed);
    uint64_t cursor = 0;
    char out[] = "##########";
    QCOMPARE(Tav::DbgDump_getNextLine(out, sizeof out, 1, cursor, false), 0u);
    QCOMPARE(out, "##########");
    Tav::DbgDump_enableDump(true);
    QCOMPARE(dumped(100, 2, cursor), "  2 b");
}

void TestDbgMsgBuffer::setVersion_isIgnored()
{
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    pushAll({"a"});
    DbgDump_setVersion("1.2.3");
    DbgDump_setVersion(nullptr);
    QCOMPARE(allLines(), "a|");
}

void TestDbgMsgBuffer::brokenList_stopsTheProcess_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("expression");

    QTest::newRow("the list ends before the newest") << "losefirst"
                                                     << "!last";
    QTest::newRow("the list leaves the area") << "leavearea"
                                              << "endOfLastNode <= endOfBuffer()";
}

void TestDbgMsgBuffer::brokenList_stopsTheProcess()
{
    QFETCH(QString, command);
    QFETCH(QString, expression);
    const ChildResult result = runChild(TRACE_CHILD, {command});
    QVERIFY(result.aborted);
    QVERIFY2(result.errors.contains("fw/fw/lib/Core/Debug/src/DbgMsgBuffer:"),
             qPrintable(result.errors));
    QVERIFY2(result.errors.contains("Assertion `" + expression + "' failed"),
             qPrintable(result.errors));
}

CORVANE_TEST_MAIN(TestDbgMsgBuffer)
#include "tst_dbgmsgbuffer.moc"
