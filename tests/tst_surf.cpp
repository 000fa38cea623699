#include "support.h"

#include "calculators/imc.h"
#include "calculators/surf.h"
#include "core/controls.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

// Dubois, Gehan and George, Mosteller.
const auto surfaces = u" StaticText6 StaticText7 StaticText8"_s;

TextField& field(Window& window, QStringView name)
{
    return window.control<TextField>(name);
}

} // namespace

class TestSurf : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup() { closeAllWindows(); }

    void results_data()
    {
        QTest::addColumn<QString>("taille");
        QTest::addColumn<QString>("poids");
        QTest::addColumn<QString>("expected");
        QTest::newRow("170/70") << u"170"_s << u"70"_s << u"170 70 1.81 1.83 1.82"_s;
        QTest::newRow("typing is not clamped")
            << u"999"_s << u"999"_s << u"999 999 20.22 15.20 16.65"_s;
        QTest::newRow("emptied height") << u""_s << u"70"_s << u" 70 0.00 0.00 0.00"_s;
    }
    void results()
    {
        QFETCH(QString, taille);
        QFETCH(QString, poids);
        typeInto(field(surf(), u"surftaille"), taille);
        typeInto(field(surf(), u"surfpoids"), poids);
        QTEST(shown(surf(), u"surftaille surfpoids"_s + surfaces), "expected");
        QCOMPARE(App().taille, Single(taille.toInt()));
        QCOMPARE(App().poids, Single(poids.toInt()));
    }

    // Each window opens on what the other left in the record, typed or stepped.
    void sharesTheRecordWithImc()
    {
        typeInto(field(imc(), u"taille"), u"180"_s);
        typeInto(field(imc(), u"poids"), u"80"_s);
        closeAllWindows();
        QCOMPARE(shown(surf(), u"surftaille surfpoids"_s + surfaces), u"180 80 2.00 2.01 2.00"_s);
        QTest::keyClick(&field(surf(), u"surftaille"), Qt::Key_Up);
        wheel(field(surf(), u"surfpoids"), -120);
        closeAllWindows();
        QCOMPARE(shown(imc(), u"taille poids imct"_s), u"181 79 24.1"_s);
    }

    // A change reaches the record at once, but the other window shows it only when it
    // opens again.
    void openWindowsDoNotFollowEachOther()
    {
        auto& other = imc();
        typeInto(field(surf(), u"surftaille"), u"150"_s);
        QCOMPARE(App().taille, 150.0f);
        typeInto(field(other, u"poids"), u"90"_s);
        QCOMPARE(App().poids, 90.0f);
        QCOMPARE(shown(other, u"taille"_s), u"170"_s);
        QCOMPARE(shown(surf(), u"surfpoids"_s + surfaces), u"70 1.65 1.74 1.71"_s);
    }
};

VORKAN_TEST_MAIN(TestSurf)
#include "tst_surf.moc"
