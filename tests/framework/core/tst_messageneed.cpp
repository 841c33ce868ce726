#include "messageneed.h"
#include "messageneedmanager.h"
#include "testcase.h"
#include "testformat.h"

#include <QElapsedTimer>

#include <algorithm>
#include <memory>
#include <vector>

using namespace corvane::test;

namespace {

QString manyTypes(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QStringLiteral("T%1\n").arg(i);
    return text;
}

/** The time that declaring and withdrawing often takes: the best of some runs. */
qint64 timeOfDeclaring(const MessageInfo *type)
{
    qint64 best = std::numeric_limits<qint64>::max();
    MessageNeed need(nullptr);
    for (int run = 0; run < 7; ++run) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 20'000; ++i) {
            need.setMessageNeeded(type);
            need.clearMessagesNeeded(false);
        }
        best = std::min(best, timer.nsecsElapsed());
    }
    return best;
}

} // namespace

class TestMessageNeed : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nullManager_isThatOfTheProcess();
    void managers_areApart();
    void setMessageNeeded_replaces();
    void setMessageNeeded_null_isNone();
    void setMessagesNeeded_replaces();
    void setMessagesNeeded_passesOverNull();
    void setMessagesNeeded_sameTypeTwice();
    void clear_withdrawsAll_data();
    void clear_withdrawsAll();
    void needs_addUp();
    void destructor_withdraws();
    void type_mayGoFirst();
    void cost_doesNotGrowWithOtherNeeds();

private:
    bool isNeeded(const char *name) const
    {
        return MessageNeedManager::getDefault()->isNeeded(format.type(QLatin1String(name)));
    }

    const TestFormat format{"Demo", "A\nB\nC part\n"};
    const MessageInfo *a = format.type("A");
    const MessageInfo *b = format.type("B");
    const MessageInfo *c = format.type("C");
};

void TestMessageNeed::nullManager_isThatOfTheProcess()
{
    QCOMPARE(MessageNeedManager::getDefault(), MessageNeedManager::getDefault());
    QVERIFY(!isNeeded("A"));
    MessageNeed need(nullptr);
    need.setMessageNeeded(a);
    QVERIFY(isNeeded("A"));
    QVERIFY(!isNeeded("B"));
    QVERIFY(!MessageNeedManager::getDefault()->isNeeded(nullptr));
}

void TestMessageNeed::managers_areApart()
{
    MessageNeedManager one;
    MessageNeedManager two;
    MessageNeed need(&one);
    need.setMessageNeeded(a);
    QVERIFY(one.isNeeded(a));
    QVERIFY(!two.isNeeded(a));
    QVERIFY(!isNeeded("A"));
}

void TestMessageNeed::setMessageNeeded_replaces()
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded({a, b});
    need.setMessageNeeded(c);
    QVERIFY(!isNeeded("A") && !isNeeded("B"));
    QVERIFY(isNeeded("C"));
    need.setMessageNeeded(c);
    QVERIFY(isNeeded("C"));
}

void TestMessageNeed::setMessageNeeded_null_isNone()
{
    MessageNeed need(nullptr);
    need.setMessageNeeded(a);
    need.setMessageNeeded(nullptr);
    QVERIFY(!isNeeded("A"));
    need.setMessageNeeded(nullptr);
    need.setMessageNeeded(b);
    QVERIFY(isNeeded("B"));
}

void TestMessageNeed::setMessagesNeeded_replaces()
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded({a, b, c});
    QVERIFY(isNeeded("A") && isNeeded("B") && isNeeded("C"));
    need.setMessagesNeeded({b});
    QVERIFY(!isNeeded("A") && isNeeded("B") && !isNeeded("C"));
    need.setMessagesNeeded({});
    QVERIFY(!isNeeded("B"));
}

void TestMessageNeed::setMessagesNeeded_passesOverNull()
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded({nullptr, a, nullptr, nullptr, b});
    QVERIFY(isNeeded("A") && isNeeded("B"));
    need.clearMessagesNeeded(false);
    QVERIFY(!isNeeded("A") && !isNeeded("B"));
}

void TestMessageNeed::setMessagesNeeded_sameTypeTwice()
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded({a, a, a});
    QVERIFY(isNeeded("A"));
    need.setMessageNeeded(b);
    QVERIFY(!isNeeded("A"));
}

void TestMessageNeed::clear_withdrawsAll_data()
{
    QTest::addColumn<bool>("releaseMemory");

    QTest::newRow("keeping memory") << false;
    QTest::newRow("releasing memory") << true;
}

void TestMessageNeed::clear_withdrawsAll()
{
    QFETCH(bool, releaseMemory);

    MessageNeed need(nullptr);
    need.clearMessagesNeeded(releaseMemory);
    need.setMessagesNeeded({a, b, c});
    need.clearMessagesNeeded(releaseMemory);
    QVERIFY(!isNeeded("A") && !isNeeded("B") && !isNeeded("C"));
    need.clearMessagesNeeded(releaseMemory);
    need.setMessagesNeeded({c, b});
    QVERIFY(!isNeeded("A") && isNeeded("B") && isNeeded("C"));
}

void TestMessageNeed::needs_addUp()
{
    MessageNeed one(nullptr);
    MessageNeed two(nullptr);
    one.setMessagesNeeded({a, b});
    two.setMessageNeeded(a);
    one.clearMessagesNeeded(false);
    QVERIFY(isNeeded("A"));
    QVERIFY(!isNeeded("B"));
}

void TestMessageNeed::destructor_withdraws()
{
    auto need = std::make_unique<MessageNeed>(nullptr);
    need->setMessagesNeeded({a, b, c});
    need.reset();
    QVERIFY(!isNeeded("A") && !isNeeded("B") && !isNeeded("C"));
}

void TestMessageNeed::type_mayGoFirst()
{
    MessageNeed need(nullptr);
    {
        const TestFormat passing("Passing", "A\nB\n");
        need.setMessagesNeeded({passing.type("A"), passing.type("B")});
    }
    const TestFormat next("Next", "A\nB\n");
    QVERIFY(!MessageNeedManager::getDefault()->isNeeded(next.type("A")));
    need.setMessageNeeded(next.type("B"));
    QVERIFY(MessageNeedManager::getDefault()->isNeeded(next.type("B")));
}

void TestMessageNeed::cost_doesNotGrowWithOtherNeeds()
{
    const TestFormat large("Large", manyTypes(500));
    const qint64 alone = timeOfDeclaring(a);

    std::vector<std::unique_ptr<MessageNeed>> others;
    for (int i = 0; i < 100'000; ++i) {
        others.push_back(std::make_unique<MessageNeed>(nullptr));
        others.back()->setMessageNeeded(large.type(QStringLiteral("T%1").arg(i % 500)));
    }
    // A cost that grew with the needs would be thousands of times higher.
    const qint64 amongMany = timeOfDeclaring(a);
    QVERIFY2(amongMany < 10 * alone,
             qPrintable(QStringLiteral("%1 ns -> %2 ns").arg(alone).arg(amongMany)));
}

CORVANE_TEST_MAIN(TestMessageNeed)

#include "tst_messageneed.moc"
