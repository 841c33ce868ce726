#pragma once

namespace corvane {

/** Owns a file descriptor of the system and closes it at the end; holds none when negative. */
class FileDescriptor
{
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int descriptor)
        : descriptor(descriptor)
    {
    }

    ~FileDescriptor() { reset(); }

    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    FileDescriptor(FileDescriptor &&other) noexcept
        : descriptor(other.release())
    {
    }

    FileDescriptor &operator=(FileDescriptor &&other) noexcept;

    int get() const { return descriptor; }

    bool isValid() const { return descriptor >= 0; }

    /** Gives the descriptor up without closing it. */
    int release();
    void reset();

private:
    int descriptor = -1;
};

} // namespace corvane
