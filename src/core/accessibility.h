#pragma once

class QString;
class QWidget;

namespace vorkan {

// Lets assistive tools read a result label, or a list, as its name (its visible label)
// and its value (the figure, or the chosen row), as they read a field.
void installAccessibility();

// Tells assistive tools that the value a label or list shows has changed, when any of
// them listens.
void announceTextChange(QWidget& control, const QString& before, const QString& after);

// Names a control after its label: a label's caption, prefixed with the title of the
// group the control sits in, or a group's title.
void applyLabel(QWidget& control, QWidget& label);

} // namespace vorkan
