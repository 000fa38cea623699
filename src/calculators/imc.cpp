#include "imc.h"

#include "core/app.h"
#include "core/controls.h"
#include "core/textops.h"
#include "tips.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"IMC", 532, 313};

constexpr LayoutRow layoutTable[] = {
    {u"taille",
     Kind::TextField,
     {23, 39, 49, 25},
     0,
     u"170",
     {.maskDigits = 3, .label = u"StaticText1"}},
    {u"UpDownArrows1", Kind::UpDownArrows, {76, 39, 13, 25}, 1},
    {u"StaticText1", Kind::StaticText, {20, 14, 69, 20}, 2, u"Taille (cm)"},
    {u"poids",
     Kind::TextField,
     {23, 101, 49, 25},
     3,
     u"70",
     {.maskDigits = 3, .label = u"StaticText2"}},
    {u"UpDownArrows2", Kind::UpDownArrows, {76, 101, 13, 25}, 4},
    {u"StaticText2", Kind::StaticText, {23, 76, 69, 20}, 5, u"Poids (kg)"},
    {u"imct",
     Kind::TextField,
     {264, 12, 75, 25},
     6,
     u"0",
     {.bold = true, .textSize = 14, .readOnly = true, .label = u"StaticText3"}},
    {u"StaticText3", Kind::StaticText, {165, 14, 80, 20}, 7, u"IMC (kg/m²)", {.bold = true}},
    {u"imclab", Kind::StaticText, {172, 38, 167, 17}, 8, u"", {.centred = true}},
    {u"imcaide", Kind::PushButton, {23, 141, 26, 27}, 17, u"?"},
    {u"Line1", Kind::Line, {104, 0, 100, 50}, -1, u"", {.line = {104, 0, 104, 313}}},
    {u"StaticText8", Kind::StaticText, {116, 140, 129, 20}, 19, u"Corpulence normale"},
    {u"StaticText9", Kind::StaticText, {116, 173, 62, 20}, 21, u"Surpoids"},
    {u"StaticText10", Kind::StaticText, {116, 206, 107, 20}, 23, u"Obéité modérée"},
    {u"StaticText11", Kind::StaticText, {116, 239, 99, 20}, 25, u"Obésité sévère"},
    {u"StaticText12", Kind::StaticText, {116, 272, 107, 20}, 27, u"Obésité morbide"},
    {u"GroupBox2", Kind::GroupBox, {369, 128, 142, 101}, 29, u"Poids maigre (kg)"},
    {u"StaticText5", Kind::StaticText, {380, 152, 56, 23}, 0, u"Homme", {.inside = u"GroupBox2"}},
    {u"StaticText14", Kind::StaticText, {380, 188, 50, 20}, 1, u"Femme", {.inside = u"GroupBox2"}},
    {u"StaticText18",
     Kind::StaticText,
     {385, 215, 62, 14},
     4,
     u"James 1981",
     {.inside = u"GroupBox2", .textSize = 9}},
    {u"poidsmaigreh",
     Kind::StaticText,
     {448, 152, 53, 23},
     5,
     u"",
     {.inside = u"GroupBox2", .label = u"StaticText5"}},
    {u"poidsmaigref",
     Kind::StaticText,
     {448, 187, 53, 23},
     6,
     u"",
     {.inside = u"GroupBox2", .label = u"StaticText14"}},
    {u"StaticText15", Kind::StaticText, {116, 108, 62, 20}, 31, u"Maigreur"},
    {u"StaticText16", Kind::StaticText, {116, 73, 74, 20}, 33, u"Dénutrition"},
    {u"Line2", Kind::Line, {351, 0, 100, 50}, -1, u"", {.line = {351, 0, 350, 313}}},
    {u"GroupBox1", Kind::GroupBox, {369, 14, 143, 102}, 28, u"Poids idéal (kg)"},
    {u"StaticText13", Kind::StaticText, {381, 74, 50, 20}, 0, u"Femme", {.inside = u"GroupBox1"}},
    {u"StaticText4", Kind::StaticText, {381, 38, 56, 23}, 1, u"Homme", {.inside = u"GroupBox1"}},
    {u"StaticText17",
     Kind::StaticText,
     {385, 101, 62, 14},
     4,
     u"Devine 1974",
     {.inside = u"GroupBox1", .textSize = 9}},
    {u"poidsidealh",
     Kind::StaticText,
     {448, 39, 53, 23},
     5,
     u"",
     {.inside = u"GroupBox1", .label = u"StaticText4"}},
    {u"poidsidealf",
     Kind::StaticText,
     {448, 75, 53, 23},
     6,
     u"",
     {.inside = u"GroupBox1", .label = u"StaticText13"}},
    {u"imcde", Kind::StaticText, {264, 72, 75, 23}, 34, u"", {.label = u"StaticText16"}},
    {u"imcma", Kind::StaticText, {264, 107, 75, 23}, 35, u"", {.label = u"StaticText15"}},
    {u"imcn", Kind::StaticText, {264, 138, 75, 23}, 36, u"", {.label = u"StaticText8"}},
    {u"imcsu", Kind::StaticText, {264, 172, 75, 23}, 37, u"", {.label = u"StaticText9"}},
    {u"imcom", Kind::StaticText, {264, 205, 75, 23}, 38, u"", {.label = u"StaticText10"}},
    {u"imcos", Kind::StaticText, {264, 238, 75, 23}, 39, u"", {.label = u"StaticText11"}},
    {u"imcomo", Kind::StaticText, {264, 271, 75, 23}, 40, u"", {.label = u"StaticText12"}},
};

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
    createControls(layoutTable);
    bindSteppedField({u"taille", u"UpDownArrows1", 50, 250});
    bindSteppedField({u"poids", u"UpDownArrows2", 30, 250});
    auto& aide = control<PushButton>(u"imcaide");
    aide.Action = [this](PushButton&) { imcaide_Action(); };
    aide.MouseExit = [this](PushButton&) { imcaide_MouseExit(); };
}

