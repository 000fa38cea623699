#pragma once

#include "layout.h"

class QWidget;

namespace vorkan {

// Creates the control a layout row describes, with all its properties but its place.
QWidget* makeControl(const LayoutRow& row, QWidget* parent);

} // namespace vorkan
