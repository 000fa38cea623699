#pragma once

#include "accessor.h"
#include "steppedfields.h"

namespace vorkan {

// Body surface area by Dubois, Gehan and George, and Mosteller, from the same stepped
// height and weight as imc. Each calculation stores height and weight in the record.
class surf : public SteppedWindow {
public:
    static constexpr QStringView FullName = u"surf.surf";

    bool surftaille_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    bool surftaille_KeyDown(const QString& Key);
    void surftaille_KeyUp();
    bool surfUpDownArrows1_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    void surfUpDownArrows1_Down();
    void surfUpDownArrows1_Up();
    bool surfpoids_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    bool surfpoids_KeyDown(const QString& Key);
    void surfpoids_KeyUp();
    bool surfUpDownArrows2_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    void surfUpDownArrows2_Down();
    void surfUpDownArrows2_Up();
    void surfaide_MouseExit();
    void surfaide_Action();

protected:
    void CreateControls() override;
    void Event_Open() override;
    void calc() override;

private:
    friend class ImplicitWindows;
    surf();

    ControlRef<TextField> surftaille{this, u"surftaille"};
    ControlRef<UpDownArrows> surfUpDownArrows1{this, u"surfUpDownArrows1"};
    ControlRef<TextField> surfpoids{this, u"surfpoids"};
    ControlRef<UpDownArrows> surfUpDownArrows2{this, u"surfUpDownArrows2"};
    ControlRef<PushButton> surfaide{this, u"surfaide"};
    ControlRef<StaticText> StaticText6{this, u"StaticText6"};
    ControlRef<StaticText> StaticText7{this, u"StaticText7"};
    ControlRef<StaticText> StaticText8{this, u"StaticText8"};
};

VORKAN_ACCESSOR(surf)

} // namespace vorkan
