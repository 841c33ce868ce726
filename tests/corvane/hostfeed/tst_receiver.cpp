#include "framesplitter.h"
#include "receiver.h"
#include "testcase.h"

#include <QSignalSpy>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

using namespace corvane;

namespace {

/** A pipe or a pair of sockets; the end to write to belongs to the receiver. */
struct Ends
{
    explicit Ends(bool sockets)
    {
        std::array<int, 2> descriptors{-1, -1};
        const int result = sockets ? ::socketpair(AF_UNIX, SOCK_STREAM, 0, descriptors.data())
                                   : ::pipe(descriptors.data());
        if (result != 0)
            qFatal("no descriptors");
        readEnd = descriptors[0];
        writeEnd = descriptors[1];
        ::fcntl(readEnd, F_SETFL, O_NONBLOCK);
    }

    ~Ends() { closeReadEnd(); }

    void closeReadEnd()
    {
        if (readEnd >= 0)
            ::close(readEnd);
        readEnd = -1;
    }

    QByteArray readAll() const
    {
        QByteArray bytes(1 << 20, '\0');
        const ssize_t count = ::read(readEnd, bytes.data(), static_cast<size_t>(bytes.size()));
        return bytes.first(qMax<ssize_t>(count, 0));
    }

    int readEnd = -1;
    int writeEnd = -1;
};

Round makeRound(int number, int size)
{
    Round round;
    host::Envelope envelope;
    envelope.set_sequence(static_cast<quint32>(number));
    envelope.mutable_kernel()->set_version(std::string(static_cast<size_t>(size), 'x'));
    appendFrame(round.frames, envelope);
    round.feed.mutable_feed()->set_rounds(static_cast<quint64>(number));
    return round;
}

} // namespace

class TestReceiver : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { std::signal(SIGPIPE, SIG_IGN); }

    void offer_data();
    void offer();
    void offer_toASlowOne_dropsWholeRounds_data();
    void offer_toASlowOne_dropsWholeRounds();
    void socket_keepsLittleOfThePast();
    void offer_toAFile();
    void close_isTold_data();
    void close_isTold();
    void close_whileWaiting_isTold();
    void flagsOfThePipe_stay();
};

void TestReceiver::offer_data()
{
    QTest::addColumn<bool>("sockets");
    QTest::newRow("pipe") << false;
    QTest::newRow("socket") << true;
}

void TestReceiver::offer()
{
    QFETCH(bool, sockets);
    Ends ends(sockets);
    Receiver receiver(ends.writeEnd);
    receiver.offer(makeRound(1, 10));
    receiver.offer(makeRound(2, 200));
    QByteArray bytes = ends.readAll();
    const auto envelopes = test::takeEnvelopes(bytes);
    QVERIFY(bytes.isEmpty());
    QCOMPARE(envelopes.size(), size_t(4));
    QCOMPARE(envelopes[2].sequence(), 2);
    QCOMPARE(envelopes[2].kernel().version().size(), size_t(200));
    QCOMPARE(envelopes[3].feed().rounds(), 2);
    QCOMPARE(envelopes[3].feed().dropped_rounds(), 0);
}

void TestReceiver::offer_toASlowOne_dropsWholeRounds_data()
{
    offer_data();
}

void TestReceiver::offer_toASlowOne_dropsWholeRounds()
{
    QFETCH(bool, sockets);
    Ends ends(sockets);
    Receiver receiver(ends.writeEnd);
    int number = 0;
    while (receiver.getDroppedRounds() < 50)
        receiver.offer(makeRound(++number, 60000));
    const auto written = static_cast<size_t>(number - 50);

    QByteArray bytes;
    std::vector<host::Envelope> envelopes;
    const auto read = [&] {
        bytes += ends.readAll();
        for (const host::Envelope &envelope : test::takeEnvelopes(bytes))
            envelopes.push_back(envelope);
        return envelopes.size();
    };
    QTRY_COMPARE(read(), 2 * written);
    QVERIFY(bytes.isEmpty());
    receiver.offer(makeRound(++number, 10));
    QTRY_COMPARE(read(), 2 * written + 2);
    QCOMPARE(envelopes.back().feed().dropped_rounds(), 50);
    QCOMPARE(envelopes.back().feed().rounds(), static_cast<quint64>(number));
    for (const host::Envelope &envelope : envelopes)
        QVERIFY(envelope.has_feed() || envelope.has_kernel());
}

void TestReceiver::socket_keepsLittleOfThePast()
{
    const Ends ends(true);
    const Receiver receiver(ends.writeEnd);
    int bytes = 0;
    socklen_t size = sizeof bytes;
    QCOMPARE(::getsockopt(ends.writeEnd, SOL_SOCKET, SO_SNDBUF, &bytes, &size), 0);
    QVERIFY(bytes <= 2 * 32'768); // of which the system takes half for itself
}

void TestReceiver::offer_toAFile()
{
    std::FILE *file = std::tmpfile();
    QVERIFY(file != nullptr);
    const int descriptor = ::fileno(file);
    Receiver receiver(::dup(descriptor));
    receiver.offer(makeRound(1, 300000));
    QCOMPARE(receiver.getDroppedRounds(), 0);
    QVERIFY(::lseek(descriptor, 0, SEEK_END) > 300000);
    std::fclose(file);
}

void TestReceiver::close_isTold_data()
{
    offer_data();
}

void TestReceiver::close_isTold()
{
    QFETCH(bool, sockets);
    Ends ends(sockets);
    Receiver receiver(ends.writeEnd);
    QSignalSpy spy(&receiver, &Receiver::closed);
    receiver.offer(makeRound(1, 10));
    QCOMPARE(spy.count(), 0);
    ends.closeReadEnd();
    receiver.offer(makeRound(2, 10));
    receiver.offer(makeRound(3, 10));
    QCOMPARE(spy.count(), 1);
    const int error = spy[0][0].toInt();
    QVERIFY(error == EPIPE || error == ECONNRESET);
}

void TestReceiver::close_whileWaiting_isTold()
{
    Ends ends(false);
    Receiver receiver(ends.writeEnd);
    QSignalSpy spy(&receiver, &Receiver::closed);
    receiver.offer(makeRound(1, 1000000));
    QCOMPARE(spy.count(), 0);
    ends.closeReadEnd();
    QTRY_COMPARE(spy.count(), 1);
}

void TestReceiver::flagsOfThePipe_stay()
{
    Ends ends(false);
    Receiver receiver(ends.writeEnd);
    receiver.offer(makeRound(1, 10));
    QCOMPARE(::fcntl(ends.writeEnd, F_GETFL) & O_NONBLOCK, 0);
}

CORVANE_TEST_MAIN(TestReceiver)
#include "tst_receiver.moc"
