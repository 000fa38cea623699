#include "support.h"

#include "calculators/imc.h"
#include "calculators/surf.h"
#include "core/controls.h"
#include "core/textops.h"
#include "core/updownarrows.h"

#include <functional>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

// One way of stepping a field, or its arrows.
using Stepper = std::function<void(TextField&, UpDownArrows&)>;
Q_DECLARE_METATYPE(Stepper)

namespace {

const auto indexAndClass = u"imct imclab"_s;

} // namespace

class TestImc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup()
    {
        closeAllWindows();
        useLocale(QLocale::C);
    }

    void opensOnTheDefaultsAndStoresThem()
    {
        QCOMPARE(App().taille, 0.0f);
        QCOMPARE(shown(imc(), u"imct imclab imcde imcma imcn imcsu imcom imcos imcomo "
                              u"poidsidealh poidsidealf poidsmaigreh poidsmaigref"_s),
                 u"24.2 corpulence normale <48 48-53 53-72 72-87 87-101 101-116 >116 "
                 u"64.7 60.2 55.3 49.8"_s);
        QCOMPARE(App().taille, 170.0f);
        QCOMPARE(App().poids, 70.0f);
    }

    // The class follows the index as shown, first test strict.
    void results_data()
    {
        QTest::addColumn<QString>("taille");
        QTest::addColumn<QString>("poids");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("expected");
        QTest::newRow("exactly 40 is not above 40")
            << u"150"_s << u"90"_s << indexAndClass << u"40.0 obésité sévère"_s;
        QTest::newRow("above 40") << u"150"_s << u"91"_s << indexAndClass
                                  << u"40.4 obésité morbide"_s;
        QTest::newRow("moderate") << u"170"_s << u"90"_s << indexAndClass
                                  << u"31.1 obésité modérée"_s;
        QTest::newRow("lean") << u"180"_s << u"58"_s << indexAndClass << u"17.9 maigreur"_s;
        QTest::newRow("onto 25") << u"125"_s << u"39"_s << indexAndClass << u"25.0 surpoids"_s;
        QTest::newRow("undernourished")
            << u"160"_s << u"40"_s << indexAndClass << u"15.6 dénutrition"_s;
        QTest::newRow("halfway ideal weights")
            << u"160"_s << u"60"_s << u"poidsidealh poidsidealf"_s << u"55.8 51.3"_s;
        QTest::newRow("negative ideal weights")
            << u"50"_s << u"70"_s << u"poidsidealh poidsidealf"_s << u"-43.1 -47.6"_s;
        QTest::newRow("negative lean weights")
            << u"100"_s << u"250"_s << u"poidsmaigreh poidsmaigref"_s << u"-525.0 -657.5"_s;
        QTest::newRow("height 0") << u"0"_s << u"70"_s
                                  << u"imct imclab imcde imcma imcomo poidsidealh poidsmaigreh"_s
                                  << u"\u2014 dénutrition <0 0-0 >0 -88.0 \u2014"_s;
        QTest::newRow("emptied weight")
            << u"170"_s << u""_s << u"imct imclab poidsmaigreh"_s << u"0.0 dénutrition 0.0"_s;
    }
    void results()
    {
        QFETCH(QString, taille);
        QFETCH(QString, poids);
        QFETCH(QString, names);
        typeInto(imc().control<TextField>(u"taille"), taille);
        typeInto(imc().control<TextField>(u"poids"), poids);
        QTEST(shown(imc(), names), "expected");
        QCOMPARE(App().taille, Single(Val(taille)));
        QCOMPARE(App().poids, Single(Val(poids)));
    }

    // Were "18,5" read back as 18, the class would be "maigreur".
    void readsBackWhatItShowsUnderAFrenchLocale()
    {
        useLocale(QLocale::French);
        typeInto(imc().control<TextField>(u"taille"), u"180"_s);
        typeInto(imc().control<TextField>(u"poids"), u"60"_s);
        QCOMPARE(shown(imc(), u"imct imclab poidsidealh"_s), u"18,5 corpulence normale 73,7"_s);
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
            QTest::mouseClick(&a, Qt::LeftButton, {}, QPoint(a.width() / 2, 3));
        };
        const Stepper arrowDown = [](auto&, UpDownArrows& a) {
            QTest::mouseClick(&a, Qt::LeftButton, {}, QPoint(a.width() / 2, a.height() - 3));
        };
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Stepper>("how");
        QTest::addColumn<QString>("expected");
        QTest::newRow("up key") << u"taille"_s << u"170"_s << keyUp << u"171"_s;
        QTest::newRow("held at 250") << u"taille"_s << u"250"_s << keyUp << u"250"_s;
        QTest::newRow("held at 50") << u"taille"_s << u"50"_s << keyDown << u"50"_s;
        QTest::newRow("held at 30") << u"poids"_s << u"30"_s << arrowDown << u"30"_s;
        QTest::newRow("999 up lands on 250") << u"poids"_s << u"999"_s << wheelAway << u"250"_s;
        QTest::newRow("999 down is not pulled to 250")
            << u"poids"_s << u"999"_s << wheelTowards << u"998"_s;
        QTest::newRow("20 down lands on 50") << u"taille"_s << u"20"_s << keyDown << u"50"_s;
        QTest::newRow("20 up is not lifted to 50") << u"taille"_s << u"20"_s << arrowUp << u"21"_s;
        QTest::newRow("empty reads 0") << u"taille"_s << u""_s << keyUp << u"1"_s;
        QTest::newRow("wheel on the arrows") << u"taille"_s << u"180"_s << arrowsWheel << u"181"_s;
        QTest::newRow("a big turn is one step") << u"poids"_s << u"80"_s << wheelFar << u"81"_s;
        QTest::newRow("sideways does nothing") << u"poids"_s << u"80"_s << wheelSideways << u"80"_s;
        QTest::newRow("other keys do not step") << u"taille"_s << u"170"_s << keyLeft << u"170"_s;
        QTest::newRow("surf, held at 50") << u"surftaille"_s << u"50"_s << arrowDown << u"50"_s;
        QTest::newRow("surf, held at 30") << u"surfpoids"_s << u"30"_s << keyDown << u"30"_s;
        QTest::newRow("surf, held at 250") << u"surfpoids"_s << u"999"_s << arrowsWheel << u"250"_s;
    }
    void stepping()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(Stepper, how);
        const QHash<QString, QString> arrowsBeside{{u"taille"_s, u"UpDownArrows1"_s},
                                                   {u"poids"_s, u"UpDownArrows2"_s},
                                                   {u"surftaille"_s, u"surfUpDownArrows1"_s},
                                                   {u"surfpoids"_s, u"surfUpDownArrows2"_s}};
        Window& window = field.startsWith(u"surf") ? static_cast<Window&>(surf()) : imc();
        auto& edit = window.control<TextField>(field);
        typeInto(edit, typed);
        how(edit, window.control<UpDownArrows>(arrowsBeside.value(field)));
        QTEST(edit.text(), "expected");
        // The record follows the field whichever way it was stepped.
        QTEST(Str(field.endsWith(u"taille") ? App().taille : App().poids), "expected");
    }

    void aRefusedKeyIsNoticedAndChangesNothing()
    {
        auto& poids = imc().control<TextField>(u"poids");
        typeInto(poids, u"72"_s);
        QVERIFY(!poids.balloon());
        QTest::keyClick(&poids, Qt::Key_Comma, {}, 0);
        QCOMPARE(poids.text(), u"72"_s);
        QCOMPARE(App().poids, 72.0f);
        QVERIFY(poids.balloon());
        QVERIFY(poids.balloon()->text().startsWith(u"Nombres entiers"_s));
        QVERIFY(poids.balloon()->y() >= poids.mapToGlobal(QPoint(0, poids.height())).y());
        QTest::keyClick(&poids, Qt::Key_5);
        QVERIFY(!poids.balloon());
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
};

VORKAN_TEST_MAIN(TestImc)
#include "tst_imc.moc"
