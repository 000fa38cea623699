#include "imc.h"

#include "app.h"
#include "textops.h"
#include "tips.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"IMC", 532, 313};

constexpr ControlProps threeDigits{.maskDigits = 3};
constexpr ControlProps inBox1{.inside = u"GroupBox1"};
constexpr ControlProps inBox2{.inside = u"GroupBox2"};
// Results, which the user can select and copy.
constexpr ControlProps figure{.selectable = true};
constexpr ControlProps figureInBox1{.inside = u"GroupBox1", .selectable = true};
constexpr ControlProps figureInBox2{.inside = u"GroupBox2", .selectable = true};
constexpr ControlProps sourceInBox1{.inside = u"GroupBox1", .textSize = 9};
constexpr ControlProps sourceInBox2{.inside = u"GroupBox2", .textSize = 9};

// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name            class               left  top width height tab text            other
    {u"taille",        Kind::TextField,    { 23,  39,  49,  25},  0, u"170",           threeDigits},
    {u"UpDownArrows1", Kind::UpDownArrows, { 76,  39,  13,  25},  1},
    {u"StaticText1",   Kind::StaticText,   { 20,  14,  69,  20},  2, u"Taille (cm)"},
    {u"poids",         Kind::TextField,    { 23, 101,  49,  25},  3, u"70",            threeDigits},
    {u"UpDownArrows2", Kind::UpDownArrows, { 76, 101,  13,  25},  4},
    {u"StaticText2",   Kind::StaticText,   { 23,  76,  69,  20},  5, u"Poids (kg)"},
    {u"imct",          Kind::TextField,    {264,  12,  75,  25},  6, u"0",
                                           {.bold = true, .textSize = 14, .readOnly = true}},
    {u"StaticText3",   Kind::StaticText,   {165,  14,  80,  20},  7, u"IMC (kg/m²)",   {.bold = true}},
    {u"imclab",        Kind::StaticText,   {172,  38, 167,  17},  8, u"",              {.centred = true, .selectable = true}},
    {u"imcaide",       Kind::PushButton,   { 23, 141,  26,  27}, 17, u"?"},
    {u"Line1",         Kind::Line,         {104,   0, 100,  50}, -1, u"",              {.line = {104, 0, 104, 313}}},
    {u"StaticText8",   Kind::StaticText,   {116, 140, 129,  20}, 19, u"Corpulence normale"},
    {u"StaticText9",   Kind::StaticText,   {116, 173,  62,  20}, 21, u"Surpoids"},
    {u"StaticText10",  Kind::StaticText,   {116, 206, 107,  20}, 23, u"Obéité modérée"},
    {u"StaticText11",  Kind::StaticText,   {116, 239,  99,  20}, 25, u"Obésité sévère"},
    {u"StaticText12",  Kind::StaticText,   {116, 272, 107,  20}, 27, u"Obésité morbide"},
    {u"GroupBox2",     Kind::GroupBox,     {369, 128, 142, 101}, 29, u"Poids maigre (kg)"},
    {u"StaticText5",   Kind::StaticText,   {380, 152,  56,  23},  0, u"Homme",         inBox2},
    {u"StaticText14",  Kind::StaticText,   {380, 188,  50,  20},  1, u"Femme",         inBox2},
    {u"StaticText18",  Kind::StaticText,   {385, 215,  62,  14},  4, u"James 1981",    sourceInBox2},
    {u"poidsmaigreh",  Kind::StaticText,   {448, 152,  53,  23},  5, u"",              figureInBox2},
    {u"poidsmaigref",  Kind::StaticText,   {448, 187,  53,  23},  6, u"",              figureInBox2},
    {u"StaticText15",  Kind::StaticText,   {116, 108,  62,  20}, 31, u"Maigreur"},
    {u"StaticText16",  Kind::StaticText,   {116,  73,  74,  20}, 33, u"Dénutrition"},
    {u"Line2",         Kind::Line,         {351,   0, 100,  50}, -1, u"",              {.line = {351, 0, 350, 313}}},
    {u"GroupBox1",     Kind::GroupBox,     {369,  14, 143, 102}, 28, u"Poids idéal (kg)"},
    {u"StaticText13",  Kind::StaticText,   {381,  74,  50,  20},  0, u"Femme",         inBox1},
    {u"StaticText4",   Kind::StaticText,   {381,  38,  56,  23},  1, u"Homme",         inBox1},
    {u"StaticText17",  Kind::StaticText,   {385, 101,  62,  14},  4, u"Devine 1974",   sourceInBox1},
    {u"poidsidealh",   Kind::StaticText,   {448,  39,  53,  23},  5, u"",              figureInBox1},
    {u"poidsidealf",   Kind::StaticText,   {448,  75,  53,  23},  6, u"",              figureInBox1},
    {u"imcde",         Kind::StaticText,   {264,  72,  75,  23}, 34, u"",              figure},
    {u"imcma",         Kind::StaticText,   {264, 107,  75,  23}, 35, u"",              figure},
    {u"imcn",          Kind::StaticText,   {264, 138,  75,  23}, 36, u"",              figure},
    {u"imcsu",         Kind::StaticText,   {264, 172,  75,  23}, 37, u"",              figure},
    {u"imcom",         Kind::StaticText,   {264, 205,  75,  23}, 38, u"",              figure},
    {u"imcos",         Kind::StaticText,   {264, 238,  75,  23}, 39, u"",              figure},
    {u"imcomo",        Kind::StaticText,   {264, 271,  75,  23}, 40, u"",              figure},
};

