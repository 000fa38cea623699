#include "menubar2.h"

using namespace Qt::StringLiterals;

namespace vorkan {

void MenuBar2::Untitled0()
{
    Append(menuItem(u"OptionsMenu"_s, u"&Echelle de Norton"_s));
    Child(u"OptionsMenu").Append(menuItem(u"OptionsRAZ"_s, u"&RAZ"_s));
    Child(u"OptionsMenu").Append(menuItem(u"UntitledSeparator0"_s, u"-"_s));
    Child(u"OptionsMenu").Append(menuItem(u"OptionsCopier"_s, u"&Copier"_s));
    Child(u"OptionsMenu").Append(menuItem(u"UntitledSeparator"_s, u"-"_s));
    Child(u"OptionsMenu").Append(quitMenuItem());
}

class MenuBar2& MenuBar2()
{
    return menuBarInstance<class MenuBar2>();
}

} // namespace vorkan
