#include "chronowindow.h"
#include "display.h"
#include "timing.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace pendulo;

class FakeClock : public MonotonicClock {
public:
    qint64 now = 0;
    qint64 nowMs() const override { return now; }
};

// A stopwatch after "start@0 lap@1200 stop@2500 at@3000", each step setting the clock
// then acting: the time, 1 while running, and the laps as number:split/total.
static QString stopwatchAfter(const QString& script)
{
    FakeClock clock;
    Stopwatch watch(clock);
    const QHash<QString, std::function<void()>> actions{{u"start"_s, [&] { watch.start(); }},
                                                        {u"stop"_s, [&] { watch.stop(); }},
                                                        {u"lap"_s, [&] { watch.lap(); }},
                                                        {u"reset"_s, [&] { watch.reset(); }},
                                                        {u"at"_s, [] {}}};
    for (const QString& step : script.split(u' ')) {
        clock.now = step.section(u'@', 1).toLongLong();
        actions.value(step.section(u'@', 0, 0), [] { QFAIL("unknown step"); })();
    }
    QStringList seen{QString::number(watch.elapsedMs()), QString::number(watch.running())};
    for (const Lap& lap : watch.laps())
        seen << u"%1:%2/%3"_s.arg(lap.number).arg(lap.splitMs).arg(lap.totalMs);
    return seen.join(u' ');
}

static QString times(qint64 ms)
{
    return elapsedText(ms) + u' ' + remainingText(ms);
}

static QString rateAfter(const QList<qint64>& taps)
{
    TapRate counter;
    for (qint64 at : taps)
        counter.tap(at);
    return rateText(counter.perMinute(), counter.taps());
}

class TestPendulo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A stopwatch never shows a tenth that has not passed; a countdown shows its full
    // length when it starts and zero only once it has ended. The rate is the mean of
    // the last eight intervals; a pause over 3 s starts a new series.
    void shown_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("expected");
        QTest::newRow("counts from its start")
            << stopwatchAfter(u"start@1000 at@3500"_s) << u"2500 1"_s;
        QTest::newRow("started twice")
            << stopwatchAfter(u"start@0 start@1000 at@2000"_s) << u"2000 1"_s;
        QTest::newRow("laps over a pause")
            << stopwatchAfter(u"start@0 lap@1200 lap@2000 stop@2500 start@3000 lap@3500"_s)
            << u"3000 1 1:1200/1200 2:800/2000 3:1000/3000"_s;
        QTest::newRow("no lap when stopped")
            << stopwatchAfter(u"start@0 stop@1000 lap@1500"_s) << u"1000 0"_s;
        QTest::newRow("reset") << stopwatchAfter(u"start@0 lap@500 reset@800 at@900"_s) << u"0 0"_s;
        QTest::newRow("countdown started") << times(14901) << u"00:14,9 00:15,0"_s;
        QTest::newRow("an hour") << times(3599999) << u"59:59,9 1:00:00,0"_s;
        QTest::newRow("negative") << times(-5) << u"00:00,0 00:00,0"_s;
        QTest::newRow("one tap") << rateAfter({0})
                                 << u"Battements par minute : \u2026 (1\u00a0battement)"_s;
        QTest::newRow("longest pause")
            << rateAfter({0, 3000}) << u"Battements par minute : 20 (2\u00a0battements)"_s;
        QTest::newRow("a new series") << rateAfter({0, 500, 1000, 4001, 5001})
                                      << u"Battements par minute : 60 (2\u00a0battements)"_s;
        QTest::newRow("clock going back")
            << rateAfter({1000, 500, 1500}) << u"Battements par minute : 60 (2\u00a0battements)"_s;
        QTest::newRow("the last eight")
            << rateAfter({0, 1000, 2000, 2500, 3000, 3500, 4000, 4500, 5000, 5500, 6000})
            << u"Battements par minute : 120 (11\u00a0battements)"_s;
    }
    void shown()
    {
        QFETCH(QString, shown);
        QTEST(shown, "expected");
    }

    // Space starts and stops even on a focused button, which it would click, and the
    // list of laps leaves the letters to the window; a countdown beeps once at its end,
    // and not at all when cancelled; B taps the beat. Every control has a name for
    // screen readers. Ctrl+W closes it, as it closes a calculator.
    void keyboardDrivesTheWindow()
    {
        FakeClock clock;
        int beeps = 0;
        ChronoWindow window(clock, [&] { ++beeps; });
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto at = [&](qint64 ms) {
            clock.now = ms;
            window.refresh();
        };
        const auto digits = [&] { return window.findChild<QLabel*>()->text(); };
        for (QPushButton* button : window.findChildren<QPushButton*>())
            if (button->accessibleName() == u"Remise à zéro"_s)
                button->setFocus();
        QTest::keyClick(&window, Qt::Key_Space);
        at(1234);
        QCOMPARE(digits(), u"00:01,2"_s);
        QTest::keyClick(&window, Qt::Key_T);
        auto* laps = window.findChild<QTreeWidget*>();
        laps->setFocus();
        at(2000);
        QTest::keyClicks(laps, u"t "_s);
        at(9000);
        QCOMPARE(digits(), u"00:02,0"_s);
        QCOMPARE(laps->topLevelItemCount(), 2);
        QTest::keyClick(&window, Qt::Key_R);
        QCOMPARE(digits() + QString::number(laps->topLevelItemCount()), u"00:00,00"_s);
        QTest::keyClick(&window, Qt::Key_3);
        at(9000 + 30000);
        at(9000 + 31000);
        QTest::keyClick(&window, Qt::Key_1);
        QCOMPARE(window.findChildren<QLabel*>()[1]->text(),
                 u"Compte à rebours de 15 s : 00:15,0"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
        at(200000);
        QCOMPARE(beeps, 1);
        for (qint64 ms : {300000, 300800, 301600}) {
            clock.now = ms;
            QTest::keyClick(&window, Qt::Key_B);
        }
        QVERIFY(
            window.findChildren<QLabel*>().last()->text().endsWith(u": 75 (3\u00a0battements)"_s));
        for (const QWidget* child : window.findChildren<QWidget*>())
            if (qobject_cast<const QAbstractButton*>(child) || qobject_cast<const QLabel*>(child))
                QVERIFY2(!child->accessibleName().isEmpty(), child->metaObject()->className());
        QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!window.isVisible());
    }
};

QTEST_MAIN(TestPendulo)
#include "tst_pendulo.moc"