void imc::Event_Open()
{
    if (App().taille != 0)
        control<TextField>(u"taille").setText(Str(App().taille));
    if (App().poids != 0)
        control<TextField>(u"poids").setText(Str(App().poids));
    calc();
}

void imc::imcaide_Action()
{
    showTip(steppingTip(Chr(13)));
}

void imc::imcaide_MouseExit()
{
    hideTip();
}

void imc::calc()
{
    App().poids = static_cast<Single>(Val(control<TextField>(u"poids").text()));
    App().taille = static_cast<Single>(Val(control<TextField>(u"taille").text()));
    const Single W = App().poids;
    const Single H = App().taille;

    const Single heightSquared = H * H;
    const Double squareMetres = heightSquared / 10000.0;
    const auto index = static_cast<Single>(W / squareMetres);
    auto& imct = control<TextField>(u"imct");
    imct.setText(Format(index, u"0.0"));
    imct.Refresh(true);

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
    const std::array<std::pair<QStringView, QString>, 7> bands{{
        {u"imcde", u"<" + bound[0]},
        {u"imcma", bound[0] + u"-" + bound[1]},
        {u"imcn", bound[1] + u"-" + bound[2]},
        {u"imcsu", bound[2] + u"-" + bound[3]},
        {u"imcom", bound[3] + u"-" + bound[4]},
        {u"imcos", bound[4] + u"-" + bound[5]},
        {u"imcomo", u">" + bound[5]},
    }};
    for (const auto& [name, text] : bands) {
        auto& band = control<StaticText>(name);
        band.setText(text);
        band.Refresh(true);
    }
}

// The class follows the index as shown, with one decimal, not the computed value.
void imc::writeClass()
{
    const Double x = Val(control<TextField>(u"imct").text());
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
    control<StaticText>(u"imclab").setText(name);
}

// Devine, with the height converted by 2.56 as the formula has always been used here.
void imc::writeIdealWeights(Single height)
{
    const Double I = (height / 2.56 - 60) * 2.3;
    const auto man = static_cast<Single>(I + 50);
    const auto woman = static_cast<Single>(I + 45.5);
    control<StaticText>(u"poidsidealh").setText(Format(man, u"0.0"));
    control<StaticText>(u"poidsidealf").setText(Format(woman, u"0.0"));
}

// James 1981.
void imc::writeLeanWeights(Single weight, Single height)
{
    const Double Q = Pow(weight, 2) / Pow(height, 2);
    const auto man = static_cast<Single>(1.1 * weight - 128 * Q);
    const auto woman = static_cast<Single>(1.07 * weight - 148 * Q);
    control<StaticText>(u"poidsmaigreh").setText(Format(man, u"0.0"));
    control<StaticText>(u"poidsmaigref").setText(Format(woman, u"0.0"));
}

} // namespace vorkan
