#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <new>

namespace corvane {

/**
 * Memory for long-lived elements of large containers, in whole pages from the system, which gets
 * them back at once. On the heap they would fill the places that short-lived objects leave for a
 * moment, and make it larger for good.
 */
template <typename Element>
class PageAllocator
{
public:
    using value_type = Element;

    PageAllocator() = default;

    template <typename Other>
    PageAllocator(const PageAllocator<Other> &)
    {
    }

    Element *allocate(size_t count)
    {
        if (count > maximumCount)
            throw std::bad_array_new_length();
        void *pages = ::mmap(nullptr, count * sizeof(Element), PROT_READ | PROT_WRITE,
                             MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (pages == MAP_FAILED)
            throw std::bad_alloc();
        return static_cast<Element *>(pages);
    }

    void deallocate(Element *elements, size_t count)
    {
        ::munmap(elements, count * sizeof(Element));
    }

    friend bool operator==(const PageAllocator &, const PageAllocator &) { return true; }

private:
    static constexpr size_t maximumCount = static_cast<size_t>(-1) / sizeof(Element);
};

} // namespace corvane
