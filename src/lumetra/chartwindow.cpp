#include "chartwindow.h"

#include "acuity.h"
#include "calibrationstore.h"
#include "optotype.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumetra {

namespace {

constexpr int wheelNotch = 120;
constexpr double coarseStepPx = 10.0;
constexpr double labelHeightMm = 4.0;

// The keys and what they do; a narrow or magnified screen breaks the line between two
// keys only, never inside one.
QString chartHint(bool mirrored)
{
    QString keys = u"↑ ↓ ligne plus grande ou plus petite · T tableau entier ou une ligne · "
                   u"M miroir · L autres lettres · E étalonnage · H cacher l'aide · "
                   u"Échap quitter"_s;
    keys.replace(u' ', QChar::Nbsp).replace(u"\u00a0·\u00a0"_s, u" · "_s);
    return mirrored ? u"MIROIR — "_s + keys : keys;
}

constexpr int hintFlags = Qt::AlignCenter | Qt::TextWordWrap;

QFont labelFont(double pixelsPerMm)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(
        std::clamp(static_cast<int>(std::lround(labelHeightMm * pixelsPerMm)), 12, 96));
    return font;
}

} // namespace

ChartWindow::ChartWindow(CalibrationStore& store, QWidget* parent) : QWidget(parent), store_(store)
{
    setWindowTitle(title());
    setAccessibleName(u"Échelle visuelle"_s);
    setAccessibleDescription(chartHint(false));
    setFocusPolicy(Qt::StrongFocus);
    const QScreen* shownOn = screen();
    screenKey_ = shownOn ? CalibrationStore::keyFor(*shownOn) : QString();
    const std::optional<double> stored = store_.load(screenKey_);
    pixelsPerMm_ = stored ? *stored
                          : guessPixelsPerMm(shownOn ? shownOn->physicalDotsPerInch() : 0.0,
                                             devicePixelRatioF());
    // Nobody has measured this screen yet: the first thing to do is to measure it.
    if (!stored)
        startCalibration();
    stateChanged();
}

QString ChartWindow::title()
{
    return u"Échelle visuelle 3 m"_s;
}

void ChartWindow::setHintVisible(bool visible)
{
    hintVisible_ = visible;
    update();
}

void ChartWindow::keyPressEvent(QKeyEvent* event)
{
    const bool used =
        calibrating_ ? calibrationKey(event->key(), event->modifiers()) : chartKey(event->key());
    if (!used)
        QWidget::keyPressEvent(event);
}

bool ChartWindow::chartKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_Up:
        state_.larger();
        break;
    case Qt::Key_Down:
        state_.smaller();
        break;
    case Qt::Key_T:
        state_.wholeChart = !state_.wholeChart;
        break;
    case Qt::Key_M:
        state_.mirrored = !state_.mirrored;
        break;
    case Qt::Key_L:
        seed_ = QRandomGenerator::global()->generate();
        break;
    case Qt::Key_H:
        hintVisible_ = !hintVisible_;
        break;
    case Qt::Key_E:
        startCalibration();
        break;
    default:
        return false;
    }
    stateChanged();
    return true;
}

bool ChartWindow::calibrationKey(int key, Qt::KeyboardModifiers modifiers)
{
    const double step = modifiers.testFlag(Qt::ShiftModifier) ? coarseStepPx : 1.0;
    switch (key) {
    case Qt::Key_Escape:
        finishCalibration(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finishCalibration(true);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Plus:
        setCardWidth(cardWidthPx_ + step);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Down:
    case Qt::Key_Minus:
        setCardWidth(cardWidthPx_ - step);
        return true;
    default:
        return false;
    }
}

// Turning the wheel away from the user grows the card, or shows a larger line.
void ChartWindow::wheelEvent(QWheelEvent* event)
{
    wheelRest_ += event->angleDelta().y();
    const int notches = wheelRest_ / wheelNotch;
    wheelRest_ -= notches * wheelNotch;
    if (calibrating_) {
        setCardWidth(cardWidthPx_ + notches);
    } else {
        for (int i = 0; i < std::abs(notches); ++i)
            notches > 0 ? state_.larger() : state_.smaller();
        stateChanged();
    }
    event->accept();
}

void ChartWindow::mousePressEvent(QMouseEvent* event)
{
    if (calibrating_ && event->button() == Qt::LeftButton)
        followPointer(event->position());
}

void ChartWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (calibrating_ && event->buttons().testFlag(Qt::LeftButton))
        followPointer(event->position());
}

// The card stays centred, so the edge under the pointer sets half its width.
void ChartWindow::followPointer(QPointF position)
{
    const double x = position.x() * devicePixelRatioF();
    setCardWidth(2.0 * std::abs(x - width() * devicePixelRatioF() / 2.0));
}

void ChartWindow::startCalibration()
{
    calibrating_ = true;
    cardWidthPx_ = pixelsPerMm_ * cardWidthMm;
    stateChanged();
}

void ChartWindow::finishCalibration(bool keep)
{
    if (keep) {
        pixelsPerMm_ = pixelsPerMmFromCardWidth(cardWidthPx_);
        store_.save(screenKey_, pixelsPerMm_);
    }
    calibrating_ = false;
    stateChanged();
}

