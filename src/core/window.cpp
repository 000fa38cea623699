#include "window.h"

#include "accessibility.h"
#include "app.h"
#include "controlfactory.h"
#include "controls.h"
#include "menus.h"
#include "platform.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <vector>

namespace vorkan {

namespace {

QHash<QString, Window*>& implicitWindows()
{
    static QHash<QString, Window*> windows;
    return windows;
}

} // namespace

Window* ImplicitWindows::find(QStringView fullName)
{
    return implicitWindows().value(fullName.toString());
}

int ImplicitWindows::count()
{
    return static_cast<int>(implicitWindows().size());
}

void ImplicitWindows::add(QStringView fullName, Window* window)
{
    implicitWindows().insert(fullName.toString(), window);
}

void ImplicitWindows::remove(const Window* window)
{
    auto& windows = implicitWindows();
    for (auto it = windows.begin(); it != windows.end();) {
        if (it.value() == window)
            it = windows.erase(it);
        else
            ++it;
    }
}

Window::Window(const WindowProps& props)
    : QWidget(nullptr, Qt::Window), props_(props), client_(new QWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(client_);
    if (props.closesWithKey)
        new QShortcut(QKeySequence::Close, this, this, &Window::Close);
}

Window::~Window()
{
    ImplicitWindows::remove(this);
}

void Window::build()
{
    Layout();
    if (!menuBar_ && App().MenuBar)
        setMenuBar(*App().MenuBar);
    CreateControls();
    AddMenuHandlers();
    Event_Open();
    show();
}

void Window::Layout()
{
    setWindowTitle(props_.title.toString());
    setWindowFlag(Qt::WindowMaximizeButtonHint, props_.maximizeButton);
    client_->setFixedSize(props_.width, props_.height);
    placeCentred();
}

namespace {

// The frame that the desktop draws around a window, as it has drawn it around one of the
// program's windows already on the screen; a new window has none until it is shown.
QMargins frameOnScreen(const QWidget& window)
{
    for (const QWidget* shown : QApplication::topLevelWidgets())
        if (shown->isVisible() && shown->windowHandle() &&
            shown->frameGeometry() != shown->geometry())
            return shown->windowHandle()->frameMargins();
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return {0, titleBar, 0, 0};
}

} // namespace

// The client area is centred on the free area of the screen. A window larger than that
// area starts at its top left corner instead, its title bar on the screen, where the
// window can still be moved.
void Window::placeCentred()
{
    const QRect area = availableScreenArea();
    const QMargins frame = frameOnScreen(*this);
    const QPoint menuBar = clientOffset();
    setLeft(std::max(area.left() + frame.left() + menuBar.x(),
                     area.left() + (area.width() - props_.width) / 2));
    setTop(std::max(area.top() + frame.top() + menuBar.y(),
                    area.top() + (area.height() - props_.height) / 2));
}

void Window::setMenuBar(const MenuBar& bar)
{
    delete menuBar_;
    menuBar_ = buildMenuBar(bar, this);
    layout()->setMenuBar(menuBar_);
}

QAction& Window::menuItem(QStringView name) const
{
    QAction* found = nullptr;
    for (QMenu* menu : menus()) {
        if (menu->objectName() == name)
            found = menu->menuAction();
        for (QAction* action : menu->actions())
            if (action->objectName() == name)
                found = action;
    }
    if (!found)
        throw NilObjectException(u"no menu item " + name.toString() + u" in " + windowTitle());
    return *found;
}

// The menus of the bar itself. Qt keeps further menus under the bar, as the one that
// lists the titles a narrow window has no room for, whose entries are the titles.
QList<QMenu*> Window::menus() const
{
    QList<QMenu*> own;
    if (menuBar_)
        for (QAction* title : menuBar_->actions())
            if (title->menu())
                own << title->menu();
    return own;
}

// Where the client area lies inside the window's own geometry: below its menu bar.
QPoint Window::clientOffset() const
{
    layout()->activate();
    return client_->pos();
}

int Window::Left() const
{
    return geometry().x() + clientOffset().x();
}

int Window::Top() const
{
    return geometry().y() + clientOffset().y();
}

void Window::setLeft(int left)
{
    const QPoint offset = clientOffset();
    setGeometry(QRect(QPoint(left - offset.x(), geometry().y()), size()));
}

void Window::setTop(int top)
{
    const QPoint offset = clientOffset();
    setGeometry(QRect(QPoint(geometry().x(), top - offset.y()), size()));
}

void Window::Show()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Window::Close()
{
    close();
}

// The focus shows from the moment the window opens, not only after the first Tab:
// someone at the keyboard must see where typing goes.
void Window::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void Window::closeEvent(QCloseEvent* event)
{
    Tooltip::windowClosing(this);
    ImplicitWindows::remove(this);
    Event_Close();
    event->accept();
}

ControlRefBase::ControlRefBase(Window* window, QStringView name) : name_(name)
{
    window->controlRefs_.push_back(this);
}

void Window::createControls(std::span<const LayoutRow> rows, std::span<const LabelledBy> labels)
{
    for (const LayoutRow& row : rows) {
        QWidget* parent =
            row.props.inside.isEmpty() ? client_ : &control<QWidget>(row.props.inside);
        QWidget* widget = makeControl(row, parent);
        widget->setObjectName(row.name.toString());
        if (row.kind != Kind::Line)
            widget->setGeometry(row.geometry.translated(-parent->mapTo(client_, QPoint(0, 0))));
        controls_.insert(row.name.toString(), widget);
    }
    for (const LabelledBy& pair : labels) {
        applyLabel(control<QWidget>(pair.control), control<QWidget>(pair.label));
        auto* figure = qobject_cast<StaticText*>(&control<QWidget>(pair.control));
        if (auto* caption = qobject_cast<StaticText*>(&control<QWidget>(pair.label));
            figure && caption)
            figure->shareBaseline(*caption);
    }
    for (const LayoutRow& row : rows)
        if (!row.props.accessibleName.isEmpty())
            control<QWidget>(row.name).setAccessibleName(row.props.accessibleName.toString());
    applyTabOrder(rows);
    for (ControlRefBase* ref : controlRefs_)
        ref->resolve(*this);
}

// Focus moves through a parent's controls by their tab index, and into a container's
// controls right after the container's own place.
void Window::applyTabOrder(std::span<const LayoutRow> rows)
{
    std::vector<QWidget*> chain;
    const auto visit = [&](auto&& self, QStringView parent) -> void {
        std::vector<const LayoutRow*> level;
        for (const LayoutRow& row : rows)
            if (row.props.inside == parent)
                level.push_back(&row);
        std::stable_sort(level.begin(), level.end(), [](const LayoutRow* a, const LayoutRow* b) {
            return unsigned(a->tab) < unsigned(b->tab);
        });
        for (const LayoutRow* row : level) {
            QWidget* widget = controls_.value(row->name.toString());
            if (widget->focusPolicy() & Qt::TabFocus)
                chain.push_back(widget);
            self(self, row->name);
        }
    };
    visit(visit, QStringView());
    for (size_t i = 1; i < chain.size(); ++i)
        QWidget::setTabOrder(chain[i - 1], chain[i]);
}

} // namespace vorkan
