#pragma once

#include "controls.h"

#include <QTimer>
#include <QWidget>

namespace vorkan {

// The little pair of arrows beside a stepped field: the style's spin-box buttons,
// stepping once on a press and again and again while the button is held.
class UpDownArrows : public QWidget {
    Q_OBJECT

public:
    explicit UpDownArrows(QWidget* parent);

    MouseWheelHandler MouseWheel;

    void Refresh(bool /*now*/ = true) { update(); }
    QSize sizeHint() const override { return {13, 25}; }

Q_SIGNALS:
    void Up();
    void Down();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum class Part { None, Up, Down };
    Part partAt(QPoint at) const;
    void step();
    void stop();

    Part pressed_ = Part::None;
    QTimer repeat_;
};

} // namespace vorkan
