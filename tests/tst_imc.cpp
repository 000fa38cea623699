#include "support.h"

#include "controls.h"
#include "imc.h"
#include "platform.h"
#include "textops.h"
#include "updownarrows.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

class TestImc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opensOnTheDefaultsAndStoresThem();
    void results_data();
    void results();
    void resultsUnderAFrenchLocale();
    void stepping_data();
    void stepping();
    void aRefusedKeyIsNoticedAndChangesNothing();
    void arrowsRepeatWhileHeld();
    void reopensFromTheRecord();
    void tipShowsThreeLinesBesideThePointer();

private:
    static QString shown(const char* name);
};

QString TestImc::shown(const char* name)
{
    const QString control = QString::fromLatin1(name);
    if (control == u"imct"_s || control == u"taille"_s || control == u"poids"_s)
        return imc().control<TextField>(control).text();
    return imc().control<StaticText>(control).text();
}

void TestImc::init()
{
    resetRecord();
}

void TestImc::cleanup()
{
    closeAllWindows();
    QLocale::setDefault(QLocale::c());
}

void TestImc::opensOnTheDefaultsAndStoresThem()
{
    QCOMPARE(App().taille, 0.0f);
    QCOMPARE(App().poids, 0.0f);
    QCOMPARE(App().age, 0);
    QCOMPARE(App().sexe, true);
    imc();
    QCOMPARE(App().taille, 170.0f);
    QCOMPARE(App().poids, 70.0f);
    const QStringList expected{u"24.2"_s,   u"corpulence normale"_s,
                               u"<48"_s,    u"48-53"_s,
                               u"53-72"_s,  u"72-87"_s,
                               u"87-101"_s, u"101-116"_s,
                               u">116"_s,   u"64.7"_s,
                               u"60.2"_s,   u"55.3"_s,
                               u"49.8"_s};
    QStringList seen;
    for (const char* name :
         {"imct", "imclab", "imcde", "imcma", "imcn", "imcsu", "imcom", "imcos", "imcomo",
          "poidsidealh", "poidsidealf", "poidsmaigreh", "poidsmaigref"})
        seen << shown(name);
    QCOMPARE(seen, expected);
}

void TestImc::results_data()
{
    QTest::addColumn<QString>("taille");
    QTest::addColumn<QString>("poids");
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("label");
    // Weight bands, ideal weights and lean weights, where the case is about them.
    QTest::addColumn<QString>("bands");
    QTest::addColumn<QString>("ideal");
    QTest::addColumn<QString>("lean");

    QTest::newRow("exactly 40 is not above 40")
        << u"150"_s << u"90"_s << u"40.0"_s << u"obésité sévère"_s << u""_s << u""_s << u""_s;
    QTest::newRow("above 40") << u"150"_s << u"91"_s << u"40.4"_s << u"obésité morbide"_s << u""_s
                              << u""_s << u""_s;
    QTest::newRow("moderate") << u"170"_s << u"90"_s << u"31.1"_s << u"obésité modérée"_s << u""_s
                              << u""_s << u""_s;
    QTest::newRow("lean") << u"180"_s << u"58"_s << u"17.9"_s << u"maigreur"_s << u""_s << u""_s
                          << u""_s;
    QTest::newRow("rounds up onto 25")
        << u"125"_s << u"39"_s << u"25.0"_s << u"surpoids"_s << u""_s << u""_s << u""_s;
    QTest::newRow("undernourished")
        << u"160"_s << u"40"_s << u"15.6"_s << u"dénutrition"_s << u""_s << u""_s << u""_s;
    QTest::newRow("halfway ideal weights")
        << u"160"_s << u"60"_s << u"23.4"_s << u"corpulence normale"_s << u""_s << u"55.8 51.3"_s
        << u""_s;
    QTest::newRow("negative ideal weights")
        << u"50"_s << u"70"_s << u"280.0"_s << u"obésité morbide"_s << u""_s << u"-43.1 -47.6"_s
        << u""_s;
    QTest::newRow("negative lean weights")
        << u"100"_s << u"250"_s << u"250.0"_s << u"obésité morbide"_s << u""_s << u""_s
        << u"-525.0 -657.5"_s;
    QTest::newRow("typed up to 999") << u"999"_s << u"999"_s << u"10.0"_s << u"dénutrition"_s
                                     << u"<1647 1647-1846 1846-2495 2495-2994 2994-3493 "
                                        u"3493-3992 >3992"_s
                                     << u""_s << u""_s;
    QTest::newRow("height 0") << u"0"_s << u"70"_s << u"\u2014"_s << u"dénutrition"_s
                              << u"<0 0-0 0-0 0-0 0-0 0-0 >0"_s << u"-88.0 -92.5"_s
                              << u"\u2014 \u2014"_s;
    QTest::newRow("emptied height") << u""_s << u"70"_s << u"\u2014"_s << u"dénutrition"_s
                                    << u"<0 0-0 0-0 0-0 0-0 0-0 >0"_s << u""_s << u""_s;
    QTest::newRow("weight 0") << u"170"_s << u"0"_s << u"0.0"_s << u"dénutrition"_s << u""_s
                              << u""_s << u"0.0 0.0"_s;
}

