// Long randomized user sessions across every window: whatever a user does, nothing
// crashes and every figure on screen stays a readable number.
#include "support.h"

#include "sessioncheck.h"

#include "controls.h"
#include "imc.h"
#include "textops.h"
#include "updownarrows.h"
#include "window1.h"

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

#include <random>

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

quint64 settingOr(const char* name, quint64 fallback)
{
    bool ok = false;
    const quint64 value = qEnvironmentVariable(name).toULongLong(&ok);
    return ok ? value : fallback;
}

} // namespace

class TestSession : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomSession();

private:
    using Action = void (TestSession::*)();
    void openFromMainWindow();
    void closeAnyWindow();
    void typeAKey();
    void turnTheWheel();
    void pressAnArrow();
    void moveASlider();
    void chooseInAPopup();
    void useAMenu();
    void clickAButtonOrLabel();
    void quitAndStartAgain();

    static QList<Window*> openWindows();
    Window* anyWindow();
    template<class Control> Control* anyControl(Window& window);
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    std::mt19937_64 random_;
    const char* lastAction_ = "";
    SessionCheck check_;
};

QList<Window*> TestSession::openWindows()
{
    QList<Window*> open;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<Window*>(widget); window && window->isVisible())
            open << window;
    return open;
}

Window* TestSession::anyWindow()
{
    const QList<Window*> open = openWindows();
    return open.isEmpty() ? nullptr : open[pick(static_cast<int>(open.size()))];
}

template<class Control> Control* TestSession::anyControl(Window& window)
{
    const QList<Control*> controls = window.findChildren<Control*>();
    return controls.isEmpty() ? nullptr : controls[pick(static_cast<int>(controls.size()))];
}

void TestSession::openFromMainWindow()
{
    const QList<Window*> before = openWindows();
    auto& button = Window1().control<BevelButton>(u"BevelButton%1"_s.arg(1 + pick(7)));
    QTest::mouseClick(&button, Qt::LeftButton);
    // A window that has just opened ran its first calculation.
    for (Window* window : openWindows())
        if (!before.contains(window))
            check_.calculated(*window);
}

void TestSession::closeAnyWindow()
{
    if (Window* window = anyWindow()) {
        window->Close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void TestSession::typeAKey()
{
    static const Qt::Key keys[] = {
        Qt::Key_0,      Qt::Key_1,      Qt::Key_2,     Qt::Key_3,     Qt::Key_4,
        Qt::Key_5,      Qt::Key_6,      Qt::Key_7,     Qt::Key_8,     Qt::Key_9,
        Qt::Key_A,      Qt::Key_Z,      Qt::Key_Minus, Qt::Key_Comma, Qt::Key_Backspace,
        Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up,    Qt::Key_Down,
        Qt::Key_Left,   Qt::Key_Escape, Qt::Key_Tab};
    Window* window = anyWindow();
    TextField* field = window ? anyControl<TextField>(*window) : nullptr;
    if (!field)
        return;
    const Qt::Key key = keys[pick(std::size(keys))];
    const auto modifier = key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier;
    QTest::keyClick(field, key, modifier);
    // In a height or weight field every key comes up again, and that calculates.
    if (field->maxLength() == 3)
        check_.calculated(*window);
}

void TestSession::turnTheWheel()
{
    Window* window = anyWindow();
    if (!window)
        return;
    QWidget* target = nullptr;
    bool stepped = false;
    if (pick(2)) {
        auto* field = anyControl<TextField>(*window);
        target = field;
        stepped = field && field->MouseWheel;
    } else {
        auto* arrows = anyControl<UpDownArrows>(*window);
        target = arrows;
        stepped = arrows && arrows->MouseWheel;
    }
    if (!target)
        return;
    const int delta = pick(5) == 0 ? 0 : (pick(2) ? 1 : -1) * (1 + pick(2400));
    wheel(*target, delta, pick(4) == 0 ? delta : 0);
    if (stepped && delta != 0)
        check_.calculated(*window);
}

void TestSession::pressAnArrow()
{
    Window* window = anyWindow();
    UpDownArrows* arrows = window ? anyControl<UpDownArrows>(*window) : nullptr;
    if (!arrows)
        return;
    QTest::mouseClick(arrows, Qt::LeftButton, {}, QPoint(6, pick(2) ? 3 : 21));
    check_.calculated(*window);
}

void TestSession::moveASlider()
{
    static const Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right,    Qt::Key_PageUp,
                                   Qt::Key_Home, Qt::Key_PageDown, Qt::Key_End};
    Window* window = anyWindow();
    Slider* slider = window ? anyControl<Slider>(*window) : nullptr;
    if (!slider)
        return;
    if (pick(2))
        QTest::keyClick(slider, keys[pick(std::size(keys))]);
    else
        slider->setValue(slider->minimum() - 10 + pick(slider->maximum() - slider->minimum() + 20));
}

void TestSession::chooseInAPopup()
{
    Window* window = anyWindow();
    PopupMenu* popup = window ? anyControl<PopupMenu>(*window) : nullptr;
    if (!popup)
        return;
    if (pick(2))
        QTest::keyClick(popup, pick(2) ? Qt::Key_Down : Qt::Key_Up);
    else
        popup->setListIndex(pick(popup->count() + 1) - 1);
}

void TestSession::useAMenu()
{
    Window* window = anyWindow();
    if (!window)
        return;
    QList<QAction*> commands;
    for (QAction* action : window->findChildren<QAction*>())
        if (!action->isSeparator() && action->menuRole() != QAction::QuitRole && !action->menu())
            commands << action;
    if (commands.isEmpty())
        return;
    // The Infos box waits for the user; close it as soon as it shows.
    QTimer::singleShot(0, [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible())
                box->accept();
    });
    commands[pick(static_cast<int>(commands.size()))]->trigger();
    QCoreApplication::processEvents();
}

