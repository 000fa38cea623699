#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>
#include <initializer_list>

class QPoint;
class QWidget;

namespace vorkan {

// One command of a text control's menu; one with no text is a separator.
struct EditCommand {
    QString text; // "&" marks the mnemonic
    QKeySequence::StandardKey keys = QKeySequence::UnknownKey;
    bool enabled = false;
    std::function<void()> run;
};

// The menu of a right click, or of the Menu key, on a field or a figure: the usual
// editing commands in French, each with its shortcut, greyed when it can do nothing.
void popUpEditMenu(QWidget& owner, QPoint at, std::initializer_list<EditCommand> commands);

} // namespace vorkan