void TestImc::results()
{
    QFETCH(QString, taille);
    QFETCH(QString, poids);
    QFETCH(QString, index);
    QFETCH(QString, label);
    QFETCH(QString, bands);
    QFETCH(QString, ideal);
    QFETCH(QString, lean);

    typeInto(imc().control<TextField>(u"taille"), taille);
    typeInto(imc().control<TextField>(u"poids"), poids);

    QCOMPARE(shown("imct"), index);
    QCOMPARE(shown("imclab"), label);
    if (!bands.isEmpty()) {
        QStringList seen;
        for (const char* name : {"imcde", "imcma", "imcn", "imcsu", "imcom", "imcos", "imcomo"})
            seen << shown(name);
        QCOMPARE(seen.join(u' '), bands);
    }
    if (!ideal.isEmpty())
        QCOMPARE(shown("poidsidealh") + u' ' + shown("poidsidealf"), ideal);
    if (!lean.isEmpty())
        QCOMPARE(shown("poidsmaigreh") + u' ' + shown("poidsmaigref"), lean);
    QCOMPARE(App().taille, Single(Val(taille)));
    QCOMPARE(App().poids, Single(Val(poids)));
}

void TestImc::resultsUnderAFrenchLocale()
{
    useLocale(QLocale::French);
    typeInto(imc().control<TextField>(u"taille"), u"125"_s);
    typeInto(imc().control<TextField>(u"poids"), u"39"_s);
    QCOMPARE(shown("imct"), u"25,0"_s);
    QCOMPARE(shown("imclab"), u"surpoids"_s);
    QCOMPARE(shown("poidsidealh"), u"24,3"_s);
}

void TestImc::stepping_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("expected");

    QTest::newRow("up key") << u"taille"_s << u"170"_s << u"key up"_s << u"171"_s;
    QTest::newRow("down key at the lower limit")
        << u"taille"_s << u"50"_s << u"key down"_s << u"50"_s;
    QTest::newRow("weight stops at 30") << u"poids"_s << u"30"_s << u"arrow down"_s << u"30"_s;
    QTest::newRow("999 stepped up lands on the limit")
        << u"poids"_s << u"999"_s << u"wheel away"_s << u"250"_s;
    QTest::newRow("999 stepped down is not pulled to the limit")
        << u"poids"_s << u"999"_s << u"wheel towards"_s << u"998"_s;
    QTest::newRow("20 stepped down lands on the lower limit")
        << u"taille"_s << u"20"_s << u"key down"_s << u"50"_s;
    QTest::newRow("20 stepped up is not lifted to the limit")
        << u"taille"_s << u"20"_s << u"arrow up"_s << u"21"_s;
    QTest::newRow("empty, up") << u"taille"_s << u""_s << u"key up"_s << u"1"_s;
    QTest::newRow("empty, down") << u"taille"_s << u""_s << u"key down"_s << u"50"_s;
    QTest::newRow("wheel away on the arrows")
        << u"taille"_s << u"180"_s << u"arrows wheel away"_s << u"181"_s;
    QTest::newRow("a big wheel step is one step")
        << u"poids"_s << u"80"_s << u"wheel far away"_s << u"81"_s;
    QTest::newRow("a sideways wheel does nothing")
        << u"poids"_s << u"80"_s << u"wheel sideways"_s << u"80"_s;
    QTest::newRow("other keys do not step") << u"taille"_s << u"170"_s << u"key left"_s << u"170"_s;
}

