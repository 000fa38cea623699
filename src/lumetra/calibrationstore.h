#pragma once

#include <QString>

#include <optional>

class QScreen;
class QSettings;

namespace lumetra {

// Remembers the density measured on each screen between runs. A value that is missing,
// unreadable or not believable counts as no calibration at all.
class CalibrationStore {
public:
    explicit CalibrationStore(QSettings& settings);

    std::optional<double> load(const QString& screenKey) const;
    void save(const QString& screenKey, double pixelsPerMm);

    // Names a screen by its name and size in device pixels, so that another monitor,
    // or the same one at another resolution, is calibrated afresh.
    static QString keyFor(const QScreen& screen);

private:
    QSettings& settings_;
};

} // namespace lumetra
