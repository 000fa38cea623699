#include "support.h"

#include "controls.h"
#include "norton.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

const QStringList popups{u"PopupMenu1"_s, u"PopupMenu2"_s, u"PopupMenu3"_s, u"PopupMenu4"_s,
                         u"PopupMenu5"_s};

PopupMenu& popup(int number)
{
    return norton().control<PopupMenu>(popups[number - 1]);
}

QString result()
{
    return norton().control<StaticText>(u"StaticText1").text();
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

QString clipboard()
{
    return QGuiApplication::clipboard()->text();
}

} // namespace

class TestNorton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllWindows(); }

    void opensBlank();
    void scores_data();
    void scores();
    void aResultNeedsAllFive();
    void copies_data();
    void copies();
    void hasItsOwnMenu();
};

// Every popup starts on no row, and shows blank, until the user chooses; also when
// the window is opened again after a result.
void TestNorton::opensBlank()
{
    for (int opening = 1; opening <= 2; ++opening) {
        for (int number = 1; number <= 5; ++number) {
            QCOMPARE(popup(number).count(), 4);
            QCOMPARE(popup(number).ListIndex(), -1);
            QCOMPARE(popup(number).currentText(), QString());
        }
        QCOMPARE(result(), QString());
        chooseAll({u"Bonne"_s, u"Bon alerte"_s, u"Ambulant"_s, u"Totale"_s, u"Aucune"_s});
        QPointer<Window> window = &norton();
        window->Close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window.isNull());
    }
}

void TestNorton::scores_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("expected");

    QTest::newRow("all first rows: 20")
        << QStringList{u"Bonne"_s, u"Bon alerte"_s, u"Ambulant"_s, u"Totale"_s, u"Aucune"_s}
        << u"Risque minimum - [20]"_s;
    QTest::newRow("14 is still minimum risk")
        << QStringList{u"Moyenne"_s, u"Apathique"_s, u"Marche avec aide"_s, u"Très limitée"_s,
                       u"Occasionelle"_s}
        << u"Risque minimum - [14]"_s;
    QTest::newRow("13 is high risk")
        << QStringList{u"Moyenne"_s, u"Apathique"_s, u"Marche avec aide"_s, u"Très limitée"_s,
                       u"Urinaire"_s}
        << u"Haut risque - [13]"_s;
    QTest::newRow("all last rows: 5")
        << QStringList{u"Très mauvaise"_s, u"Inconscient"_s, u"Totalement alité"_s, u"Immobile"_s,
                       u"Urinaire et fécale"_s}
        << u"Haut risque - [5]"_s;
}

void TestNorton::scores()
{
    QFETCH(QStringList, rows);
    QFETCH(QString, expected);
    chooseAll(rows);
    QCOMPARE(result(), expected);
}

void TestNorton::aResultNeedsAllFive()
{
    chooseAll({u"Pauvre"_s, u"Confus"_s, u"Assis"_s, u"Diminuée"_s, u"Aucune"_s});
    QCOMPARE(result(), u"Haut risque - [13]"_s);

    norton().menuItem(u"OptionsRAZ").trigger();
    for (int number = 1; number <= 5; ++number)
        QCOMPARE(popup(number).ListIndex(), -1);
    QCOMPARE(result(), QString());

    // Chosen in another order than the popups': the missing one holds the result back.
    for (const auto& [number, row] : {std::pair{5, u"Urinaire"_s}, std::pair{2, u"Apathique"_s},
                                      std::pair{4, u"Immobile"_s}, std::pair{1, u"Bonne"_s}}) {
        choose(number, row);
        QCOMPARE(result(), QString());
    }
    choose(3, u"Ambulant"_s);
    QCOMPARE(result(), u"Risque minimum - [14]"_s);
    // From then on it follows every change, across the boundary too.
    choose(5, u"Urinaire et fécale"_s);
    QCOMPARE(result(), u"Haut risque - [13]"_s);
}

void TestNorton::copies_data()
{
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a result") << false << u"Score de Norton : Haut risque - [5]"_s;
    QTest::newRow("after a reset, the prefix alone") << true << u"Score de Norton : "_s;
}

void TestNorton::copies()
{
    QFETCH(bool, reset);
    QFETCH(QString, expected);
    chooseAll({u"Très mauvaise"_s, u"Inconscient"_s, u"Totalement alité"_s, u"Immobile"_s,
               u"Urinaire et fécale"_s});
    if (reset)
        norton().OptionsRAZ().trigger();
    QGuiApplication::clipboard()->setText(u"before"_s);
    norton().OptionsCopier().trigger();
    QCOMPARE(clipboard(), expected);
}

void TestNorton::hasItsOwnMenu()
{
    QCOMPARE(norton().OptionsMenu().text(), u"&Echelle de Norton"_s);
    QVERIFY(norton().OptionsRAZ().isEnabled());
    QVERIFY(norton().OptionsCopier().isEnabled());
    QVERIFY(norton().FileQuit().isEnabled());
    // The Infos box belongs to the application's bar, which this window does not show.
    QVERIFY_THROWS_EXCEPTION(NilObjectException, norton().menuItem(u"OptionsInfos"));

    // The menu opens from the keyboard, its title not greyed, with a popup in focus.
    QVERIFY(QTest::qWaitForWindowActive(&norton()));
    QMenu& menu = *norton().OptionsMenu().menu();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY(menu.isVisible());
    QVERIFY(norton().OptionsMenu().isEnabled());
    menu.close();
}

VORKAN_TEST_MAIN(TestNorton)
#include "tst_norton.moc"
