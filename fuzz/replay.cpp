// Runs saved inputs, given as files and folders, through the fuzz target that it is linked with.

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count);

namespace {

QStringList filesOf(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    QDirIterator each(path, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext())
        files += each.next();
    files.sort();
    return files;
}

bool replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read\n", qPrintable(path));
        return false;
    }
    // To be seen when it ends the program.
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                           static_cast<size_t>(bytes.size()));
    return true;
}

} // namespace

int main(int count, char *arguments[])
{
    int replayed = 0;
    for (int i = 1; i < count; ++i)
        for (const QString &file : filesOf(QString::fromLocal8Bit(arguments[i])))
            replayed += replay(file) ? 1 : 0;
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
