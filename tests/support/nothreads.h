#pragma once

#include <pthread.h>

#include <cstddef>

namespace corvane::test {

/** While it lives no thread can be started: its stack would take more than all addresses. */
class NoThreads
{
public:
    NoThreads()
    {
        pthread_getattr_default_np(&before);
        pthread_attr_t attributes;
        pthread_getattr_default_np(&attributes);
        pthread_attr_setstacksize(&attributes, size_t(1) << 47);
        pthread_setattr_default_np(&attributes);
        pthread_attr_destroy(&attributes);
    }

    ~NoThreads()
    {
        pthread_setattr_default_np(&before);
        pthread_attr_destroy(&before);
    }

    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

private:
    pthread_attr_t before{};
};

} // namespace corvane::test
