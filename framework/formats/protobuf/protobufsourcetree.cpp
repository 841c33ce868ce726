#include "protobufsourcetree.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <google/protobuf/io/zero_copy_stream_impl_lite.h>

namespace corvane {

namespace {

constexpr qint64 maximumFileSize = 16LL * 1024 * 1024;
constexpr int maximumNesting = 200;

/** A stream that owns what it reads from. */
class BytesStream final : public google::protobuf::io::ZeroCopyInputStream
{
public:
    explicit BytesStream(QByteArray content)
        : bytes(std::move(content))
        , stream(bytes.constData(), static_cast<int>(bytes.size()))
    {
    }

    bool Next(const void **data, int *size) override { return stream.Next(data, size); }

    void BackUp(int count) override { stream.BackUp(count); }

    bool Skip(int count) override { return stream.Skip(count); }

    int64_t ByteCount() const override { return stream.ByteCount(); }

private:
    QByteArray bytes;
    google::protobuf::io::ArrayInputStream stream;
};

/** Whether the blocks nest too deeply; braces in comments count too, which does no harm. */
bool nestsTooDeeply(const QByteArray &text)
{
    int depth = 0;
    for (const char c : text) {
        depth += c == '{' ? 1 : c == '}' ? -1 : 0;
        if (depth > maximumNesting)
            return true;
    }
    return false;
}

bool isInside(const QString &path, const QString &folder)
{
    return path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

bool isPlainName(const QString &name)
{
    return !name.isEmpty() && !QDir::isAbsolutePath(name) && !name.contains(QLatin1Char('\\'))
           && !name.contains(QChar(0))
           && !name.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

} // namespace

void ProtobufSourceTree::addFolder(const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    if (!path.isEmpty() && !folders.contains(path))
        folders.append(path);
}

std::optional<QString> ProtobufSourceTree::getImportName(const QString &file) const
{
    const QString path = QFileInfo(file).canonicalFilePath();
    for (const QString &folder : folders)
        if (isInside(path, folder))
            return QDir(folder).relativeFilePath(path);
    return std::nullopt;
}

std::optional<QString> ProtobufSourceTree::findFile(const QString &name) const
{
    if (!isPlainName(name))
        return std::nullopt;
    for (const QString &folder : folders) {
        const QFileInfo info(QDir(folder).filePath(name));
        const QString path = info.canonicalFilePath();
        if (info.isFile() && isInside(path, folder))
            return path;
    }
    return std::nullopt;
}

google::protobuf::io::ZeroCopyInputStream *ProtobufSourceTree::Open(const std::string &filename)
{
    const auto path = findFile(QString::fromStdString(filename));
    if (!path) {
        lastError = QStringLiteral("There is no such file in the import path.");
        return nullptr;
    }
    QFile file(*path);
    if (!file.open(QIODevice::ReadOnly)) {
        lastError = QStringLiteral("Cannot be read: ") + file.errorString();
        return nullptr;
    }
    QByteArray text = file.read(maximumFileSize + 1);
    if (text.size() > maximumFileSize) {
        lastError = QStringLiteral("Larger than %1 bytes.").arg(maximumFileSize);
        return nullptr;
    }
    if (nestsTooDeeply(text)) {
        lastError = QStringLiteral("Nests more than %1 blocks.").arg(maximumNesting);
        return nullptr;
    }
    return new BytesStream(std::move(text));
}

std::string ProtobufSourceTree::GetLastErrorMessage()
{
    return lastError.toStdString();
}

} // namespace corvane
