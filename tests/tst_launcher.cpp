#include "support.h"

#include "controls.h"
#include "imc.h"
#include "infos.h"
#include "platform.h"
#include "textops.h"
#include "window1.h"

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

// Closes the next message box as soon as it shows, and tells its title and text.
struct MessageBoxWatch {
    QString title;
    QString text;
    void arm()
    {
        QTimer::singleShot(0, [this] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) {
                    title = box->windowTitle();
                    text = box->text();
                    box->accept();
                }
        });
    }
};

int visibleWindowsTitled(const QString& title)
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += widget->isVisible() && widget->windowTitle() == title;
    return count;
}

// A program that leaves a mark beside itself when it runs.
#ifdef Q_OS_WIN
QString writeProbe(const QString& folder, const QString& name)
{
    const QString path = QDir(folder).filePath(name + u".exe"_s);
    const QString probe =
        QDir(QCoreApplication::applicationDirPath()).filePath(u"launchprobe.exe"_s);
    return QFile::copy(probe, path) ? path : QString();
}
#else
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
#endif

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

    void opensCentredInTheFreeArea();
    void showsTodaysDateInTheLocalesShortForm();
    void followsTheSystemsFrenchLocale();
    void oneWindowPerCalculator();
    void infosTextLineByLine();
    void infosOpensFromTheMainWindowOnly();
    void quitterClosesEveryWindowFromAnyWindow();
    void launchesOnlyWhatLiesBesideTheProgram();
    void aMissingCompanionChangesNothing();
};

void TestLauncher::opensCentredInTheFreeArea()
{
    // The test screen's free area starts at (200, 30), below and beside panels.
    QCOMPARE(availableScreenArea(), QRect(200, 30, 1000, 700));
    // The client area, below the menu bar, is what is centred.
    const QPoint clientArea(200 + 277, 30 + 249);
    QCOMPARE(Window1().control<QWidget>(u"BevelButton3").mapToGlobal(QPoint(0, 0)),
             clientArea + QPoint(13, 35));
    QCOMPARE(Window1().windowTitle(), u"Vorkan MAC"_s);
    QCOMPARE(Window1().control<StaticText>(u"sbdate").geometry(), QRect(6, 6, 88, 16));
}

void TestLauncher::showsTodaysDateInTheLocalesShortForm()
{
    useLocale(QLocale::French);
    QCOMPARE(Window1().control<StaticText>(u"sbdate").text(),
             QDate::currentDate().toString(u"dd/MM/yyyy"_s));
}

// The locale as the system itself reports it, which the other tests replace by their
// own; run with VORKAN_SYSTEM_LOCALE=fr_FR on a system set to French.
void TestLauncher::followsTheSystemsFrenchLocale()
{
    const QString locale = qEnvironmentVariable("VORKAN_SYSTEM_LOCALE");
    if (locale.isEmpty())
        QSKIP("VORKAN_SYSTEM_LOCALE names no system locale");
    QCOMPARE(locale, u"fr_FR"_s);
    QLocale::setDefault(QLocale::system());
    QCOMPARE(QLocale::system().name(), locale);
    QCOMPARE(Window1().control<StaticText>(u"sbdate").text(),
             QDate::currentDate().toString(u"dd/MM/yyyy"_s));
    QCOMPARE(imc().control<TextField>(u"imct").text(), u"24,2"_s); // 170 cm, 70 kg
}

void TestLauncher::oneWindowPerCalculator()
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
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(visibleWindowsTitled(u"IMC"_s), 1);
}

void TestLauncher::infosTextLineByLine()
{
    const QStringList lines = infosText().split(EndOfLine());
    QCOMPARE(lines.size(), 9);
    QCOMPARE(lines[0], u"Vorkan MAC 1.0"_s);
    QVERIFY(lines[1].contains(u"2026"_s));
    QVERIFY(lines[3].contains(u"MIT"_s));
    QVERIFY(lines[5].startsWith(u"Web : https://"_s));
    QVERIFY(lines[6].startsWith(u"Mail : "_s) && lines[6].contains(u'@'));
    QCOMPARE(lines[8], u"Utilitaires médicaux"_s);
    for (const int empty : {2, 4, 7})
        QCOMPARE(lines[empty], QString());
}

void TestLauncher::infosOpensFromTheMainWindowOnly()
{
    QAction& mainInfos = Window1().menuItem(u"OptionsInfos");
    QAction& imcInfos = imc().menuItem(u"OptionsInfos");
    QCOMPARE(Window1().menuItem(u"OptionsMenu").text(), u"&Options"_s);
    QCOMPARE(imc().menuItem(u"OptionsMenu").text(), u"&Options"_s);
    QVERIFY(mainInfos.isEnabled());
    QVERIFY(!imcInfos.isEnabled());

    MessageBoxWatch watch;
    watch.arm();
    imcInfos.trigger();
    QTest::qWait(50);
    QCOMPARE(watch.title, QString());

    watch.arm();
    mainInfos.trigger();
    QCOMPARE(watch.title, u"Infos"_s);
    QCOMPARE(watch.text, infosText());
}

void TestLauncher::quitterClosesEveryWindowFromAnyWindow()
{
    Window1();
    imc();
    QAction& quit = imc().menuItem(u"FileQuit");
    QVERIFY(quit.isEnabled());
    QCOMPARE(quit.text(), u"Quitter"_s);
    QCOMPARE(quit.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    QCOMPARE(quit.menuRole(), QAction::QuitRole);
    quit.trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(ImplicitWindows::count(), 0);
    QCOMPARE(visibleWindowsTitled(u"IMC"_s) + visibleWindowsTitled(u"Vorkan MAC"_s), 0);
}

void TestLauncher::launchesOnlyWhatLiesBesideTheProgram()
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

void TestLauncher::aMissingCompanionChangesNothing()
{
    QVERIFY(
        !QFile::exists(QDir(QCoreApplication::applicationDirPath()).filePath(u"lumetra.app"_s)));
    Window1();
    const int windows = static_cast<int>(QApplication::topLevelWidgets().size());
    QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton4"), Qt::LeftButton);
    QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton7"), Qt::LeftButton);
    QCOMPARE(static_cast<int>(QApplication::topLevelWidgets().size()), windows);
}

VORKAN_TEST_MAIN(TestLauncher)
#include "tst_launcher.moc"
