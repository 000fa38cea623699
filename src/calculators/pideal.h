#pragma once

#include "core/accessor.h"
#include "core/types.h"
#include "core/window.h"

namespace vorkan {

// Ideal weight by five formulas from a height slider, an age slider and the sex. It
// starts from the record's height but keeps its own values: it writes nothing back.
class pideal : public Window {
public:
    static constexpr QStringView FullName = u"pideal.pideal";

protected:
    void CreateControls() override;
    void Event_Open() override;
    void calc();

private:
    friend class ImplicitWindows;
    pideal();

    void Slider1_ValueChanged();
    void Slider2_ValueChanged();
    void PopupMenu1_Change();

    // The sex factor, read from the popup anew at each formula: a man is row 0.
    Single factor(Single man, Single woman) const;
    void write(QStringView name, Double value);
};

VORKAN_ACCESSOR(pideal)

} // namespace vorkan
