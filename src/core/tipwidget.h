#pragma once

#include <QLabel>
#include <QTimer>

namespace vorkan {

// A small box of text in the desktop's tip colours that floats above the windows. It
// takes neither the focus nor the mouse, so showing it changes nothing under it.
class TipWidget : public QLabel {
public:
    explicit TipWidget(QWidget* owner = nullptr);

    // Shows the text, one line per line break, with the box's top left corner there;
    // it hides itself after that many milliseconds, or stays when that is 0.
    void showAt(const QString& lines, QPoint corner, int hideAfterMs = 0);
    // The size of the box with that text, before it is shown.
    QSize sizeFor(const QString& lines);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer expiry_;
};

} // namespace vorkan
