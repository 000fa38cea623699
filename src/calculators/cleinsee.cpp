#include "cleinsee.h"

#include "platform.h"
#include "textops.h"
#include "tips.h"

#include <QStringList>

#include <functional>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

constexpr WindowProps props{u"Cle insee", 216, 117};

// clang-format off
constexpr LayoutRow layoutTable[] = {
    // name           class               left top width height tab text      other
    {u"TextField1",   Kind::TextField,   { 20, 36, 126, 22}, 2, u"",         {.maskDigits = 13, .groupedDigits = true}},
    {u"TextField2",   Kind::TextField,   {158, 36,  38, 22}, 3, u"",         {.bold = true, .readOnly = true}},
    {u"StaticText2",  Kind::StaticText,  { 20, 14,  57, 22}, 4, u"Numéro",   {.bold = true, .underline = true,
                                                                               .helpTag = u"Cliquer pour infos"}},
    {u"StaticText3",  Kind::StaticText,  {158, 16,  29, 19}, 5, u"Clé"},
    {u"BevelButton1", Kind::BevelButton, { 20, 70,  33, 27}, 6, u"RAZ",      {.helpTag = u"Remise à zéro"}},
    {u"BevelButton2", Kind::BevelButton, { 95, 70,  51, 27}, 7, u"Copier",   {.helpTag = u"Copier dans le presse papier",
                                                                               .enabled = false}},
    {u"cleaide",      Kind::PushButton,  {170, 70,  26, 27}, 8, u"?"},
};

constexpr LabelledBy labels[] = {{u"TextField1", u"StaticText2"}, {u"TextField2", u"StaticText3"}};
// clang-format on

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
    createControls(layoutTable, labels);
    TextField1().KeyDown = std::bind_front(&cleinsee::TextField1_KeyDown, this);
    connect(&StaticText2(), &StaticText::MouseExit, this, &cleinsee::StaticText2_MouseExit);
    StaticText2().MouseDown = std::bind_front(&cleinsee::StaticText2_MouseDown, this);
    connect(&BevelButton1(), &BevelButton::clicked, this, &cleinsee::BevelButton1_Action);
    connect(&BevelButton2(), &BevelButton::clicked, this, &cleinsee::BevelButton2_Action);
    connect(&cleaide(), &PushButton::clicked, this, &cleinsee::cleaide_Action);
    connect(&cleaide(), &PushButton::MouseExit, this, &cleinsee::cleaide_MouseExit);
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
    BevelButton2().setEnabled(TextField1().text() != u""_s);
    if (Key == Chr(13))
        calc();
    if (Len(TextField1().text()) == 13)
        calc();
    return false;
}

// The key is 97 less the remainder, so a multiple of 97 (or nothing) gives 97.
void cleinsee::calc()
{
    const Int64 n = toInt64(Val(TextField1().text()));
    const Int64 r = n % 97;
    const Int64 key = 97 - r;
    TextField2().setText(Str(key));
}

// The copy button is left as it is until the next key press.
void cleinsee::BevelButton1_Action()
{
    TextField1().setText(QString());
    TextField2().setText(QString());
}

// Copies both fields as they stand, whether or not the key belongs to the number.
void cleinsee::BevelButton2_Action()
{
    const QString number = TextField1().text();
    if (number != u""_s)
        Clipboard::setText(number + u" "_s + TextField2().text());
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
