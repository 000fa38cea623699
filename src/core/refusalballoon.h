#pragma once

#include <QPointer>
#include <QString>

class QLabel;
class QLineEdit;

namespace vorkan {

class TipWidget;

// The balloon that says why a field refused a key. It stays long enough to be read
// after fast typing, whatever is typed next; a further refusal starts its time again.
// It sits next to the field, covering neither the field nor any control the user
// works with, and goes with the field's focus.
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
