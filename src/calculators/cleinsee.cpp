#include "cleinsee.h"

#include "core/controls.h"
#include "core/platform.h"
#include "core/textops.h"
#include "tips.h"

#include <QStringList>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"Cle insee", 216, 117};

constexpr LayoutRow layoutTable[] = {
    {u"TextField1",
     Kind::TextField,
     {20, 36, 126, 22},
     2,
     u"",
     {.maskDigits = 13, .groupedDigits = true, .label = u"StaticText2"}},
    {u"TextField2",
     Kind::TextField,
     {158, 36, 38, 22},
     3,
     u"",
     {.bold = true, .readOnly = true, .label = u"StaticText3"}},
    {u"StaticText2",
     Kind::StaticText,
     {20, 14, 57, 22},
     4,
     u"Numéro",
     {.bold = true, .underline = true, .helpTag = u"Cliquer pour infos"}},
    {u"StaticText3", Kind::StaticText, {158, 16, 29, 19}, 5, u"Clé"},
    {u"BevelButton1",
     Kind::BevelButton,
     {20, 70, 33, 27},
     6,
     u"RAZ",
     {.helpTag = u"Remise à zéro"}},
    {u"BevelButton2",
     Kind::BevelButton,
     {95, 70, 51, 27},
     7,
     u"Copier",
     {.helpTag = u"Copier dans le presse papier", .enabled = false}},
    {u"cleaide", Kind::PushButton, {170, 70, 26, 27}, 8, u"?"},
};

// One line after the other, with nothing after the last.
QString lines(std::initializer_list<QString> each)
{
    return QStringList(each).join(EndOfLine());
}

} // namespace

cleinsee::cleinsee() : Window(props) {}

class cleinsee& cleinsee()
{
    return ImplicitWindows::instance<class cleinsee>();
}

void cleinsee::CreateControls()
{
    createControls(layoutTable);
    control<TextField>(u"TextField1").KeyDown = [this](TextField&, const QString& key) {
        return TextField1_KeyDown(key);
    };
    auto& numero = control<StaticText>(u"StaticText2");
    numero.MouseExit = [this](StaticText&) { StaticText2_MouseExit(); };
    numero.MouseDown = [this](StaticText&, Int32 x, Int32 y) {
        return StaticText2_MouseDown(x, y);
    };
    control<BevelButton>(u"BevelButton1").Action = [this](BevelButton&) { BevelButton1_Action(); };
    control<BevelButton>(u"BevelButton2").Action = [this](BevelButton&) { BevelButton2_Action(); };
    auto& aide = control<PushButton>(u"cleaide");
    aide.Action = [this](PushButton&) { cleaide_Action(); };
    aide.MouseExit = [this](PushButton&) { cleaide_MouseExit(); };
}

// The window is already closing; closing it again does nothing.
void cleinsee::Event_Close()
{
    Close();
}

// The field still holds the text from before this key, so the copy button and the
// computation at the thirteenth digit follow one key behind what the user sees.
bool cleinsee::TextField1_KeyDown(const QString& Key)
{
    control<BevelButton>(u"BevelButton2")
        .setEnabled(control<TextField>(u"TextField1").text() != u""_s);
    if (Key == Chr(13))
        calc();
    if (Len(control<TextField>(u"TextField1").text()) == 13)
        calc();
    return false;
}

// The key is 97 less the remainder, so a multiple of 97 (or nothing) gives 97.
void cleinsee::calc()
{
    const Int64 n = toInt64(Val(control<TextField>(u"TextField1").text()));
    const Int64 r = n % 97;
    const Int64 key = 97 - r;
    control<TextField>(u"TextField2").setText(Str(key));
}

// The copy button is left as it is until the next key press.
void cleinsee::BevelButton1_Action()
{
    control<TextField>(u"TextField1").setText(QString());
    control<TextField>(u"TextField2").setText(QString());
}

// Copies both fields as they stand, whether or not the key belongs to the number.
void cleinsee::BevelButton2_Action()
{
    const QString number = control<TextField>(u"TextField1").text();
    if (number != u""_s)
        Clipboard::setText(number + u" "_s + control<TextField>(u"TextField2").text());
}

void cleinsee::cleaide_Action()
{
    showTip(lines({u"Entrer 13 chiffres pour calculer"_s, u"ou touche Entrée"_s}));
}

void cleinsee::cleaide_MouseExit()
{
    hideTip();
}

bool cleinsee::StaticText2_MouseDown(Int32 /*X*/, Int32 /*Y*/)
{
    showTip(lines({u"A BB CC DD EEE FFF"_s, u"A : sexe (1/2)"_s, u"BB : année"_s, u"CC : mois"_s,
                   u"DD : département"_s, u"EEE : code commune"_s, u"FFF : rang de naissance"_s}));
    return false;
}

void cleinsee::StaticText2_MouseExit()
{
    hideTip();
}

} // namespace vorkan
