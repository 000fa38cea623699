// What a screen reader is told: each input and result by its visible label and its
// value, buttons by caption and help, and the keyboard's way through each window.
#include "support.h"

#include <QAccessible>

static QString told(QWidget& widget, QAccessible::Text kind)
{
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&widget);
    return found ? found->text(kind) : u"(no interface)"_s;
}

class TestAccessibility : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    // A pop-up is named by its row on Linux and related to its label: its own
    // accessible name is what the label gives it.
    void namesAndValues_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("expected"); // name | value | description
        QTest::newRow("in a group")
            << Win::imc << u"poidsidealh"_s << u"Poids idéal (kg), Homme|64.7|"_s;
        QTest::newRow("one ampersand")
            << Win::surf << u"StaticText7"_s << u"Surface (m²), Gehan & Gorge|1.83|"_s;
        QTest::newRow("pop-up") << Win::pideal << u"PopupMenu1"_s << u"Sexe|homme|"_s;
        QTest::newRow("button") << Win::cleinsee << u"BevelButton2"_s
                                << u"Copier||Copier dans le presse papier"_s;
    }
    void namesAndValues()
    {
        QFETCH(Win, window);
        QFETCH(QString, control);
        QWidget& widget = open(window).control<QWidget>(control);
        const bool popup = qobject_cast<PopupMenu*>(&widget);
        QTEST(QString((popup ? widget.accessibleName() : told(widget, QAccessible::Name)) + u'|' +
                      told(widget, QAccessible::Value) + u'|' +
                      told(widget, QAccessible::Description)),
              "expected");
    }

    void aLabelThatChangesRenamesItsControl()
    {
        auto& slider = pideal().control<Slider>(u"Slider1");
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(told(slider, QAccessible::Name), u"Taille (cm) : 180"_s);
        typeInto(imc().control<TextField>(u"taille"), u"150"_s);
        typeInto(imc().control<TextField>(u"poids"), u"90"_s);
        QCOMPARE(told(imc().control<QWidget>(u"imct"), QAccessible::Value), u"40.0"_s);
        QCOMPARE(told(imc().control<QWidget>(u"imclab"), QAccessible::Name), u"obésité sévère"_s);
    }

    // Tab follows the layout's order, reaches the main window's buttons, and passes
    // the disabled copy button by. A window is named by its title.
    void tabGoesRoundInTheLayoutsOrder_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("order");
        QTest::newRow("cleinsee") << Win::cleinsee
                                  << u"TextField1 TextField2 BevelButton1 cleaide"_s;
        QTest::newRow("main") << Win::main
                              << u"BevelButton1 BevelButton2 BevelButton3 BevelButton4 "
                                 u"BevelButton5 BevelButton6 BevelButton7"_s;
    }
    void tabGoesRoundInTheLayoutsOrder()
    {
        QFETCH(Win, window);
        QFETCH(QString, order);
        Window& opened = open(window);
        QCOMPARE(told(opened, QAccessible::Name), opened.windowTitle());
        QVERIFY(QTest::qWaitForWindowActive(&opened));
        const QStringList names = order.split(u' ');
        opened.control<QWidget>(names.first()).setFocus(Qt::TabFocusReason);
        QStringList seen;
        for (qsizetype i = 0; i <= names.size(); ++i) {
            seen << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(seen, names + QStringList{names.first()});
    }
};

VORKAN_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
