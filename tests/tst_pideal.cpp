#include "support.h"

#include "controls.h"
#include "imc.h"
#include "pideal.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

class TestPideal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup() { closeAllWindows(); }

    void results_data();
    void results();
    void opensFromTheRecord_data();
    void opensFromTheRecord();
    void opensOnWhatImcLeft();
    void followsItsControlsAndRewritesTheLabels();

private:
    static QString weights();
    static QString label(QStringView name) { return pideal().control<StaticText>(name).text(); }
    static Slider& slider(QStringView name) { return pideal().control<Slider>(name); }
};

// Broca, Lorentz, Perrault, Huet et Godelsk, Lorentz II.
QString TestPideal::weights()
{
    QStringList shown;
    for (QStringView name :
         {u"StaticText8", u"StaticText9", u"StaticText10", u"StaticText11", u"StaticText12"})
        shown << label(name);
    return shown.join(u' ');
}

void TestPideal::results_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("age");
    QTest::addColumn<int>("sex"); // 0 homme, 1 femme
    QTest::addColumn<QString>("expected");

    QTest::newRow("160/20 homme") << 160 << 20 << 0 << u"60 57.5 61.8 56 57.5"_s;
    QTest::newRow("160/20 femme") << 160 << 20 << 1 << u"60 55 61.8 50 51.75"_s;
    QTest::newRow("170/45 femme") << 170 << 45 << 1 << u"70 60 74.05 60.5 64.125"_s;
    QTest::newRow("below 150 Lorentz passes Broca") << 100 << 20 << 0 << u"0 12.5 1.8 2 12.5"_s;
    // The woman's Single 0.9 leaves 56.69999695, which seven digits still show as 56.7...
    QTest::newRow("163/33 femme") << 163 << 33 << 1 << u"63 56.5 65.97 53.7 56.7"_s;
    // ...but here it shows, where a Double 0.9 would give 86.4.
    QTest::newRow("192/78 femme, Single factor")
        << 192 << 78 << 1 << u"92 71 99.02 81.4 86.39999"_s;
    // Perrault's Double 0.9 gives 8.39, where the Single would give 8.389999.
    QTest::newRow("102/71 homme, Double factor") << 102 << 71 << 0 << u"2 14 8.39 8.9 26.75"_s;
}

void TestPideal::results()
{
    QFETCH(int, height);
    QFETCH(int, age);
    QFETCH(int, sex);
    QFETCH(QString, expected);

    pideal().control<PopupMenu>(u"PopupMenu1").setListIndex(sex);
    slider(u"Slider1").setValue(height);
    slider(u"Slider2").setValue(age);
    QCOMPARE(weights(), expected);
}

void TestPideal::opensFromTheRecord_data()
{
    QTest::addColumn<float>("taille");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing known yet") << 0.0f << 160 << u"60 57.5 61.8 56 57.5"_s;
    QTest::newRow("the fraction is dropped") << 170.9f << 170 << u"70 65 71.8 65 65"_s;
    QTest::newRow("held at the top") << 999.0f << 210 << u"110 95 111.8 101 95"_s;
    QTest::newRow("held at the bottom") << 50.0f << 100 << u"0 12.5 1.8 2 12.5"_s;
}

void TestPideal::opensFromTheRecord()
{
    QFETCH(float, taille);
    QFETCH(int, height);
    QFETCH(QString, expected);

    App().taille = taille;
    App().poids = 65;
    QCOMPARE(slider(u"Slider1").value(), height);
    QCOMPARE(label(u"StaticText1"), u"Taille (cm) : "_s + QString::number(height));
    QCOMPARE(weights(), expected);
    slider(u"Slider1").setValue(120);
    QCOMPARE(App().taille, taille);
    QCOMPARE(App().poids, 65.0f);
}

void TestPideal::opensOnWhatImcLeft()
{
    imc();
    closeAllWindows();
    QCOMPARE(slider(u"Slider1").value(), 170);
    QCOMPARE(weights(), u"70 65 71.8 65 65"_s);
}

void TestPideal::followsItsControlsAndRewritesTheLabels()
{
    QCOMPARE(label(u"StaticText1"), u"Taille (cm) : 160"_s);
    QCOMPARE(label(u"StaticText2"), u"Age (ans)  : 20"_s);

    slider(u"Slider2").setFocus();
    QTest::keyClick(&slider(u"Slider2"), Qt::Key_Right);
    QCOMPARE(label(u"StaticText2"), u"Age (ans) : 25"_s);
    QCOMPARE(weights(), u"60 57.5 62.25 56.5 58.75"_s);

    QTest::keyClick(&slider(u"Slider1"), Qt::Key_PageUp);
    QCOMPARE(label(u"StaticText1"), u"Taille (cm) : 180"_s);

    auto& sexe = pideal().control<PopupMenu>(u"PopupMenu1");
    QCOMPARE(sexe.count(), 2);
    QTest::keyClick(&sexe, Qt::Key_Down);
    QCOMPARE(sexe.currentText(), u"femme"_s);
    QCOMPARE(weights(), u"80 65 82.25 66.5 66.375"_s);
    QCOMPARE(App().taille, 0.0f);
}

VORKAN_TEST_MAIN(TestPideal)
#include "tst_pideal.moc"
