#include "support.h"

#include "calculators/norton.h"
#include "core/controls.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

PopupMenu& popup(int number)
{
    return norton().control<PopupMenu>(u"PopupMenu%1"_s.arg(number));
}

QString result()
{
    return shown(norton(), u"StaticText1"_s);
}

// Moves the popup onto that row with the arrow keys, as a user does with the focus on it.
void choose(int number, const QString& row)
{
    PopupMenu& menu = popup(number);
    const int wanted = menu.findText(row);
    QVERIFY2(wanted >= 0, qPrintable(row));
    menu.setFocus();
    for (int keys = 0; keys < menu.count() && menu.currentIndex() != wanted; ++keys)
        QTest::keyClick(&menu, menu.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(menu.currentIndex(), wanted);
}

void chooseAll(const QStringList& rows)
{
    for (int i = 0; i < rows.size(); ++i)
        choose(i + 1, rows[i]);
}

const QStringList lastRows{u"Très mauvaise"_s, u"Inconscient"_s, u"Totalement alité"_s,
                           u"Immobile"_s, u"Urinaire et fécale"_s};
const QStringList fourteen{u"Moyenne"_s, u"Apathique"_s, u"Marche avec aide"_s, u"Très limitée"_s,
                           u"Occasionelle"_s};

} // namespace

class TestNorton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllWindows(); }

    // Also when the window opens again after a result.
    void opensBlankEveryTime()
    {
        for (int opening = 1; opening <= 2; ++opening) {
            for (int number = 1; number <= 5; ++number) {
                QCOMPARE(popup(number).count(), 4);
                QCOMPARE(popup(number).ListIndex(), -1);
                QCOMPARE(popup(number).currentText(), QString());
            }
            QCOMPARE(result(), QString());
            chooseAll(lastRows);
            closeAllWindows();
        }
    }

    void scores_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("expected");
        QTest::newRow("all first rows: 20")
            << QStringList{u"Bonne"_s, u"Bon alerte"_s, u"Ambulant"_s, u"Totale"_s, u"Aucune"_s}
            << u"Risque minimum - [20]"_s;
        QTest::newRow("14 is still minimum risk") << fourteen << u"Risque minimum - [14]"_s;
        QTest::newRow("13 is high risk")
            << fourteen.mid(0, 4) + QStringList{u"Urinaire"_s} << u"Haut risque - [13]"_s;
        QTest::newRow("all last rows: 5") << lastRows << u"Haut risque - [5]"_s;
    }
    void scores()
    {
        QFETCH(QStringList, rows);
        chooseAll(rows);
        QTEST(result(), "expected");
    }

    // After a reset the missing criterion holds the result back, whatever the order of
    // the choices; from then on it follows every change.
    void aResultNeedsAllFive()
    {
        chooseAll(lastRows);
        norton().OptionsRAZ().trigger();
        for (int number = 1; number <= 5; ++number)
            QCOMPARE(popup(number).ListIndex(), -1);
        QCOMPARE(result(), QString());
        for (int number : {5, 2, 4, 1}) {
            choose(number, fourteen[number - 1]);
            QCOMPARE(result(), QString());
        }
        choose(3, fourteen[2]);
        QCOMPARE(result(), u"Risque minimum - [14]"_s);
        choose(5, u"Urinaire"_s);
        QCOMPARE(result(), u"Haut risque - [13]"_s);
    }

    void copies_data()
    {
        QTest::addColumn<bool>("reset");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a result") << false << u"Score de Norton : Haut risque - [5]"_s;
        QTest::newRow("after a reset, the prefix alone") << true << u"Score de Norton : "_s;
    }
    void copies()
    {
        QFETCH(bool, reset);
        chooseAll(lastRows);
        if (reset)
            norton().OptionsRAZ().trigger();
        norton().OptionsCopier().trigger();
        QTEST(QGuiApplication::clipboard()->text(), "expected");
    }
};

VORKAN_TEST_MAIN(TestNorton)
#include "tst_norton.moc"
