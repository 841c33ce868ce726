#include "systemfiles.h"

#include "proctext.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>

namespace corvane {

namespace {

constexpr qsizetype maximumBytes = 4LL * 1024 * 1024;

struct FolderCloser
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

ssize_t readSome(int descriptor, char *data, size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, data, size);
    while (count < 0 && errno == EINTR);
    return count;
}

std::optional<QByteArray> readAll(int descriptor)
{
    std::array<char, 4096> piece;
    QByteArray text;
    while (text.size() < maximumBytes) {
        const ssize_t count = readSome(descriptor, piece.data(), piece.size());
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        text.append(piece.data(), count);
    }
    return text;
}

} // namespace

SystemFiles::SystemFiles(const QByteArray &root)
    : root(root.endsWith('/') ? root : root + '/')
{
}

std::optional<QByteArray> SystemFiles::read(const QByteArray &path) const
{
    const int descriptor = ::open((root + path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return std::nullopt;
    std::optional<QByteArray> text = readAll(descriptor);
    ::close(descriptor);
    return text;
}

std::optional<std::string> SystemFiles::readText(const QByteArray &path) const
{
    const std::optional<QByteArray> text = read(path);
    if (!text || text->trimmed().isEmpty())
        return std::nullopt;
    return makeShownText(*text);
}

std::optional<qint64> SystemFiles::readNumber(const QByteArray &path) const
{
    const std::optional<QByteArray> text = read(path);
    return text ? parseNumber(*text) : std::nullopt;
}

QByteArrayList SystemFiles::list(const QByteArray &path) const
{
    QByteArrayList names;
    const std::unique_ptr<DIR, FolderCloser> folder(::opendir((root + path).constData()));
    if (!folder)
        return names;
    while (const dirent *entry = ::readdir(folder.get())) {
        if (entry->d_name[0] != '.')
            names.append(entry->d_name);
    }
    std::sort(names.begin(), names.end(), [](const QByteArray &left, const QByteArray &right) {
        return ::strverscmp(left.constData(), right.constData()) < 0;
    });
    return names;
}

} // namespace corvane
