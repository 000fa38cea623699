// Long randomized user sessions across every window: whatever a user does, nothing
// crashes, every figure on screen has the locale's decimal mark and no "-0", "nan" or
// "inf", and the list of windows matches what is open.
#include "support.h"

#include <QRegularExpression>

#include <random>

static QList<Window*> openWindows()
{
    QList<Window*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<Window*>(widget); window && window->isVisible())
            windows << window;
    return windows;
}

// The other locale's mark between digits, a negative zero (not the dash of a band), or a
// value that is not finite.
static bool wellFormed(const QString& text)
{
    const auto faultsWith = [](QStringView mark, QStringView other) {
        return QRegularExpression(
            u"\\d\\%2\\d|(?<!\\d)-0(\\%10+)?(?![\\d\\%1])|nan|inf"_s.arg(mark, other),
            QRegularExpression::CaseInsensitiveOption);
    };
    static const QRegularExpression french = faultsWith(u",", u"."), c = faultsWith(u".", u",");
    return !(decimalMark() == u',' ? french : c).match(text).hasMatch();
}

class TestSession : public QObject {
    Q_OBJECT

    std::mt19937_64 random_;

    int pick(qsizetype count)
    {
        return std::uniform_int_distribution<int>(0, int(count) - 1)(random_);
    }
    Window* anyWindow()
    {
        const QList<Window*> windows = openWindows();
        return windows.isEmpty() ? nullptr : windows[pick(windows.size())];
    }
    template<class... Kinds> QWidget* anyControl()
    {
        Window* window = anyWindow();
        QList<QWidget*> found;
        for (QWidget* widget : window ? window->findChildren<QWidget*>() : QList<QWidget*>())
            if ((dynamic_cast<Kinds*>(widget) || ...))
                found << widget;
        return found.isEmpty() ? nullptr : found[pick(found.size())];
    }

    void openOrClose()
    {
        if (Window* window = anyWindow(); window && pick(3) == 0)
            window->Close();
        else
            QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton%1"_s.arg(1 + pick(7))),
                              Qt::LeftButton);
    }
    void pressAKey()
    {
        static const Qt::Key keys[] = {
            Qt::Key_0,     Qt::Key_1,      Qt::Key_5,      Qt::Key_9,         Qt::Key_A,
            Qt::Key_Minus, Qt::Key_Comma,  Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Enter,
            Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Return,    Qt::Key_Tab,
            Qt::Key_Shift, Qt::Key_PageUp, Qt::Key_End,    Qt::Key_Escape};
        if (QWidget* target = anyControl<TextField, Slider, PopupMenu>()) {
            const Qt::Key key = keys[pick(std::size(keys))];
            QTest::keyClick(target, key,
                            key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        }
    }
    // Any turn, however far, or beside the control.
    void turnTheWheel()
    {
        if (QWidget* target = anyControl<TextField, UpDownArrows, Slider, PopupMenu>()) {
            const int delta = pick(5) == 0 ? 0 : (pick(2) ? 1 : -1) * (1 + pick(2400));
            wheel(*target, delta, pick(4) == 0 ? delta : 0);
        }
    }
    // Buttons, tips' labels and arrows; the pointer then leaves, or stays.
    void click()
    {
        if (QWidget* target = anyControl<BevelButton, PushButton, StaticText, UpDownArrows>()) {
            QTest::mouseClick(target, Qt::LeftButton, {},
                              QPoint(target->width() / 2, pick(2) ? 3 : 21));
            QEvent leave(QEvent::Leave);
            if (pick(2))
                QCoreApplication::sendEvent(target, &leave);
        }
    }
    // Any command but Quitter; the Infos box is closed as soon as it shows.
    void useAMenu()
    {
        QList<QAction*> commands;
        if (Window* window = anyWindow())
            for (QAction* action : window->findChildren<QAction*>())
                if (!action->isSeparator() && action->menuRole() != QAction::QuitRole &&
                    !action->menu())
                    commands << action;
        QTimer::singleShot(0, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->accept();
        });
        if (!commands.isEmpty())
            commands[pick(commands.size())]->trigger();
        QCoreApplication::processEvents();
    }
    // Quitter, then a new start, maybe in the other locale.
    void quitAndStartAgain()
    {
        Window1().menuItem(u"FileQuit").trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(openWindows().isEmpty());
        QLocale::setDefault(pick(2) ? QLocale::French : QLocale::C);
        Window1();
    }

    QString fault() const
    {
        const QList<Window*> windows = openWindows();
        if (ImplicitWindows::count() != windows.size())
            return u"%1 windows listed, %2 open"_s.arg(ImplicitWindows::count())
                .arg(windows.size());
        for (const Window* window : windows)
            for (const QWidget* control : window->findChildren<QWidget*>()) {
                const auto* label = dynamic_cast<const StaticText*>(control);
                const auto* field = dynamic_cast<const TextField*>(control);
                const QString text = label ? label->text() : field ? field->text() : QString();
                if (!wellFormed(text))
                    return control->objectName() + u" shows "_s + text;
            }
        return {};
    }

private Q_SLOTS:
    void randomSession()
    {
        quint64 seed = qEnvironmentVariable("VORKAN_SEED").toULongLong();
        seed = seed ? seed : std::random_device{}();
        random_.seed(seed);
        const quint64 actions = qEnvironmentVariable("VORKAN_ACTIONS", u"20000"_s).toULongLong();
        using Action = void (TestSession::*)();
        const Action gestures[] = {&TestSession::openOrClose,  &TestSession::pressAKey,
                                   &TestSession::turnTheWheel, &TestSession::click,
                                   &TestSession::useAMenu,     &TestSession::quitAndStartAgain};
        std::discrete_distribution<int> often{12, 40, 16, 16, 5, 1};
        QLocale::setDefault(pick(2) ? QLocale::French : QLocale::C);
        Window1();
        for (quint64 step = 0; step < actions; ++step) {
            const int gesture = often(random_);
            (this->*gestures[gesture])();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (const QString found = fault(); !found.isEmpty())
                QFAIL(qPrintable(
                    u"step %1 (gesture %2), seed %3: %4"_s.arg(step).arg(gesture).arg(seed).arg(
                        found)));
        }
    }
};

VORKAN_TEST_MAIN(TestSession)
#include "tst_session.moc"
