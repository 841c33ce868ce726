#include "heap.h"
#include "testcase.h"

#include <cstdlib>
#include <vector>

// A sanitizer brings a heap of its own.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define HAS_HEAP_OF_GLIBC
#include <malloc.h>
#endif

using corvane::test::TestCase;

class tst_heap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void largeBlocks_haveMemoryOfTheirOwn();
};

#ifdef HAS_HEAP_OF_GLIBC
namespace {

/** How many of \a count blocks of \a size bytes get memory of their own. */
size_t countApart(size_t count, size_t size)
{
    const size_t before = mallinfo2().hblks;
    std::vector<void *> blocks(count);
    for (void *&block : blocks)
        block = std::malloc(size);
    const size_t apart = mallinfo2().hblks - before;
    for (void *block : blocks)
        std::free(block);
    return apart;
}

} // namespace
#endif

void tst_heap::largeBlocks_haveMemoryOfTheirOwn()
{
#ifdef HAS_HEAP_OF_GLIBC
    constexpr size_t ofRun = 65'472; // 4,092 samples of 16 bytes
    constexpr size_t count = 1000;
    QCOMPARE(countApart(count, ofRun), 0U);
    corvane::keepLargeBlocksApart();
    // What is free between the small ones is used first.
    QVERIFY(countApart(count, ofRun) >= count / 2);
    QCOMPARE(countApart(count, 4096), 0U);
#else
    QSKIP(
        "the heap is that of a sanitizer or of another library than glibc: it has no such setting");
#endif
}

CORVANE_TEST_MAIN(tst_heap)

#include "tst_heap.moc"
