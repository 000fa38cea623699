#pragma once

#include "core/accessor.h"
#include "steppedfields.h"

namespace vorkan {

// Body surface area by Dubois, Gehan and George, and Mosteller, from the same stepped
// height and weight as imc. Each calculation stores height and weight in the record.
class surf : public SteppedWindow {
public:
    static constexpr QStringView FullName = u"surf.surf";

    void surfaide_Action();
    void surfaide_MouseExit();

protected:
    void CreateControls() override;
    void Event_Open() override;
    void calc() override;

private:
    friend class ImplicitWindows;
    surf();
};

VORKAN_ACCESSOR(surf)

} // namespace vorkan
