#include "surf.h"

#include "core/app.h"
#include "core/controls.h"
#include "core/textops.h"
#include "tips.h"

namespace vorkan {

namespace {

constexpr WindowProps props{u"Surface corporelle", 330, 188};

// The left column sits exactly where imc has it.
constexpr LayoutRow layoutTable[] = {
    {u"surftaille",
     Kind::TextField,
     {23, 39, 49, 25},
     0,
     u"170",
     {.maskDigits = 3, .label = u"StaticText1"}},
    {u"surfUpDownArrows1", Kind::UpDownArrows, {76, 39, 13, 25}, 1},
    {u"StaticText1", Kind::StaticText, {20, 14, 69, 20}, 2, u"Taille (cm)"},
    {u"surfpoids",
     Kind::TextField,
     {23, 101, 49, 25},
     3,
     u"70",
     {.maskDigits = 3, .label = u"StaticText2"}},
    {u"surfUpDownArrows2", Kind::UpDownArrows, {76, 101, 13, 25}, 4},
    {u"StaticText2", Kind::StaticText, {23, 76, 69, 20}, 5, u"Poids (kg)"},
    {u"surfaide", Kind::PushButton, {23, 141, 26, 27}, 6, u"?"},
    {u"GroupBox1", Kind::GroupBox, {125, 26, 185, 100}, 13, u"Surface (m²)"},
    {u"StaticText3", Kind::StaticText, {137, 47, 46, 21}, 0, u"Dubois", {.inside = u"GroupBox1"}},
    {u"StaticText4",
     Kind::StaticText,
     {137, 68, 99, 21},
     1,
     u"Gehan && Gorge",
     {.inside = u"GroupBox1"}},
    {u"StaticText5",
     Kind::StaticText,
     {137, 90, 63, 21},
     2,
     u"Mosteller",
     {.inside = u"GroupBox1"}},
    {u"StaticText6",
     Kind::StaticText,
     {261, 46, 39, 22},
     3,
     u"0",
     {.inside = u"GroupBox1", .label = u"StaticText3"}},
    {u"StaticText7",
     Kind::StaticText,
     {261, 67, 39, 22},
     4,
     u"0",
     {.inside = u"GroupBox1", .label = u"StaticText4"}},
    {u"StaticText8",
     Kind::StaticText,
     {261, 89, 39, 22},
     5,
     u"0",
     {.inside = u"GroupBox1", .label = u"StaticText5"}},
};

} // namespace

surf::surf() : SteppedWindow(props) {}

class surf& surf()
{
    return ImplicitWindows::instance<class surf>();
}

void surf::CreateControls()
{
    createControls(layoutTable);
    bindSteppedField({u"surftaille", u"surfUpDownArrows1", 50, 250});
    bindSteppedField({u"surfpoids", u"surfUpDownArrows2", 30, 250});
    auto& aide = control<PushButton>(u"surfaide");
    aide.MouseExit = [this](PushButton&) { surfaide_MouseExit(); };
    aide.Action = [this](PushButton&) { surfaide_Action(); };
}

void surf::Event_Open()
{
    if (App().taille != 0)
        control<TextField>(u"surftaille").setText(Str(App().taille));
    if (App().poids != 0)
        control<TextField>(u"surfpoids").setText(Str(App().poids));
    calc();
}

// Unlike imc's, this tip breaks both lines with the platform's line ending.
void surf::surfaide_Action()
{
    showTip(steppingTip(EndOfLine()));
}

void surf::surfaide_MouseExit()
{
    hideTip();
}

// H x W is a product of two Singles, rounded to Single before it is divided.
void surf::calc()
{
    App().poids = static_cast<Single>(Val(control<TextField>(u"surfpoids").text()));
    App().taille = static_cast<Single>(Val(control<TextField>(u"surftaille").text()));

    const auto dubois =
        static_cast<Single>((0.007184 * Pow(App().taille, 0.725)) * Pow(App().poids, 0.425));
    const auto gehanGorge =
        static_cast<Single>((0.0235 * Pow(App().taille, 0.42246)) * Pow(App().poids, 0.51456));
    const Single heightTimesWeight = App().taille * App().poids;
    const auto mosteller = static_cast<Single>(Pow(heightTimesWeight / 3600.0, 0.5));

    control<StaticText>(u"StaticText6").setText(Format(dubois, u"0.00"));
    control<StaticText>(u"StaticText7").setText(Format(gehanGorge, u"0.00"));
    control<StaticText>(u"StaticText8").setText(Format(mosteller, u"0.00"));
}

} // namespace vorkan
