#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>
#include <string>

namespace corvane {

/** Reads the kernel's files below a folder, which is /proc or /sys, or one that looks like it. */
class SystemFiles
{
public:
    explicit SystemFiles(const QByteArray &root);

    /**
     * The whole file, at most 4 MiB of it; nothing when it is not there or cannot be read, as a
     * process that has just ended or a sensor that is asleep.
     */
    std::optional<QByteArray> read(const QByteArray &path) const;
    /** The same as one line that people can read. */
    std::optional<std::string> readText(const QByteArray &path) const;
    /** The number that is all of the file. */
    std::optional<qint64> readNumber(const QByteArray &path) const;
    /** Names in a folder, sorted so that 2 comes before 10; none when it cannot be read. */
    QByteArrayList list(const QByteArray &path) const;

private:
    QByteArray root; ///< With a slash at its end.
};

} // namespace corvane