void TestImc::stepping()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, how);
    QFETCH(QString, expected);

    auto& window = imc();
    auto& edit = window.control<TextField>(field);
    auto& arrows =
        window.control<UpDownArrows>(field == u"taille"_s ? u"UpDownArrows1" : u"UpDownArrows2");
    typeInto(edit, typed);

    if (how == u"key up"_s)
        QTest::keyClick(&edit, Qt::Key_Up);
    else if (how == u"key down"_s)
        QTest::keyClick(&edit, Qt::Key_Down);
    else if (how == u"key left"_s)
        QTest::keyClick(&edit, Qt::Key_Left);
    else if (how == u"wheel away"_s)
        wheel(edit, 120);
    else if (how == u"wheel far away"_s)
        wheel(edit, 960);
    else if (how == u"wheel towards"_s)
        wheel(edit, -120);
    else if (how == u"wheel sideways"_s)
        wheel(edit, 0, 120);
    else if (how == u"arrows wheel away"_s)
        wheel(arrows, 120);
    else if (how == u"arrow up"_s || how == u"arrow down"_s) {
        const QPoint at(arrows.width() / 2, how == u"arrow up"_s ? 3 : arrows.height() - 3);
        QTest::mouseClick(&arrows, Qt::LeftButton, {}, at);
    }

    QCOMPARE(edit.text(), expected);
    // The record follows the field whichever way it was stepped.
    const QString record = Str(field == u"taille"_s ? App().taille : App().poids);
    QCOMPARE(record, expected == u""_s ? u"0"_s : expected);
}

void TestImc::aRefusedKeyIsNoticedAndChangesNothing()
{
    auto& poids = imc().control<TextField>(u"poids");
    typeInto(poids, u"72"_s);
    QVERIFY(!poids.balloon());
    QTest::keyClick(&poids, Qt::Key_Comma, {}, 0);
    QCOMPARE(poids.text(), u"72"_s);
    QCOMPARE(App().poids, 72.0f);
    QVERIFY(poids.balloon());
    QVERIFY(poids.balloon()->text().startsWith(u"Nombres entiers"_s));
    QVERIFY(poids.balloon()->geometry().top() >= poids.mapToGlobal(QPoint(0, poids.height())).y());
    QTest::keyClick(&poids, Qt::Key_5);
    QVERIFY(!poids.balloon());
}

void TestImc::arrowsRepeatWhileHeld()
{
    auto& arrows = imc().control<UpDownArrows>(u"UpDownArrows1");
    QTest::mousePress(&arrows, Qt::LeftButton, {}, QPoint(6, 3));
    QTest::qWait(1200);
    QTest::mouseRelease(&arrows, Qt::LeftButton, {}, QPoint(6, 3));
    const auto held = Val(imc().control<TextField>(u"taille").text());
    QVERIFY2(held > 172, qPrintable(QString::number(held)));
    QTest::qWait(300);
    QCOMPARE(Val(imc().control<TextField>(u"taille").text()), held);
}

void TestImc::reopensFromTheRecord()
{
    QPointer<Window> first = &imc();
    typeInto(imc().control<TextField>(u"taille"), u"180"_s);
    typeInto(imc().control<TextField>(u"poids"), u"80"_s);
    QTest::keyClick(&imc().control<TextField>(u"poids"), Qt::Key_Up);
    first->Close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(first.isNull());

    QCOMPARE(shown("taille"), u"180"_s);
    QCOMPARE(shown("poids"), u"81"_s);
    QCOMPARE(shown("imct"), u"25.0"_s);
}

void TestImc::tipShowsThreeLinesBesideThePointer()
{
    auto& aide = imc().control<PushButton>(u"imcaide");
    // Leaving the button with no tip up does nothing.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&aide, &leave);
    QVERIFY(!Tooltip::shown());

    const QPoint pointer = aide.mapToGlobal(QPoint(5, 5));
    QCursor::setPos(pointer);
    QTest::mouseClick(&aide, Qt::LeftButton, {}, QPoint(5, 5));
    const QLabel* tip = Tooltip::shown();
    QVERIFY(tip);
    QCOMPARE(tip->text(), u"Utiliser la molette de la souris\nou les touches haut/bas\n"
                          u"ou le clavier"_s);
    QCOMPARE(tip->pos(), QCursor::pos() + QPoint(10, 10));

    QCoreApplication::sendEvent(&aide, &leave);
    QVERIFY(!Tooltip::shown());
}

VORKAN_TEST_MAIN(TestImc)
#include "tst_imc.moc"
