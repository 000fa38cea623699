#pragma once

#include <QPointer>
#include <QString>

class QLabel;
class QLineEdit;

namespace vorkan {

class TipWidget;

// The balloon that says why a field refused a key. It stays long enough to be read
// after fast typing, whatever is typed next; a further refusal starts its time again.
// It sits as near the field as it can on the screen, covering no label, button or
// field of the window, and goes with the field's focus.
class RefusalBalloon {
public:
    explicit RefusalBalloon(QLineEdit& field) : field_(field) {}

    void show(const QString& why);
    void hide();
    // The balloon while it is up, else null.
    const QLabel* shown() const;

    static constexpr int shownMs = 5000;

private:
    QLineEdit& field_;
    QPointer<TipWidget> tip_;
};

} // namespace vorkan
