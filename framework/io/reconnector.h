#pragma once

#include "corvaneframework_export.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace corvane {

class ByteSource;
class StreamPump;

/**
 * Opens the source of a pump again when it has gone away or could not be opened, after a time that
 * doubles with each attempt, until it is stopped. The time is the first one again when bytes have
 * come since the last attempt.
 *
 * To be made before the pump is started.
 */
class CORVANEFRAMEWORK_EXPORT Reconnector : public QObject
{
    Q_OBJECT

public:
    /** How long to wait before an attempt. */
    struct Delays
    {
        std::chrono::milliseconds first{500};
        std::chrono::milliseconds longest{5000};
    };

    /** Owns neither of them; \a source is the one of \a pump. */
    Reconnector(StreamPump &pump, const ByteSource &source, QObject *parent = nullptr);
    Reconnector(StreamPump &pump,
                const ByteSource &source,
                Delays delays,
                QObject *parent = nullptr);
    ~Reconnector() override;

    /** Tries no more, until the pump is started and ends again. */
    void stop() { timer.stop(); }

    bool isWaiting() const { return timer.isActive(); }

Q_SIGNALS:
    void opened();
    /**
     * The source has come to its end (\a reason is empty), has broken, or cannot be opened; the
     * last only when the reason is another one than before.
     */
    void lost(const QString &reason);
    /** The moment to make the frame reader begin anew. */
    void aboutToReopen();
    /** How it stands, in words for people. */
    void stateChanged(const QString &text);

private:
    void handleOpened();
    void handleEnd(const QString &reason);
    void reopen();
    QString describeWait(const QString &reason) const;

    StreamPump &pump;
    const ByteSource &source;
    Delays delays;
    std::chrono::milliseconds nextDelay;
    QTimer timer; ///< Runs out at the next attempt.
    bool isOpen = false;
    bool wasOpen = false; ///< At any time.
    QString lastReason;
};

} // namespace corvane
