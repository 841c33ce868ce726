#include "filedescriptor.h"

#include <unistd.h>

#include <utility>

namespace corvane {

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        reset();
        descriptor = other.release();
    }
    return *this;
}

int FileDescriptor::release()
{
    return std::exchange(descriptor, -1);
}

void FileDescriptor::reset()
{
    if (isValid())
        ::close(release());
}

} // namespace corvane
