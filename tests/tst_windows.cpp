// The window model: controls from the layout table, found by name, and windows that
// leave nothing behind when they close.
#include "support.h"

#include "calculators/imc.h"
#include "calculators/surf.h"
#include "core/controls.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

class TestWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllWindows(); }

    void closingLeavesNoWidgetBehind_data()
    {
        QTest::addColumn<Win>("window");
        QTest::newRow("main") << Win::main;
        QTest::newRow("imc") << Win::imc;
        QTest::newRow("surf") << Win::surf;
        QTest::newRow("pideal") << Win::pideal;
        QTest::newRow("norton") << Win::norton;
        QTest::newRow("cleinsee") << Win::cleinsee;
    }
    // The sanitizers see memory that is lost; this sees widgets still owned but no
    // longer used, such as tips or menus parented to the application. Closing twice
    // does no harm.
    void closingLeavesNoWidgetBehind()
    {
        QFETCH(Win, window);
        qsizetype widgets = 0;
        for (int i = 0; i < 20; ++i) {
            Window& opened = open(window);
            opened.Close();
            opened.Close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            // The first opening loads styles and fonts for good.
            widgets = i == 0 ? QApplication::allWidgets().size() : widgets;
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(ImplicitWindows::count(), 0);
    }

    void missingControlsThrow()
    {
        QVERIFY_THROWS_EXCEPTION(NilObjectException, imc().control<TextField>(u"nothing"));
        QVERIFY_THROWS_EXCEPTION(NilObjectException, imc().control<TextField>(u"imclab"));
    }

    // Positions count from the client area, below the menu bar, also inside a group
    // box; "&&" shows one ampersand.
    void controlsSitWhereTheTableSays()
    {
        QCOMPARE(imc().control<TextField>(u"taille").geometry(), QRect(23, 39, 49, 25));
        QCOMPARE(imc().control<StaticText>(u"poidsidealh").mapTo(&imc(), QPoint()) -
                     imc().control<TextField>(u"taille").mapTo(&imc(), QPoint()),
                 QPoint(448 - 23, 0));
        QCOMPARE(surf().control<StaticText>(u"StaticText4").QLabel::text(), u"Gehan & Gorge"_s);
    }
};

VORKAN_TEST_MAIN(TestWindows)
#include "tst_windows.moc"
