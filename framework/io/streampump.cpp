#include "streampump.h"

#include "bytesource.h"
#include "replayclock.h"
#include "streamdecoder.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <new>
#include <utility>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/** A clock says nothing when its speed is changed, so a long wait is looked at again. */
constexpr std::chrono::milliseconds longestWait = 50ms;

qint64 getSystemTimeUs()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace

StreamPump::StreamPump(ByteSource &source,
                       StreamDecoder &decoder,
                       ReplayClock *clock,
                       QObject *parent)
    : QObject(parent)
    , source(source)
    , decoder(decoder)
    , clock(clock)
    , chunk(chunkBytes, Qt::Uninitialized)
{
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &StreamPump::runSlice);
    connect(&source, &ByteSource::opened, this, &StreamPump::schedule);
    connect(&source, &ByteSource::readyRead, this, &StreamPump::schedule);
    // Then a read gives the end, which goes the same way as any other.
    connect(&source, &ByteSource::failed, this, &StreamPump::schedule);
}

StreamPump::~StreamPump() = default;

void StreamPump::start()
{
    bytesRead = 0;
    state = State::Reading;
    seekOffset.reset();
    goal = nullptr;
    source.open();
}

void StreamPump::stop()
{
    state = State::Stopped;
    timer.stop();
    goal = nullptr;
    source.close();
}

bool StreamPump::seek(qint64 offset)
{
    if (!source.getSize())
        return false;
    seekOffset = offset;
    if (state == State::Stopped)
        state = State::Reading;
    // A frame reader cannot begin anew while it is reading.
    if (!insideSlice)
        applySeek();
    schedule();
    return true;
}

void StreamPump::applySeek()
{
    const qint64 offset = *std::exchange(seekOffset, std::nullopt);
    if (!source.seek(offset))
        return;
    decoder.reset(static_cast<quint64>(offset));
    state = State::Reading;
}

void StreamPump::runUntil(std::function<bool()> newGoal)
{
    goal = std::move(newGoal);
    schedule();
}

void StreamPump::setPaused(bool newPaused)
{
    if (paused == newPaused)
        return;
    paused = newPaused;
    if (clock && paused)
        clock->pause();
    if (clock && !paused)
        clock->resume();
    timer.stop();
    schedule();
}

void StreamPump::schedule()
{
    if (isRunning())
        timer.start(0ms);
}

void StreamPump::runSlice()
{
    // A slot that follows messages may run an event loop of its own.
    if (insideSlice)
        return;
    insideSlice = true;
    const QDeadlineTimer deadline(slice, Qt::PreciseTimer);
    Outcome outcome = Outcome::Continue;
    while (outcome == Outcome::Continue && isRunning()) {
        try {
            outcome = advance();
        } catch (const std::bad_alloc &) {
            outcome = giveUp();
        }
        if (deadline.hasExpired())
            break;
    }
    insideSlice = false;
    if (outcome == Outcome::Continue)
        schedule();
}

StreamPump::Outcome StreamPump::advance()
{
    if (seekOffset)
        applySeek();
    if (!goal || !goal())
        return state == State::Reading ? fetch() : decode();
    goal = nullptr;
    Q_EMIT goalReached();
    return Outcome::Continue;
}

StreamPump::Outcome StreamPump::fetch()
{
    const qint64 count = source.read(chunk.data(), chunk.size());
    // Followers of the source may have stopped it when it told its end.
    if (count == 0 || state == State::Stopped)
        return Outcome::Wait;
    if (count < 0) {
        decoder.finish();
        state = State::Draining;
        return Outcome::Continue;
    }
    bytesRead += static_cast<quint64>(count);
    const std::optional<qint64> arrivalUs
        = source.isLive() ? std::optional(getSystemTimeUs()) : std::nullopt;
    state = State::Decoding;
    const QByteArrayView bytes(chunk.constData(), count);
    Q_EMIT chunkRead(bytes);
    decoder.append(bytes, arrivalUs);
    return Outcome::Continue;
}

StreamPump::Outcome StreamPump::decode()
{
    if (clock && !goal && waitUntilDue())
        return Outcome::Wait;
    if (decoder.step() == StreamDecoder::Step::Advanced || state == State::Stopped)
        return Outcome::Continue;
    if (state == State::Draining)
        complete();
    else
        state = State::Reading;
    return Outcome::Continue;
}

bool StreamPump::waitUntilDue()
{
    const std::optional<qint64> timeUs = decoder.getNextTimeUs();
    if (!timeUs)
        return false;
    const std::chrono::microseconds wait{clock->getWaitUs(*timeUs)};
    if (wait == 0us)
        return false;
    const bool isStanding = clock->isPaused();
    const auto waitMs = std::chrono::ceil<std::chrono::milliseconds>(wait);
    timer.start(isStanding ? longestWait : std::min(waitMs, longestWait));
    return true;
}

StreamPump::Outcome StreamPump::giveUp()
{
    stop();
    Q_EMIT failed(tr("There is not enough memory to read on; what was read before stays."));
    return Outcome::Wait;
}

void StreamPump::complete()
{
    state = State::Stopped;
    goal = nullptr;
    if (source.getErrorMessage().isEmpty())
        Q_EMIT finished();
    else
        Q_EMIT failed(source.getErrorMessage());
}

} // namespace corvane
