#pragma once

#include "layout.h"
#include "nilobjectexception.h"

#include <QAction>
#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>

#include <span>
#include <vector>

class QMenu;
class QMenuBar;

namespace vorkan {

class ControlRefBase;
class MenuBar;

// The fixed properties of a window class.
struct WindowProps {
    QStringView title;
    int width; // of the client area, below any menu bar
    int height;
    bool maximizeButton = false;
    bool closesWithKey = true; // the platform's Close key (Ctrl+W) closes it
};

// A top-level window of fixed size whose controls come from a layout table. It is
// built in this order: Layout, CreateControls, AddMenuHandlers, Event_Open; closing
// it destroys it.
class Window : public QWidget {
    Q_OBJECT

public:
    ~Window() override;

    // Brings the window up and to the front, also from the task bar where it was
    // minimised.
    void Show();
    void Close();

    // Where the client area stands on the screen, below the title bar and any menu bar.
    int Left() const;
    int Top() const;
    void setLeft(int left);
    void setTop(int top);
    int Width() const { return props_.width; }
    int Height() const { return props_.height; }

    // The control of that name; throws NilObjectException when there is none of
    // that name and class.
    template<class Control> Control& control(QStringView name) const
    {
        auto* found = dynamic_cast<Control*>(controls_.value(name.toString()));
        if (!found)
            throw NilObjectException(u"no control " + name.toString() + u" in " + windowTitle());
        return *found;
    }

    // The item of that name in the window's menu bar; throws NilObjectException.
    QAction& menuItem(QStringView name) const;

protected:
    explicit Window(const WindowProps& props);

    // Applies the window's properties; calculators open centred on the main screen.
    virtual void Layout();
    virtual void CreateControls() = 0;
    virtual void AddMenuHandlers() {}
    virtual void Event_Open() {}
    virtual void Event_Close() {}

    // Makes the controls of the layout table, names each after its label for assistive
    // tools, sets each figure on its label's baseline, and finds the controls the
    // window's code uses.
    void createControls(std::span<const LayoutRow> rows, std::span<const LabelledBy> labels = {});
    // The window's menus; a window that sets none shows the application's.
    void setMenuBar(const MenuBar& bar);
    // The command of that item, enabled from now on, reaches this handler of the window.
    template<class W> void AddMenuHandler(QStringView itemName, bool (W::*handler)())
    {
        QAction& item = menuItem(itemName);
        item.setEnabled(true);
        connect(&item, &QAction::triggered, static_cast<W*>(this), handler);
    }
    QWidget& clientArea() const { return *client_; }

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    friend class ImplicitWindows;
    friend class ControlRefBase;
    void build();
    void placeCentred();
    QPoint clientOffset() const;
    void applyTabOrder(std::span<const LayoutRow> rows);
    QList<QMenu*> menus() const;

    WindowProps props_;
    QWidget* client_;
    QMenuBar* menuBar_ = nullptr;
    QHash<QString, QWidget*> controls_;
    std::vector<ControlRefBase*> controlRefs_;
};

// A control that the window's code uses, found by its name and class once, when the
// window's controls are made, so that a wrong name or class stops the window from
// opening instead of failing later in a handler.
class ControlRefBase {
public:
    ControlRefBase(const ControlRefBase&) = delete;
    ControlRefBase& operator=(const ControlRefBase&) = delete;

protected:
    ControlRefBase(Window* window, QStringView name);
    ~ControlRefBase() = default;

    QStringView name_;

private:
    friend class Window;
    virtual void resolve(const Window& window) = 0;
};

template<class Control> class ControlRef final : public ControlRefBase {
public:
    ControlRef(Window* window, QStringView name) : ControlRefBase(window, name) {}
    Control& operator()() const { return *control_; }

private:
    void resolve(const Window& window) override { control_ = &window.control<Control>(name_); }

    Control* control_ = nullptr;
};

// One live window per class, found by the class's full name ("imc.imc"). A window is
// registered before its Event_Open runs, so that a call from inside it returns the
// window being built, and leaves the list when it closes.
class ImplicitWindows {
public:
    template<class W> static W& instance()
    {
        if (Window* live = find(W::FullName))
            return static_cast<W&>(*live);
        auto* created = new W;
        add(W::FullName, created);
        created->build();
        return *created;
    }

    static Window* find(QStringView fullName);
    static int count();

private:
    friend class Window;
    static void add(QStringView fullName, Window* window);
    static void remove(const Window* window);
};

} // namespace vorkan
