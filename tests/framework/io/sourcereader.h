#pragma once

#include "bytesource.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

namespace corvane::test {

/** Opens a source, reads it as its interface asks for, and writes down what it tells. */
class SourceReader : public QObject
{
public:
    explicit SourceReader(ByteSource &source)
        : source(source)
    {
        connect(&source, &ByteSource::opened, this, [this] {
            events.append(QStringLiteral("opened"));
            readAll();
        });
        connect(&source, &ByteSource::readyRead, this, &SourceReader::readAll);
        connect(&source, &ByteSource::finished, this,
                [this] { events.append(QStringLiteral("finished")); });
        connect(&source, &ByteSource::failed, this, [this](const QString &message) {
            events.append(QStringLiteral("failed"));
            failure = message;
        });
    }

    void setPaused(bool newPaused)
    {
        paused = newPaused;
        readAll();
    }

    /** How much to ask for at once. */
    void setReadSize(qsizetype bytes) { readSize = bytes; }

    bool hasEnded() const { return source.isAtEnd() && !events.isEmpty(); }

    QByteArray bytes;
    QList<QByteArray> pieces; ///< What each read gave.
    QStringList events;
    QString failure;

private:
    void readAll()
    {
        QByteArray data(readSize, Qt::Uninitialized);
        while (!paused) {
            const qint64 count = source.read(data.data(), data.size());
            if (count <= 0)
                return;
            bytes.append(data.constData(), count);
            pieces.append(data.left(count));
        }
    }

    ByteSource &source;
    qsizetype readSize = 64 * 1024;
    bool paused = false;
};

} // namespace corvane::test
