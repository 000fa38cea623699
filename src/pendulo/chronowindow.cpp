#include "chronowindow.h"

#include "display.h"

#include <QApplication>
#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace pendulo {

namespace {

// Often enough for tenths to change evenly; the time itself comes from the clock.
constexpr int refreshMs = 50;

QLabel* makeLine(const QString& accessibleName, int pixelSize, bool bold)
{
    auto* label = new QLabel;
    label->setAccessibleName(accessibleName);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

} // namespace

ChronoWindow::ChronoWindow(const MonotonicClock& clock, std::function<void()> beep, QWidget* parent)
    : QWidget(parent), clock_(clock),
      beep_(beep ? std::move(beep) : std::function<void()>([] { QApplication::beep(); })),
      stopwatch_(clock), countdown_(clock)
{
    setWindowTitle(title());
    setAccessibleName(title());
    buildControls();
    ticker_.setInterval(refreshMs);
    connect(&ticker_, &QTimer::timeout, this, &ChronoWindow::refresh);
    // Ctrl+Q as everywhere, and Ctrl+W, which closes every calculator.
    for (const QKeySequence::StandardKey key : {QKeySequence::Quit, QKeySequence::Close}) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, &QWidget::close);
    }
    refresh();
}

QString ChronoWindow::title()
{
    return u"Chrono"_s;
}

void ChronoWindow::buildControls()
{
    digits_ = makeLine(u"Temps écoulé"_s, 72, true);
    QFont digitsFont = digits_->font();
    // Digits of one width, so that the time does not shift as it runs.
    digitsFont.setFamily(u"DejaVu Sans Mono"_s);
    digitsFont.setStyleHint(QFont::TypeWriter);
    digits_->setFont(digitsFont);
    countdownLine_ = makeLine(u"Compte à rebours"_s, 20, false);
    rateLine_ = makeLine(u"Battements par minute"_s, 16, false);
    // The hint is the longest line of the window; it wraps rather than widen or clip it.
    rateLine_->setWordWrap(true);

    auto* watchRow = new QHBoxLayout;
    startStop_ = addButton(u"Démarrer (Espace)"_s, u"Démarrer ou arrêter le chronomètre"_s,
                           Qt::Key_Space, &ChronoWindow::startStop);
    lap_ = addButton(u"Tour (T)"_s, u"Tour"_s, Qt::Key_T, &ChronoWindow::recordLap);
    auto* zero =
        addButton(u"Remise à zéro (R)"_s, u"Remise à zéro"_s, Qt::Key_R, &ChronoWindow::reset);
    for (QPushButton* button : {startStop_, lap_, zero})
        watchRow->addWidget(button);

    auto* countdownRow = new QHBoxLayout;
    countdownRow->addWidget(addButton(u"15 s (1)"_s, u"Compte à rebours de 15 secondes"_s,
                                      Qt::Key_1, &ChronoWindow::countdown15));
    countdownRow->addWidget(addButton(u"30 s (3)"_s, u"Compte à rebours de 30 secondes"_s,
                                      Qt::Key_3, &ChronoWindow::countdown30));
    countdownRow->addWidget(addButton(u"60 s (6)"_s, u"Compte à rebours de 60 secondes"_s,
                                      Qt::Key_6, &ChronoWindow::countdown60));
    cancel_ = addButton(u"Annuler (Échap)"_s, u"Annuler le compte à rebours"_s, Qt::Key_Escape,
                        &ChronoWindow::cancelCountdown);
    countdownRow->addWidget(cancel_);

    auto* beatRow = new QHBoxLayout;
    beatRow->addWidget(
        addButton(u"Battement (B)"_s, u"Battement"_s, Qt::Key_B, &ChronoWindow::beat));
    beatRow->addWidget(rateLine_, 1);

    laps_ = new QTreeWidget;
    laps_->setAccessibleName(u"Tours"_s);
    laps_->setRootIsDecorated(false);
    laps_->setHeaderLabels({u"Tour"_s, u"Temps du tour"_s, u"Temps total"_s});
    laps_->header()->setSectionResizeMode(QHeaderView::Stretch);
    laps_->header()->setDefaultAlignment(Qt::AlignCenter);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(digits_);
    layout->addWidget(countdownLine_);
    layout->addLayout(watchRow);
    layout->addLayout(countdownRow);
    layout->addLayout(beatRow);
    layout->addWidget(laps_, 1);
}

// A window-wide key for each button: it acts wherever the focus is, also the space bar,
// which a focused button would otherwise take for a click on itself.
QPushButton* ChronoWindow::addButton(const QString& text, const QString& accessibleName,
                                     const QKeySequence& key, void (ChronoWindow::*action)())
{
    auto* button = new QPushButton(text);
    // Room on either side of the text, which the style alone leaves touching the edges.
    button->setMinimumWidth(button->sizeHint().width() +
                            2 * button->fontMetrics().averageCharWidth());
    button->setAccessibleName(accessibleName);
    // Return clicks the button that has the focus.
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, action);
    auto* shortcut = new QShortcut(key, this);
    // Holding a key down must not count as many beats.
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, action);
    return button;
}

void ChronoWindow::refresh()
{
    if (countdown_.poll()) {
        countdownEnded_ = true;
        beep_();
    }
    digits_->setText(elapsedText(stopwatch_.elapsedMs()));
    countdownLine_->setText(countdownText());
    rateLine_->setText(rateText(taps_.perMinute(), taps_.taps()));
    startStop_->setText(stopwatch_.running() ? u"Arrêter (Espace)"_s : u"Démarrer (Espace)"_s);
    lap_->setEnabled(stopwatch_.running());
    cancel_->setEnabled(countdown_.active());
    if (stopwatch_.running() || countdown_.active())
        ticker_.start();
    else
        ticker_.stop();
}

QString ChronoWindow::countdownText() const
{
    const QString seconds = QString::number(countdown_.durationMs() / 1000);
    if (countdown_.active())
        return u"Compte à rebours de "_s + seconds + u" s : "_s +
               remainingText(countdown_.remainingMs());
    if (countdownEnded_)
        return u"Compte à rebours de "_s + seconds + u" s terminé"_s;
    return u"Compte à rebours : 15, 30 ou 60 secondes"_s;
}

void ChronoWindow::startStop()
{
    if (stopwatch_.running())
        stopwatch_.stop();
    else
        stopwatch_.start();
    refresh();
}

void ChronoWindow::recordLap()
{
    if (!stopwatch_.lap())
        return;
    const Lap& lap = stopwatch_.laps().last();
    auto* row = new QTreeWidgetItem(
        {QString::number(lap.number), elapsedText(lap.splitMs), elapsedText(lap.totalMs)});
    for (int column = 0; column < 3; ++column)
        row->setTextAlignment(column, Qt::AlignCenter);
    // The latest lap on top, where the eye is.
    laps_->insertTopLevelItem(0, row);
}

void ChronoWindow::reset()
{
    stopwatch_.reset();
    countdown_.cancel();
    countdownEnded_ = false;
    taps_.clear();
    laps_->clear();
    refresh();
}

void ChronoWindow::startCountdown(int seconds)
{
    countdown_.start(seconds * 1000LL);
    countdownEnded_ = false;
    refresh();
}

void ChronoWindow::cancelCountdown()
{
    countdown_.cancel();
    countdownEnded_ = false;
    refresh();
}

void ChronoWindow::beat()
{
    taps_.tap(clock_.nowMs());
    refresh();
}

} // namespace pendulo
