#include "window1.h"

#include "calculators/cleinsee.h"
#include "calculators/imc.h"
#include "calculators/norton.h"
#include "calculators/pideal.h"
#include "calculators/surf.h"
#include "core/controls.h"
#include "core/platform.h"
#include "core/textops.h"
#include "infos.h"
#include "menubars.h"

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

// The main window stays open on Ctrl+W: closing it may end the program.
constexpr WindowProps props{u"Vorkan MAC", 445, 202, true, false};

constexpr LayoutRow layoutTable[] = {
    {u"BevelButton1",
     Kind::BevelButton,
     {160, 78, 126, 31},
     0,
     u"Echelle de Norton",
     {.helpTag = u"Estimation du risque d'escarre"}},
    {u"Rectangle1",
     Kind::Rectangle,
     {0, 173, 445, 29},
     -1,
     u"",
     {.shape =
          {.borderWidth = 1, .fill = 0xffffffff, .border = 0xff000000, .bottomRight = 0xff000000}}},
    {u"sbdate",
     Kind::StaticText,
     {6, 179, 88, 16},
     0,
     u"",
     {.inside = u"Rectangle1", .centred = true}},
    {u"Separator1", Kind::Separator, {109, 173, 1, 29}, 1, u"", {.inside = u"Rectangle1"}},
    {u"BevelButton2", Kind::BevelButton, {160, 35, 127, 31}, 1, u"Clé insee"},
    {u"BevelButton3", Kind::BevelButton, {13, 35, 127, 31}, 2, u"IMC"},
    {u"BevelButton4",
     Kind::BevelButton,
     {307, 35, 127, 31},
     3,
     u"Echelle Visuelle",
     {.helpTag = u"Echelle visuelle 3m"}},
    {u"BevelButton5", Kind::BevelButton, {13, 121, 127, 31}, 4, u"Surface corporelle"},
    {u"BevelButton6", Kind::BevelButton, {13, 78, 127, 31}, 5, u"Poids idéal"},
    {u"BevelButton7", Kind::BevelButton, {307, 78, 127, 31}, 6, u"Chrono", {.helpTag = u"Chrono"}},
};

} // namespace

Window1::Window1() : Window(props) {}

class Window1& Window1()
{
    return ImplicitWindows::instance<class Window1>();
}

void Window1::Layout()
{
    setMenuBar(MenuBar1());
    Window::Layout();
}

void Window1::CreateControls()
{
    createControls(layoutTable);
    const auto onAction = [this](QStringView button, std::function<void()> action) {
        control<BevelButton>(button).Action = [action](BevelButton&) { action(); };
    };
    onAction(u"BevelButton1", [] { norton().Show(); });
    onAction(u"BevelButton2", [] { cleinsee().Show(); });
    onAction(u"BevelButton3", [] { imc().Show(); });
    onAction(u"BevelButton4", [this] { launcher(u"lumetra.app"_s); });
    onAction(u"BevelButton5", [] { surf().Show(); });
    onAction(u"BevelButton6", [] { pideal().Show(); });
    onAction(u"BevelButton7", [this] { launcher(u"pendulo.app"_s); });
}

void Window1::AddMenuHandlers()
{
    AddMenuHandler(u"OptionsInfos", [this] { return OptionsInfos_Action(); });
}

// Centred on the main screen's free area, in whole pixels; the window is reached
// through its accessor, which already answers with this window while it is built.
void Window1::Event_Open()
{
    const Int32 freeWidth = availableScreenArea().width() - ::vorkan::Window1().Width();
    ::vorkan::Window1().setLeft(
        toInt32(static_cast<Double>(availableScreenArea().left()) + freeWidth / 2.0));
    const Int32 freeHeight = availableScreenArea().height() - ::vorkan::Window1().Height();
    ::vorkan::Window1().setTop(
        toInt32(static_cast<Double>(availableScreenArea().top()) + freeHeight / 2.0));
    ::vorkan::Window1().control<StaticText>(u"sbdate").setText(shortDate());
}

bool Window1::OptionsInfos_Action()
{
    MsgBox(infosText(), u"Infos"_s);
    return true;
}

void Window1::launcher(const QString& name)
{
    launchBesideProgram(name);
}

} // namespace vorkan