// The "?" buttons, RAZ and Copier, the labels that show tips; the pointer then leaves.
void TestSession::clickAButtonOrLabel()
{
    Window* window = anyWindow();
    if (!window)
        return;
    QWidget* target = pick(2) ? static_cast<QWidget*>(anyControl<PushButton>(*window))
                              : static_cast<QWidget*>(anyControl<StaticText>(*window));
    if (pick(3) == 0)
        target = anyControl<BevelButton>(*window);
    if (!target)
        return;
    const QList<Window*> before = openWindows();
    QTest::mouseClick(target, Qt::LeftButton);
    // The main window's buttons open calculators, which calculate as they open.
    for (Window* opened : openWindows())
        if (!before.contains(opened))
            check_.calculated(*opened);
    if (pick(2)) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(target, &leave);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestSession::quitAndStartAgain()
{
    if (Window* window = anyWindow())
        window->menuItem(u"FileQuit").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty() || !anyWindow());
    Window1();
}

void TestSession::randomSession()
{
    const quint64 seed = settingOr("VORKAN_SEED", std::random_device{}());
    const quint64 actions = settingOr("VORKAN_ACTIONS", 20000);
    random_.seed(seed);
    qInfo("seed %llu, %llu actions (replay: VORKAN_SEED=%llu VORKAN_ACTIONS=%llu)", seed, actions,
          seed, actions);

    struct Weighted {
        Action action;
        int weight;
        const char* name;
    };
    static const Weighted weighted[] = {
        {&TestSession::openFromMainWindow, 8, "open"},
        {&TestSession::closeAnyWindow, 4, "close"},
        {&TestSession::typeAKey, 30, "key"},
        {&TestSession::turnTheWheel, 12, "wheel"},
        {&TestSession::pressAnArrow, 10, "arrow"},
        {&TestSession::moveASlider, 10, "slider"},
        {&TestSession::chooseInAPopup, 12, "popup"},
        {&TestSession::useAMenu, 5, "menu"},
        {&TestSession::clickAButtonOrLabel, 6, "click"},
        {&TestSession::quitAndStartAgain, 1, "quit"},
    };
    int total = 0;
    for (const Weighted& entry : weighted)
        total += entry.weight;

    Window1();
    for (quint64 step = 0; step < actions; ++step) {
        int draw = pick(total);
        for (const Weighted& entry : weighted) {
            if ((draw -= entry.weight) < 0) {
                lastAction_ = entry.name;
                (this->*entry.action)();
                break;
            }
        }
        const QString fault = check_.everyWindow();
        if (!fault.isEmpty())
            QFAIL(qPrintable(u"step %1 (%2), seed %3: %4"_s.arg(step)
                                 .arg(QString::fromLatin1(lastAction_))
                                 .arg(seed)
                                 .arg(fault)));
    }
}

VORKAN_TEST_MAIN(TestSession)
#include "tst_session.moc"
