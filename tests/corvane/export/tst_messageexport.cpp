#include "csvparser.h"
#include "messageexport.h"
#include "senderstatistics.h"
#include "testcase.h"
#include "testformat.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

using namespace corvane;
using namespace corvane::test;

class tst_messageexport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void csv_ofOneType_hasShortNames();
    void csv_ofSeveralTypes_leavesColumnsOfOthersEmpty();
    void csv_absentAndEmpty_differ();
    void csv_listsAndParts_areJsonInOneCell();
    void csv_oddTexts_areReadBack();
    void csv_withoutMessages_isTheHeader();
    void jsonLines_oneObjectALine();
    void onlySelected_areWritten();
    void largeExport_isWrittenInPieces();
    void deviceThatRefuses_endsTheExport();
    void deviceThatTakesLittle_getsAll();

private:
    QByteArray exported(const QStringList &paths,
                        const QString &literals,
                        ExportFormat form = ExportFormat::Csv) const;
    QList<QStringList> rows(const QStringList &paths, const QString &literals) const;

    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        Position
          lat double optional
          'odd, name' uint8 optional
          name char[] optional
          list int16[] optional
          part Part optional
        Attitude
          roll float
          text text
        Part part
          x uint8
    )")};
};

namespace {

QString nameOf(quint32 senderId)
{
    return QStringLiteral("%1/1").arg(senderId);
}

/** Takes at most so many bytes at once, and so many in all. */
class NarrowDevice : public QIODevice
{
public:
    NarrowDevice(qint64 atOnce, qint64 inAll)
        : atOnce(atOnce)
        , room(inAll)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    QByteArray content;
    int writes = 0;

protected:
    qint64 readData(char *, qint64) override { return -1; }

    qint64 writeData(const char *data, qint64 size) override
    {
        ++writes;
        const qint64 taken = std::min({size, atOnce, room});
        if (taken <= 0) {
            setErrorString(QStringLiteral("full"));
            return -1;
        }
        content.append(data, taken);
        room -= taken;
        return taken;
    }

private:
    qint64 atOnce;
    qint64 room;
};

} // namespace

QByteArray tst_messageexport::exported(const QStringList &paths,
                                       const QString &literals,
                                       ExportFormat form) const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const SenderTable senders(nameOf);
    MessageExport messages(buffer, selectForExport(paths).selection, senders, form,
                           ValueNames::Symbolic);
    for (const MessageHolder &message : format.messages(literals))
        messages.write(message);
    messages.flush();
    return buffer.data();
}

QList<QStringList> tst_messageexport::rows(const QStringList &paths, const QString &literals) const
{
    return CsvParser::parse(exported(paths, literals)).value_or(QList<QStringList>());
}

void tst_messageexport::csv_ofOneType_hasShortNames()
{
    QCOMPARE(exported({QStringLiteral("Demo.Attitude")},
                      QStringLiteral("Attitude @1500000 #3 {roll: 0.5, text: 'up'}"
                                     "Attitude #4 {roll: nan, text: '=1'}")),
             QByteArray("time,type,sender,sequence,roll,text\r\n"
                        "1970-01-01T00:00:01.500000Z,Attitude,3/1,,0.5,up\r\n"
                        ",Attitude,4/1,,NaN,=1\r\n"));
}

void tst_messageexport::csv_ofSeveralTypes_leavesColumnsOfOthersEmpty()
{
    QCOMPARE(exported({QStringLiteral("Demo.Position.lat"), QStringLiteral("Demo.Attitude"),
                       QStringLiteral("Demo.Position.odd*")},
                      QStringLiteral("Attitude {roll: 1, text: 'a'} Position {lat: 2, "
                                     "'odd, name': 3}")),
             QByteArray("time,type,sender,sequence,Position.lat,\"Position.odd, name\","
                        "Attitude.roll,Attitude.text\r\n"
                        ",Attitude,0/1,,,,1,a\r\n"
                        ",Position,0/1,,2,3,,\r\n"));
}

void tst_messageexport::csv_absentAndEmpty_differ()
{
    const auto cells = rows({}, QStringLiteral("Attitude {roll: 1, text: ''} Position {}"));
    QVERIFY(!cells.at(1).last().isNull() && cells.at(1).last().isEmpty());
    QVERIFY(cells.at(2).last().isNull());
    QVERIFY(cells.at(2).at(4).isNull());
}

