#include "editmenu.h"

#include <QMenu>

namespace vorkan {

void popUpEditMenu(QWidget& owner, QPoint at, std::initializer_list<EditCommand> commands)
{
    auto* menu = new QMenu(&owner);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const EditCommand& command : commands) {
        if (command.text.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(command.text);
        action->setShortcut(command.keys);
        action->setShortcutVisibleInContextMenu(true);
        action->setEnabled(command.enabled);
        QObject::connect(action, &QAction::triggered, menu, command.run);
    }
    menu->popup(at);
}

} // namespace vorkan
