#include "window1.h"

#include "cleinsee.h"
#include "controls.h"
#include "imc.h"
#include "infos.h"
#include "menubar1.h"
#include "norton.h"
#include "pideal.h"
#include "platform.h"
#include "surf.h"
#include "textops.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

// The main window stays open on Ctrl+W: closing it may end the program.
constexpr WindowProps props{.title = u"Vorkan MAC",
                            .width = 445,
                            .height = 202,
                            .maximizeButton = true,
                            .closesWithKey = false};

constexpr ShapeProps statusBar{
    .borderWidth = 1, .fill = 0xffffffff, .border = 0xff000000, .bottomRight = 0xff000000};

// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name           class               left  top width height tab text                  other
    {u"BevelButton1", Kind::BevelButton, {160,  78, 126,  31},  0, u"Echelle de Norton",  {.helpTag = u"Estimation du risque d'escarre"}},
    {u"Rectangle1",   Kind::Rectangle,   {  0, 173, 445,  29}, -1, u"",                   {.shape = statusBar}},
    {u"sbdate",       Kind::StaticText,  {  6, 179,  88,  16},  0, u"",                   {.inside = u"Rectangle1", .centred = true}},
    {u"Separator1",   Kind::Separator,   {109, 173,   1,  29},  1, u"",                   {.inside = u"Rectangle1"}},
    {u"BevelButton2", Kind::BevelButton, {160,  35, 127,  31},  1, u"Clé insee"},
    {u"BevelButton3", Kind::BevelButton, { 13,  35, 127,  31},  2, u"IMC"},
    {u"BevelButton4", Kind::BevelButton, {307,  35, 127,  31},  3, u"Echelle Visuelle",   {.helpTag = u"Echelle visuelle 3m"}},
    {u"BevelButton5", Kind::BevelButton, { 13, 121, 127,  31},  4, u"Surface corporelle"},
    {u"BevelButton6", Kind::BevelButton, { 13,  78, 127,  31},  5, u"Poids idéal"},
    {u"BevelButton7", Kind::BevelButton, {307,  78, 127,  31},  6, u"Chrono",             {.helpTag = u"Chrono"}},
};

// Each button and its Action.
constexpr std::pair<QStringView, void (Window1::*)()> buttonActions[] = {
    {u"BevelButton1", &Window1::BevelButton1_Action},
    {u"BevelButton2", &Window1::BevelButton2_Action},
    {u"BevelButton3", &Window1::BevelButton3_Action},
    {u"BevelButton4", &Window1::BevelButton4_Action},
    {u"BevelButton5", &Window1::BevelButton5_Action},
    {u"BevelButton6", &Window1::BevelButton6_Action},
    {u"BevelButton7", &Window1::BevelButton7_Action},
};
// clang-format on

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
    for (const auto& [button, action] : buttonActions)
        connect(&control<BevelButton>(button), &BevelButton::clicked, this, action);
}

void Window1::AddMenuHandlers()
{
    AddMenuHandler(u"OptionsInfos", &Window1::OptionsInfos_Action);
}

void Window1::BevelButton1_Action()
{
    norton().Show();
}

void Window1::BevelButton2_Action()
{
    cleinsee().Show();
}

void Window1::BevelButton3_Action()
{
    imc().Show();
}

void Window1::BevelButton4_Action()
{
    launcher(u"lumetra.app"_s);
}

void Window1::BevelButton5_Action()
{
    surf().Show();
}

void Window1::BevelButton6_Action()
{
    pideal().Show();
}

void Window1::BevelButton7_Action()
{
    launcher(u"pendulo.app"_s);
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
    ::vorkan::Window1().sbdate().setText(shortDate());
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
