#include "mcapdefinitions.h"

#include "mcapreader.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

namespace corvane {

namespace {

constexpr qint64 pieceSize = 1024LL * 1024;
constexpr qint64 footerContentSize = 20;
constexpr qint64 endSize = McapRecordHeader::size + footerContentSize + mcapFileMark.size();

/** The reader itself keeps the definitions. */
class NoListener final : public McapListener
{
public:
    void readSchema(const McapSchema &) override {}

    void readChannel(const McapChannel &, const McapSchema *) override {}

    void readMessage(const McapMessage &, const McapChannel &, qint64) override {}

    void reportProblem(const McapProblem &) override {}
};

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::McapDefinitions", text);
}

void readOn(McapReader &reader, QFile &file, qint64 end)
{
    while (file.pos() < end) {
        const QByteArray piece = file.read(std::min(pieceSize, end - file.pos()));
        if (piece.isEmpty())
            return;
        reader.append(piece);
        while (reader.step() == McapReader::Step::Advanced) {
        }
    }
}

/** Where the summary begins; 0 for a file without one, or whose end is not as it must be. */
qint64 findSummary(QFile &file)
{
    if (!file.seek(file.size() - endSize))
        return 0;
    const QByteArray end = file.read(endSize);
    const auto header = parseMcapRecordHeader(end);
    if (!header || static_cast<McapOpcode>(header->opcode) != McapOpcode::Footer
        || header->contentSize != footerContentSize || !end.endsWith(mcapFileMark.toByteArray()))
        return 0;
    const auto begin = qFromLittleEndian<quint64>(end.constData() + McapRecordHeader::size);
    return begin < static_cast<quint64>(file.size() - endSize) ? static_cast<qint64>(begin) : 0;
}

/** The summary repeats schemas and channels as they stand among the messages. */
McapDefinitions readSummary(QFile &file)
{
    const qint64 begin = findSummary(file);
    NoListener listener;
    McapReader reader(listener);
    reader.append(mcapFileMark);
    if (begin != 0 && file.seek(begin))
        readOn(reader, file, file.size() - endSize);
    return reader.getDefinitions();
}

McapDefinitions readWhole(QFile &file)
{
    NoListener listener;
    McapReader reader(listener);
    if (file.seek(0))
        readOn(reader, file, file.size());
    reader.finish();
    while (reader.step() == McapReader::Step::Advanced) {
    }
    return reader.getDefinitions();
}

} // namespace

McapDefinitions McapDefinitions::readFile(const QString &path, QString *problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = tr("Cannot be read: %1.").arg(file.errorString());
        return {};
    }
    if (file.peek(mcapFileMark.size()) != mcapFileMark) {
        *problem = tr("This is no MCAP file, or one of another version.");
        return {};
    }
    McapDefinitions result = readSummary(file);
    if (result.channels.empty())
        result = readWhole(file);
    if (result.channels.empty())
        *problem = tr("The file contains no channels.");
    return result;
}

const McapSchema *McapDefinitions::findSchema(const McapChannel &channel) const
{
    const auto found = schemas.find(channel.schemaId);
    return found == schemas.end() ? nullptr : &found->second;
}

} // namespace corvane
