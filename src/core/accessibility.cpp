#include "accessibility.h"

#include "controls.h"
#include "window.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QGroupBox>

#include <algorithm>

namespace vorkan {

namespace {

// A control that shows one value, a figure or the chosen row of a list. Named after its
// label, it reads as that name with the value as its text, exactly as shown, as a field
// does; without a name it reads as its value alone.
class ShownValueAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    ShownValueAccessible(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role)
    {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface && named())
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return named() ? widget()->accessibleName() : shown();
        if (kind == QAccessible::Value)
            return named() ? shown() : QString();
        return QAccessibleWidget::text(kind);
    }

    QString text(int startOffset, int endOffset) const override
    {
        const QString value = shown();
        if (endOffset < 0 || endOffset > value.size())
            endOffset = static_cast<int>(value.size());
        return value.mid(startOffset, std::max(0, endOffset - startOffset));
    }
    int characterCount() const override { return static_cast<int>(shown().size()); }
    QString attributes(int /*offset*/, int* startOffset, int* endOffset) const override
    {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }
    // The value is read, not edited: no caret, no selection, no geometry of its own.
    void selection(int /*index*/, int* startOffset, int* endOffset) const override
    {
        *startOffset = *endOffset = 0;
    }
    int selectionCount() const override { return 0; }
    void addSelection(int /*startOffset*/, int /*endOffset*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*startOffset*/, int /*endOffset*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    QRect characterRect(int /*offset*/) const override { return {}; }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*startIndex*/, int /*endIndex*/) override {}

protected:
    virtual QString shown() const = 0;

private:
    bool named() const { return !widget()->accessibleName().isEmpty(); }
};

class StaticTextAccessible : public ShownValueAccessible {
public:
    explicit StaticTextAccessible(QWidget* label)
        : ShownValueAccessible(label, QAccessible::StaticText)
    {}

protected:
    QString shown() const override { return static_cast<const QLabel*>(widget())->text(); }
};

// Qt's own list names itself after its chosen row on Linux, which loses what is chosen;
// this one keeps its criterion as its name.
class PopupMenuAccessible : public ShownValueAccessible {
public:
    explicit PopupMenuAccessible(QWidget* popup)
        : ShownValueAccessible(popup, QAccessible::ComboBox)
    {}

    // The list of rows, as Qt's own list gives it, for tools that walk the rows.
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(popup().view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && child->object() == popup().view() ? 0 : -1;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = ShownValueAccessible::state();
        state.expandable = true;
        state.expanded = popup().view()->isVisible();
        return state;
    }
    QStringList actionNames() const override
    {
        return ShownValueAccessible::actionNames() << showMenuAction();
    }
    void doAction(const QString& name) override
    {
        if (name == showMenuAction())
            popup().showPopup();
        else
            ShownValueAccessible::doAction(name);
    }

protected:
    QString shown() const override { return popup().currentText(); }

private:
    QComboBox& popup() const { return *static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (!object->isWidgetType())
        return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    if (className == QLatin1StringView(StaticText::staticMetaObject.className()))
        return new StaticTextAccessible(widget);
    if (className == QLatin1StringView(PopupMenu::staticMetaObject.className()))
        return new PopupMenuAccessible(widget);
    // Our windows are plain widgets; tools should still present them as windows.
    if (className == QLatin1StringView(Window::staticMetaObject.className()))
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

void announceTextChange(QWidget& control, const QString& before, const QString& after)
{
    if (!QAccessible::isActive() || before == after)
        return;
    if (control.accessibleName().isEmpty()) {
        QAccessibleEvent event(&control, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleTextUpdateEvent event(&control, 0, before, after);
        QAccessible::updateAccessibility(&event);
    }
}

void applyLabel(QWidget& control, QWidget& label)
{
    if (auto* group = qobject_cast<QGroupBox*>(&label)) {
        control.setAccessibleName(group->title());
        return;
    }
    QString prefix;
    if (auto* group = qobject_cast<QGroupBox*>(control.parentWidget()))
        prefix = group->title() + u", ";
    if (auto* caption = qobject_cast<StaticText*>(&label))
        caption->labels(control, prefix);
}

} // namespace vorkan
