#pragma once

#include "accessor.h"
#include "controls.h"
#include "window.h"

namespace vorkan {

// The main window: a button for each calculator and companion program, and today's
// date in the status bar.
class Window1 : public Window {
public:
    static constexpr QStringView FullName = u"Window1.Window1";

    void BevelButton1_Action();
    void BevelButton2_Action();
    void BevelButton3_Action();
    void BevelButton4_Action();
    void BevelButton5_Action();
    void BevelButton6_Action();
    void BevelButton7_Action();

    QAction& OptionsMenu() const { return menuItem(u"OptionsMenu"); }
    QAction& OptionsInfos() const { return menuItem(u"OptionsInfos"); }
    QAction& FileQuit() const { return menuItem(u"FileQuit"); }

    bool OptionsInfos_Action();

protected:
    void Layout() override;
    void CreateControls() override;
    void AddMenuHandlers() override;
    void Event_Open() override;
    void Event_Close() override {}

    // Starts a companion program found beside this one.
    void launcher(const QString& name);

private:
    friend class ImplicitWindows;
    Window1();

    ControlRef<StaticText> sbdate{this, u"sbdate"};
};

VORKAN_ACCESSOR(Window1)

} // namespace vorkan
