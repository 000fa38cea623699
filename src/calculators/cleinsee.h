#pragma once

#include "core/accessor.h"
#include "core/types.h"
#include "core/window.h"

namespace vorkan {

// The control key of a 13-digit INSEE number, shown on Return and on the key press
// after the thirteenth digit, and copied with the number to the clipboard.
class cleinsee : public Window {
public:
    static constexpr QStringView FullName = u"cleinsee.cleinsee";

protected:
    void CreateControls() override;
    void Event_Close() override;
    void calc();

private:
    friend class ImplicitWindows;
    cleinsee();

    bool TextField1_KeyDown(const QString& Key);
    void StaticText2_MouseExit();
    bool StaticText2_MouseDown(Int32 X, Int32 Y);
    void BevelButton1_Action();
    void BevelButton2_Action();
    void cleaide_Action();
    void cleaide_MouseExit();
};

VORKAN_ACCESSOR(cleinsee)

} // namespace vorkan
