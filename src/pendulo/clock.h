#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

namespace pendulo {

// A clock that never goes back, in milliseconds from an arbitrary start. Everything
// is measured against it, never by counting timer ticks, so that nothing drifts when
// the machine is busy.
class MonotonicClock {
public:
    virtual ~MonotonicClock() = default;
    virtual qint64 nowMs() const = 0;
};

class SteadyClock : public MonotonicClock {
public:
    SteadyClock() { timer_.start(); }
    qint64 nowMs() const override { return timer_.elapsed(); }

private:
    QElapsedTimer timer_;
};

} // namespace pendulo