constexpr LabelledBy labels[] = {
    {u"taille",       u"StaticText1"},  {u"poids",        u"StaticText2"},
    {u"imct",         u"StaticText3"},  {u"poidsmaigreh", u"StaticText5"},
    {u"poidsmaigref", u"StaticText14"}, {u"poidsidealh",  u"StaticText4"},
    {u"poidsidealf",  u"StaticText13"}, {u"imcde",        u"StaticText16"},
    {u"imcma",        u"StaticText15"}, {u"imcn",         u"StaticText8"},
    {u"imcsu",        u"StaticText9"},  {u"imcom",        u"StaticText10"},
    {u"imcos",        u"StaticText11"}, {u"imcomo",       u"StaticText12"},
};
// clang-format on

// The index at which each weight band starts and ends, in the order of the bands.
constexpr std::array<Double, 6> bandLimits{16.5, 18.5, 25, 30, 35, 40};

} // namespace

imc::imc() : SteppedWindow(props) {}

class imc& imc()
{
    return ImplicitWindows::instance<class imc>();
}

void imc::CreateControls()
{
    createControls(layoutTable, labels);
    installStepped<class imc>(taille(), UpDownArrows1(),
                              {&imc::taille_MouseWheel, &imc::taille_KeyDown, &imc::taille_KeyUp,
                               &imc::UpDownArrows1_MouseWheel, &imc::UpDownArrows1_Down,
                               &imc::UpDownArrows1_Up});
    installStepped<class imc>(poids(), UpDownArrows2(),
                              {&imc::poids_MouseWheel, &imc::poids_KeyDown, &imc::poids_KeyUp,
                               &imc::UpDownArrows2_MouseWheel, &imc::UpDownArrows2_Down,
                               &imc::UpDownArrows2_Up});
    connect(&imcaide(), &PushButton::clicked, this, &imc::imcaide_Action);
    connect(&imcaide(), &PushButton::MouseExit, this, &imc::imcaide_MouseExit);
}

bool imc::taille_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(taille(), deltaY, heightLimits);
}

bool imc::taille_KeyDown(const QString& Key)
{
    return stepOnKey(taille(), Key, heightLimits);
}

void imc::taille_KeyUp()
{
    calc();
}

bool imc::UpDownArrows1_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(taille(), deltaY, heightLimits);
}

void imc::UpDownArrows1_Down()
{
    diminue(taille(), heightLimits.lower);
}

void imc::UpDownArrows1_Up()
{
    augmente(taille(), heightLimits.upper);
}

bool imc::poids_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(poids(), deltaY, weightLimits);
}

