#include "display.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace pendulo {

namespace {

QString twoDigits(qint64 value)
{
    return QString::number(value).rightJustified(2, u'0');
}

QString tenthsText(qint64 tenths)
{
    const qint64 seconds = tenths / 10;
    const qint64 minutes = seconds / 60;
    const QString clock = twoDigits(minutes % 60) + u':' + twoDigits(seconds % 60) + u',' +
                          QString::number(tenths % 10);
    return minutes >= 60 ? QString::number(minutes / 60) + u':' + clock : clock;
}

} // namespace

QString elapsedText(qint64 ms)
{
    return tenthsText(std::max<qint64>(0, ms) / 100);
}

QString remainingText(qint64 ms)
{
    return tenthsText((std::max<qint64>(0, ms) + 99) / 100);
}

QString rateText(std::optional<double> perMinute, int taps)
{
    const QString label = u"Battements par minute : "_s;
    if (taps <= 0)
        return label + u"tapez B à chaque battement"_s;
    // The count is one piece: a narrow window breaks the line before it, never inside.
    const QString count = taps == 1 ? u"(1\u00a0battement)"_s
                                    : u"("_s + QString::number(taps) + u"\u00a0battements)"_s;
    if (!perMinute)
        return label + u"… "_s + count;
    return label + QString::number(std::lround(*perMinute)) + u' ' + count;
}

} // namespace pendulo
