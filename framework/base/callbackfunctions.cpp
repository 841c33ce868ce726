#include "callbackfunctions.h"

#include <pthread.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace {

// Everything here is usable before main(): tracing starts while libraries are loaded.
constinit std::mutex traceMutex;
constinit std::atomic<FILE *> outputStream = nullptr;

void lock(void *context)
{
    static_cast<std::mutex *>(context)->lock();
}

void unlock(void *context)
{
    static_cast<std::mutex *>(context)->unlock();
}

void getThreadName(char *out, int size)
{
    if (out == nullptr || size <= 0)
        return;
    // The system knows names of up to 15 characters and refuses a smaller buffer.
    char name[16] = {};
    if (pthread_getname_np(pthread_self(), name, sizeof name) != 0)
        name[0] = '\0';
    snprintf(out, static_cast<size_t>(size), "%s", name);
}

uint64_t getTime()
{
    using namespace std::chrono;
    return static_cast<uint64_t>(
        duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count());
}

void sleepFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void setOutputStream(FILE *stream)
{
    outputStream = stream;
}

void output(const char *line, int severity)
{
    FILE *stream = outputStream != nullptr ? outputStream.load() : stdout;
    if (line != nullptr)
        fputs(line, stream);
    if (severity == 1)
        fflush(stream);
}

const char *environmentVariable(const char *name)
{
    return name == nullptr ? nullptr : std::getenv(name);
}

DbgCallbackFunctions callbacks = {
    .lock = lock,
    .unlock = unlock,
    .lockContext = &traceMutex,
    .getThreadName = getThreadName,
    .reserved4 = nullptr,
    .reserved5 = nullptr,
    .reserved6 = nullptr,
    .getTime = getTime,
    .sleep = sleepFor,
    .setOutputStream = setOutputStream,
    .output = output,
    .getenv = environmentVariable,
    .abortHandler = nullptr,
};

} // namespace

DbgCallbackFunctions *getCallBackFunctions()
{
    return &callbacks;
}
