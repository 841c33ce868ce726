#include "decodedmessage.h"
#include "messagetypemodel.h"
#include "reception.h"
#include "testcase.h"
#include "testformat.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace corvane;
using namespace corvane::test;

class tst_messagetypemodel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rows_followTheTypesInOrderOfArrival();
    void counts_changeOnRefreshOnly();
    void counts_sortAsNumbers();
    void unknownId_isListedAndExplained();
    void toolTip_isTheDescription();
};

namespace {

class Received
{
public:
    Received()
        : format(QStringLiteral("Demo"),
                 QStringLiteral("Speed '<b>How</b> fast'\n  value int32\nMode\n  value int32\n"))
        , reception(
              format.getInfo(), [](quint32 id) { return QString::number(id); }, true)
        , model(*reception.getStatistics())
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
    }

    void receive(const char *type, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            FrameHeader frame;
            frame.messageInfo = format.type(QLatin1String(type));
            frame.sequence = sequence++;
            frame.timeUs = DecodedMessage::unknownTime;
            reception.receiveFrame(frame);
        }
    }

    QStringList rows() const
    {
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row)
            lines += model.index(row, 0).data().toString() + QLatin1Char(' ')
                     + model.index(row, 1).data().toString();
        return lines;
    }

    TestFormat format;
    Reception reception;
    MessageTypeModel model;
    QAbstractItemModelTester tester;
    quint8 sequence = 0;
};

} // namespace

void tst_messagetypemodel::rows_followTheTypesInOrderOfArrival()
{
    Received received;
    QCOMPARE(received.rows(), QStringList());
    received.receive("Speed");
    received.receive("Mode", 2);
    received.model.refresh();
    QCOMPARE(received.rows(), (QStringList{QStringLiteral("Speed 1"), QStringLiteral("Mode 2")}));
}

void tst_messagetypemodel::counts_changeOnRefreshOnly()
{
    Received received;
    received.receive("Speed");
    received.receive("Mode");
    received.model.refresh();
    QSignalSpy changed(&received.model, &QAbstractItemModel::dataChanged);
    received.receive("Mode", 4);
    QCOMPARE(received.rows().at(1), QStringLiteral("Mode 1"));
    received.model.refresh();
    QCOMPARE(received.rows().at(1), QStringLiteral("Mode 5"));
    QCOMPARE(changed.size(), 1);
    received.model.refresh();
    QCOMPARE(changed.size(), 1);
}

void tst_messagetypemodel::counts_sortAsNumbers()
{
    Received received;
    received.receive("Speed", 10);
    received.model.refresh();
    const auto count = received.model.index(0, MessageTypeModel::CountColumn);
    QCOMPARE(count.data(MessageTypeModel::sortRole), QVariant(10U));
    QCOMPARE(count.data(Qt::DisplayRole), QVariant(QStringLiteral("10")));
}

void tst_messagetypemodel::unknownId_isListedAndExplained()
{
    Received received;
    FrameHeader frame;
    frame.messageNumber = 4711;
    frame.timeUs = DecodedMessage::unknownTime;
    received.reception.receiveUnknownFrame(frame);
    received.model.refresh();
    QCOMPARE(received.rows(), QStringList{QStringLiteral("Demo 4711 1")});
    QVERIFY(received.model.index(0, 0)
                .data(Qt::ToolTipRole)
                .toString()
                .contains(QStringLiteral("No definition")));
}

void tst_messagetypemodel::toolTip_isTheDescription()
{
    Received received;
    received.receive("Speed");
    received.model.refresh();
    QCOMPARE(received.model.index(0, 0).data(Qt::ToolTipRole).toString(),
             QStringLiteral("<b>How</b> fast"));
}

CORVANE_TEST_MAIN(tst_messagetypemodel)
#include "tst_messagetypemodel.moc"
