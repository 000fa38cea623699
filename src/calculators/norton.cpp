#include "norton.h"

#include "menubar2.h"
#include "platform.h"
#include "textops.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"Echelle de Norton", 242, 448};

// RoundRectangle1 shares its tab index with GroupBox4; neither takes the focus.
// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name              class                 left  top width height tab text                         other
    {u"GroupBox1",       Kind::GroupBox,       { 20,  47, 173,  55}, 0, u"Condition physique"},
    {u"PopupMenu1",      Kind::PopupMenu,      { 31,  75, 154,  27}, 0, u"", {.inside = u"GroupBox1"}},
    {u"GroupBox2",       Kind::GroupBox,       { 20, 114, 173,  55}, 1, u"Etat mental"},
    {u"PopupMenu2",      Kind::PopupMenu,      { 31, 142, 154,  27}, 0, u"", {.inside = u"GroupBox2"}},
    {u"StaticText3",     Kind::StaticText,     {  0,  14, 222,  19}, 4, u"Evaluation du risque d'escarre",
                                               {.bold = true, .underline = true, .centred = true}},
    {u"GroupBox3",       Kind::GroupBox,       { 20, 181, 173,  55}, 5, u"Activité"},
    {u"PopupMenu3",      Kind::PopupMenu,      { 31, 209, 154,  27}, 0, u"", {.inside = u"GroupBox3"}},
    {u"GroupBox4",       Kind::GroupBox,       { 20, 248, 173,  55}, 6, u"Mobilité"},
    {u"PopupMenu4",      Kind::PopupMenu,      { 31, 276, 154,  27}, 0, u"", {.inside = u"GroupBox4"}},
    {u"GroupBox5",       Kind::GroupBox,       { 20, 315, 173,  55}, 7, u"Incontinence"},
    {u"PopupMenu5",      Kind::PopupMenu,      { 31, 343, 154,  27}, 0, u"", {.inside = u"GroupBox5"}},
    {u"RoundRectangle1", Kind::RoundRectangle, {  8, 389, 209,  39}, 6, u"", {.shape = {.oval = 16}}},
    {u"StaticText1",     Kind::StaticText,     { 15, 396, 184,  24}, 0, u"",
                                               {.inside = u"RoundRectangle1", .bold = true, .centred = true,
                                                .selectable = true}},
};

constexpr LabelledBy labels[] = {
    {u"PopupMenu1", u"GroupBox1"}, {u"PopupMenu2", u"GroupBox2"}, {u"PopupMenu3", u"GroupBox3"},
    {u"PopupMenu4", u"GroupBox4"}, {u"PopupMenu5", u"GroupBox5"},
};
// clang-format on

// Each criterion's rows, best first: the first row scores 4 and the last 1.
constexpr std::array<QStringView, 5> criterionRows{
    u"Bonne,Moyenne,Pauvre,Très mauvaise",
    u"Bon alerte,Apathique,Confus,Inconscient",
    u"Ambulant,Marche avec aide,Assis,Totalement alité",
    u"Totale,Diminuée,Très limitée,Immobile",
    u"Aucune,Occasionelle,Urinaire,Urinaire et fécale",
};

// The lowest score that is still a minimum risk.
constexpr Int32 minimumRiskScore = 14;

} // namespace

norton::norton() : Window(props) {}

class norton& norton()
{
    return ImplicitWindows::instance<class norton>();
}

void norton::Layout()
{
    setMenuBar(MenuBar2());
    Window::Layout();
}

void norton::CreateControls()
{
    createControls(layoutTable, labels);
    connect(&criteria[0](), &PopupMenu::currentIndexChanged, this, &norton::PopupMenu1_Change);
    connect(&criteria[1](), &PopupMenu::currentIndexChanged, this, &norton::PopupMenu2_Change);
    connect(&criteria[2](), &PopupMenu::currentIndexChanged, this, &norton::PopupMenu3_Change);
    connect(&criteria[3](), &PopupMenu::currentIndexChanged, this, &norton::PopupMenu4_Change);
    connect(&criteria[4](), &PopupMenu::currentIndexChanged, this, &norton::PopupMenu5_Change);
}

void norton::AddMenuHandlers()
{
    AddMenuHandler(u"OptionsRAZ", &norton::OptionsRAZ_Action);
    AddMenuHandler(u"OptionsCopier", &norton::OptionsCopier_Action);
}

// The popups stay on no row, and no result shows, until the user chooses.
void norton::Event_Open()
{
    for (size_t criterion = 0; criterion < criterionRows.size(); ++criterion) {
        const QStringView rows = criterionRows[criterion];
        const Int32 count = CountFields(rows, u",");
        for (Int32 i = 1; i <= count; ++i)
            criteria[criterion]().AddRow(NthField(rows, u",", i));
    }
}

// The window is already closing; closing it again does nothing.
void norton::Event_Close()
{
    Close();
}

void norton::PopupMenu1_Change()
{
    calc();
}

void norton::PopupMenu2_Change()
{
    calc();
}

void norton::PopupMenu3_Change()
{
    calc();
}

void norton::PopupMenu4_Change()
{
    calc();
}

void norton::PopupMenu5_Change()
{
    calc();
}

bool norton::OptionsRAZ_Action()
{
    for (const auto& criterion : criteria)
        criterion().setListIndex(-1);
    StaticText1().setText(QString());
    return true;
}

// With nothing computed the clipboard gets the prefix alone.
bool norton::OptionsCopier_Action()
{
    Clipboard::setText(u"Score de Norton : "_s + StaticText1().text());
    return true;
}

// Until every criterion has a row, the result stays as it was.
void norton::calc()
{
    Int32 score = 0;
    for (const auto& criterion : criteria) {
        const Int32 index = criterion().ListIndex();
        if (index == -1)
            return;
        score += 4 - index;
    }
    const QString risk = minimumRiskScore <= score ? u"Risque minimum - ["_s : u"Haut risque - ["_s;
    StaticText1().setText(risk + Str(score) + u"]"_s);
}

} // namespace vorkan
