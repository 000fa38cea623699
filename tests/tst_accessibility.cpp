// What a screen reader is told: each input and result by its visible label and its
// value, buttons by caption and help, and the keyboard's way through each window.
#include "support.h"

#include "cleinsee.h"
#include "controls.h"
#include "imc.h"
#include "norton.h"
#include "pideal.h"
#include "surf.h"
#include "window1.h"

#include <QAccessible>

#include <functional>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

using Opener = std::function<Window&()>;

Opener opener(const QString& window)
{
    if (window == u"imc"_s)
        return []() -> Window& { return imc(); };
    if (window == u"surf"_s)
        return []() -> Window& { return surf(); };
    if (window == u"pideal"_s)
        return []() -> Window& { return pideal(); };
    if (window == u"norton"_s)
        return []() -> Window& { return norton(); };
    if (window == u"cleinsee"_s)
        return []() -> Window& { return cleinsee(); };
    return []() -> Window& { return Window1(); };
}

QAccessibleInterface* interfaceOf(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

} // namespace

class TestAccessibility : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup() { closeAllWindows(); }

    void namesAndValues_data();
    void namesAndValues();
    void aLabelThatChangesRenamesItsControl();
    void windowsAreNamedByTheirTitles();
    void tabOrder_data();
    void tabOrder();
};

void TestAccessibility::namesAndValues_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("description");

    const auto row = [](const char* window, const char* control, const QString& name,
                        const QString& value, const QString& description = {}) {
        QTest::addRow("%s %s", window, control)
            << QString::fromLatin1(window) << QString::fromLatin1(control) << name << value
            << description;
    };
    row("imc", "taille", u"Taille (cm)"_s, u"170"_s);
    row("imc", "imct", u"IMC (kg/m²)"_s, u"24.2"_s);
    row("imc", "imclab", u"corpulence normale"_s, u""_s);
    row("imc", "imcde", u"Dénutrition"_s, u"<48"_s);
    row("imc", "imcom", u"Obéité modérée"_s, u"87-101"_s);
    row("imc", "poidsidealh", u"Poids idéal (kg), Homme"_s, u"64.7"_s);
    row("imc", "poidsmaigref", u"Poids maigre (kg), Femme"_s, u"49.8"_s);
    row("imc", "imcaide", u"?"_s, u""_s);
    row("surf", "StaticText7", u"Surface (m²), Gehan & Gorge"_s, u"1.83"_s);
    row("pideal", "Slider1", u"Taille (cm) : 160"_s, u"160"_s);
    row("pideal", "PopupMenu1", u"Sexe"_s, u"homme"_s);
    row("pideal", "StaticText12", u"Poids idéal (kg), Lorentz II"_s, u"57.5"_s);
    row("norton", "PopupMenu2", u"Etat mental"_s, u""_s);
    row("cleinsee", "TextField1", u"Numéro"_s, u""_s);
    row("cleinsee", "TextField2", u"Clé"_s, u""_s);
    row("cleinsee", "BevelButton2", u"Copier"_s, u""_s, u"Copier dans le presse papier"_s);
    row("main", "BevelButton1", u"Echelle de Norton"_s, u""_s, u"Estimation du risque d'escarre"_s);
}

void TestAccessibility::namesAndValues()
{
    QFETCH(QString, window);
    QFETCH(QString, control);
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, description);

    QWidget& widget = opener(window)().control<QWidget>(control);
    QAccessibleInterface* found = interfaceOf(&widget);
    QVERIFY(found);
    // Qt names a pop-up on Linux by its row and relates it to its label instead.
    if (qobject_cast<PopupMenu*>(&widget))
        QCOMPARE(widget.accessibleName(), name);
    else
        QCOMPARE(found->text(QAccessible::Name), name);
    QCOMPARE(found->text(QAccessible::Value), value);
    QCOMPARE(found->text(QAccessible::Description), description);
}

void TestAccessibility::aLabelThatChangesRenamesItsControl()
{
    auto& slider = pideal().control<Slider>(u"Slider1");
    QTest::keyClick(&slider, Qt::Key_PageUp);
    QCOMPARE(interfaceOf(&slider)->text(QAccessible::Name), u"Taille (cm) : 180"_s);

    typeInto(imc().control<TextField>(u"taille"), u"150"_s);
    typeInto(imc().control<TextField>(u"poids"), u"90"_s);
    QCOMPARE(interfaceOf(&imc().control<QWidget>(u"imct"))->text(QAccessible::Value), u"40.0"_s);
    QCOMPARE(interfaceOf(&imc().control<QWidget>(u"imclab"))->text(QAccessible::Name),
             u"obésité sévère"_s);
}

void TestAccessibility::windowsAreNamedByTheirTitles()
{
    for (const auto& [window, title] : {std::pair{u"main"_s, u"Vorkan MAC"_s},
                                        {u"imc"_s, u"IMC"_s},
                                        {u"surf"_s, u"Surface corporelle"_s},
                                        {u"pideal"_s, u"Poids idéal"_s},
                                        {u"norton"_s, u"Echelle de Norton"_s},
                                        {u"cleinsee"_s, u"Cle insee"_s}})
        QCOMPARE(interfaceOf(&opener(window)())->text(QAccessible::Name), title);
}

void TestAccessibility::tabOrder_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("imc") << u"imc"_s
                         << QStringList{u"taille"_s, u"poids"_s, u"imct"_s, u"imcaide"_s};
    QTest::newRow("surf") << u"surf"_s
                          << QStringList{u"surftaille"_s, u"surfpoids"_s, u"surfaide"_s};
    QTest::newRow("pideal") << u"pideal"_s
                            << QStringList{u"Slider1"_s, u"Slider2"_s, u"PopupMenu1"_s};
    QTest::newRow("norton") << u"norton"_s
                            << QStringList{u"PopupMenu1"_s, u"PopupMenu2"_s, u"PopupMenu3"_s,
                                           u"PopupMenu4"_s, u"PopupMenu5"_s};
    // The copy button is disabled until a number is typed, and Tab passes it by.
    QTest::newRow("cleinsee") << u"cleinsee"_s
                              << QStringList{u"TextField1"_s, u"TextField2"_s, u"BevelButton1"_s,
                                             u"cleaide"_s};
    QTest::newRow("main") << u"main"_s
                          << QStringList{u"BevelButton1"_s, u"BevelButton2"_s, u"BevelButton3"_s,
                                         u"BevelButton4"_s, u"BevelButton5"_s, u"BevelButton6"_s,
                                         u"BevelButton7"_s};
}

void TestAccessibility::tabOrder()
{
    QFETCH(QString, window);
    QFETCH(QStringList, order);
    Window& shown = opener(window)();
    QVERIFY(QTest::qWaitForWindowActive(&shown));
    shown.control<QWidget>(order.first()).setFocus(Qt::TabFocusReason);
    QStringList seen;
    for (qsizetype i = 0; i < order.size(); ++i) {
        seen << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(seen, order);
    QCOMPARE(QApplication::focusWidget()->objectName(), order.first());
}

VORKAN_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
