#include "protobufcomment.h"

#include <QStringList>

namespace corvane {

namespace {

constexpr qsizetype maximumUnit = 40;

const QLatin1String unitMark("Unit:");
const QLatin1String briefMark("\\brief ");

} // namespace

ProtobufComment ProtobufComment::parse(const std::string &comment)
{
    ProtobufComment result;
    QStringList paragraphs(QString{});
    const auto lines = QString::fromUtf8(comment.data(), static_cast<qsizetype>(comment.size()))
                           .split(QLatin1Char('\n'));
    for (const QString &untrimmed : lines) {
        QString line = untrimmed.trimmed();
        if (line.startsWith(unitMark)) {
            if (result.unit.isEmpty())
                result.unit = line.mid(unitMark.size()).trimmed().left(maximumUnit);
            continue;
        }
        if (line.startsWith(briefMark))
            line = line.mid(briefMark.size()).trimmed();
        QString &paragraph = paragraphs.last();
        if (line.isEmpty() && !paragraph.isEmpty())
            paragraphs.append(QString());
        else if (!line.isEmpty())
            paragraph += paragraph.isEmpty() ? line : QLatin1Char(' ') + line;
    }
    paragraphs.removeAll(QString());
    result.text = paragraphs.join(QLatin1String("\n\n"));
    return result;
}

} // namespace corvane
