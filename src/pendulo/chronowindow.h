#pragma once

#include "timing.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace pendulo {

// The stopwatch window: large digits, laps, the countdowns and the beat counter. Every
// button has a key of its own, written on it, so that the keyboard alone does it all.
class ChronoWindow : public QWidget {
public:
    // beep sounds the end of a countdown; the system beep unless told otherwise.
    explicit ChronoWindow(const MonotonicClock& clock, std::function<void()> beep = {},
                          QWidget* parent = nullptr);

    static QString title();

    // Reads the clock and shows what it says; a timer calls it while something runs.
    void refresh();

private:
    void buildControls();
    QPushButton* addButton(const QString& text, const QString& accessibleName,
                           const QKeySequence& key, void (ChronoWindow::*action)());
    void startStop();
    void recordLap();
    void reset();
    void countdown15() { startCountdown(15); }
    void countdown30() { startCountdown(30); }
    void countdown60() { startCountdown(60); }
    void startCountdown(int seconds);
    void cancelCountdown();
    void beat();
    QString countdownText() const;

    const MonotonicClock& clock_;
    std::function<void()> beep_;
    Stopwatch stopwatch_;
    Countdown countdown_;
    TapRate taps_;
    bool countdownEnded_ = false;
    QTimer ticker_;

    QLabel* digits_ = nullptr;
    QLabel* countdownLine_ = nullptr;
    QLabel* rateLine_ = nullptr;
    QPushButton* startStop_ = nullptr;
    QPushButton* lap_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QTreeWidget* laps_ = nullptr;
};

} // namespace pendulo
