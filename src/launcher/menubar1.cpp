#include "menubar1.h"

using namespace Qt::StringLiterals;

namespace vorkan {

void MenuBar1::Untitled0()
{
    Append(menuItem(u"OptionsMenu"_s, u"&Options"_s));
    Child(u"OptionsMenu").Append(menuItem(u"OptionsInfos"_s, u"&Infos"_s));
    Child(u"OptionsMenu").Append(quitMenuItem());
}

class MenuBar1& MenuBar1()
{
    return menuBarInstance<class MenuBar1>();
}

} // namespace vorkan
