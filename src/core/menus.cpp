#include "menus.h"

#include "nilobjectexception.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
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

// Escape closes a menu and gives the keyboard back to the control that had it, where
// the focus shows, instead of leaving it on the bar's title, where it hardly shows and
// Tab does nothing.
class EscapeLeavesBar : public QObject {
public:
    explicit EscapeLeavesBar(QMenuBar* bar) : QObject(bar), bar_(bar) {}

    bool eventFilter(QObject* /*menu*/, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel))
            QMetaObject::invokeMethod(this, &EscapeLeavesBar::leaveBar, Qt::QueuedConnection);
        return false;
    }

private:
    void leaveBar()
    {
        if (!bar_->hasFocus())
            return;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(bar_, &escape);
    }

    QMenuBar* bar_;
};

} // namespace

QMenuBar* buildMenuBar(const MenuBar& model, QWidget* window)
{
    auto* bar = new QMenuBar(window);
    auto* escape = new EscapeLeavesBar(bar);
    for (const MenuItem& menuItem : model.menus()) {
        QMenu* menu = bar->addMenu(menuItem.Text);
        menu->installEventFilter(escape);
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
