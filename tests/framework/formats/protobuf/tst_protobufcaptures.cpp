#include "messageinfo.h"
#include "protobufmessage.h"
#include "protobufmessages.h"
#include "protobuftextform.h"
#include "testcase.h"

#include <QFile>

using namespace corvane;
using namespace corvane::test;

/** Recordings of driving simulators, written by other programs. */
class tst_ProtobufCaptures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recording_isReadWhole_data();
    void recording_isReadWhole();

    void values_equalThoseOfProtoc_data() { recording_isReadWhole_data(); }

    void values_equalThoseOfProtoc();
};

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_ProtobufCaptures::recording_isReadWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint64>("count");
    QTest::newRow("trace player") << "osi-trace-player-sv_350_32112_100.osi" << quint64(100);
    QTest::newRow("one moving object")
        << "osi-validation-sv_300_2112_10_one_moving_object.osi" << quint64(10);
    QTest::newRow("minimal") << "osi-validation-sv_370_244_20_minimal_valid_example.osi"
                             << quint64(20);
}

void tst_ProtobufCaptures::recording_isReadWhole()
{
    QFETCH(QString, name);
    QFETCH(quint64, count);
    CORVANE_SAMPLE_FILE(proto, "protobuf/osi-proto/osi_sensorview.proto");
    const QString recording = sampleFile(QStringLiteral("protobuf/osi/") + name);
    if (recording.isEmpty())
        QSKIP("sample data not found");
    const QByteArray stream = contentOf(recording);
    for (const qsizetype pieceSize : {qsizetype(0), qsizetype(997)}) {
        ProtobufFormat format(QStringLiteral("osi3.SensorView"));
        QVERIFY(format.loadFiles({proto}).isOk());
        ProtobufRun run(format, QStringLiteral("le32"));
        run.append(stream, pieceSize);
        run.finish();
        QCOMPARE(run.getTotals().frames, count);
        QCOMPARE(run.getTotals().bytes, static_cast<quint64>(stream.size()));
        QCOMPARE(run.getTotals().skippedBytes, quint64(0));
        QVERIFY(!run.getTotals().crcErrors);
        QCOMPARE(run.getEvents(), QStringList());
        QCOMPARE(static_cast<quint64>(run.getMessages().size()), count);
    }
}

void tst_ProtobufCaptures::values_equalThoseOfProtoc()
{
    QFETCH(QString, name);
    CORVANE_SAMPLE_FILE(proto, "protobuf/osi-proto/osi_sensorview.proto");
    const QString recording = sampleFile(QStringLiteral("protobuf/osi/") + name);
    if (recording.isEmpty())
        QSKIP("sample data not found");
    if (protocProgram().isEmpty())
        QSKIP("protoc is not installed");
    ProtobufFormat format(QStringLiteral("osi3.SensorView"));
    QVERIFY(format.loadFiles({proto}).isOk());
    ProtobufRun run(format, QStringLiteral("le32"));
    QStringList ours;
    QList<QByteArray> messages;
    connect(&run.getReception(), &MessageSource::newMessage, this, [&](const Message *message) {
        ours << QStringLiteral("message {") << textForm(message, 2) << QStringLiteral("}");
        messages.append(static_cast<const ProtobufMessage *>(message)->getBytes().toByteArray());
    });
    run.append(contentOf(recording));
    const QStringList theirs = decodeWithProtoc(proto, QStringLiteral("osi3.SensorView"), messages);
    QVERIFY(theirs.size() > 10);
    QCOMPARE(findDifference(ours, theirs), QString());
}

CORVANE_TEST_MAIN(tst_ProtobufCaptures)

#include "tst_protobufcaptures.moc"
