#include "accessibility.h"

#include "controls.h"
#include "window.h"

#include <QAccessibleWidget>

namespace vorkan {

namespace {

// A label that names another control shows a figure: the label's caption is the
// name of that figure and the text is its value.
class StaticTextAccessible : public QAccessibleWidget {
public:
    explicit StaticTextAccessible(QWidget* label)
        : QAccessibleWidget(label, QAccessible::StaticText)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const auto* label = static_cast<const QLabel*>(widget());
        const bool named = !label->accessibleName().isEmpty();
        if (kind == QAccessible::Name)
            return named ? label->accessibleName() : label->text();
        if (kind == QAccessible::Value)
            return named ? label->text() : QString();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (!object->isWidgetType())
        return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    if (className == QLatin1StringView(StaticText::staticMetaObject.className()))
        return new StaticTextAccessible(widget);
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

void announceTextChange(QWidget& label)
{
    if (!QAccessible::isActive())
        return;
    if (label.accessibleName().isEmpty()) {
        QAccessibleEvent event(&label, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleValueChangeEvent event(&label, static_cast<QLabel&>(label).text());
        QAccessible::updateAccessibility(&event);
    }
}

void applyLabel(QWidget& control, QWidget& label)
{
    if (auto* group = qobject_cast<GroupBox*>(&label)) {
        control.setAccessibleName(group->title());
        return;
    }
    QString prefix;
    if (auto* group = qobject_cast<GroupBox*>(control.parentWidget()))
        prefix = group->title() + u", ";
    if (auto* caption = qobject_cast<StaticText*>(&label))
        caption->labels(control, prefix);
}

} // namespace vorkan
