// How long the calculators take to answer, measured through their controls as a
// user drives them: one calc, one key press in imc, opening a window; and one Pow.
#include "app.h"
#include "cleinsee.h"
#include "controls.h"
#include "imc.h"
#include "norton.h"
#include "pideal.h"
#include "startup.h"
#include "surf.h"
#include "textops.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTest>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vorkan;

class BenchCalc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void imcCalc();
    void surfCalc();
    void pidealCalc();
    void nortonCalc();
    void cleinseeCalc();
    void imcKeyPress();
    void openImc();
    void openSurf();
    void openPideal();
    void openNorton();
    void openCleinsee();
    void powCall();

private:
    // A key release in a stepped field runs calc and nothing else.
    static void releaseKey(QWidget& field);
    template<class Open> void measureOpening(Open open);
};

void BenchCalc::cleanup()
{
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BenchCalc::releaseKey(QWidget& field)
{
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_5, Qt::NoModifier, u"5"_s);
    QCoreApplication::sendEvent(&field, &release);
}

void BenchCalc::imcCalc()
{
    auto& field = imc().control<TextField>(u"taille");
    QBENCHMARK
    {
        releaseKey(field);
    }
}

void BenchCalc::surfCalc()
{
    auto& field = surf().control<TextField>(u"surftaille");
    QBENCHMARK
    {
        releaseKey(field);
    }
}

void BenchCalc::pidealCalc()
{
    auto& age = pideal().control<Slider>(u"Slider2");
    int value = 20;
    QBENCHMARK
    {
        value = value == 20 ? 25 : 20;
        age.setValue(value);
    }
}

void BenchCalc::nortonCalc()
{
    auto& window = norton();
    for (int i = 1; i <= 5; ++i)
        window.control<PopupMenu>(u"PopupMenu%1"_s.arg(i)).setListIndex(1);
    auto& last = window.control<PopupMenu>(u"PopupMenu5");
    int row = 0;
    QBENCHMARK
    {
        last.setListIndex(row = 3 - row);
    }
}

void BenchCalc::cleinseeCalc()
{
    auto& field = cleinsee().control<TextField>(u"TextField1");
    field.setText(u"1234567890123"_s);
    QBENCHMARK
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
        QCoreApplication::sendEvent(&field, &press);
    }
}

void BenchCalc::imcKeyPress()
{
    auto& field = imc().control<TextField>(u"taille");
    bool up = true;
    QBENCHMARK
    {
        QTest::keyClick(&field, up ? Qt::Key_Up : Qt::Key_Down);
        up = !up;
    }
}

template<class Open> void BenchCalc::measureOpening(Open open)
{
    std::vector<qint64> times;
    for (int i = 0; i < 50; ++i) {
        QElapsedTimer timer;
        timer.start();
        open();
        QCoreApplication::processEvents();
        times.push_back(timer.nsecsElapsed());
        cleanup();
    }
    std::sort(times.begin(), times.end());
    qInfo("open: median %.2f ms, min %.2f ms, max %.2f ms", double(times[times.size() / 2]) / 1e6,
          double(times.front()) / 1e6, double(times.back()) / 1e6);
}

void BenchCalc::openImc()
{
    measureOpening([] { imc(); });
}

void BenchCalc::openSurf()
{
    measureOpening([] { surf(); });
}

void BenchCalc::openPideal()
{
    measureOpening([] { pideal(); });
}

void BenchCalc::openNorton()
{
    measureOpening([] { norton(); });
}

void BenchCalc::openCleinsee()
{
    measureOpening([] { cleinsee(); });
}

// Pow with a fractional exponent, as the surface formulas call it, over the bases 1 to 999.
void BenchCalc::powCall()
{
    constexpr int rounds = 200;
    Double sum = 0;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        for (int base = 1; base < 1000; ++base)
            sum += Pow(base, 0.725);
    }
    const auto elapsed = static_cast<double>(timer.nsecsElapsed());
    qInfo("Pow: %.0f ns a call (sum %g)", elapsed / (rounds * 999.0), sum);
}

int main(int argc, char** argv)
{
    class App app(argc, argv);
    newAppInstance(app);
    app.setQuitOnLastWindowClosed(false);
    BenchCalc bench;
    return QTest::qExec(&bench, argc, argv);
}

#include "bench_calc.moc"
