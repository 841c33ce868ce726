#pragma once

#include "streamdecoder.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <utility>

namespace corvane::test {

/**
 * A frame reader whose frames are lines. A line that begins with a number has that as its recorded
 * time in microseconds; the rest of a line that has no end is a frame "(cut) ...".
 */
class LineDecoder : public StreamDecoder
{
public:
    void append(QByteArrayView bytes, std::optional<qint64> arrivalUs) override
    {
        buffer.append(bytes);
        arrivals.append(arrivalUs);
        appendedBytes += bytes.size();
    }

    void finish() override { finished = true; }

    Step step() override
    {
        const qsizetype end = buffer.indexOf('\n', position);
        if (end < 0 && (!finished || position == buffer.size()))
            return needBytes();
        QString frame = QString::fromLatin1(buffer.mid(position, end < 0 ? -1 : end - position));
        if (end < 0)
            frame.prepend(QLatin1String("(cut) "));
        position = end < 0 ? buffer.size() : end + 1;
        ++frameCount;
        if (keepsFrames)
            frames.append(frame);
        if (onFrame)
            onFrame(frame);
        return Step::Advanced;
    }

    std::optional<qint64> getNextTimeUs() const override
    {
        const QByteArray number = buffer.mid(position, 20).split(' ').first();
        bool isNumber = false;
        const qint64 timeUs = number.toLongLong(&isNumber);
        return isNumber ? std::optional(timeUs) : std::nullopt;
    }

    quint64 getPosition() const override { return bufferOffset + quint64(position); }

    void reset(quint64 newPosition) override
    {
        buffer.clear();
        position = 0;
        bufferOffset = newPosition;
        finished = false;
    }

    std::function<void(const QString &frame)> onFrame;
    bool keepsFrames = true;
    QStringList frames;
    qint64 frameCount = 0;
    qint64 appendedBytes = 0;
    QList<std::optional<qint64>> arrivals;
    bool finished = false;

private:
    Step needBytes()
    {
        bufferOffset += quint64(position);
        buffer.remove(0, std::exchange(position, 0));
        return Step::NeedsBytes;
    }

    QByteArray buffer;
    qsizetype position = 0;
    quint64 bufferOffset = 0; ///< In the stream, of the buffer's first byte.
};

} // namespace corvane::test
