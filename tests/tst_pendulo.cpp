#include "chronowindow.h"
#include "display.h"
#include "timing.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace pendulo;

namespace {

class FakeClock : public MonotonicClock {
public:
    qint64 now = 0;
    qint64 nowMs() const override { return now; }
};

// Runs "start@0 lap@1200 stop@2500 at@3000": each step sets the clock, then acts.
void play(Stopwatch& watch, FakeClock& clock, const QString& script)
{
    for (const QString& step : script.split(u' ', Qt::SkipEmptyParts)) {
        const QString action = step.section(u'@', 0, 0);
        clock.now = step.section(u'@', 1).toLongLong();
        if (action == u"start")
            watch.start();
        else if (action == u"stop")
            watch.stop();
        else if (action == u"lap")
            watch.lap();
        else if (action == u"reset")
            watch.reset();
    }
}

QString lapsText(const QList<Lap>& laps)
{
    QStringList parts;
    for (const Lap& lap : laps)
        parts << QString::number(lap.number) + u':' + QString::number(lap.splitMs) + u'/' +
                     QString::number(lap.totalMs);
    return parts.join(u' ');
}

} // namespace

class TestPendulo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stopwatch_data();
    void stopwatch();
    void rateFromTaps_data();
    void rateFromTaps();
    void shownTimes_data();
    void shownTimes();

    void keyboardDrivesTheWatch();
    void countdownBeepsOnceAtItsEnd_data();
    void countdownBeepsOnceAtItsEnd();
    void beatKeyGivesTheRate();
    void everyControlHasAnAccessibleName();
    void anyKeyIsHarmless();

private:
    struct Window {
        FakeClock clock;
        int beeps = 0;
        ChronoWindow window{clock, [this] { ++beeps; }};
        QString digits() const { return label(u"Temps écoulé"_s)->text(); }
        QLabel* label(const QString& name) const;
        void key(Qt::Key key) { QTest::keyClick(&window, key); }
        void at(qint64 ms)
        {
            clock.now = ms;
            window.refresh();
        }
    };
};

QLabel* TestPendulo::Window::label(const QString& name) const
{
    for (QLabel* found : window.findChildren<QLabel*>())
        if (found->accessibleName() == name)
            return found;
    return nullptr;
}

void TestPendulo::stopwatch_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<bool>("running");
    QTest::addColumn<QString>("laps");
    QTest::newRow("counts from its start") << u"start@1000 at@3500"_s << 2500LL << true << u""_s;
    QTest::newRow("stop holds") << u"start@0 stop@1500 at@9000"_s << 1500LL << false << u""_s;
    QTest::newRow("resumes from where it stopped")
        << u"start@0 stop@1500 start@2000 at@2600"_s << 2100LL << true << u""_s;
    QTest::newRow("a second start changes nothing")
        << u"start@0 start@1000 at@2000"_s << 2000LL << true << u""_s;
    QTest::newRow("laps over a pause")
        << u"start@0 lap@1200 lap@2000 stop@2500 start@3000 lap@3500"_s << 3000LL << true
        << u"1:1200/1200 2:800/2000 3:1000/3000"_s;
    QTest::newRow("no lap while stopped")
        << u"start@0 stop@1000 lap@1500"_s << 1000LL << false << u""_s;
    QTest::newRow("reset forgets all")
        << u"start@0 lap@500 reset@800 at@900"_s << 0LL << false << u""_s;
    QTest::newRow("starts afresh after a reset")
        << u"start@0 stop@300 reset@800 start@1000 lap@1600"_s << 600LL << true << u"1:600/600"_s;
}

void TestPendulo::stopwatch()
{
    QFETCH(QString, script);
    FakeClock clock;
    Stopwatch watch(clock);
    play(watch, clock, script);
    QTEST(watch.elapsedMs(), "elapsed");
    QTEST(watch.running(), "running");
    QTEST(lapsText(watch.laps()), "laps");
}

void TestPendulo::rateFromTaps_data()
{
    QTest::addColumn<QList<qint64>>("taps");
    QTest::addColumn<double>("rate"); // 0: none yet
    QTest::addColumn<int>("counted");
    QTest::newRow("one tap") << QList<qint64>{0} << 0.0 << 1;
    QTest::newRow("steady 75") << QList<qint64>{0, 800, 1600, 2400} << 75.0 << 4;
    QTest::newRow("the longest pause kept") << QList<qint64>{0, 3000} << 20.0 << 2;
    QTest::newRow("a longer pause starts afresh")
        << QList<qint64>{0, 500, 1000, 4001, 5001} << 60.0 << 2;
    QTest::newRow("clock going back") << QList<qint64>{1000, 500, 1500} << 60.0 << 2;
    QList<qint64> speedingUp{0, 1000, 2000};
    for (qint64 at = 2500; at <= 6000; at += 500)
        speedingUp << at;
    QTest::newRow("the last eight intervals") << speedingUp << 120.0 << 11;
}

void TestPendulo::rateFromTaps()
{
    QFETCH(QList<qint64>, taps);
    QFETCH(double, rate);
    TapRate counter;
    for (qint64 at : taps)
        counter.tap(at);
    QCOMPARE(counter.perMinute().value_or(0.0), rate);
    QTEST(counter.taps(), "counted");
}

