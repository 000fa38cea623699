#pragma once

#include "chart.h"

#include <QString>
#include <QWidget>

class QPainter;

namespace lumetra {

class CalibrationStore;

// The full-screen chart, and the card rectangle that calibrates it. Letters are placed
// in device pixels: the calibration alone decides their size, whatever the desktop's
// scale factor.
class ChartWindow : public QWidget {
public:
    explicit ChartWindow(CalibrationStore& store, QWidget* parent = nullptr);

    double pixelsPerMm() const { return pixelsPerMm_; }
    const ChartState& state() const { return state_; }
    bool calibrating() const { return calibrating_; }
    // The card rectangle's width while calibrating, in device pixels.
    double cardWidthPx() const { return cardWidthPx_; }
    void setHintVisible(bool visible);

    static QString title();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    bool chartKey(int key);
    bool calibrationKey(int key, Qt::KeyboardModifiers modifiers);
    void startCalibration();
    void finishCalibration(bool keep);
    void setCardWidth(double widthPx);
    void followPointer(QPointF position);
    void stateChanged();

    QSizeF chartAreaPx() const;
    // The strip at the bottom that shows the keys, as high as their lines need.
    QRectF hintBand() const;
    void paintChart(QPainter& painter, QSizeF areaPx) const;
    void paintCard(QPainter& painter, QSizeF areaPx) const;
    void paintHint(QPainter& painter) const;
    void paintInstructions(QPainter& painter) const;

    CalibrationStore& store_;
    QString screenKey_;
    double pixelsPerMm_ = 0;
    ChartState state_;
    // Chooses the letters of every line; "other letters" draws a new one.
    quint32 seed_ = 1;
    bool hintVisible_ = true;
    bool calibrating_ = false;
    double cardWidthPx_ = 0;
    // Wheel turns smaller than one notch, kept until they add up to one.
    int wheelRest_ = 0;
};

} // namespace lumetra
