#pragma once

#include "core/accessor.h"
#include "core/window.h"

namespace vorkan {

// The main window: a button for each calculator and companion program, and today's
// date in the status bar.
class Window1 : public Window {
public:
    static constexpr QStringView FullName = u"Window1.Window1";

    bool OptionsInfos_Action();

    QAction& OptionsMenu() const { return menuItem(u"OptionsMenu"); }
    QAction& OptionsInfos() const { return menuItem(u"OptionsInfos"); }
    QAction& FileQuit() const { return menuItem(u"FileQuit"); }

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
};

VORKAN_ACCESSOR(Window1)

} // namespace vorkan