void TestPendulo::shownTimes_data()
{
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<QString>("elapsed");
    QTest::addColumn<QString>("remaining");
    QTest::newRow("zero") << 0LL << u"00:00,0"_s << u"00:00,0"_s;
    QTest::newRow("a tenth") << 100LL << u"00:00,1"_s << u"00:00,1"_s;
    QTest::newRow("countdown just started") << 14901LL << u"00:14,9"_s << u"00:15,0"_s;
    QTest::newRow("last tenth of a minute") << 59999LL << u"00:59,9"_s << u"01:00,0"_s;
    QTest::newRow("under an hour") << 3599999LL << u"59:59,9"_s << u"1:00:00,0"_s;
    QTest::newRow("hours in front") << 37230400LL << u"10:20:30,4"_s << u"10:20:30,4"_s;
    QTest::newRow("negative") << -5LL << u"00:00,0"_s << u"00:00,0"_s;
}

void TestPendulo::shownTimes()
{
    QFETCH(qint64, ms);
    QTEST(elapsedText(ms), "elapsed");
    QTEST(remainingText(ms), "remaining");
}

void TestPendulo::keyboardDrivesTheWatch()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    // The space bar starts and stops even when a button has the focus, which it would click.
    for (QPushButton* button : w.window.findChildren<QPushButton*>())
        if (button->accessibleName() == u"Remise à zéro"_s)
            button->setFocus();
    QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Remise à zéro"_s);
    w.key(Qt::Key_Space);
    w.at(1234);
    QCOMPARE(w.digits(), u"00:01,2"_s);
    w.key(Qt::Key_T);
    // Nor does the list of laps keep the letters for its own search.
    auto* laps = w.window.findChild<QTreeWidget*>();
    laps->setFocus();
    w.at(2000);
    w.key(Qt::Key_T);
    w.key(Qt::Key_Space);
    w.at(9000);
    QCOMPARE(w.digits(), u"00:02,0"_s);
    QCOMPARE(laps->topLevelItemCount(), 2);
    const QTreeWidgetItem* latest = laps->topLevelItem(0);
    QCOMPARE(QStringList({latest->text(0), latest->text(1), latest->text(2)}),
             QStringList({u"2"_s, u"00:00,7"_s, u"00:02,0"_s}));
    w.key(Qt::Key_R);
    QCOMPARE(w.digits(), u"00:00,0"_s);
    QCOMPARE(laps->topLevelItemCount(), 0);
}

void TestPendulo::countdownBeepsOnceAtItsEnd_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<qint64>("length");
    QTest::newRow("15 s") << Qt::Key_1 << 15000LL;
    QTest::newRow("60 s") << Qt::Key_6 << 60000LL;
}

void TestPendulo::countdownBeepsOnceAtItsEnd()
{
    QFETCH(Qt::Key, key);
    QFETCH(qint64, length);
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    w.at(500);
    w.key(key);
    w.at(500 + length - 1);
    QVERIFY(w.label(u"Compte à rebours"_s)->text().endsWith(u": 00:00,1"_s));
    QCOMPARE(w.beeps, 0);
    w.at(500 + length);
    w.at(500 + length + 1000);
    QCOMPARE(w.beeps, 1);
    QVERIFY(w.label(u"Compte à rebours"_s)->text().endsWith(u"terminé"_s));
    // Cancelled before its end, it stays silent.
    w.key(key);
    w.key(Qt::Key_Escape);
    w.at(10 * length);
    QCOMPARE(w.beeps, 1);
}

void TestPendulo::beatKeyGivesTheRate()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    QCOMPARE(w.label(u"Battements par minute"_s)->text(),
             u"Battements par minute : tapez B à chaque battement"_s);
    for (qint64 at : {1000, 1800, 2600}) {
        w.clock.now = at;
        w.key(Qt::Key_B);
    }
    QCOMPARE(w.label(u"Battements par minute"_s)->text(),
             u"Battements par minute : 75 (3 battements)"_s);
}

void TestPendulo::everyControlHasAnAccessibleName()
{
    const Window w;
    int controls = 0;
    for (const QWidget* child : w.window.findChildren<QWidget*>()) {
        if (!qobject_cast<const QAbstractButton*>(child) && !qobject_cast<const QLabel*>(child) &&
            !qobject_cast<const QTreeWidget*>(child))
            continue;
        ++controls;
        QVERIFY2(!child->accessibleName().isEmpty(), child->metaObject()->className());
    }
    QCOMPARE(controls, 12);
}

void TestPendulo::anyKeyIsHarmless()
{
    Window w;
    w.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&w.window));
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key) {
        if (key >= 'a' && key <= 'z')
            continue;
        w.at(w.clock.now + 700);
        w.key(Qt::Key(key));
    }
    for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Up, Qt::Key_F1})
        w.key(key);
    w.at(w.clock.now + 100000);
    QVERIFY(w.window.isVisible());
}

QTEST_MAIN(TestPendulo)
#include "tst_pendulo.moc"
