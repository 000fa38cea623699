#pragma once

#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenuBar;
class QWidget;

namespace vorkan {

// An item of a menu bar as the program describes it; a window shows it as a Qt
// action. Code finds an item by its name.
struct MenuItem {
    QString Name;
    QString Text; // "&" marks the mnemonic, "-" makes a separator
    QString KeyboardShortcut;
    bool AutoEnable = true;
    bool quits = false; // the item that closes every window and ends the program
    std::vector<MenuItem> children;

    bool isSeparator() const { return Text == u'-'; }
    void Append(MenuItem item) { children.push_back(std::move(item)); }
};

// The description of a window's menus; each window builds its own bar from it.
class MenuBar {
public:
    virtual ~MenuBar() = default;

    void Append(MenuItem menu) { menus_.push_back(std::move(menu)); }
    // The menu of that name; throws NilObjectException when there is none.
    MenuItem& Child(QStringView name);
    const std::vector<MenuItem>& menus() const { return menus_; }

private:
    std::vector<MenuItem> menus_;
};

// Builds a window's bar from the description: each action is named after its item
// and reports its item to onTriggered.
QMenuBar* buildMenuBar(const MenuBar& model, QWidget* window,
                       const std::function<void(const MenuItem&)>& onTriggered);

// Closes every window, then ends the program.
void quitApplication();

} // namespace vorkan
