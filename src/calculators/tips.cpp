#include "tips.h"

#include "platform.h"
#include "textops.h"

using namespace Qt::StringLiterals;

namespace vorkan {

void showTip(const QString& text)
{
    const Int32 x = System::MouseX() + 10;
    const Int32 y = System::MouseY() + 10;
    Tooltip::Show(text, x, y, true);
}

void hideTip()
{
    Tooltip::Hide();
}

QString steppingTip(const QString& firstBreak)
{
    return u"Utiliser la molette de la souris"_s + firstBreak + u"ou les touches haut/bas"_s +
           EndOfLine() + u"ou le clavier"_s;
}

} // namespace vorkan