bool imc::poids_KeyDown(const QString& Key)
{
    return stepOnKey(poids(), Key, weightLimits);
}

void imc::poids_KeyUp()
{
    calc();
}

bool imc::UpDownArrows2_MouseWheel(Int32, Int32, Int32, Int32 deltaY)
{
    return stepOnWheel(poids(), deltaY, weightLimits);
}

void imc::UpDownArrows2_Down()
{
    diminue(poids(), weightLimits.lower);
}

void imc::UpDownArrows2_Up()
{
    augmente(poids(), weightLimits.upper);
}

void imc::imcaide_Action()
{
    showTip(steppingTip(Chr(13)));
}

void imc::imcaide_MouseExit()
{
    hideTip();
}

void imc::Event_Open()
{
    if (App().taille != 0)
        taille().setText(Str(App().taille));
    if (App().poids != 0)
        poids().setText(Str(App().poids));
    calc();
}

void imc::calc()
{
    App().poids = static_cast<Single>(Val(poids().text()));
    App().taille = static_cast<Single>(Val(taille().text()));
    const Single W = App().poids;
    const Single H = App().taille;

    const Single heightSquared = H * H;
    const Double squareMetres = heightSquared / 10000.0;
    const auto index = static_cast<Single>(W / squareMetres);
    imct().setText(Format(index, u"0.0"));
    imct().Refresh(true);

    writeBands(Pow(App().taille / 100.0, 2));
    writeClass();
    writeIdealWeights(App().taille);
    writeLeanWeights(App().poids, App().taille);
}

// The weights that bound each class at this height, in whole kilograms.
void imc::writeBands(Double heightSquaredInMetres)
{
    std::array<QString, bandLimits.size()> bound;
    for (size_t i = 0; i < bandLimits.size(); ++i)
        bound[i] = Format(static_cast<Single>(heightSquaredInMetres * bandLimits[i]), u"0");
    const std::array<QString, bandLimits.size() + 1> texts{
        u"<" + bound[0],
        bound[0] + u"-" + bound[1],
        bound[1] + u"-" + bound[2],
        bound[2] + u"-" + bound[3],
        bound[3] + u"-" + bound[4],
        bound[4] + u"-" + bound[5],
        u">" + bound[5],
    };
    for (size_t i = 0; i < texts.size(); ++i) {
        bands[i]().setText(texts[i]);
        bands[i]().Refresh(true);
    }
}

// The class follows the index as shown, with one decimal, not the computed value.
void imc::writeClass()
{
    const Double x = Val(imct().text());
    QString name;
    if (x > 40)
        name = u"obésité morbide"_s;
    else if (35 <= x && x <= 40)
        name = u"obésité sévère"_s;
    else if (30 <= x && x <= 34.9)
        name = u"obésité modérée"_s;
    else if (25 <= x && x <= 29.9)
        name = u"surpoids"_s;
    else if (18.5 <= x && x <= 24.9)
        name = u"corpulence normale"_s;
    else if (16.5 <= x && x <= 18.4)
        name = u"maigreur"_s;
    else
        name = u"dénutrition"_s;
    imclab().setText(name);
}

// Devine, with the height converted by 2.56 as the formula has always been used here.
void imc::writeIdealWeights(Single height)
{
    const Double I = (height / 2.56 - 60) * 2.3;
    const auto man = static_cast<Single>(I + 50);
    const auto woman = static_cast<Single>(I + 45.5);
    poidsidealh().setText(Format(man, u"0.0"));
    poidsidealf().setText(Format(woman, u"0.0"));
}

// James 1981.
void imc::writeLeanWeights(Single weight, Single height)
{
    const Double Q = Pow(weight, 2) / Pow(height, 2);
    const auto man = static_cast<Single>(1.1 * weight - 128 * Q);
    const auto woman = static_cast<Single>(1.07 * weight - 148 * Q);
    poidsmaigreh().setText(Format(man, u"0.0"));
    poidsmaigref().setText(Format(woman, u"0.0"));
}

} // namespace vorkan
