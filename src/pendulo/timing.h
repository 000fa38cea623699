#pragma once

#include "clock.h"

#include <QList>

#include <deque>
#include <optional>

namespace pendulo {

struct Lap {
    int number = 0;
    // Time since the previous lap, or since the start for the first.
    qint64 splitMs = 0;
    qint64 totalMs = 0;
};

// Start, stop, resume, laps; the time is read from the clock whenever it is asked for.
class Stopwatch {
public:
    explicit Stopwatch(const MonotonicClock& clock) : clock_(clock) {}

    void start();
    void stop();
    // Stops and forgets the time and the laps.
    void reset();
    // Records a lap while running; false, and nothing recorded, when stopped.
    bool lap();

    bool running() const { return running_; }
    qint64 elapsedMs() const;
    const QList<Lap>& laps() const { return laps_; }

private:
    const MonotonicClock& clock_;
    bool running_ = false;
    qint64 startedAt_ = 0;
    // Time of the runs that ended before the current one.
    qint64 banked_ = 0;
    QList<Lap> laps_;
};

// A countdown of a few seconds that tells its end once.
class Countdown {
public:
    explicit Countdown(const MonotonicClock& clock) : clock_(clock) {}

    // Starts afresh, also over a countdown that is running.
    void start(qint64 durationMs);
    void cancel();
    // Running: started, neither ended nor cancelled.
    bool active() const { return active_; }
    qint64 durationMs() const { return durationMs_; }
    qint64 remainingMs() const;
    // True on the first call at or after the end, false before and ever after.
    bool poll();

private:
    const MonotonicClock& clock_;
    bool active_ = false;
    qint64 endsAt_ = 0;
    qint64 durationMs_ = 0;
};

// The heart or breathing rate from taps, one on each beat.
class TapRate {
public:
    // The rate is the mean over this many last intervals.
    static constexpr int averagedIntervals = 8;
    // A longer pause (under 20 per minute) starts a new series.
    static constexpr qint64 longestIntervalMs = 3000;

    void tap(qint64 atMs);
    void clear();
    // Taps of the current series.
    int taps() const { return taps_; }
    // Beats per minute, once two taps are apart in time.
    std::optional<double> perMinute() const;

private:
    std::deque<qint64> recent_;
    int taps_ = 0;
};

} // namespace pendulo
