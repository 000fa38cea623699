#include "menubar1.h"

using namespace Qt::StringLiterals;

namespace vorkan {

void MenuBar1::Untitled0()
{
    Append(menuItem(u"OptionsMenu"_s, u"&Options"_s));
    Child(u"OptionsMenu").Append(menuItem(u"OptionsInfos"_s, u"&Infos"_s));
    Child(u"OptionsMenu").Append(quitMenuItem());
}

// Built once and kept for the life of the process.
class MenuBar1& MenuBar1()
{
    static class MenuBar1 instance;
    return instance;
}

} // namespace vorkan
