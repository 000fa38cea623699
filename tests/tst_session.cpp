// Long randomized user sessions across every window: whatever a user does, nothing
// crashes, every figure on screen is well formed and reads back as shown, and the list
// of windows matches what is open.
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

// Digits with at most one decimal mark, the locale's, no "-0", reading back through Val
// as the number shown; "<48" and "48-53" bound a band, "[14]" is a score and "—" a
// value that is not finite. A word with no digit is no figure.
static bool wellFormed(const QString& word)
{
    static const QRegularExpression numeric(u"\\d|nan|inf"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const auto figureWith = [](QChar mark) {
        const QString number = u"(-?\\d+(?:%1\\d+)?)"_s.arg(QRegularExpression::escape(mark));
        return QRegularExpression(u"^(?:<|>|\\[)?%1(?:-%1)?\\]?$"_s.arg(number));
    };
    static const QRegularExpression point = figureWith(u'.'), comma = figureWith(u',');
    const auto match = (decimalMark() == u',' ? comma : point).match(word);
    bool readsBack = match.hasMatch() || !word.contains(numeric);
    for (const QString& number : match.capturedTexts().mid(1))
        readsBack = readsBack && Val(number) == QLocale().toDouble(number) &&
                    (!number.startsWith(u'-') || Val(number) != 0);
    return readsBack;
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
    template<class... Kinds> QWidget* anyControl(Window* window)
    {
        QList<QWidget*> found;
        for (QWidget* widget : window ? window->findChildren<QWidget*>() : QList<QWidget*>())
            if ((dynamic_cast<Kinds*>(widget) || ...))
                found << widget;
        return found.isEmpty() ? nullptr : found[pick(found.size())];
    }
    void openFromMainWindow()
    {
        QTest::mouseClick(&Window1().control<BevelButton>(u"BevelButton%1"_s.arg(1 + pick(7))),
                          Qt::LeftButton);
    }
    void closeAnyWindow()
    {
        if (Window* window = anyWindow())
            window->Close();
    }
    void pressAKey()
    {
        static const Qt::Key keys[] = {
            Qt::Key_0,     Qt::Key_1,     Qt::Key_2,      Qt::Key_3,      Qt::Key_4,
            Qt::Key_5,     Qt::Key_6,     Qt::Key_7,      Qt::Key_8,      Qt::Key_9,
            Qt::Key_A,     Qt::Key_Minus, Qt::Key_Comma,  Qt::Key_Delete, Qt::Key_Backspace,
            Qt::Key_Enter, Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Return,
            Qt::Key_Tab,   Qt::Key_Shift, Qt::Key_PageUp, Qt::Key_End,    Qt::Key_Escape};
        if (QWidget* target = anyControl<TextField, Slider, PopupMenu>(anyWindow())) {
            const Qt::Key key = keys[pick(std::size(keys))];
            QTest::keyClick(target, key,
                            key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        }
    }
    // A vertical turn steps a field once, however far; a turn beside it does nothing.
    void turnTheWheel()
    {
        if (QWidget* target = anyControl<TextField, UpDownArrows, Slider, PopupMenu>(anyWindow())) {
            const int delta = pick(5) == 0 ? 0 : (pick(2) ? 1 : -1) * (1 + pick(2400));
            wheel(*target, delta, pick(4) == 0 ? delta : 0);
        }
    }
    // Buttons, tips' labels and arrows; the pointer then leaves, or stays.
    void click()
    {
        if (QWidget* target =
                anyControl<BevelButton, PushButton, StaticText, UpDownArrows>(anyWindow())) {
            QTest::mouseClick(target, Qt::LeftButton, {},
                              QPoint(target->width() / 2, pick(2) ? 3 : 21));
            QEvent leave(QEvent::Leave);
            if (pick(2))
                QCoreApplication::sendEvent(target, &leave);
        }
    }
    // The Infos box waits for the user: it is closed as soon as it shows.
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
    // The locale may change while no window is open.
    void quitAndStartAgain()
    {
        if (Window* window = anyWindow())
            window->menuItem(u"FileQuit").trigger();
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
                // The main window's date is no figure.
                for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
                    if (!dynamic_cast<const class Window1*>(window) && !wellFormed(word))
                        return control->objectName() + u" shows "_s + text;
            }
        return {};
    }

private Q_SLOTS:
    void randomSession()
    {
        const quint64 seed = qEnvironmentVariableIsSet("VORKAN_SEED")
                                 ? qEnvironmentVariable("VORKAN_SEED").toULongLong()
                                 : std::random_device{}();
        const quint64 actions = qEnvironmentVariable("VORKAN_ACTIONS", u"20000"_s).toULongLong();
        random_.seed(seed);
        qInfo("seed %llu, %llu actions (replay: VORKAN_SEED=%llu VORKAN_ACTIONS=%llu)", seed,
              actions, seed, actions);
        using Action = void (TestSession::*)();
        const Action gestures[] = {
            &TestSession::openFromMainWindow, &TestSession::closeAnyWindow, &TestSession::pressAKey,
            &TestSession::turnTheWheel,       &TestSession::click,          &TestSession::useAMenu,
            &TestSession::quitAndStartAgain};
        std::discrete_distribution<int> often{8, 4, 40, 16, 16, 5, 1};
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