void ChartWindow::setCardWidth(double widthPx)
{
    const double density =
        clampPixelsPerMm(pixelsPerMmFromCardWidth(widthPx), width() * devicePixelRatioF());
    cardWidthPx_ = density * cardWidthMm;
    update();
}

void ChartWindow::stateChanged()
{
    // The pointer would stand in the patient's view; while calibrating it drags an edge.
    setCursor(calibrating_ ? Qt::SizeHorCursor : Qt::BlankCursor);
    update();
}

QRectF ChartWindow::hintBand() const
{
    if (!hintVisible_)
        return {};
    const int margin = fontMetrics().height();
    const QRect text = fontMetrics().boundingRect(QRect(0, 0, width() - 2 * margin, height()),
                                                  hintFlags, chartHint(state_.mirrored));
    const double bandHeight = text.height() + margin;
    return {0, height() - bandHeight, static_cast<double>(width()), bandHeight};
}

QSizeF ChartWindow::chartAreaPx() const
{
    const double ratio = devicePixelRatioF();
    return {width() * ratio, std::max(0.0, (height() - hintBand().height()) * ratio)};
}

void ChartWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    // From here on one unit is one device pixel.
    painter.scale(1.0 / devicePixelRatioF(), 1.0 / devicePixelRatioF());
    if (calibrating_)
        paintCard(painter, QSizeF(size()) * devicePixelRatioF());
    else
        paintChart(painter, chartAreaPx());
    painter.restore();
    if (calibrating_)
        paintInstructions(painter);
    else if (hintVisible_)
        paintHint(painter);
}

void ChartWindow::paintChart(QPainter& painter, QSizeF areaPx) const
{
    if (state_.mirrored)
        painter.setTransform(mirrorTransform(areaPx.width()), true);
    const QFont font = labelFont(pixelsPerMm_);
    const QFontMetricsF metrics(font);
    const double margin = metrics.height();
    const double labelWidth = metrics.horizontalAdvance(u"▶ 10/10"_s);
    painter.setFont(font);
    painter.setPen(Qt::black);
    QList<ChartLine> lines = layoutChart(state_, areaPx, pixelsPerMm_, labelWidth + 2.0 * margin);
    // The smaller lines that do not fit are announced at the foot, in room kept for it.
    if (!moreLinesBelow(state_, lines).isEmpty()) {
        const QSizeF above(areaPx.width(), std::max(0.0, areaPx.height() - 2.0 * margin));
        lines = layoutChart(state_, above, pixelsPerMm_, labelWidth + 2.0 * margin);
        painter.drawText(QRectF(0, above.height(), above.width(), 2.0 * margin), Qt::AlignCenter,
                         moreLinesBelow(state_, lines));
    }
    for (const ChartLine& line : lines) {
        const QString letters =
            lineLetters(line.tenths, seed_, static_cast<int>(line.cells.size()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        for (qsizetype i = 0; i < letters.size(); ++i)
            painter.drawPath(letterPath(letters.at(i), line.cells.at(i)));
        const bool marked = state_.wholeChart && line.tenths == state_.tenths;
        const QRectF labelBox(margin, line.centreY() - margin, labelWidth, 2.0 * margin);
        painter.setPen(Qt::black);
        painter.drawText(labelBox, Qt::AlignRight | Qt::AlignVCenter,
                         (marked ? u"▶ "_s : QString()) + acuityLabel(line.tenths));
    }
}

void ChartWindow::paintCard(QPainter& painter, QSizeF areaPx) const
{
    const QSizeF card = cardSizePx(pixelsPerMmFromCardWidth(cardWidthPx_));
    const QPointF corner((areaPx.width() - card.width()) / 2.0,
                         (areaPx.height() - card.height()) / 2.0);
    painter.fillRect(QRectF(corner, card), QColor(0x80, 0x80, 0x80));
}

void ChartWindow::paintHint(QPainter& painter) const
{
    const double margin = fontMetrics().height();
    painter.setPen(Qt::black);
    painter.drawText(hintBand().adjusted(margin, 0, -margin, 0), hintFlags,
                     chartHint(state_.mirrored));
}

void ChartWindow::paintInstructions(QPainter& painter) const
{
    const QLocale french(QLocale::French);
    const QString density = french.toString(pixelsPerMmFromCardWidth(cardWidthPx_), 'f', 2);
    const QString text =
        u"Étalonnage de l'écran\n\n"
        u"Posez une carte bancaire contre l'écran sur le rectangle gris\n"
        u"et ajustez le rectangle à la taille exacte de la carte (85,60 × 53,98 mm).\n\n"
        u"← → ou molette : ajuster   Maj : par 10 pixels   souris : faire glisser un bord\n"
        u"Entrée : valider   Échap : annuler\n\n"_s +
        density + u" pixels par millimètre"_s;
    const double margin = fontMetrics().height();
    painter.setPen(Qt::black);
    painter.drawText(QRectF(margin, margin, width() - 2 * margin, height() - 2 * margin),
                     Qt::AlignHCenter | Qt::AlignTop, text);
}

} // namespace lumetra