void tst_messageexport::csv_listsAndParts_areJsonInOneCell()
{
    const auto cells = rows({QStringLiteral("Demo.Position")},
                            QStringLiteral("Position {list: [1, -2, 3], part: {x: 4}, name: 'a'}"));
    QCOMPARE(cells.at(1).mid(6), (QStringList{"a", "[1,-2,3]", "{\"x\":4}"}));
}

void tst_messageexport::csv_oddTexts_areReadBack()
{
    const auto cells = rows({QStringLiteral("Demo.Attitude.text")},
                            QStringLiteral("Attitude {text: 'a\"b,\\n\\x00c'}"));
    QCOMPARE(cells.at(1).last(), QString::fromLatin1("a\"b,\n\0c", 7));
}

void tst_messageexport::csv_withoutMessages_isTheHeader()
{
    QCOMPARE(exported({QStringLiteral("Demo.Attitude.roll")}, QString()),
             QByteArray("time,type,sender,sequence,roll\r\n"));
}

void tst_messageexport::jsonLines_oneObjectALine()
{
    const QByteArray text
        = exported({}, QStringLiteral("Attitude @1 #3 {roll: 1, text: 'a\\nb'} Position {lat: 2}"),
                   ExportFormat::JsonLines);
    const auto lines = text.split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.last().isEmpty());
    const QJsonObject first = QJsonDocument::fromJson(lines.at(0)).object();
    QCOMPARE(first.value("type").toString(), QStringLiteral("Attitude"));
    QCOMPARE(first.value("sender").toString(), QStringLiteral("3/1"));
    QCOMPARE(first.value("time").toString(), QStringLiteral("1970-01-01T00:00:00.000001Z"));
    QCOMPARE(first.value("fields")["text"].toString(), QStringLiteral("a\nb"));
    QCOMPARE(QJsonDocument::fromJson(lines.at(1)).object().value("sender").toString(),
             QStringLiteral("0/1"));
}

void tst_messageexport::onlySelected_areWritten()
{
    const QByteArray text
        = exported({QStringLiteral("Demo.Position.lat")},
                   QStringLiteral("Attitude {roll: 1} Position {lat: 2, 'odd, name': 3}"),
                   ExportFormat::JsonLines);
    QCOMPARE(text, QByteArray("{\"time\":null,\"type\":\"Position\",\"sender\":\"0/1\","
                              "\"fields\":{\"lat\":2}}\n"));
}

void tst_messageexport::largeExport_isWrittenInPieces()
{
    NarrowDevice device(1'000'000, 10'000'000);
    const SenderTable senders(nameOf);
    MessageExport messages(device, selectForExport({}).selection, senders, ExportFormat::JsonLines,
                           ValueNames::Symbolic);
    const auto message = format.message(QStringLiteral("Attitude {roll: 1, text: 'a'}"));
    for (int i = 0; i < 10'000; ++i)
        QVERIFY(messages.write(message));
    QVERIFY(device.writes > 5 && device.writes < 50);
    QVERIFY(messages.flush());
    QCOMPARE(device.content.count('\n'), 10'000);
    QCOMPARE(messages.getCount(), 10'000U);
}

void tst_messageexport::deviceThatRefuses_endsTheExport()
{
    NarrowDevice device(1000, 100'000);
    const SenderTable senders(nameOf);
    MessageExport messages(device, selectForExport({}).selection, senders, ExportFormat::JsonLines,
                           ValueNames::Symbolic);
    const auto message = format.message(QStringLiteral("Attitude {roll: 1, text: 'a'}"));
    bool isGood = true;
    for (int i = 0; i < 10'000 && isGood; ++i)
        isGood = messages.write(message);
    QVERIFY(!isGood);
    QCOMPARE(messages.getError(), QStringLiteral("full"));
    const quint64 count = messages.getCount();
    QVERIFY(!messages.write(message));
    QVERIFY(!messages.flush());
    QCOMPARE(messages.getCount(), count);
    QCOMPARE(device.content.size(), 100'000);
}

void tst_messageexport::deviceThatTakesLittle_getsAll()
{
    NarrowDevice device(7, 10'000);
    const SenderTable senders(nameOf);
    MessageExport messages(device, selectForExport({}).selection, senders, ExportFormat::Csv,
                           ValueNames::Symbolic);
    QVERIFY(messages.write(format.message(QStringLiteral("Attitude {roll: 1, text: 'a'}"))));
    QVERIFY(messages.flush());
    QCOMPARE(CsvParser::parse(device.content)->size(), 2);
}

CORVANE_TEST_MAIN(tst_messageexport)
#include "tst_messageexport.moc"
