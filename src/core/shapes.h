#pragma once

#include <QColor>
#include <QLine>
#include <QWidget>

namespace vorkan {

// Filled rectangle with a border whose top-left and bottom-right edges may differ.
class Rectangle : public QWidget {
public:
    Rectangle(QWidget* parent, QColor fill, QColor topLeft, QColor bottomRight, int borderWidth);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill_, topLeft_, bottomRight_;
    int borderWidth_;
};

class RoundRectangle : public QWidget {
public:
    RoundRectangle(QWidget* parent, QColor fill, QColor border, int borderWidth, QSize oval);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor fill_, border_;
    int borderWidth_;
    QSize oval_;
};

// A straight line between two points of its parent; it takes no mouse events.
class Line : public QWidget {
public:
    Line(QWidget* parent, QLine line, QColor color, int width);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLine line_;
    QColor color_;
    int width_;
};

// A vertical divider in a status bar.
class Separator : public QWidget {
public:
    explicit Separator(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vorkan
