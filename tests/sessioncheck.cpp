#include "sessioncheck.h"

#include "app.h"
#include "controls.h"
#include "textops.h"
#include "window.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vorkan::test {

namespace {

// The fields that hold the height and weight in the windows that compute with them.
struct RecordFields {
    QStringView window, poids, taille;
};
constexpr RecordFields recordFields[] = {
    {u"imc.imc", u"poids", u"taille"},
    {u"surf.surf", u"surfpoids", u"surftaille"},
};

QString shown(const Window& window, QStringView name)
{
    if (auto* field = dynamic_cast<TextField*>(&window.control<QWidget>(name)))
        return field->text();
    return window.control<StaticText>(name).text();
}

QString figures(const Window& window, std::initializer_list<QStringView> names)
{
    for (const QStringView name : names)
        if (!isFigure(shown(window, name)))
            return name.toString() + u" shows "_s + shown(window, name);
    return {};
}

QString imcFaults(const Window& window)
{
    static const QStringList classes{
        u"obésité morbide"_s,    u"obésité sévère"_s, u"obésité modérée"_s, u"surpoids"_s,
        u"corpulence normale"_s, u"maigreur"_s,       u"dénutrition"_s};
    if (!classes.contains(shown(window, u"imclab")))
        return u"class "_s + shown(window, u"imclab");
    QString fault = figures(
        window, {u"imct", u"poidsidealh", u"poidsidealf", u"poidsmaigreh", u"poidsmaigref"});
    for (const QStringView band :
         {u"imcde", u"imcma", u"imcn", u"imcsu", u"imcom", u"imcos", u"imcomo"}) {
        const QString text = shown(window, band);
        const bool edge = text.startsWith(u'<') || text.startsWith(u'>');
        const QStringList bounds = edge ? QStringList{text.mid(1)} : text.split(u'-');
        for (const QString& bound : bounds)
            if (!isFigure(bound) || (!edge && bounds.size() != 2))
                fault = band.toString() + u" shows "_s + text;
    }
    return fault;
}

QString nortonFaults(const Window& window)
{
    Int32 score = 0;
    for (int i = 1; i <= 5; ++i) {
        const int index = window.control<PopupMenu>(u"PopupMenu%1"_s.arg(i)).ListIndex();
        if (index == -1)
            return {};
        score += 4 - index;
    }
    const QString expected =
        (score >= 14 ? u"Risque minimum - ["_s : u"Haut risque - ["_s) + Str(score) + u"]"_s;
    const QString result = shown(window, u"StaticText1");
    return result == expected ? QString() : u"Norton shows "_s + result + u" for "_s + expected;
}

QString cleinseeFaults(const Window& window)
{
    const QString key = shown(window, u"TextField2");
    bool whole = false;
    const int value = key.toInt(&whole);
    if (key.isEmpty() || (whole && value >= 1 && value <= 97 && key == QString::number(value)))
        return {};
    return u"INSEE key "_s + key;
}

QString windowFaults(const Window& window, const QString& name)
{
    if (name == u"imc.imc"_s)
        return imcFaults(window);
    if (name == u"surf.surf"_s)
        return figures(window, {u"StaticText6", u"StaticText7", u"StaticText8"});
    if (name == u"pideal.pideal"_s)
        return figures(window, {u"StaticText8", u"StaticText9", u"StaticText10", u"StaticText11",
                                u"StaticText12"});
    if (name == u"norton.norton"_s)
        return nortonFaults(window);
    if (name == u"cleinsee.cleinsee"_s)
        return cleinseeFaults(window);
    return {};
}

} // namespace

bool isFigure(const QString& text)
{
    static const QRegularExpression number(u"^-?[0-9]+([.,][0-9]+)?$"_s);
    if (text == u"\u2014"_s)
        return true;
    if (!number.match(text).hasMatch())
        return false;
    QString plain = text;
    return Val(text) == plain.replace(u',', u'.').toDouble();
}

void SessionCheck::calculated(const Window& window)
{
    for (const RecordFields& fields : recordFields)
        if (ImplicitWindows::find(fields.window) == &window) {
            expecting_ = true;
            poids_ = static_cast<Single>(Val(shown(window, fields.poids)));
            taille_ = static_cast<Single>(Val(shown(window, fields.taille)));
        }
}

QString SessionCheck::everyWindow() const
{
    for (const QString& name : {u"imc.imc"_s, u"surf.surf"_s, u"pideal.pideal"_s,
                                u"norton.norton"_s, u"cleinsee.cleinsee"_s})
        if (const Window* window = ImplicitWindows::find(name))
            if (const QString fault = windowFaults(*window, name); !fault.isEmpty())
                return name + u": "_s + fault;
    if (expecting_ && (App().poids != poids_ || App().taille != taille_))
        return u"record holds %1 kg, %2 cm instead of %3 kg, %4 cm"_s.arg(App().poids)
            .arg(App().taille)
            .arg(poids_)
            .arg(taille_);
    return {};
}

} // namespace vorkan::test
