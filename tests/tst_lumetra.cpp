#include "acuity.h"
#include "calibrationstore.h"
#include "chart.h"
#include "chartwindow.h"

#include <QImage>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace lumetra;

static QImage rendered(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_Grayscale8);
    widget.render(&image);
    return image;
}

// The height of what is inked right of x, from the first inked row to the last.
static int inkedHeight(const QImage& image, int x)
{
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int column = x; column < image.width(); ++column)
            if (qGray(image.pixel(column, y)) < 128) {
                first = first < 0 ? y : first;
                last = y;
                break;
            }
    return first < 0 ? 0 : last - first + 1;
}

class TestLumetra : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    std::unique_ptr<QSettings> settings_;
    std::unique_ptr<CalibrationStore> store_;

    QString screenKey() const
    {
        return CalibrationStore::keyFor(*QGuiApplication::primaryScreen());
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(dir_.filePath(u"lumetra.ini"_s));
        settings_ =
            std::make_unique<QSettings>(dir_.filePath(u"lumetra.ini"_s), QSettings::IniFormat);
        store_ = std::make_unique<CalibrationStore>(*settings_);
    }

    // The density guessed from the screen, kept believable and letting the card fit, and how many
    // letters a line holds. Letter sizes are measured on the drawn chart below.
    void sizes_data()
    {
        QTest::addColumn<double>("actual");
        QTest::addColumn<double>("expected");
        QTest::newRow("96 dpi scaled twice") << guessPixelsPerMm(96, 2) << 7.5591;
        QTest::newRow("no dpi reported") << guessPixelsPerMm(qQNaN(), 1) << 3.7795;
        QTest::newRow("card wider than the screen") << clampPixelsPerMm(20, 1284) << 15.0;
        QTest::newRow("density not a number") << clampPixelsPerMm(qQNaN(), 1280) << minPixelsPerMm;
        QTest::newRow("screen narrower than a card") << clampPixelsPerMm(5, 40) << minPixelsPerMm;
        QTest::newRow("five letters, four gaps") << double(lettersThatFit(100, 900)) << 5.0;
        QTest::newRow("letter wider than the line") << double(lettersThatFit(100, 50)) << 1.0;
    }
    void sizes()
    {
        QFETCH(double, actual);
        QFETCH(double, expected);
        QVERIFY2(std::abs(actual - expected) < 0.005, qPrintable(QString::number(actual)));
    }

    void storeKeepsOnlyBelievableValues()
    {
        store_->save(u"A/B-1920x1080"_s, 3.6);
        QCOMPARE(CalibrationStore(*settings_).load(u"A/B-1920x1080"_s), std::optional(3.6));
        QVERIFY(!store_->load(u"A/B-1280x1024"_s));
        for (const QVariant& bad :
             {QVariant(u"abc"_s), QVariant(-3.6), QVariant(0.0), QVariant(1e9), QVariant(qInf())}) {
            settings_->setValue(u"etalonnage/C-1x1"_s, bad);
            QVERIFY2(!store_->load(u"C-1x1"_s), qPrintable(bad.toString()));
        }
    }

    // The current line, then the smaller ones below, then the larger above, as long as
    // they fit; centred, never over the labels. The foot tells of smaller lines left out.
    void chartLines_data()
    {
        QTest::addColumn<int>("tenths");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<double>("height");
        QTest::addColumn<QList<int>>("shown");
        QTest::addColumn<QString>("foot");
        const QString none;
        QTest::newRow("all below") << 3 << true << 600.0 << QList{3, 4, 5, 6, 7, 8, 9, 10} << none;
        QTest::newRow("then larger") << 10 << true << 300.0 << QList{5, 6, 7, 8, 9, 10} << none;
        QTest::newRow("smaller left out")
            << 1 << true << 600.0 << QList{1, 2, 3, 4} << u"▼ 5/10 à 10/10 plus bas"_s;
        QTest::newRow("one line") << 4 << false << 1000.0 << QList{4} << none;
    }
    void chartLines()
    {
        QFETCH(int, tenths);
        QFETCH(bool, whole);
        QFETCH(double, height);
        QList<int> shown;
        double bottom = 0;
        const QList<ChartLine> lines =
            layoutChart({tenths, whole, false}, {1600, height}, 4.0, 100);
        for (const ChartLine& line : lines) {
            shown << line.tenths;
            QVERIFY2(line.cells.first().top() >= bottom || bottom == 0, "lines overlap");
            QCOMPARE(line.cells.first().left() + line.cells.last().right(), 1600.0);
            QVERIFY(line.cells.first().left() >= 100);
            bottom = line.cells.first().bottom();
        }
        QTEST(shown, "shown");
        QTEST(moreLinesBelow({tenths, whole, false}, lines), "foot");
        QVERIFY(bottom <= height || shown.size() == 1);
    }

    // Keys, wheel and a drag of the card's edge; Escape keeps the density as it was.
    void calibratesUntilMeasuredAndKeepsIt()
    {
        ChartWindow first(*store_);
        QVERIFY(first.calibrating());
        first.resize(1200, 900);
        QTest::keyClick(&first, Qt::Key_Return);
        const ChartWindow second(*store_);
        QVERIFY(!second.calibrating());
        QCOMPARE(second.pixelsPerMm(), first.pixelsPerMm());
        store_->save(screenKey(), 3.0);
        ChartWindow chart(*store_);
        chart.resize(1200, 900);
        QTest::keyClick(&chart, Qt::Key_E);
        QCOMPARE(chart.cardWidthPx(), 256.8);
        QTest::keyClick(&chart, Qt::Key_Right);
        QTest::keyClick(&chart, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&chart, Qt::Key_Minus);
        QVERIFY(std::abs(chart.cardWidthPx() - 266.8) < 1e-9);
        QTest::keyClick(&chart, Qt::Key_Escape);
        QCOMPARE(store_->load(screenKey()), std::optional(3.0));
        QTest::keyClick(&chart, Qt::Key_E);
        // The pointer on an edge of the centred card is half a card from the middle.
        QTest::mousePress(&chart, Qt::LeftButton, {}, QPoint(600 + 171, 450));
        QCOMPARE(chart.cardWidthPx(), 342.0);
        QWheelEvent away({600, 450}, {600, 450}, {}, {0, 240}, Qt::NoButton, {}, Qt::NoScrollPhase,
                         false);
        QApplication::sendEvent(&chart, &away);
        QTest::keyClick(&chart, Qt::Key_Enter);
        QCOMPARE(store_->load(screenKey()), std::optional(344.0 / 85.6));
    }

    // At 4 pixels per millimetre, measured right of the labels, which are smaller than
    // any letter: no line larger than 1/10 nor smaller than 10/10; other letters and the
    // help line change no size. The mirror image is the exact reflection of the letters,
    // to within a few grey levels of outlines.
    void keysChangeWhatIsDrawn()
    {
        store_->save(screenKey(), 4.0);
        ChartWindow chart(*store_);
        chart.resize(1200, 900);
        chart.setHintVisible(false);
        chart.show();
        for (Qt::Key key : {Qt::Key_Up, Qt::Key_L, Qt::Key_H, Qt::Key_H, Qt::Key_T})
            QTest::keyClick(&chart, key);
        QVERIFY(std::abs(inkedHeight(rendered(chart), 200) - 174.53) <= 1.0);
        const QImage straight = rendered(chart).mirrored(true, false);
        QTest::keyClick(&chart, Qt::Key_M);
        const QImage mirrored = rendered(chart);
        for (int y = 0; y < mirrored.height(); ++y)
            for (int x = 140; x < mirrored.width() - 140; ++x)
                QVERIFY(std::abs(qGray(mirrored.pixel(x, y)) - qGray(straight.pixel(x, y))) <= 8);
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(&chart, Qt::Key_Down);
        QVERIFY(std::abs(inkedHeight(rendered(chart), 200) - 17.45) <= 1.0);
        QCOMPARE(chart.state().tenths, 10);
        chart.resize(1, 1); // too small for any letter
        rendered(chart);
    }
};

QTEST_MAIN(TestLumetra)
#include "tst_lumetra.moc"
