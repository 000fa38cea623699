#pragma once

#include <QString>

#include <vector>

class QMenuBar;
class QWidget;

namespace vorkan {

// An item of a menu bar as the program describes it; a window shows it as a Qt
// action named after it, by which code finds it.
struct MenuItem {
    QString Name;
    QString Text; // "&" marks the mnemonic, "-" makes a separator
    QString KeyboardShortcut;
    bool quits = false; // the item that closes every window and ends the program
    std::vector<MenuItem> children;

    bool isSeparator() const { return Text == u'-'; }
    void Append(MenuItem item) { children.push_back(std::move(item)); }
};

MenuItem menuItem(const QString& name, const QString& text);
// "Quitter", Cmd+Q (Ctrl+Q but on macOS), which works from every window.
MenuItem quitMenuItem();

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

// A menu bar's one instance, built on first use and kept for the life of the process.
template<class Bar> Bar& menuBarInstance()
{
    static Bar instance;
    return instance;
}

// Builds a window's bar from the description. Every item starts disabled until a
// handler of the window takes it, but for the one that quits, which always works.
QMenuBar* buildMenuBar(const MenuBar& model, QWidget* window);

// Closes every window, then ends the program.
void quitApplication();

} // namespace vorkan
