#include "support.h"

// Broca, Lorentz, Perrault, Huet et Godelsk, Lorentz II.
const auto weights = u" StaticText8 StaticText9 StaticText10 StaticText11 StaticText12"_s;

class TestPideal : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // The age label keeps the two blanks of its layout text until the age first moves.
    void results_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("age");
        QTest::addColumn<int>("sex"); // 0 homme, 1 femme
        QTest::addColumn<QString>("expected");
        QTest::newRow("160/20 femme") << 160 << 20 << 1 << u"Age (ans)  : 20 60 55 61.8 50 51.75"_s;
        QTest::newRow("170/45 femme")
            << 170 << 45 << 1 << u"Age (ans) : 45 70 60 74.05 60.5 64.125"_s;
        // The woman's factor is a Single: a Double would give 86.4.
        QTest::newRow("192/78 femme")
            << 192 << 78 << 1 << u"Age (ans) : 78 92 71 99.02 81.4 86.39999"_s;
        // Perrault's factor is a Double: a Single would give 8.389999.
        QTest::newRow("102/71 homme") << 102 << 71 << 0 << u"Age (ans) : 71 2 14 8.39 8.9 26.75"_s;
    }
    void results()
    {
        QFETCH(int, height);
        QFETCH(int, age);
        QFETCH(int, sex);
        pideal().control<PopupMenu>(u"PopupMenu1").setListIndex(sex);
        pideal().control<Slider>(u"Slider1").setValue(height);
        pideal().control<Slider>(u"Slider2").setValue(age);
        QTEST(shown(pideal(), u"StaticText2"_s + weights), "expected");
    }

    // The height comes from the record, held to the slider's range; the record does not
    // change (the random sessions check).
    void opensFromTheRecordAndLeavesIt_data()
    {
        QTest::addColumn<float>("taille");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing known yet") << 0.0f << u"Taille (cm) : 160 60 57.5 61.8 56 57.5"_s;
        QTest::newRow("fraction dropped") << 170.9f << u"Taille (cm) : 170 70 65 71.8 65 65"_s;
        QTest::newRow("held at the top") << 999.0f << u"Taille (cm) : 210 110 95 111.8 101 95"_s;
        QTest::newRow("held at the bottom") << 50.0f << u"Taille (cm) : 100 0 12.5 1.8 2 12.5"_s;
    }
    void opensFromTheRecordAndLeavesIt()
    {
        QFETCH(float, taille);
        App().taille = taille;
        QTEST(shown(pideal(), u"StaticText1"_s + weights), "expected");
    }

    // A notch over a closed list chooses nothing, either way, chosen or blank; a notch
    // moves a slider by its line step, as a key does, half notches adding up.
    void theWheelChoosesNothing_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("start"); // the list's row (-1 for none) or the slider's value
        QTest::addColumn<QList<int>>("turns");
        QTest::addColumn<int>("moved");
        for (int number = 1, row = 1; number <= 5; ++number, row = -row) // chosen, blank...
            QTest::addRow("Norton %d from row %d", number, row)
                << Win::norton << u"PopupMenu%1"_s.arg(number) << row << QList{row * 120} << 0;
        QTest::newRow("sex") << Win::pideal << u"PopupMenu1"_s << 0 << QList{-120} << 0;
        QTest::newRow("height, away") << Win::pideal << u"Slider1"_s << 160 << QList{120} << 5;
        QTest::newRow("height, towards") << Win::pideal << u"Slider1"_s << 160 << QList{-120} << -5;
        QTest::newRow("age, half notches")
            << Win::pideal << u"Slider2"_s << 20 << QList{60, 60, 60} << 5;
    }
    void theWheelChoosesNothing()
    {
        QFETCH(Win, window);
        QFETCH(QString, name);
        QFETCH(int, start);
        QFETCH(QList<int>, turns);
        auto& control = open(window).control<QWidget>(name);
        const char* value = qobject_cast<PopupMenu*>(&control) ? "currentIndex" : "value";
        QVERIFY2(control.setProperty(value, start), "neither a list nor a slider");
        for (int turn : turns)
            wheel(control, turn);
        QTEST(control.property(value).toInt() - start, "moved");
    }
};

VORKAN_TEST_MAIN(TestPideal)
#include "tst_pideal.moc"
