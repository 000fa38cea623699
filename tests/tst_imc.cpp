// The two windows that compute from the height and weight, and the fields that step them.
#include "support.h"

#include <functional>

// One way of stepping a field, or its arrows.
using Stepper = std::function<void(TextField&, UpDownArrows&)>;
Q_DECLARE_METATYPE(Stepper)

static TextField& field(Window& window, const QString& name)
{
    return window.control<TextField>(name);
}

// Dubois, Gehan and George, Mosteller.
const auto surfaces = u" StaticText6 StaticText7 StaticText8"_s;

class TestImc : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    void opensOnTheDefaultsAndStoresThem()
    {
        QCOMPARE(shown(imc(), u"imct imclab imcde imcma imcn imcsu imcom imcos imcomo "
                              u"poidsidealh poidsidealf poidsmaigreh poidsmaigref"_s),
                 u"24.2 corpulence normale <48 48-53 53-72 72-87 87-101 101-116 >116 "
                 u"64.7 60.2 55.3 49.8"_s);
    }

    // The class follows the index as shown, its first test strict; typing is not clamped.
    void results_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("expected");
        const auto index = u"imct imclab"_s;
        QTest::newRow("exactly 40") << Win::imc << u"150 90"_s << index << u"40.0 obésité sévère"_s;
        QTest::newRow("above 40") << Win::imc << u"150 91"_s << index << u"40.4 obésité morbide"_s;
        QTest::newRow("moderate") << Win::imc << u"170 90"_s << index << u"31.1 obésité modérée"_s;
        QTest::newRow("lean") << Win::imc << u"180 58"_s << index << u"17.9 maigreur"_s;
        QTest::newRow("onto 25") << Win::imc << u"125 39"_s << index << u"25.0 surpoids"_s;
        QTest::newRow("undernourished")
            << Win::imc << u"160 40"_s << index << u"15.6 dénutrition"_s;
        QTest::newRow("halfway ideal weights")
            << Win::imc << u"160 60"_s << u"poidsidealh poidsidealf"_s << u"55.8 51.3"_s;
        QTest::newRow("negative lean weights")
            << Win::imc << u"100 250"_s << u"poidsmaigreh poidsmaigref"_s << u"-525.0 -657.5"_s;
        QTest::newRow("height 0") << Win::imc << u"0 70"_s
                                  << u"imct imclab imcde imcma imcomo poidsidealh poidsmaigreh"_s
                                  << u"\u2014 dénutrition <0 0-0 >0 -88.0 \u2014"_s;
        QTest::newRow("no weight")
            << Win::imc << u"170 "_s << u"imct imclab poidsmaigreh"_s << u"0.0 dénutrition 0.0"_s;
        QTest::newRow("surf, not clamped")
            << Win::surf << u"999 999"_s << surfaces.mid(1) << u"20.22 15.20 16.65"_s;
        QTest::newRow("surf, no height")
            << Win::surf << u" 70"_s << surfaces.mid(1) << u"0.00 0.00 0.00"_s;
    }
    void results()
    {
        QFETCH(Win, window);
        QFETCH(QString, typed);
        QFETCH(QString, names);
        const QString prefix = window == Win::surf ? u"surf"_s : QString();
        typeInto(field(open(window), prefix + u"taille"), typed.section(u' ', 0, 0));
        typeInto(field(open(window), prefix + u"poids"), typed.section(u' ', 1, 1));
        QTEST(shown(open(window), names), "expected");
    }

    // Each step is held at its own limit only; both windows pass their own limits.
    void stepping_data()
    {
        const Stepper keyUp = [](TextField& f, auto&) { QTest::keyClick(&f, Qt::Key_Up); };
        const Stepper keyDown = [](TextField& f, auto&) { QTest::keyClick(&f, Qt::Key_Down); };
        const Stepper keyLeft = [](TextField& f, auto&) { QTest::keyClick(&f, Qt::Key_Left); };
        const Stepper wheelAway = [](TextField& f, auto&) { wheel(f, 120); };
        const Stepper wheelTowards = [](TextField& f, auto&) { wheel(f, -120); };
        const Stepper wheelFar = [](TextField& f, auto&) { wheel(f, 960); };
        const Stepper wheelSideways = [](TextField& f, auto&) { wheel(f, 0, 120); };
        const Stepper arrowsWheel = [](auto&, UpDownArrows& a) { wheel(a, 120); };
        const Stepper arrowUp = [](auto&, UpDownArrows& a) {
            QTest::mouseClick(&a, Qt::LeftButton, {}, {6, 3});
        };
        const Stepper arrowDown = [](auto&, UpDownArrows& a) {
            QTest::mouseClick(&a, Qt::LeftButton, {}, {6, 22});
        };
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Stepper>("how");
        QTest::addColumn<QString>("expected");
        QTest::newRow("held at 30") << u"poids"_s << u"30"_s << arrowDown << u"30"_s;
        QTest::newRow("999 up lands on 250") << u"poids"_s << u"999"_s << wheelAway << u"250"_s;
        QTest::newRow("999 down is not pulled to 250")
            << u"poids"_s << u"999"_s << wheelTowards << u"998"_s;
        QTest::newRow("20 down lands on 50") << u"taille"_s << u"20"_s << keyDown << u"50"_s;
        QTest::newRow("height held at 250") << u"taille"_s << u"250"_s << keyUp << u"250"_s;
        QTest::newRow("20 up is not lifted to 50") << u"taille"_s << u"20"_s << arrowUp << u"21"_s;
        QTest::newRow("empty reads 0") << u"taille"_s << u""_s << keyUp << u"1"_s;
        QTest::newRow("a big turn is one step") << u"poids"_s << u"80"_s << wheelFar << u"81"_s;
        QTest::newRow("sideways does nothing") << u"poids"_s << u"80"_s << wheelSideways << u"80"_s;
        QTest::newRow("other keys do not step") << u"taille"_s << u"170"_s << keyLeft << u"170"_s;
        QTest::newRow("surf, held at 50") << u"surftaille"_s << u"50"_s << arrowDown << u"50"_s;
        QTest::newRow("surf, held at 250") << u"surfpoids"_s << u"999"_s << arrowsWheel << u"250"_s;
    }
    void stepping()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(Stepper, how);
        const QString arrows = field.chopped(field.endsWith(u"taille") ? 6 : 5) + u"UpDownArrows" +
                               (field.endsWith(u"taille") ? u'1' : u'2');
        Window& window = field.startsWith(u"surf") ? static_cast<Window&>(surf()) : imc();
        typeInto(::field(window, field), typed);
        how(::field(window, field), window.control<UpDownArrows>(arrows));
        QTEST(shown(window, field), "expected");
    }

    // Typed at a person's pace, a refused key stays said long after the next keys, and
    // longer after a further refusal; then the balloon goes by itself.
    void aRefusalStaysInView()
    {
        auto& poids = field(imc(), u"poids"_s);
        typeInto(poids, QString());
        QTest::keyClicks(&poids, u"72,5"_s, {}, 15);
        QCOMPARE(poids.text(), u"725"_s);
        QTest::qWait(1000);
        QVERIFY(poids.balloon() && poids.balloon()->text().startsWith(u"Nombres entiers"_s));
        QTest::qWait(2500);
        QTest::keyClick(&poids, Qt::Key_Comma);
        QTest::qWait(2500);
        QVERIFY(poids.balloon());
        QVERIFY(QTest::qWaitFor([&] { return !poids.balloon(); }, 10000));
        QCOMPARE(poids.text(), u"725"_s);
    }

    // The balloon lies on the screen and leaves in view the field and every label, button
    // and field of its window, the "?" below the weight and the labels beside the fields
    // among them, and goes as soon as the field loses the focus.
    void aRefusalCoversNothing_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected");
        QTest::newRow("imc, weight") << Win::imc << u"poids"_s << u"72,5"_s << u"725"_s;
        QTest::newRow("imc, height") << Win::imc << u"taille"_s << u"1m80"_s << u"180"_s;
        QTest::newRow("surf, weight") << Win::surf << u"surfpoids"_s << u"7.5"_s << u"75"_s;
        QTest::newRow("surf, height") << Win::surf << u"surftaille"_s << u"1m80"_s << u"180"_s;
        QTest::newRow("cleinsee, letter")
            << Win::cleinsee << u"TextField1"_s << u"2A00"_s << u"200"_s;
        QTest::newRow("cleinsee, 14th digit")
            << Win::cleinsee << u"TextField1"_s << u"12345678901234"_s << u"1234567890123"_s;
    }
    void aRefusalCoversNothing()
    {
        QFETCH(Win, window);
        QFETCH(QString, name);
        QFETCH(QString, typed);
        auto& typedInto = field(open(window), name);
        QVERIFY(QTest::qWaitForWindowActive(&open(window)));
        typeInto(typedInto, typed);
        QTEST(typedInto.text(), "expected");
        QVERIFY(typedInto.balloon());
        const QRect balloon = typedInto.balloon()->geometry();
        QVERIFY(availableScreenArea().contains(balloon));
        for (const QWidget* control : open(window).findChildren<QWidget*>()) {
            const bool keptInView =
                control->isVisible() && !control->isWindow() &&
                (qobject_cast<const QLabel*>(control) || qobject_cast<const QLineEdit*>(control) ||
                 qobject_cast<const QAbstractButton*>(control) ||
                 qobject_cast<const UpDownArrows*>(control));
            const QRect onScreen(control->mapToGlobal(QPoint()), control->size());
            QVERIFY2(!keptInView || !balloon.intersects(onScreen),
                     qPrintable(control->objectName()));
        }
        QTest::keyClick(&typedInto, Qt::Key_Tab);
        QVERIFY(!typedInto.balloon());
    }

    // The focus a window gives as it opens, and as it comes back to the front, selects
    // the height as Tab does: what is typed at once replaces it.
    void typingAtOnceReplaces_data()
    {
        QTest::addColumn<Win>("window");
        QTest::newRow("imc") << Win::imc;
        QTest::newRow("surf") << Win::surf;
    }
    void typingAtOnceReplaces()
    {
        QFETCH(Win, window);
        const QString height = window == Win::surf ? u"surftaille"_s : u"taille"_s;
        for (const QString& typed : {u"180"_s, u"175"_s}) {
            QVERIFY(QTest::qWaitForWindowActive(&open(window)));
            QTest::keyClicks(QApplication::focusWidget(), typed);
            QCOMPARE(shown(open(window), height), typed);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
            Window1().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&Window1()));
            open(window).activateWindow();
        }
    }

    void arrowsRepeatWhileHeld()
    {
        auto& arrows = imc().control<UpDownArrows>(u"UpDownArrows1");
        QTest::mousePress(&arrows, Qt::LeftButton, {}, QPoint(6, 3));
        QTest::qWait(1200);
        QTest::mouseRelease(&arrows, Qt::LeftButton, {}, QPoint(6, 3));
        const auto held = Val(shown(imc(), u"taille"_s));
        QVERIFY2(held > 172, qPrintable(QString::number(held)));
        QTest::qWait(300);
        QCOMPARE(Val(shown(imc(), u"taille"_s)), held);
    }

    // Each window opens on what the other left in the record, typed or stepped.
    void surfSharesTheRecordWithImc()
    {
        typeInto(field(imc(), u"taille"_s), u"180"_s);
        typeInto(field(imc(), u"poids"_s), u"80"_s);
        closeAllWindows();
        QCOMPARE(shown(surf(), u"surftaille surfpoids"_s + surfaces), u"180 80 2.00 2.01 2.00"_s);
        QTest::keyClick(&field(surf(), u"surftaille"_s), Qt::Key_Up);
        wheel(field(surf(), u"surfpoids"_s), -120);
        closeAllWindows();
        QCOMPARE(shown(imc(), u"taille poids imct"_s), u"181 79 24.1"_s);
    }
};

VORKAN_TEST_MAIN(TestImc)
#include "tst_imc.moc"
