#include "support.h"

#include "calculators/imc.h"
#include "core/controls.h"
#include "core/platform.h"
#include "core/textops.h"
#include "launcher/infos.h"
#include "launcher/window1.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

int visibleWindowsTitled(const QString& title)
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += widget->isVisible() && widget->windowTitle() == title;
    return count;
}

// A program that leaves a mark beside itself when it runs.
QString writeProbe(const QString& folder, const QString& name)
{
    const QString path = QDir(folder).filePath(name);
    QFile script(path);
    if (!script.open(QIODevice::WriteOnly))
        return {};
    script.write("#!/bin/sh\ntouch \"$0.ran\"\n");
    script.close();
    script.setPermissions(script.permissions() | QFile::ExeOwner);
    return path;
}

} // namespace

class TestLauncher : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { resetRecord(); }
    void cleanup()
    {
        closeAllWindows();
        QLocale::setDefault(QLocale::c());
    }

    void opensCentredInTheFreeArea()
    {
        // The test screen's free area starts at (200, 30), below and beside panels.
        QCOMPARE(availableScreenArea(), QRect(200, 30, 1000, 700));
        // The client area, below the menu bar, is what is centred.
        const QPoint clientArea(200 + 277, 30 + 249);
        QCOMPARE(Window1().control<QWidget>(u"BevelButton3").mapToGlobal(QPoint(0, 0)),
                 clientArea + QPoint(13, 35));
    }

    void showsTodaysDateInTheLocalesShortForm()
    {
        useLocale(QLocale::French);
        QCOMPARE(shown(Window1(), u"sbdate"_s), QDate::currentDate().toString(u"dd/MM/yyyy"_s));
    }

    // A click brings the one window up, also from minimised; the Close key closes it.
    void oneWindowPerCalculator()
    {
        auto& button = Window1().control<BevelButton>(u"BevelButton3");
        for (int i = 0; i < 3; ++i)
            QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(visibleWindowsTitled(u"IMC"_s), 1);
        imc().showMinimized();
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(!imc().isMinimized());
        QVERIFY(QTest::qWaitForWindowActive(&imc()));
        QTest::keyClick(&imc(), Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(ImplicitWindows::find(u"imc.imc"), nullptr);
    }

    // Each window shows one menu; the Infos box belongs to the main window alone.
    void menus_data()
    {
        QTest::addColumn<Win>("window");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("enabled");
        QTest::addColumn<QStringList>("disabled");
        QTest::newRow("main") << Win::main << u"&Options"_s
                              << QStringList{u"OptionsInfos"_s, u"FileQuit"_s} << QStringList{};
        QTest::newRow("imc") << Win::imc << u"&Options"_s << QStringList{u"FileQuit"_s}
                             << QStringList{u"OptionsInfos"_s};
        QTest::newRow("norton") << Win::norton << u"&Echelle de Norton"_s
                                << QStringList{u"OptionsRAZ"_s, u"OptionsCopier"_s, u"FileQuit"_s}
                                << QStringList{};
    }

    void menus()
    {
        QFETCH(Win, window);
        QFETCH(QStringList, enabled);
        QFETCH(QStringList, disabled);
        Window& opened = open(window);
        QTEST(opened.menuItem(u"OptionsMenu").text(), "title");
        for (const QString& item : enabled)
            QVERIFY2(opened.menuItem(item).isEnabled(), qPrintable(item));
        for (const QString& item : disabled)
            QVERIFY2(!opened.menuItem(item).isEnabled(), qPrintable(item));
    }

    void infosOpensFromTheMainWindow()
    {
        QString title;
        QString text;
        QTimer::singleShot(0, [&] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) {
                    title = box->windowTitle();
                    text = box->text();
                    box->accept();
                }
        });
        Window1().menuItem(u"OptionsInfos").trigger();
        QCOMPARE(title, u"Infos"_s);
        QCOMPARE(text, infosText());
        QVERIFY(text.startsWith(u"Vorkan MAC "_s + QCoreApplication::applicationVersion() +
                                EndOfLine()));
    }

    void quitterClosesEveryWindowFromAnyWindow()
    {
        Window1();
        QAction& quit = imc().menuItem(u"FileQuit");
        QCOMPARE(quit.text(), u"Quitter"_s);
        QCOMPARE(quit.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
        QCOMPARE(quit.menuRole(), QAction::QuitRole);
        quit.trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(ImplicitWindows::count(), 0);
        QCOMPARE(visibleWindowsTitled(u"IMC"_s) + visibleWindowsTitled(u"Vorkan MAC"_s), 0);
    }

    // Never from the current folder or the PATH.
    void launchesOnlyWhatLiesBesideTheProgram()
    {
        const QString name = u"vorkan-probe-%1.app"_s.arg(QCoreApplication::applicationPid());
        QTemporaryDir elsewhere;
        const QString inCurrentFolder = writeProbe(elsewhere.path(), name);
        const QString previous = QDir::currentPath();
        QDir::setCurrent(elsewhere.path());
        QVERIFY(!launchBesideProgram(name));
        QTest::qWait(300);
        QVERIFY(!QFile::exists(inCurrentFolder + u".ran"_s));

        const QString beside = writeProbe(QCoreApplication::applicationDirPath(), name);
        QVERIFY(launchBesideProgram(name));
        QTRY_VERIFY(QFile::exists(beside + u".ran"_s));
        QDir::setCurrent(previous);
        QFile::remove(beside);
        QFile::remove(beside + u".ran"_s);
    }

    void aMissingCompanionChangesNothing()
    {
        QVERIFY(!QFile::exists(QCoreApplication::applicationDirPath() + u"/lumetra.app"_s));
        Window1();
        const auto windows = QApplication::topLevelWidgets().size();
        QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton4"), Qt::LeftButton);
        QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton7"), Qt::LeftButton);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }
};

VORKAN_TEST_MAIN(TestLauncher)
#include "tst_launcher.moc"
