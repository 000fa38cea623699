#pragma once

class QWidget;

namespace vorkan {

// Lets assistive tools read a result label as its name (its visible label) and its
// value (the figure), as they read a field.
void installAccessibility();

// Tells assistive tools that a label's text has changed, when any of them listens.
void announceTextChange(QWidget& label);

// Names a control after its label: a label's caption, prefixed with the title of the
// group the control sits in, or a group's title.
void applyLabel(QWidget& control, QWidget& label);

} // namespace vorkan
