#include "pideal.h"

#include "app.h"
#include "textops.h"

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"Poids idéal", 399, 222};

constexpr SliderProps heightSlider{.minimum = 100,
                                   .value = 160,
                                   .maximum = 210,
                                   .lineStep = 5,
                                   .pageStep = 20,
                                   .ticks = true,
                                   .liveScroll = true};
constexpr SliderProps ageSlider{.minimum = 20,
                                .value = 20,
                                .maximum = 80,
                                .lineStep = 5,
                                .pageStep = 20,
                                .ticks = true,
                                .liveScroll = true};

constexpr ControlProps inBox{.inside = u"GroupBox1"};
// Results, which the user can select and copy.
constexpr ControlProps figureInBox{.inside = u"GroupBox1", .selectable = true};

// The age label's two blanks are what it shows until the age slider first moves.
// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name           class              left  top width height tab text               other
    {u"Slider1",      Kind::Slider,      {149,  18, 230,  21},  0, u"",                   {.slider = heightSlider}},
    {u"StaticText1",  Kind::StaticText,  { 20,  18, 117,  15},  1, u"Taille (cm) : 160"},
    {u"Slider2",      Kind::Slider,      {149,  45, 230,  21},  2, u"",                   {.slider = ageSlider}},
    {u"StaticText2",  Kind::StaticText,  { 20,  45, 117,  15},  3, u"Age (ans)  : 20"},
    {u"PopupMenu1",   Kind::PopupMenu,   { 20,  78, 105,  20},  6, u"",                   {.accessibleName = u"Sexe"}},
    {u"GroupBox1",    Kind::GroupBox,    {149,  78, 230, 127}, 10, u"Poids idéal (kg)"},
    {u"StaticText7",  Kind::StaticText,  {192, 180,  63,  25},  0, u"Lorentz II",         inBox},
    {u"StaticText6",  Kind::StaticText,  {192, 162, 104,  25},  1, u"Huet et Godelsk",    inBox},
    {u"StaticText5",  Kind::StaticText,  {192, 143,  52,  25},  2, u"Perrault",           inBox},
    {u"StaticText4",  Kind::StaticText,  {192, 125,  52,  25},  3, u"Lorentz",            inBox},
    {u"StaticText3",  Kind::StaticText,  {192, 106,  38,  25},  4, u"Broca",              inBox},
    {u"StaticText8",  Kind::StaticText,  {308, 109,  44,  19},  5, u"0",                  figureInBox},
    {u"StaticText9",  Kind::StaticText,  {308, 128,  44,  19},  6, u"0",                  figureInBox},
    {u"StaticText10", Kind::StaticText,  {308, 145,  44,  20},  7, u"0",                  figureInBox},
    {u"StaticText11", Kind::StaticText,  {308, 165,  44,  19},  8, u"0",                  figureInBox},
    {u"StaticText12", Kind::StaticText,  {308, 183,  44,  19},  9, u"0",                  figureInBox},
};

constexpr LabelledBy labels[] = {
    {u"Slider1",      u"StaticText1"}, {u"Slider2",      u"StaticText2"},
    {u"StaticText8",  u"StaticText3"}, {u"StaticText9",  u"StaticText4"},
    {u"StaticText10", u"StaticText5"}, {u"StaticText11", u"StaticText6"},
    {u"StaticText12", u"StaticText7"},
};
// clang-format on

} // namespace

pideal::pideal() : Window(props) {}

class pideal& pideal()
{
    return ImplicitWindows::instance<class pideal>();
}

void pideal::CreateControls()
{
    createControls(layoutTable, labels);
    connect(&Slider1(), &Slider::valueChanged, this, &pideal::Slider1_ValueChanged);
    connect(&Slider2(), &Slider::valueChanged, this, &pideal::Slider2_ValueChanged);
    connect(&PopupMenu1(), &PopupMenu::currentIndexChanged, this, &pideal::PopupMenu1_Change);
}

// The slider holds a height out of its range at its nearest end, and moving it
// rewrites its label as a user's move would.
void pideal::Event_Open()
{
    PopupMenu1().AddRow(u"homme"_s);
    PopupMenu1().AddRow(u"femme"_s);
    PopupMenu1().setListIndex(0);
    if (App().taille != 0)
        Slider1().setValue(toInt32(App().taille));
    calc();
}

void pideal::Slider1_ValueChanged()
{
    StaticText1().setText(u"Taille (cm) : "_s + Str(Int32{Slider1().value()}));
    calc();
}

void pideal::Slider2_ValueChanged()
{
    StaticText2().setText(u"Age (ans) : "_s + Str(Int32{Slider2().value()}));
    calc();
}

void pideal::PopupMenu1_Change()
{
    calc();
}

Single pideal::factor(Single man, Single woman) const
{
    return PopupMenu1().ListIndex() == 0 ? man : woman;
}

void pideal::write(StaticText& result, Double value)
{
    result.setText(Str(static_cast<Single>(value)));
}

// Integer steps stay Int32, the rest is Double; the factors k are Singles, so the
// woman's 0.9 of Lorentz II is not the Double 0.9 of Perrault.
void pideal::calc()
{
    const Int32 T = Slider1().value();
    const Int32 A = Slider2().value();
    const Int32 P = T - 100;
    const Int32 overHundredFifty = T - 150;

    write(StaticText8(), P);
    write(StaticText9(), P - overHundredFifty / Double{factor(4.0f, 2.0f)});
    write(StaticText10(), P + (A / 10.0) * 0.9);
    write(StaticText11(), (P + A / 10.0) - (P / 10.0) * Double{factor(1.0f, 2.0f)});
    const Int32 sum = 3 * overHundredFifty + (A - 20);
    write(StaticText12(), (sum / 4.0 + 50) * Double{factor(1.0f, 0.9f)});
}

} // namespace vorkan
