#include "controls.h"

#include "accessibility.h"
#include "editmenu.h"
#include "platform.h"

#include <QContextMenuEvent>
#include <QMouseEvent>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vorkan {

StaticText::StaticText(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void StaticText::setText(const QString& caption)
{
    caption_ = caption;
    QString shown = caption;
    shown.replace(u"&&"_s, u"&"_s);
    const QString before = QLabel::text();
    QLabel::setText(shown);
    if (labelled_)
        labelled_->setAccessibleName(labelPrefix_ + shown);
    announceTextChange(*this, before, shown);
}

void StaticText::labels(QWidget& control, const QString& prefix)
{
    labelled_ = &control;
    labelPrefix_ = prefix;
    control.setAccessibleName(prefix + QLabel::text());
}

void StaticText::setSelectable()
{
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void StaticText::paintEvent(QPaintEvent* event)
{
    fitFont();
    QLabel::paintEvent(event);
}

// Measured when painted rather than when written, so that a calculation that writes
// many results pays nothing for it. A font that changes asks for one more paint.
void StaticText::fitFont()
{
    if (!layoutFont_)
        layoutFont_ = font();
    const QString shown = QLabel::text();
    const int room = contentsRect().width();
    QFont fitted = *layoutFont_;
    constexpr qreal smallest = 6;
    while (fitted.pointSizeF() > smallest && QFontMetricsF(fitted).horizontalAdvance(shown) > room)
        fitted.setPointSizeF(fitted.pointSizeF() - 0.5);
    if (fitted == font())
        return;
    setFont(fitted);
    placeText();
}

// A smaller font keeps the baseline where the layout's font has it.
void StaticText::placeText()
{
    const QFont layout = layoutFont_.value_or(font());
    setContentsMargins(0, baselineDrop_ + QFontMetrics(layout).ascent() - fontMetrics().ascent(), 0,
                       0);
}

int StaticText::baselineInWindow() const
{
    const QFont layout = layoutFont_.value_or(font());
    return mapTo(window(), QPoint(0, baselineDrop_)).y() + QFontMetrics(layout).ascent();
}

void StaticText::shareBaseline(StaticText& other)
{
    const int below = other.baselineInWindow() - baselineInWindow();
    if (below == 0)
        return;
    StaticText& higher = below > 0 ? *this : other;
    higher.baselineDrop_ += std::abs(below);
    higher.placeText();
}

void StaticText::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (MouseDown && MouseDown(at.x(), at.y()))
        return;
    QLabel::mousePressEvent(event);
}

// A figure is one thing to copy: a double-click takes all of it, signs and marks too.
void StaticText::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (textInteractionFlags() & Qt::TextSelectableByMouse)
        setSelection(0, static_cast<int>(QLabel::text().size()));
    else
        QLabel::mouseDoubleClickEvent(event);
}

void StaticText::contextMenuEvent(QContextMenuEvent* event)
{
    if (!(textInteractionFlags() & Qt::TextSelectableByMouse)) {
        QLabel::contextMenuEvent(event);
        return;
    }
    const QString shown = QLabel::text();
    popUpEditMenu(*this, event->globalPos(),
                  {{u"&Copier"_s, QKeySequence::Copy, hasSelectedText(),
                    [this] { Clipboard::setText(selectedText()); }},
                   {},
                   {u"&Tout sélectionner"_s, QKeySequence::SelectAll, selectedText() != shown,
                    [this, shown] { setSelection(0, static_cast<int>(shown.size())); }}});
}

void StaticText::leaveEvent(QEvent* event)
{
    QLabel::leaveEvent(event);
    Q_EMIT MouseExit();
}

} // namespace vorkan
