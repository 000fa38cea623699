#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace pendulo {

// "mm:ss,d", with the hours in front from one hour on ("1:02:03,4"). A stopwatch drops
// the hundredths, so that it never shows a tenth that has not yet passed.
QString elapsedText(qint64 ms);

// The same for a countdown, rounded up to the tenth: it shows its full length when it
// starts and zero only once it has ended.
QString remainingText(qint64 ms);

// The line of the beats-per-minute mode, from the rate and the taps counted so far.
QString rateText(std::optional<double> perMinute, int taps);

} // namespace pendulo
