#pragma once

#include "accessor.h"
#include "controls.h"
#include "window.h"

namespace vorkan {

// The Norton scale of the risk of pressure sores: five criteria of four levels each,
// and the score with its risk once all five are chosen. Its own menu clears and
// copies the result.
class norton : public Window {
public:
    static constexpr QStringView FullName = u"norton.norton";

    void PopupMenu1_Change();
    void PopupMenu2_Change();
    void PopupMenu3_Change();
    void PopupMenu4_Change();
    void PopupMenu5_Change();

    QAction& OptionsMenu() const { return menuItem(u"OptionsMenu"); }
    QAction& FileQuit() const { return menuItem(u"FileQuit"); }
    QAction& UntitledSeparator() const { return menuItem(u"UntitledSeparator"); }
    QAction& OptionsCopier() const { return menuItem(u"OptionsCopier"); }
    QAction& UntitledSeparator0() const { return menuItem(u"UntitledSeparator0"); }
    QAction& OptionsRAZ() const { return menuItem(u"OptionsRAZ"); }

    bool OptionsRAZ_Action();
    bool OptionsCopier_Action();

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

    // The five criteria in their order, each with its rows, best first.
    ControlRef<PopupMenu> criteria[5]{{this, u"PopupMenu1"},
                                      {this, u"PopupMenu2"},
                                      {this, u"PopupMenu3"},
                                      {this, u"PopupMenu4"},
                                      {this, u"PopupMenu5"}};
    ControlRef<StaticText> StaticText1{this, u"StaticText1"};
};

VORKAN_ACCESSOR(norton)

} // namespace vorkan
