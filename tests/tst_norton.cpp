#include "support.h"

#include <QAbstractItemView>

static PopupMenu& popup(int number)
{
    return norton().control<PopupMenu>(u"PopupMenu%1"_s.arg(number));
}

static QString result()
{
    return shown(norton(), u"StaticText1"_s);
}

// Moves the popup onto that row with the arrow keys, as a user does with the focus on it.
static void choose(int number, const QString& row)
{
    PopupMenu& menu = popup(number);
    const int wanted = menu.findText(row);
    QVERIFY2(wanted >= 0, qPrintable(row));
    menu.setFocus();
    for (int keys = 0; keys < menu.count() && menu.currentIndex() != wanted; ++keys)
        QTest::keyClick(&menu, menu.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(menu.currentIndex(), wanted);
}

static void chooseAll(const QStringList& rows)
{
    for (int i = 0; i < rows.size(); ++i)
        choose(i + 1, rows[i]);
}

const QStringList lastRows{u"Très mauvaise"_s, u"Inconscient"_s, u"Totalement alité"_s,
                           u"Immobile"_s, u"Urinaire et fécale"_s};
const QStringList fourteen{u"Moyenne"_s, u"Apathique"_s, u"Marche avec aide"_s, u"Très limitée"_s,
                           u"Occasionelle"_s};

class TestNorton : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void scores_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("expected");
        QTest::newRow("14 is still minimum risk") << fourteen << u"Risque minimum - [14]"_s;
        QTest::newRow("13 is high risk")
            << fourteen.mid(0, 4) + QStringList{u"Urinaire"_s} << u"Haut risque - [13]"_s;
        QTest::newRow("all last rows: 5") << lastRows << u"Haut risque - [5]"_s;
    }
    // The clipboard takes the result line after its prefix.
    void scores()
    {
        QFETCH(QStringList, rows);
        chooseAll(rows);
        QTEST(result(), "expected");
        norton().OptionsCopier().trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Score de Norton : "_s + result());
    }

    // The window opens blank, also again after a result. A list opened from the keyboard
    // with no row chosen takes its first row on the first Down, and nothing before Return.
    void opensBlankAndAListStartsAtTheFirstRow_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::NoModifier);
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
        QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier);
    }
    void opensBlankAndAListStartsAtTheFirstRow()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        chooseAll(lastRows);
        closeAllWindows();
        QCOMPARE(result(), QString());
        for (int number = 1; number <= 5; ++number) {
            PopupMenu& menu = popup(number);
            QCOMPARE(menu.count(), 4);
            QCOMPARE(menu.ListIndex(), -1);
            menu.setFocus();
            QTest::keyClick(&menu, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
            QVERIFY(menu.view()->isVisible());
            QTest::keyClick(menu.view(), Qt::Key_Down);
            QCOMPARE(menu.ListIndex(), -1);
            QTest::keyClick(menu.view(), Qt::Key_Return);
            QCOMPARE(menu.ListIndex(), 0);
        }
        QCOMPARE(result(), u"Risque minimum - [20]"_s);
    }

    // After a reset the missing criterion holds the result back, whatever the order of
    // the choices, and a copy is the prefix alone; from then on it follows every change.
    void aResultNeedsAllFive()
    {
        chooseAll(lastRows);
        norton().OptionsRAZ().trigger();
        norton().OptionsCopier().trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Score de Norton : "_s);
        for (int number : {5, 2, 4, 1}) {
            choose(number, fourteen[number - 1]);
            QCOMPARE(result(), QString());
        }
        choose(3, fourteen[2]);
        QCOMPARE(result(), u"Risque minimum - [14]"_s);
        choose(5, u"Urinaire"_s);
        QCOMPARE(result(), u"Haut risque - [13]"_s);
    }
};

VORKAN_TEST_MAIN(TestNorton)
#include "tst_norton.moc"
