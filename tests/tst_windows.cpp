#include "support.h"

#include "controls.h"
#include "imc.h"

using namespace Qt::StringLiterals;
using namespace vorkan;
using namespace vorkan::test;

namespace {

// A window whose opening asks for itself through its accessor, as the main window does.
class probe : public Window {
public:
    static constexpr QStringView FullName = u"probe.probe";
    Window* seenWhileOpening = nullptr;
    int opened = 0;

protected:
    void CreateControls() override
    {
        static constexpr LayoutRow rows[] = {
            {u"second", Kind::TextField, {10, 40, 50, 22}, 1},
            {u"box", Kind::GroupBox, {80, 10, 100, 80}, 2, u"Boîte"},
            {u"inner", Kind::TextField, {90, 40, 50, 22}, 0, u"", {.inside = u"box"}},
            {u"first", Kind::TextField, {10, 10, 50, 22}, 0},
            {u"label", Kind::StaticText, {10, 70, 60, 20}, 3, u"A && B"},
        };
        createControls(rows);
    }
    void Event_Open() override;

private:
    friend class vorkan::ImplicitWindows;
    probe() : Window({u"Probe", 200, 100}) {}
};

VORKAN_ACCESSOR(probe)

class probe& probe()
{
    return ImplicitWindows::instance<class probe>();
}

void probe::Event_Open()
{
    ++opened;
    seenWhileOpening = &::probe();
}

} // namespace

class TestWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAllWindows(); }

    void accessorAnswersWithTheWindowBeingBuilt();
    void oneLiveWindowPerClass();
    void aClosedWindowIsBuiltAfresh();
    void closingTwiceDoesNoHarm();
    void missingControlsThrow();
    void controlsSitWhereTheTableSays();
    void tabOrderFollowsTheTable();
    void doubledAmpersandShowsOnce();
};

void TestWindows::accessorAnswersWithTheWindowBeingBuilt()
{
    auto& window = probe();
    QCOMPARE(window.seenWhileOpening, &window);
    QCOMPARE(window.opened, 1);
}

void TestWindows::oneLiveWindowPerClass()
{
    auto* first = &imc();
    auto* second = &imc();
    QCOMPARE(first, second);
    QCOMPARE(probe().opened, 1);
    QCOMPARE(ImplicitWindows::count(), 2);
    QVERIFY(first->isVisible());
    QCOMPARE(first->windowTitle(), u"IMC"_s);
}

void TestWindows::aClosedWindowIsBuiltAfresh()
{
    QPointer<Window> first = &probe();
    probe().control<TextField>(u"first").setText(u"typed"_s);
    first->Close();
    QVERIFY(!ImplicitWindows::find(u"probe.probe"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(first.isNull());
    QCOMPARE(probe().control<TextField>(u"first").text(), u""_s);
    QCOMPARE(probe().opened, 1);
}

void TestWindows::closingTwiceDoesNoHarm()
{
    QPointer<Window> window = &probe();
    window->Close();
    window->Close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(window.isNull());
    QCOMPARE(ImplicitWindows::count(), 0);
}

void TestWindows::missingControlsThrow()
{
    QVERIFY_THROWS_EXCEPTION(NilObjectException, probe().control<TextField>(u"nothing"));
    QVERIFY_THROWS_EXCEPTION(NilObjectException, probe().control<TextField>(u"label"));
    QVERIFY_THROWS_EXCEPTION(NilObjectException, imc().control<StaticText>(u"taille"));
}

void TestWindows::controlsSitWhereTheTableSays()
{
    auto& inner = probe().control<TextField>(u"inner");
    QCOMPARE(inner.parentWidget(), &probe().control<GroupBox>(u"box"));
    QCOMPARE(inner.mapTo(&probe(), QPoint()) -
                 probe().control<TextField>(u"first").mapTo(&probe(), QPoint()),
             QPoint(80, 30));
    QCOMPARE(imc().control<TextField>(u"taille").geometry(), QRect(23, 39, 49, 25));
}

void TestWindows::tabOrderFollowsTheTable()
{
    auto& window = probe();
    QWidget* at = &window.control<TextField>(u"first");
    QStringList order;
    for (int i = 0; i < 3; ++i) {
        order << at->objectName();
        at = at->nextInFocusChain();
        while (!(at->focusPolicy() & Qt::TabFocus))
            at = at->nextInFocusChain();
    }
    QCOMPARE(order, (QStringList{u"first"_s, u"second"_s, u"inner"_s}));
}

void TestWindows::doubledAmpersandShowsOnce()
{
    auto& label = probe().control<StaticText>(u"label");
    QCOMPARE(label.text(), u"A && B"_s);
    QCOMPARE(label.QLabel::text(), u"A & B"_s);
}

VORKAN_TEST_MAIN(TestWindows)
#include "tst_windows.moc"
