#include "support.h"

#include "controls.h"
#include "imc.h"
#include "surf.h"
#include "textops.h"
#include "updownarrows.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

class TestSurf : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup() { closeAllWindows(); }

    void results_data();
    void results();
    void stepsEachFieldWithinItsOwnLimits_data();
    void stepsEachFieldWithinItsOwnLimits();
    void sharesTheRecordWithImc();
    void openWindowsDoNotFollowEachOther();
    void showsOneAmpersand();

private:
    static QString surfaces();
    static TextField& field(QStringView name) { return surf().control<TextField>(name); }
};

QString TestSurf::surfaces()
{
    QStringList shown;
    for (QStringView name : {u"StaticText6", u"StaticText7", u"StaticText8"})
        shown << surf().control<StaticText>(name).text();
    return shown.join(u' ');
}

void TestSurf::results_data()
{
    QTest::addColumn<QString>("taille");
    QTest::addColumn<QString>("poids");
    QTest::addColumn<QString>("expected"); // Dubois, Gehan and George, Mosteller

    QTest::newRow("170/70") << u"170"_s << u"70"_s << u"1.81 1.83 1.82"_s;
    QTest::newRow("180/80") << u"180"_s << u"80"_s << u"2.00 2.01 2.00"_s;
    QTest::newRow("typing is not clamped") << u"999"_s << u"999"_s << u"20.22 15.20 16.65"_s;
    QTest::newRow("emptied height") << u""_s << u"70"_s << u"0.00 0.00 0.00"_s;
    QTest::newRow("emptied weight") << u"170"_s << u""_s << u"0.00 0.00 0.00"_s;
}

void TestSurf::results()
{
    QFETCH(QString, taille);
    QFETCH(QString, poids);
    QFETCH(QString, expected);

    typeInto(field(u"surftaille"), taille);
    typeInto(field(u"surfpoids"), poids);
    QCOMPARE(surfaces(), expected);
    QCOMPARE(App().taille, Single(taille.toInt()));
    QCOMPARE(App().poids, Single(poids.toInt()));
}

void TestSurf::stepsEachFieldWithinItsOwnLimits_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("arrows");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("wheelDelta"); // away from the user steps up
    QTest::addColumn<QString>("expected");

    QTest::newRow("height held at 50")
        << u"surftaille"_s << u"surfUpDownArrows1"_s << u"50"_s << -120 << u"50"_s;
    QTest::newRow("weight held at 250")
        << u"surfpoids"_s << u"surfUpDownArrows2"_s << u"999"_s << 120 << u"250"_s;
    QTest::newRow("weight held at 30")
        << u"surfpoids"_s << u"surfUpDownArrows2"_s << u"30"_s << -120 << u"30"_s;
}

// Through the arrows, which find their field by name.
void TestSurf::stepsEachFieldWithinItsOwnLimits()
{
    QFETCH(QString, field);
    QFETCH(QString, arrows);
    QFETCH(QString, typed);
    QFETCH(int, wheelDelta);
    QFETCH(QString, expected);

    typeInto(TestSurf::field(field), typed);
    wheel(surf().control<UpDownArrows>(arrows), wheelDelta);
    QCOMPARE(TestSurf::field(field).text(), expected);
    QCOMPARE(Str(field == u"surftaille"_s ? App().taille : App().poids), expected);
}

void TestSurf::sharesTheRecordWithImc()
{
    typeInto(imc().control<TextField>(u"taille"), u"180"_s);
    typeInto(imc().control<TextField>(u"poids"), u"80"_s);
    imc().Close();
    closeAllWindows();

    QCOMPARE(field(u"surftaille").text(), u"180"_s);
    QCOMPARE(field(u"surfpoids").text(), u"80"_s);
    QCOMPARE(surfaces(), u"2.00 2.01 2.00"_s);
    QTest::keyClick(&field(u"surftaille"), Qt::Key_Up);
    wheel(field(u"surfpoids"), -120);
    surf().Close();
    closeAllWindows();

    QCOMPARE(imc().control<TextField>(u"taille").text(), u"181"_s);
    QCOMPARE(imc().control<TextField>(u"poids").text(), u"79"_s);
}

// A change reaches the record at once, but the other window shows it only when it
// opens again.
void TestSurf::openWindowsDoNotFollowEachOther()
{
    auto& other = imc();
    surf();
    typeInto(field(u"surftaille"), u"150"_s);
    QCOMPARE(App().taille, 150.0f);
    QCOMPARE(other.control<TextField>(u"taille").text(), u"170"_s);

    typeInto(other.control<TextField>(u"poids"), u"90"_s);
    QCOMPARE(App().poids, 90.0f);
    QCOMPARE(field(u"surfpoids").text(), u"70"_s);
    QCOMPARE(surfaces(), u"1.65 1.74 1.71"_s);
}

void TestSurf::showsOneAmpersand()
{
    const auto& label = surf().control<StaticText>(u"StaticText4");
    QCOMPARE(label.text(), u"Gehan && Gorge"_s);
    QCOMPARE(label.QLabel::text(), u"Gehan & Gorge"_s);
}

VORKAN_TEST_MAIN(TestSurf)
#include "tst_surf.moc"
