// The main window and the menus of every window, and what every window does: controls
// where its table says, nothing left behind.
#include "support.h"

#include <QDate>

class TestLauncher : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    // The test screen's free area starts at (200, 30), below and beside panels; the
    // client area, below the menu bar, is what is centred in it.
    void opensCentredInTheFreeArea()
    {
        QCOMPARE(availableScreenArea(), QRect(200, 30, 1000, 700));
        QCOMPARE(Window1().control<QWidget>(u"BevelButton3").mapToGlobal(QPoint(0, 0)),
                 QPoint(200 + 277 + 13, 30 + 249 + 35));
    }

    // In French, or as the system reports it (which the other tests replace by their
    // own): run with VORKAN_SYSTEM_LOCALE=fr_FR on a system set to French.
    void showsTodaysDateAndFiguresInFrench()
    {
        const QString system = qEnvironmentVariable("VORKAN_SYSTEM_LOCALE");
        if (!system.isEmpty())
            QCOMPARE(QLocale::system().name(), system);
        QLocale::setDefault(system.isEmpty() ? QLocale(QLocale::French) : QLocale::system());
        QCOMPARE(shown(Window1(), u"sbdate"_s), QDate::currentDate().toString(u"dd/MM/yyyy"_s));
        QCOMPARE(shown(imc(), u"imct"_s), u"24,2"_s); // 170 cm, 70 kg
    }

    // A click brings the one window up, also from minimised; the Close key closes it.
    // That a click never opens a second one, the random sessions check.
    void aClickBringsTheWindowBack()
    {
        auto& button = Window1().control<BevelButton>(u"BevelButton3");
        QTest::mouseClick(&button, Qt::LeftButton);
        imc().showMinimized();
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(!imc().isMinimized());
        QVERIFY(QTest::qWaitForWindowActive(&imc()));
        QTest::keyClick(&imc(), Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(ImplicitWindows::find(u"imc.imc"), nullptr);
    }

    // Each window shows one menu, greyed items in brackets, separators empty; the Infos
    // box belongs to the main window alone.
    void menus_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("expected");
        QTest::newRow("main") << Win::main << u"&Options: &Infos, Quitter Ctrl+Q"_s;
        QTest::newRow("imc") << Win::imc << u"&Options: (&Infos), Quitter Ctrl+Q"_s;
        QTest::newRow("norton") << Win::norton
                                << u"&Echelle de Norton: &RAZ, , &Copier, , Quitter Ctrl+Q"_s;
    }
    void menus()
    {
        QFETCH(Win, window);
        const QAction& menu = open(window).menuItem(u"OptionsMenu");
        QStringList items;
        for (const QAction* item : menu.menu()->actions()) {
            const QString text =
                QString(item->text() + u' ' + item->shortcut().toString()).trimmed();
            items << (item->isEnabled() ? text : u'(' + text + u')');
        }
        QTEST(QString(menu.text() + u": " + items.join(u", ")), "expected");
    }

    void infosOpensFromTheMainWindow()
    {
        QString seen;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            seen = box->windowTitle() + u'|' + box->text().section(EndOfLine(), 0, 0);
            box->accept();
        });
        Window1().OptionsInfos().trigger();
        QCOMPARE(seen, u"Infos|Vorkan MAC "_s + QCoreApplication::applicationVersion());
    }

    void closingLeavesNoWidgetBehind_data()
    {
        QTest::addColumn<Win>("window");
        for (Win window : {Win::main, Win::imc, Win::surf, Win::pideal, Win::norton, Win::cleinsee})
            QTest::addRow("%s", qPrintable(open(window).windowTitle())) << window;
        closeAllWindows();
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

    // Positions count from the client area, below the menu bar, also inside a group
    // box; a missing control throws.
    void controlsAreWhereTheTableSays()
    {
        QCOMPARE(imc().control<TextField>(u"taille").geometry(), QRect(23, 39, 49, 25));
        QCOMPARE(imc().control<StaticText>(u"poidsidealh").mapTo(&imc(), QPoint()) -
                     imc().control<TextField>(u"taille").mapTo(&imc(), QPoint()),
                 QPoint(448 - 23, 0));
        QVERIFY_THROWS_EXCEPTION(NilObjectException, imc().control<TextField>(u"imclab"));
    }
};

VORKAN_TEST_MAIN(TestLauncher)
#include "tst_launcher.moc"
