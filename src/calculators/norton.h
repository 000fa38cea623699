#pragma once

#include "core/accessor.h"
#include "core/window.h"

namespace vorkan {

// The Norton scale of the risk of pressure sores: five criteria of four levels each,
// and the score with its risk once all five are chosen. Its own menu clears and
// copies the result.
class norton : public Window {
public:
    static constexpr QStringView FullName = u"norton.norton";

    bool OptionsRAZ_Action();
    bool OptionsCopier_Action();

    QAction& OptionsMenu() const { return menuItem(u"OptionsMenu"); }
    QAction& FileQuit() const { return menuItem(u"FileQuit"); }
    QAction& UntitledSeparator() const { return menuItem(u"UntitledSeparator"); }
    QAction& OptionsCopier() const { return menuItem(u"OptionsCopier"); }
    QAction& UntitledSeparator0() const { return menuItem(u"UntitledSeparator0"); }
    QAction& OptionsRAZ() const { return menuItem(u"OptionsRAZ"); }

protected:
    void Layout() override;
    void CreateControls() override;
    void AddMenuHandlers() override;
    void Event_Open() override;
    void Event_Close() override;
    void calc();

private:
    friend class ImplicitWindows;
    norton();

    void PopupMenu1_Change();
    void PopupMenu2_Change();
    void PopupMenu3_Change();
    void PopupMenu4_Change();
    void PopupMenu5_Change();
};

VORKAN_ACCESSOR(norton)

} // namespace vorkan
