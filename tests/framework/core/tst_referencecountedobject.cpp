#include "fieldinfo.h"
#include "memleaktracer.h"
#include "messageinfo.h"
#include "referencecountedobject.h"
#include "testcase.h"
#include "testformat.h"

#include <thread>
#include <vector>

using namespace corvane::test;

namespace {

class Counted : public ReferenceCountedObject
{
public:
    explicit Counted(int &destroyed, const ReferenceCountedObject *keeper = nullptr)
        : ReferenceCountedObject(keeper)
        , destroyed(destroyed)
    {
    }

    ~Counted() override { ++destroyed; }

private:
    int &destroyed;
};

} // namespace

class TestReferenceCountedObject : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newObject_hasItsCreatorsReference();
    void lastReference_deletes();
    void part_countsOnItsKeeper();
    void part_ofPart_countsOnTheOutermost();
    void subMessage_keepsTheMainMessage();
    void threads_countExactly();
};

void TestReferenceCountedObject::newObject_hasItsCreatorsReference()
{
    int destroyed = 0;
    const auto *object = new Counted(destroyed);
    QCOMPARE(object->getReferenceCount(), 1);
    object->removeReference();
    QCOMPARE(destroyed, 1);
}

void TestReferenceCountedObject::lastReference_deletes()
{
    int destroyed = 0;
    const auto *object = new Counted(destroyed);
    object->addReference();
    object->addReference();
    QCOMPARE(object->getReferenceCount(), 3);
    object->removeReference();
    object->removeReference();
    QCOMPARE(destroyed, 0);
    object->removeReference();
    QCOMPARE(destroyed, 1);
}

void TestReferenceCountedObject::part_countsOnItsKeeper()
{
    int keepersDestroyed = 0;
    int partsDestroyed = 0;
    const auto *keeper = new Counted(keepersDestroyed);
    const Counted part(partsDestroyed, keeper);

    part.addReference();
    QCOMPARE(keeper->getReferenceCount(), 2);
    QCOMPARE(part.getReferenceCount(), 2);
    keeper->removeReference();
    QCOMPARE(keepersDestroyed, 0);
    part.removeReference();
    QCOMPARE(keepersDestroyed, 1);
    QCOMPARE(partsDestroyed, 0);
}

void TestReferenceCountedObject::part_ofPart_countsOnTheOutermost()
{
    int keepersDestroyed = 0;
    int partsDestroyed = 0;
    const auto *keeper = new Counted(keepersDestroyed);
    const Counted part(partsDestroyed, keeper);
    const Counted partOfPart(partsDestroyed, &part);

    partOfPart.addReference();
    QCOMPARE(keeper->getReferenceCount(), 2);
    keeper->removeReference();
    partOfPart.removeReference();
    QCOMPARE(keepersDestroyed, 1);
}

void TestReferenceCountedObject::subMessage_keepsTheMainMessage()
{
    const TestFormat format("Demo", "A\n b B\n x int8\nB part\n c B optional\n y int8\n");
    const auto alive
        = [] { return MemLeakTracer::getInstance()->getLiveObjects().value("TestMessage"); };
    auto main = format.message("A{x: 1, b: {c: {y: 2}}}");
    const Message *outer = format.field("A.b")->getValue(main, 0).getSubMessage();
    const Message *inner = format.field("B.c")->getValue(outer, 0).getSubMessage();
    {
        const MessageHolder kept(inner);
        main = MessageHolder();
        QCOMPARE(alive(), 1);
        QCOMPARE(kept->getInfo(), format.type("B"));
        QCOMPARE(format.field("B.y")->getValueText(kept, 0, false), "2");
    }
    QCOMPARE(alive(), 0);
}

void TestReferenceCountedObject::threads_countExactly()
{
    int destroyed = 0;
    const auto *object = new Counted(destroyed);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        object->addReference();
        threads.emplace_back([object] {
            for (int round = 0; round < 20'000; ++round) {
                object->addReference();
                object->removeReference();
            }
            object->removeReference();
        });
    }
    object->removeReference();
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(destroyed, 1);
}

CORVANE_TEST_MAIN(TestReferenceCountedObject)

#include "tst_referencecountedobject.moc"
