#include "pageallocator.h"
#include "testcase.h"

#include <unistd.h>

#include <cstdint>
#include <limits>
#include <numeric>
#include <vector>

using corvane::PageAllocator;
using corvane::test::TestCase;

class tst_pageallocator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void elements_lieInPagesOfTheirOwn();
    void pages_areGivenBack();
    void growth_keepsTheElements();
    void tooMany_areRefused_data();
    void tooMany_areRefused();
};

namespace {

using Numbers = std::vector<quint64, PageAllocator<quint64>>;

const auto pageSize = static_cast<size_t>(::sysconf(_SC_PAGESIZE));

/** Whether the page at \a place is there, which write() can tell without reading it itself. */
bool isMapped(const void *place)
{
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0)
        qFatal("no pipe");
    const bool mapped = ::write(ends[1], place, 1) == 1;
    ::close(ends[0]);
    ::close(ends[1]);
    return mapped;
}

} // namespace

void tst_pageallocator::elements_lieInPagesOfTheirOwn()
{
    const Numbers first(1);
    const Numbers second(1);
    for (const Numbers *numbers : {&first, &second})
        QCOMPARE(reinterpret_cast<std::uintptr_t>(numbers->data()) % pageSize, size_t{0});
    QVERIFY(first.data() != second.data());
}

void tst_pageallocator::pages_areGivenBack()
{
    constexpr size_t pages = 4;
    PageAllocator<char> allocator;
    char *bytes = allocator.allocate(pages * pageSize);
    bytes[pages * pageSize - 1] = 'x';
    QVERIFY(isMapped(bytes));
    allocator.deallocate(bytes, pages * pageSize);
    for (size_t page = 0; page < pages; ++page)
        QVERIFY(!isMapped(bytes + page * pageSize));
}

void tst_pageallocator::growth_keepsTheElements()
{
    Numbers numbers;
    for (quint64 i = 0; i < 100'000; ++i)
        numbers.push_back(i);
    Numbers expected(numbers.size());
    std::iota(expected.begin(), expected.end(), quint64{0});
    QVERIFY(numbers == expected);
}

void tst_pageallocator::tooMany_areRefused_data()
{
    QTest::addColumn<quint64>("count");
    QTest::newRow("beyond all numbers of bytes") << std::numeric_limits<quint64>::max() / 2;
    QTest::newRow("beyond all memory") << std::numeric_limits<quint64>::max() / 32;
}

void tst_pageallocator::tooMany_areRefused()
{
    QFETCH(quint64, count);
    PageAllocator<quint64> allocator;
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc, allocator.allocate(count));
}

CORVANE_TEST_MAIN(tst_pageallocator)

#include "tst_pageallocator.moc"
