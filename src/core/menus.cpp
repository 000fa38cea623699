#include "menus.h"

#include "nilobjectexception.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace vorkan {

MenuItem menuItem(const QString& name, const QString& text)
{
    return {name, text, {}, false, {}};
}

MenuItem quitMenuItem()
{
    return {u"FileQuit"_s, u"Quitter"_s, u"Cmd+Q"_s, true, {}};
}

MenuItem& MenuBar::Child(QStringView name)
{
    for (MenuItem& menu : menus_)
        if (menu.Name == name)
            return menu;
    throw NilObjectException(u"no menu " + name.toString());
}

namespace {

// The program's shortcuts are written with "Cmd"; Qt says Ctrl and makes it Cmd on macOS.
QKeySequence shortcutOf(const MenuItem& item)
{
    QString keys = item.KeyboardShortcut;
    keys.replace(u"Cmd+"_s, u"Ctrl+"_s);
    return QKeySequence(keys, QKeySequence::PortableText);
}

void addItem(QMenu& menu, const MenuItem& item)
{
    QAction* action = item.isSeparator() ? menu.addSeparator() : menu.addAction(item.Text);
    action->setObjectName(item.Name);
    if (item.isSeparator())
        return;
    action->setShortcut(shortcutOf(item));
    action->setEnabled(item.quits);
    if (item.quits) {
        action->setMenuRole(QAction::QuitRole);
        QObject::connect(action, &QAction::triggered, action, &quitApplication);
    }
}

} // namespace

QMenuBar* buildMenuBar(const MenuBar& model, QWidget* window)
{
    auto* bar = new QMenuBar(window);
    for (const MenuItem& menuItem : model.menus()) {
        QMenu* menu = bar->addMenu(menuItem.Text);
        menu->setObjectName(menuItem.Name);
        for (const MenuItem& item : menuItem.children)
            addItem(*menu, item);
    }
    return bar;
}

void quitApplication()
{
    QApplication::closeAllWindows();
    QCoreApplication::quit();
}

} // namespace vorkan
