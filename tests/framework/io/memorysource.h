#pragma once

#include "bytesource.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace corvane::test {

/** A source that gives what a case puts into it. */
class MemorySource : public ByteSource
{
public:
    void add(const QByteArray &bytes)
    {
        waiting.append(bytes);
        reportReadable();
    }

    void end()
    {
        ended = true;
        reportReadable();
    }

    void breakDown(const QString &message)
    {
        error = message;
        end();
    }

    void refuseToOpen(const QString &message) { openError = message; }

    void setLive(bool newLive) { live = newLive; }

    QString getName() const override { return QStringLiteral("memory"); }

    bool isLive() const override { return live; }

    std::optional<qint64> getWaitingBytes() const override { return waiting.size(); }

    int readCount = 0;

protected:
    void openDevice() override
    {
        if (openError.isEmpty())
            reportOpened();
        else
            reportOpenFailure(openError);
    }

    void closeDevice() override {}

    qint64 readDevice(char *data, qint64 maximum) override
    {
        ++readCount;
        if (waiting.isEmpty() && ended)
            return error.isEmpty() ? endOfBytes : failRead(error);
        const qint64 count = std::min<qint64>(maximum, waiting.size());
        std::memcpy(data, waiting.constData(), static_cast<size_t>(count));
        waiting.remove(0, count);
        return count;
    }

private:
    QByteArray waiting;
    QString openError;
    QString error;
    bool ended = false;
    bool live = true;
};

} // namespace corvane::test
