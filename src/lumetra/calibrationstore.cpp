#include "calibrationstore.h"

#include "acuity.h"

#include <QScreen>
#include <QSettings>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumetra {

namespace {

QString settingsKey(const QString& screenKey)
{
    // QSettings reads "/" as a group separator and "\" badly in INI files.
    QString safe = screenKey;
    safe.replace(u'/', u'_').replace(u'\\', u'_');
    return u"etalonnage/"_s + safe;
}

} // namespace

CalibrationStore::CalibrationStore(QSettings& settings) : settings_(settings) {}

std::optional<double> CalibrationStore::load(const QString& screenKey) const
{
    bool ok = false;
    const double value = settings_.value(settingsKey(screenKey)).toDouble(&ok);
    if (!ok || !std::isfinite(value) || value < minPixelsPerMm || value > maxPixelsPerMm)
        return std::nullopt;
    return value;
}

void CalibrationStore::save(const QString& screenKey, double pixelsPerMm)
{
    settings_.setValue(settingsKey(screenKey), pixelsPerMm);
    settings_.sync();
}

QString CalibrationStore::keyFor(const QScreen& screen)
{
    const QSize pixels = screen.geometry().size() * screen.devicePixelRatio();
    return screen.name() + u'-' + QString::number(pixels.width()) + u'x' +
           QString::number(pixels.height());
}

} // namespace lumetra
