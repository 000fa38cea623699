#include "shapes.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace vorkan {

namespace {

// Text inside a filled shape stays readable whatever the desktop's colours: it takes
// black on a light fill and white on a dark one. A palette that already reads so is
// left alone: setting one spreads to every child, a cost paid at each start.
void contrastWithFill(QWidget& shape, const QColor& fill)
{
    QPalette palette = shape.palette();
    const QColor text = fill.lightnessF() > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
    if (palette.color(QPalette::WindowText) == text && palette.color(QPalette::Text) == text)
        return;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    shape.setPalette(palette);
}

} // namespace

Rectangle::Rectangle(QWidget* parent, QColor fill, QColor topLeft, QColor bottomRight,
                     int borderWidth)
    : QWidget(parent), fill_(fill), topLeft_(topLeft), bottomRight_(bottomRight),
      borderWidth_(borderWidth)
{
    contrastWithFill(*this, fill);
}

void Rectangle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), fill_);
    const int w = borderWidth_;
    painter.fillRect(0, 0, width(), w, topLeft_);
    painter.fillRect(0, 0, w, height(), topLeft_);
    painter.fillRect(0, height() - w, width(), w, bottomRight_);
    painter.fillRect(width() - w, 0, w, height(), bottomRight_);
}

RoundRectangle::RoundRectangle(QWidget* parent, QColor fill, QColor border, int borderWidth,
                               QSize oval)
    : QWidget(parent), fill_(fill), border_(border), borderWidth_(borderWidth), oval_(oval)
{
    contrastWithFill(*this, fill);
}

void RoundRectangle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(border_, borderWidth_));
    painter.setBrush(fill_);
    const qreal inset = borderWidth_ / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                            oval_.width() / 2.0, oval_.height() / 2.0);
}

Line::Line(QWidget* parent, QLine line, QColor color, int width)
    : QWidget(parent), line_(line), color_(color), width_(width)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const int left = std::min(line.x1(), line.x2());
    const int top = std::min(line.y1(), line.y2());
    setGeometry(left, top, std::abs(line.dx()) + width, std::abs(line.dy()) + width);
}

void Line::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(QPen(color_, width_, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(line_.translated(-pos()));
}

Separator::Separator(QWidget* parent) : QWidget(parent) {}

void Separator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, 1, height()), palette().color(QPalette::Dark));
}

} // namespace vorkan
