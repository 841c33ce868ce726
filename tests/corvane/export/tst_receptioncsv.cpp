#include "csvparser.h"
#include "decodedmessage.h"
#include "reception.h"
#include "receptioncsv.h"
#include "testcase.h"
#include "testformat.h"

#include <QBuffer>

using namespace corvane;
using namespace corvane::test;

class tst_receptioncsv : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void statistics_haveARowForEachType();
    void eventLog_hasARowForEachEntry();
    void deviceThatRefuses_isTold();

private:
    const TestFormat format{QStringLiteral("Demo"), QStringLiteral("Position\n  lat double\n"
                                                                   "'Odd, \"type\"'\n")};
};

namespace {

QString nameOf(quint32 senderId)
{
    return QString::number(senderId);
}

using Write = bool (*)(QIODevice &, Reception &);

QList<QStringList> rowsOf(Reception &reception, Write write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return write(buffer, reception) ? CsvParser::parse(buffer.data()).value_or(QList<QStringList>())
                                    : QList<QStringList>();
}

bool writeStatistics(QIODevice &device, Reception &reception)
{
    return writeStatisticsCsv(*reception.getStatistics(), device);
}

bool writeLog(QIODevice &device, Reception &reception)
{
    return writeEventLogCsv(*reception.getEventLog(), device);
}

} // namespace

void tst_receptioncsv::statistics_haveARowForEachType()
{
    Reception reception(format.getInfo(), nameOf, true);
    const auto *position = format.type(QStringLiteral("Position"));
    reception.receiveFrame({position, 1, 1, 0, 1'000'000});
    reception.receiveFrame({position, 1, 1, 1, 1'250'000});
    reception.receiveFrame({position, 1, 1, 2, DecodedMessage::unknownTime});
    reception.receiveDamagedFrame({position, 1, 1, 3, 1'500'000}, QStringLiteral("odd"));
    reception.receiveFrame({format.type(QStringLiteral("Odd, \"type\"")), 2, 1, 4, 2'000'000});
    const auto rows = rowsOf(reception, writeStatistics);
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0),
             (QStringList{"format", "type", "count", "crcErrors", "unknownTime", "unknownInterval",
                          "gaps", "missingEpochs", "regular", "lastIntervalMs"}));
    QCOMPARE(rows.at(1).first(5), (QStringList{"Demo", "Position", "3", "1", "1"}));
    QCOMPARE(rows.at(1).last(), QStringLiteral("250"));
    QCOMPARE(rows.at(2).first(3), (QStringList{"Demo", "Odd, \"type\"", "1"}));
}

void tst_receptioncsv::eventLog_hasARowForEachEntry()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.addEvent(CorvaneEvent::SourceOpened, QStringLiteral("Opened: a, \"b\"\nc"),
                       1'767'268'800'123'000);
    reception.addEvent(CorvaneEvent::SequenceGap, QStringLiteral("lost"),
                       DecodedMessage::unknownTime);
    const auto rows = rowsOf(reception, writeLog);
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0), (QStringList{"time", "type", "text"}));
    QCOMPARE(rows.at(1),
             (QStringList{"2026-01-01T12:00:00.123000Z", "SourceOpened", "Opened: a, \"b\"\nc"}));
    QCOMPARE(rows.at(2), (QStringList{"", "SequenceGap", "lost"}));
}

void tst_receptioncsv::deviceThatRefuses_isTold()
{
    Reception reception(format.getInfo(), nameOf, true);
    QFile full(QStringLiteral("/dev/full"));
    if (!full.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        QSKIP("there is no /dev/full");
    QVERIFY(!writeStatistics(full, reception));
    QVERIFY(!writeLog(full, reception));
}

CORVANE_TEST_MAIN(tst_receptioncsv)
#include "tst_receptioncsv.moc"
