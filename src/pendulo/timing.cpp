#include "timing.h"

#include <algorithm>

namespace pendulo {

void Stopwatch::start()
{
    if (running_)
        return;
    startedAt_ = clock_.nowMs();
    running_ = true;
}

void Stopwatch::stop()
{
    if (!running_)
        return;
    banked_ = elapsedMs();
    running_ = false;
}

void Stopwatch::reset()
{
    running_ = false;
    banked_ = 0;
    laps_.clear();
}

bool Stopwatch::lap()
{
    if (!running_)
        return false;
    const qint64 total = elapsedMs();
    const qint64 previous = laps_.isEmpty() ? 0 : laps_.last().totalMs;
    laps_.append({static_cast<int>(laps_.size()) + 1, total - previous, total});
    return true;
}

qint64 Stopwatch::elapsedMs() const
{
    return running_ ? banked_ + std::max<qint64>(0, clock_.nowMs() - startedAt_) : banked_;
}

void Countdown::start(qint64 durationMs)
{
    durationMs_ = std::max<qint64>(0, durationMs);
    endsAt_ = clock_.nowMs() + durationMs_;
    active_ = true;
}

void Countdown::cancel()
{
    active_ = false;
}

qint64 Countdown::remainingMs() const
{
    return active_ ? std::max<qint64>(0, endsAt_ - clock_.nowMs()) : 0;
}

bool Countdown::poll()
{
    if (!active_ || clock_.nowMs() < endsAt_)
        return false;
    active_ = false;
    return true;
}

void TapRate::tap(qint64 atMs)
{
    if (!recent_.empty() && (atMs - recent_.back() > longestIntervalMs || atMs < recent_.back()))
        clear();
    recent_.push_back(atMs);
    ++taps_;
    while (recent_.size() > averagedIntervals + 1)
        recent_.pop_front();
}

void TapRate::clear()
{
    recent_.clear();
    taps_ = 0;
}

std::optional<double> TapRate::perMinute() const
{
    if (recent_.size() < 2)
        return std::nullopt;
    const qint64 span = recent_.back() - recent_.front();
    if (span <= 0)
        return std::nullopt;
    return 60000.0 * static_cast<double>(recent_.size() - 1) / static_cast<double>(span);
}

} // namespace pendulo
