// Long randomized user sessions across every window: whatever a user does, nothing
// crashes, every figure on screen is well formed and reads back as shown, the patient
// record holds what the last height and weight calculation read, and the list of
// windows matches what is open.
#include "support.h"

#include "calculators/cleinsee.h"
#include "calculators/imc.h"
#include "calculators/norton.h"
#include "calculators/pideal.h"
#include "calculators/surf.h"
#include "core/controls.h"
#include "core/textops.h"
#include "core/updownarrows.h"
#include "launcher/window1.h"

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
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

// The height and weight fields whose values a calculation stores in the record.
const QStringList recordFields{u"taille"_s, u"poids"_s, u"surftaille"_s, u"surfpoids"_s};

QList<Window*> openWindows()
{
    QList<Window*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<Window*>(widget); window && window->isVisible())
            windows << window;
    return windows;
}

// The first word of the text that holds a number and is no figure: digits with at most
// one decimal mark, the locale's, no "-0", reading back through Val as the number shown;
// "<48" and "48-53" bound a band, "[14]" is a score and "—" a value that is not finite.
QString malformedFigure(const QString& text)
{
    static const QRegularExpression numeric(u"\\d|nan|inf"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const auto figureWith = [](QChar mark) {
        const QString number = u"(-?\\d+(?:%1\\d+)?)"_s.arg(QRegularExpression::escape(mark));
        return QRegularExpression(u"^(?:<|>|\\[)?%1(?:-%1)?\\]?$"_s.arg(number));
    };
    static const QRegularExpression point = figureWith(u'.'), comma = figureWith(u',');
    const QRegularExpression& figure = decimalMark() == u',' ? comma : point;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        const auto match = figure.match(word);
        if (word.contains(numeric) && !match.hasMatch())
            return word;
        for (const QString& found : match.capturedTexts().mid(1))
            if (Val(found) != QLocale().toDouble(found) || (found.startsWith(u'-') && !Val(found)))
                return word;
    }
    return {};
}

} // namespace

class TestSession : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomSession();

private:
    std::mt19937_64 random_;
    QList<Single> expectedRecord_; // height and weight as the last calculation read them

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
    // In imc and surf, a calculation stores what their height and weight fields show.
    void calculated(const QWidget* control)
    {
        const QWidget* window = control->window();
        for (qsizetype i = 0; i < recordFields.size(); i += 2)
            if (auto* taille = window->findChild<TextField*>(recordFields[i]))
                expectedRecord_ = {
                    Single(Val(taille->text())),
                    Single(Val(window->findChild<TextField*>(recordFields[i + 1])->text()))};
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
    // Every key that comes up in a height or weight field calculates.
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
            if (recordFields.contains(target->objectName()))
                calculated(target);
        }
    }
    // A vertical turn steps a field once, however far; a turn beside it does nothing.
    void turnTheWheel()
    {
        QWidget* target = anyControl<TextField, UpDownArrows, Slider, PopupMenu>(anyWindow());
        if (!target)
            return;
        const int delta = pick(5) == 0 ? 0 : (pick(2) ? 1 : -1) * (1 + pick(2400));
        wheel(*target, delta, pick(4) == 0 ? delta : 0);
        if (delta != 0 &&
            (recordFields.contains(target->objectName()) || dynamic_cast<UpDownArrows*>(target)))
            calculated(target);
    }
    // Buttons, tips' labels and arrows; the pointer then leaves, or stays.
    void click()
    {
        QWidget* target =
            anyControl<BevelButton, PushButton, StaticText, UpDownArrows>(anyWindow());
        if (!target)
            return;
        QTest::mouseClick(target, Qt::LeftButton, {},
                          QPoint(target->width() / 2, pick(2) ? 3 : 21));
        if (dynamic_cast<UpDownArrows*>(target))
            calculated(target);
        QEvent leave(QEvent::Leave);
        if (pick(2))
            QCoreApplication::sendEvent(target, &leave);
    }
    void useAMenu()
    {
        Window* window = anyWindow();
        if (!window)
            return;
        QList<QAction*> commands;
        for (QAction* action : window->findChildren<QAction*>())
            if (!action->isSeparator() && action->menuRole() != QAction::QuitRole &&
                !action->menu())
                commands << action;
        // The Infos box waits for the user; close it as soon as it shows.
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
        useLocale(pick(2) ? QLocale::French : QLocale::C);
        Window1();
    }

    QString fault() const
    {
        const QList<Window*> windows = openWindows();
        if (ImplicitWindows::count() != windows.size())
            return u"%1 windows listed, %2 open"_s.arg(ImplicitWindows::count())
                .arg(windows.size());
        for (const QStringView name : {Window1::FullName, imc::FullName, surf::FullName,
                                       pideal::FullName, norton::FullName, cleinsee::FullName})
            if (Window* listed = ImplicitWindows::find(name); listed && !windows.contains(listed))
                return name.toString() + u" is listed but not open"_s;
        for (const Window* window : windows)
            for (const QWidget* control : window->findChildren<QWidget*>()) {
                const auto* label = dynamic_cast<const StaticText*>(control);
                const auto* field = dynamic_cast<const TextField*>(control);
                const QString text = label ? label->text() : field ? field->text() : QString();
                // The main window's date is no figure.
                if (!dynamic_cast<const class Window1*>(window) && !malformedFigure(text).isEmpty())
                    return window->windowTitle() + u": "_s + control->objectName() + u" shows "_s +
                           text;
            }
        if (!expectedRecord_.isEmpty() && QList{App().taille, App().poids} != expectedRecord_)
            return u"the record holds %1 cm, %2 kg instead of %3 cm, %4 kg"_s.arg(App().taille)
                .arg(App().poids)
                .arg(expectedRecord_[0])
                .arg(expectedRecord_[1]);
        return {};
    }
};

void TestSession::randomSession()
{
    const quint64 seed = settingOr("VORKAN_SEED", std::random_device{}());
    const quint64 actions = settingOr("VORKAN_ACTIONS", 20000);
    random_.seed(seed);
    qInfo("seed %llu, %llu actions (replay: VORKAN_SEED=%llu VORKAN_ACTIONS=%llu)", seed, actions,
          seed, actions);
    using Action = void (TestSession::*)();
    const std::pair<Action, int> weighted[] = {{&TestSession::openFromMainWindow, 8},
                                               {&TestSession::closeAnyWindow, 4},
                                               {&TestSession::pressAKey, 40},
                                               {&TestSession::turnTheWheel, 16},
                                               {&TestSession::click, 16},
                                               {&TestSession::useAMenu, 5},
                                               {&TestSession::quitAndStartAgain, 1}};
    int total = 0;
    for (const auto& entry : weighted)
        total += entry.second;
    useLocale(pick(2) ? QLocale::French : QLocale::C);
    Window1();
    for (quint64 step = 0; step < actions; ++step) {
        const QList<Window*> before = openWindows();
        int draw = pick(total);
        const auto* entry = std::begin(weighted);
        while ((draw -= entry->second) >= 0)
            ++entry;
        (this->*entry->first)();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // A window that has just opened ran its first calculation.
        for (Window* window : openWindows())
            if (!before.contains(window))
                calculated(window);
        if (const QString found = fault(); !found.isEmpty())
            QFAIL(qPrintable(u"step %1 (action %2), seed %3: %4"_s.arg(step)
                                 .arg(entry - std::begin(weighted))
                                 .arg(seed)
                                 .arg(found)));
    }
}

VORKAN_TEST_MAIN(TestSession)
#include "tst_session.moc"
