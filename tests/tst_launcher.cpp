// The main window and the menus of every window, and what every window does: controls
// where its table says, nothing left behind, and the keyboard's way through each window.
#include "support.h"

#include <QDate>
#include <QStyleOption>

// Whether the style draws that control's focus, as it does once the keyboard has moved it.
static bool focusShows(const QWidget* control)
{
    QStyleOption option;
    option.initFrom(control);
    return control && (option.state & QStyle::State_HasFocus) &&
           (option.state & QStyle::State_KeyboardFocusChange);
}

// The menu that a right click, or the menu key, opens on a control, and its items' texts.
static QMenu* contextMenu(QWidget& control, QContextMenuEvent::Reason reason)
{
    QContextMenuEvent event(reason, QPoint(2, 2), control.mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(&control, &event);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

// Greyed items in brackets, separators empty, shortcuts as the menu shows them.
static QString texts(const QMenu* menu)
{
    QStringList items;
    for (const QAction* item : menu ? menu->actions() : QList<QAction*>()) {
        const QString text =
            QString(item->text() + u' ' + item->shortcut().toString(QKeySequence::NativeText))
                .trimmed();
        items << (item->isEnabled() || item->isSeparator() ? text : u'(' + text + u')');
    }
    return items.join(u", ");
}

class TestLauncher : public WindowTest {
    Q_OBJECT

private Q_SLOTS:
    // The test screen's free area starts at (200, 30), below and beside panels; the
    // client area, below the menu bar, is what is centred in it. A window taller than
    // the free area, as at twice the size on a small screen, keeps its title bar inside
    // it, where the window can be moved.
    void opensInTheFreeArea()
    {
        const QRect area = availableScreenArea();
        QCOMPARE(area, QRect(200, 30, 1000, 400));
        QCOMPARE(Window1().control<QWidget>(u"BevelButton3").mapToGlobal(QPoint(0, 0)),
                 QPoint(200 + 277 + 13, 30 + 99 + 35));
        QVERIFY(norton().frameGeometry().height() > area.height());
        QVERIFY(norton().frameGeometry().top() >= area.top());
        QVERIFY(norton().frameGeometry().left() > area.left());
    }

    // In French, or as the system reports it (which the other tests replace by their
    // own): run with VORKAN_SYSTEM_LOCALE=fr_FR on a system set to French. Figures are
    // read back as they show.
    void showsTodaysDateAndFiguresInFrench()
    {
        const QString system = qEnvironmentVariable("VORKAN_SYSTEM_LOCALE");
        if (!system.isEmpty())
            QCOMPARE(QLocale::system().name(), system);
        QLocale::setDefault(system.isEmpty() ? QLocale(QLocale::French) : QLocale::system());
        QCOMPARE(shown(Window1(), u"sbdate"_s), QDate::currentDate().toString(u"dd/MM/yyyy"_s));
        QCOMPARE(shown(imc(), u"imct"_s), u"24,2"_s); // 170 cm, 70 kg
        // Were "18,5" read back as 18, the class would be "maigreur".
        typeInto(imc().control<TextField>(u"taille"), u"180"_s);
        typeInto(imc().control<TextField>(u"poids"), u"60"_s);
        QCOMPARE(shown(imc(), u"imct imclab poidsidealh"_s), u"18,5 corpulence normale 73,7"_s);
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

    // A figure leaves as shown, decimal mark included: a double-click takes all of it
    // for Ctrl+C or the menu of a right click, which offers copying alone.
    void figuresCopyAsShown_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("french");
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("band") << Win::imc << u"imcsu"_s << false << false;
        QTest::newRow("lean weight, French") << Win::imc << u"poidsmaigref"_s << true << true;
        QTest::newRow("surface, French") << Win::surf << u"StaticText6"_s << true << false;
        QTest::newRow("Norton line") << Win::norton << u"StaticText1"_s << false << true;
    }
    void figuresCopyAsShown()
    {
        QFETCH(Win, window);
        QFETCH(QString, name);
        QFETCH(bool, french);
        QFETCH(bool, byMenu);
        QLocale::setDefault(french ? QLocale::French : QLocale::C);
        if (window == Win::norton)
            for (int number = 1; number <= 5; ++number)
                norton().control<PopupMenu>(u"PopupMenu%1"_s.arg(number)).setListIndex(1);
        auto& figure = open(window).control<StaticText>(name);
        const QString before = shown(open(window), name);
        QVERIFY(before.size() > 1);
        QGuiApplication::clipboard()->setText(u"before"_s);
        QTest::mouseDClick(&figure, Qt::LeftButton, {}, QPoint(2, 2));
        if (byMenu) {
            QMenu* menu = contextMenu(figure, QContextMenuEvent::Keyboard);
            QCOMPARE(texts(menu), u"&Copier Ctrl+C, , (&Tout sélectionner Ctrl+A)"_s);
            menu->actions().first()->trigger();
            menu->close();
        } else {
            QTest::keyClick(&figure, Qt::Key_C, Qt::ControlModifier);
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), before);
        QCOMPARE(shown(open(window), name), before);
    }

    // The menu of a right click in a field speaks French, key names included, and offers
    // what can be done: pasting what the clipboard holds.
    void editMenus()
    {
        QGuiApplication::clipboard()->setText(u"180"_s);
        QMenu* menu = contextMenu(imc().control<QWidget>(u"taille"_s), QContextMenuEvent::Mouse);
        QCOMPARE(texts(menu), u"(&Annuler Ctrl+Z), (&Rétablir Ctrl+Y), , (Co&uper Ctrl+X), "
                              u"(&Copier Ctrl+C), C&oller Ctrl+V, (&Supprimer Suppr), , "
                              u"&Tout sélectionner Ctrl+A"_s);
        menu->close();
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
        QTEST(QString(menu.text() + u": " + texts(menu.menu())), "expected");
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

    // A window opened from the keyboard shows its focus at once; Tab goes round in the
    // layout's order, reaching the main window's buttons and passing the disabled copy
    // button by; a menu opened with its letter and left with Escape puts the focus back
    // where it was, shown.
    void theKeyboardWayThroughAWindow_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("menuLetter");
        QTest::addColumn<QString>("order");
        QTest::newRow("main") << QString() << int(Qt::Key_O)
                              << u"BevelButton1 BevelButton2 BevelButton3 BevelButton4 "
                                 u"BevelButton5 BevelButton6 BevelButton7"_s;
        QTest::newRow("cleinsee") << u"BevelButton2"_s << int(Qt::Key_O)
                                  << u"TextField1 TextField2 BevelButton1 cleaide"_s;
        QTest::newRow("norton") << u"BevelButton1"_s << int(Qt::Key_E) << QString();
    }
    void theKeyboardWayThroughAWindow()
    {
        QFETCH(QString, button);
        QFETCH(int, menuLetter);
        QFETCH(QString, order);
        QWidget* window = &Window1();
        QVERIFY(QTest::qWaitForWindowActive(window));
        if (!button.isEmpty()) {
            QTest::keyClick(&Window1().control<BevelButton>(button), Qt::Key_Space);
            QVERIFY(QTest::qWaitFor([] { return QApplication::activeWindow() != &Window1(); }));
            window = QApplication::activeWindow();
        }
        QWidget* focused = window->focusWidget();
        QVERIFY(focusShows(focused));
        const QStringList names = order.isEmpty() ? QStringList() : order.split(u' ');
        QStringList seen;
        for (qsizetype i = 0; i < names.size(); ++i) {
            seen << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(seen, names);
        QCOMPARE(QApplication::focusWidget(), focused);
        QTest::keyClick(window, Qt::Key(menuLetter), Qt::AltModifier);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        // The offscreen platform makes an open menu the active window, which no desktop
        // does: the window keeps that place, as on a desktop.
        window->activateWindow();
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return QApplication::focusWidget() == focused; }));
        QVERIFY(focusShows(focused));
    }
};

VORKAN_TEST_MAIN(TestLauncher)
#include "tst_launcher.moc"
