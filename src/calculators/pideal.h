#pragma once

#include "accessor.h"
#include "controls.h"
#include "types.h"
#include "window.h"

namespace vorkan {

// Ideal weight by five formulas from a height slider, an age slider and the sex. It
// starts from the record's height but keeps its own values: it writes nothing back.
class pideal : public Window {
public:
    static constexpr QStringView FullName = u"pideal.pideal";

    void Slider1_ValueChanged();
    void Slider2_ValueChanged();
    void PopupMenu1_Change();

protected:
    void CreateControls() override;
    void Event_Open() override;
    void calc();

private:
    friend class ImplicitWindows;
    pideal();

    // The sex factor, read from the popup anew at each formula: a man is row 0.
    Single factor(Single man, Single woman) const;
    static void write(StaticText& result, Double value);

    ControlRef<Slider> Slider1{this, u"Slider1"};
    ControlRef<StaticText> StaticText1{this, u"StaticText1"};
    ControlRef<Slider> Slider2{this, u"Slider2"};
    ControlRef<StaticText> StaticText2{this, u"StaticText2"};
    ControlRef<PopupMenu> PopupMenu1{this, u"PopupMenu1"};
    ControlRef<StaticText> StaticText8{this, u"StaticText8"};
    ControlRef<StaticText> StaticText9{this, u"StaticText9"};
    ControlRef<StaticText> StaticText10{this, u"StaticText10"};
    ControlRef<StaticText> StaticText11{this, u"StaticText11"};
    ControlRef<StaticText> StaticText12{this, u"StaticText12"};
};

VORKAN_ACCESSOR(pideal)

} // namespace vorkan
