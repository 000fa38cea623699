#pragma once

#include "accessor.h"
#include "controls.h"
#include "types.h"
#include "window.h"

namespace vorkan {

// The control key of a 13-digit INSEE number, shown on Return and on the key press
// after the thirteenth digit, and copied with the number to the clipboard.
class cleinsee : public Window {
public:
    static constexpr QStringView FullName = u"cleinsee.cleinsee";

    bool TextField1_KeyDown(const QString& Key);
    void StaticText2_MouseExit();
    bool StaticText2_MouseDown(Int32 X, Int32 Y);
    void BevelButton1_Action();
    void BevelButton2_Action();
    void cleaide_Action();
    void cleaide_MouseExit();

protected:
    void CreateControls() override;
    void Event_Close() override;
    void calc();

private:
    friend class ImplicitWindows;
    cleinsee();

    ControlRef<TextField> TextField1{this, u"TextField1"};
    ControlRef<TextField> TextField2{this, u"TextField2"};
    ControlRef<StaticText> StaticText2{this, u"StaticText2"};
    ControlRef<BevelButton> BevelButton1{this, u"BevelButton1"};
    ControlRef<BevelButton> BevelButton2{this, u"BevelButton2"};
    ControlRef<PushButton> cleaide{this, u"cleaide"};
};

VORKAN_ACCESSOR(cleinsee)

} // namespace vorkan
