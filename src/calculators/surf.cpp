#include "surf.h"

#include "app.h"
#include "textops.h"
#include "tips.h"

namespace vorkan {

namespace {

constexpr WindowProps props{u"Surface corporelle", 330, 188};

constexpr ControlProps threeDigits{.maskDigits = 3};
constexpr ControlProps inBox{.inside = u"GroupBox1"};
// Results, which the user can select and copy.
constexpr ControlProps figureInBox{.inside = u"GroupBox1", .selectable = true};

// The left column sits exactly where imc has it.
// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name                class               left  top width height tab text        other
    {u"surftaille",        Kind::TextField,    { 23,  39,  49,  25},  0, u"170",       threeDigits},
    {u"surfUpDownArrows1", Kind::UpDownArrows, { 76,  39,  13,  25},  1},
    {u"StaticText1",       Kind::StaticText,   { 20,  14,  69,  20},  2, u"Taille (cm)"},
    {u"surfpoids",         Kind::TextField,    { 23, 101,  49,  25},  3, u"70",        threeDigits},
    {u"surfUpDownArrows2", Kind::UpDownArrows, { 76, 101,  13,  25},  4},
    {u"StaticText2",       Kind::StaticText,   { 23,  76,  69,  20},  5, u"Poids (kg)"},
    {u"surfaide",          Kind::PushButton,   { 23, 141,  26,  27},  6, u"?"},
    {u"GroupBox1",         Kind::GroupBox,     {125,  26, 185, 100}, 13, u"Surface (m²)"},
    {u"StaticText3",       Kind::StaticText,   {137,  47,  46,  21},  0, u"Dubois",         inBox},
    {u"StaticText4",       Kind::StaticText,   {137,  68,  99,  21},  1, u"Gehan && Gorge", inBox},
    {u"StaticText5",       Kind::StaticText,   {137,  90,  63,  21},  2, u"Mosteller",      inBox},
    {u"StaticText6",       Kind::StaticText,   {261,  46,  39,  22},  3, u"0",              figureInBox},
    {u"StaticText7",       Kind::StaticText,   {261,  67,  39,  22},  4, u"0",              figureInBox},
    {u"StaticText8",       Kind::StaticText,   {261,  89,  39,  22},  5, u"0",              figureInBox},
};

constexpr LabelledBy labels[] = {
    {u"surftaille",  u"StaticText1"}, {u"surfpoids",   u"StaticText2"},
    {u"StaticText6", u"StaticText3"}, {u"StaticText7", u"StaticText4"},
    {u"StaticText8", u"StaticText5"},
};
// clang-format on

} // namespace

surf::surf() : SteppedWindow(props) {}

class surf& surf()
{
    return ImplicitWindows::instance<class surf>();
}

void surf::CreateControls()
{
    createControls(layoutTable, labels);
    installStepped<surf>(surftaille(), surfUpDownArrows1(),
                         {&surf::surftaille_MouseWheel, &surf::surftaille_KeyDown,
                          &surf::surftaille_KeyUp, &surf::surfUpDownArrows1_MouseWheel,
                          &surf::surfUpDownArrows1_Down, &surf::surfUpDownArrows1_Up});
    installStepped<surf>(surfpoids(), surfUpDownArrows2(),
                         {&surf::surfpoids_MouseWheel, &surf::surfpoids_KeyDown,
                          &surf::surfpoids_KeyUp, &surf::surfUpDownArrows2_MouseWheel,
                          &surf::surfUpDownArrows2_Down, &surf::surfUpDownArrows2_Up});
    connect(&surfaide(), &PushButton::MouseExit, this, &surf::surfaide_MouseExit);
    connect(&surfaide(), &PushButton::clicked, this, &surf::surfaide_Action);
}

bool surf::surftaille_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(surftaille(), deltaY, heightLimits);
}

bool surf::surftaille_KeyDown(const QString& Key)
{
    return stepOnKey(surftaille(), Key, heightLimits);
}

void surf::surftaille_KeyUp()
{
    calc();
}

bool surf::surfUpDownArrows1_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(surftaille(), deltaY, heightLimits);
}

void surf::surfUpDownArrows1_Down()
{
    diminue(surftaille(), heightLimits.lower);
}

void surf::surfUpDownArrows1_Up()
{
    augmente(surftaille(), heightLimits.upper);
}

bool surf::surfpoids_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(surfpoids(), deltaY, weightLimits);
}

bool surf::surfpoids_KeyDown(const QString& Key)
{
    return stepOnKey(surfpoids(), Key, weightLimits);
}

void surf::surfpoids_KeyUp()
{
    calc();
}

bool surf::surfUpDownArrows2_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(surfpoids(), deltaY, weightLimits);
}

void surf::surfUpDownArrows2_Down()
{
    diminue(surfpoids(), weightLimits.lower);
}

void surf::surfUpDownArrows2_Up()
{
    augmente(surfpoids(), weightLimits.upper);
}

void surf::surfaide_MouseExit()
{
    hideTip();
}

// Unlike imc's, this tip breaks both lines with the platform's line ending.
void surf::surfaide_Action()
{
    showTip(steppingTip(EndOfLine()));
}

void surf::Event_Open()
{
    if (App().taille != 0)
        surftaille().setText(Str(App().taille));
    if (App().poids != 0)
        surfpoids().setText(Str(App().poids));
    calc();
}

// H x W is a product of two Singles, rounded to Single before it is divided.
void surf::calc()
{
    App().poids = static_cast<Single>(Val(surfpoids().text()));
    App().taille = static_cast<Single>(Val(surftaille().text()));

    const auto dubois =
        static_cast<Single>((0.007184 * Pow(App().taille, 0.725)) * Pow(App().poids, 0.425));
    const auto gehanGorge =
        static_cast<Single>((0.0235 * Pow(App().taille, 0.42246)) * Pow(App().poids, 0.51456));
    const Single heightTimesWeight = App().taille * App().poids;
    const auto mosteller = static_cast<Single>(Pow(heightTimesWeight / 3600.0, 0.5));

    StaticText6().setText(Format(dubois, u"0.00"));
    StaticText7().setText(Format(gehanGorge, u"0.00"));
    StaticText8().setText(Format(mosteller, u"0.00"));
}

} // namespace vorkan
