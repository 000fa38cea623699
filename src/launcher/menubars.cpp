#include "menubars.h"

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

MenuItem quitItem()
{
    return {u"FileQuit"_s, u"Quitter"_s, u"Cmd+Q"_s, true, true, {}};
}

MenuItem item(const QString& name, const QString& text)
{
    return {name, text, {}, true, false, {}};
}

} // namespace

void MenuBar1::Untitled0()
{
    Append(item(u"OptionsMenu"_s, u"&Options"_s));
    Child(u"OptionsMenu").Append(item(u"OptionsInfos"_s, u"&Infos"_s));
    Child(u"OptionsMenu").Append(quitItem());
}

void MenuBar2::Untitled0()
{
    Append(item(u"OptionsMenu"_s, u"&Echelle de Norton"_s));
    Child(u"OptionsMenu").Append(item(u"OptionsRAZ"_s, u"&RAZ"_s));
    Child(u"OptionsMenu").Append(item(u"UntitledSeparator0"_s, u"-"_s));
    Child(u"OptionsMenu").Append(item(u"OptionsCopier"_s, u"&Copier"_s));
    Child(u"OptionsMenu").Append(item(u"UntitledSeparator"_s, u"-"_s));
    Child(u"OptionsMenu").Append(quitItem());
}

// Each bar is built once and kept for the life of the process.
class MenuBar1& MenuBar1()
{
    static class MenuBar1 instance;
    return instance;
}

class MenuBar2& MenuBar2()
{
    static class MenuBar2 instance;
    return instance;
}

} // namespace vorkan
