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
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace lumetra;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
// A card rectangle of 342.4 pixels: exactly 4 pixels per millimetre.
constexpr double fourPerMmCard = 342.4;

QString primaryKey()
{
    return CalibrationStore::keyFor(*QGuiApplication::primaryScreen());
}

QImage rendered(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    widget.render(&image);
    return image;
}

// Rows between the first and last that hold ink right of the label column.
int inkedRows(const QImage& image, int fromX)
{
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = fromX; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128) {
                first = first < 0 ? y : first;
                last = y;
                break;
            }
    return first < 0 ? 0 : last - first + 1;
}

} // namespace

class TestLumetra : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void letterHeights_data();
    void letterHeights();
    void densityGuess_data();
    void densityGuess();
    void densityBounds_data();
    void densityBounds();
    void storeKeepsOnlyBelievableValues();

    void chartLines_data();
    void chartLines();
    void lettersPerLine_data();
    void lettersPerLine();

    void opensOnCalibrationUntilMeasured();
    void calibratesWithKeysWheelAndMouse();
    void chartKeys_data();
    void chartKeys();
    void drawnLettersHaveTheirHeight_data();
    void drawnLettersHaveTheirHeight();
    void mirrorIsTheExactReflection();
    void anyKeyWheelOrSizeIsHarmless();

private:
    std::unique_ptr<ChartWindow> measuredChart(double pixelsPerMm);

    QTemporaryDir dir_;
    std::unique_ptr<QSettings> settings_;
    std::unique_ptr<CalibrationStore> store_;
};

void TestLumetra::init()
{
    QFile::remove(dir_.filePath(u"lumetra.ini"_s));
    settings_ = std::make_unique<QSettings>(dir_.filePath(u"lumetra.ini"_s), QSettings::IniFormat);
    store_ = std::make_unique<CalibrationStore>(*settings_);
}

std::unique_ptr<ChartWindow> TestLumetra::measuredChart(double pixelsPerMm)
{
    store_->save(primaryKey(), pixelsPerMm);
    auto chart = std::make_unique<ChartWindow>(*store_);
    chart->resize(1200, 900);
    chart->setHintVisible(false);
    return chart;
}

void TestLumetra::letterHeights_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<double>("mm");
    QTest::addColumn<double>("px"); // from the 4-pixel-per-millimetre card
    const double table[][2] = {{43.63, 174.53}, {21.82, 87.27}, {14.54, 58.18}, {10.91, 43.63},
                               {8.73, 34.91},   {7.27, 29.09},  {6.23, 24.93},  {5.45, 21.82},
                               {4.85, 19.39},   {4.36, 17.45}};
    for (int tenths = 1; tenths <= 10; ++tenths)
        QTest::addRow("%d/10", tenths) << tenths << table[tenths - 1][0] << table[tenths - 1][1];
}

void TestLumetra::letterHeights()
{
    QFETCH(int, tenths);
    QFETCH(double, mm);
    QFETCH(double, px);
    QVERIFY(std::abs(letterHeightMm(tenths) - mm) < 0.005);
    const double density = pixelsPerMmFromCardWidth(fourPerMmCard);
    QVERIFY(std::abs(letterHeightPx(tenths, density) - px) < 0.005);
    // The card drawn back at that density has the size of a real card.
    QCOMPARE(cardSizePx(density), QSizeF(342.4, 215.92));
}

void TestLumetra::densityGuess_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("pixelsPerMm");
    QTest::newRow("96 dpi") << 96.0 << 1.0 << 3.7795;
    QTest::newRow("scaled twice, in device pixels") << 96.0 << 2.0 << 7.5591;
    QTest::newRow("not a number") << notANumber << 1.0 << 3.7795;
}

void TestLumetra::densityGuess()
{
    QFETCH(double, dpi);
    QFETCH(double, ratio);
    QFETCH(double, pixelsPerMm);
    QVERIFY(std::abs(guessPixelsPerMm(dpi, ratio) - pixelsPerMm) < 0.0001);
}

void TestLumetra::densityBounds_data()
{
    QTest::addColumn<double>("wanted");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("kept");
    QTest::newRow("believable") << 3.78 << 1280.0 << 3.78;
    QTest::newRow("card wider than the screen") << 20.0 << 1284.0 << 15.0;
    QTest::newRow("not a number") << notANumber << 1280.0 << minPixelsPerMm;
    QTest::newRow("window narrower than any card") << 5.0 << 40.0 << minPixelsPerMm;
}

void TestLumetra::densityBounds()
{
    QFETCH(double, wanted);
    QFETCH(double, width);
    QFETCH(double, kept);
    QCOMPARE(clampPixelsPerMm(wanted, width), kept);
}

void TestLumetra::storeKeepsOnlyBelievableValues()
{
    QVERIFY(!store_->load(u"A/B-1920x1080"_s));
    store_->save(u"A/B-1920x1080"_s, 3.6);
    QCOMPARE(CalibrationStore(*settings_).load(u"A/B-1920x1080"_s), std::optional(3.6));
    QVERIFY(!store_->load(u"A/B-1280x1024"_s));
    for (const QVariant& bad : {QVariant(u"abc"_s), QVariant(-3.6), QVariant(0.0), QVariant(1e9),
                                QVariant(std::numeric_limits<double>::infinity())}) {
        settings_->setValue(u"etalonnage/C-1x1"_s, bad);
        QVERIFY2(!store_->load(u"C-1x1"_s), qPrintable(bad.toString()));
    }
}

void TestLumetra::chartLines_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<bool>("whole");
    QTest::addColumn<double>("height");
    QTest::addColumn<QList<int>>("shown");
    QTest::newRow("from the largest down") << 1 << true << 600.0 << QList{1, 2, 3, 4};
    QTest::newRow("smaller ones first") << 3 << true << 600.0 << QList{3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("then larger ones") << 10 << true << 300.0 << QList{5, 6, 7, 8, 9, 10};
    QTest::newRow("one line") << 4 << false << 1000.0 << QList{4};
    QTest::newRow("too low for any") << 1 << true << 100.0 << QList{1};
}

void TestLumetra::chartLines()
{
    QFETCH(int, tenths);
    QFETCH(bool, whole);
    QFETCH(double, height);
    QFETCH(QList<int>, shown);
    const QSizeF area(1600, height);
    const auto lines = layoutChart({tenths, whole, false}, area, 4.0, 100);
    QList<int> seen;
    double bottom = 0;
    for (const ChartLine& line : lines) {
        seen << line.tenths;
        const QRectF first = line.cells.first();
        const QRectF last = line.cells.last();
        if (shown.size() > 1)
            QVERIFY2(first.top() >= bottom, "lines overlap or leave the area");
        QCOMPARE(first.left() + last.right(), area.width()); // centred
        QVERIFY(first.left() >= 100);
        bottom = first.bottom();
    }
    QCOMPARE(seen, shown);
    QVERIFY(bottom <= height || shown.size() == 1);
}

void TestLumetra::lettersPerLine_data()
{
    QTest::addColumn<double>("letter");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("count");
    QTest::newRow("five letters, four gaps") << 100.0 << 900.0 << 5;
    QTest::newRow("wider than the screen") << 100.0 << 50.0 << 1;
    QTest::newRow("not a number") << notANumber << 100.0 << 1;
}

void TestLumetra::lettersPerLine()
{
    QFETCH(double, letter);
    QFETCH(double, width);
    QFETCH(int, count);
    QCOMPARE(lettersThatFit(letter, width), count);
}

void TestLumetra::opensOnCalibrationUntilMeasured()
{
    ChartWindow first(*store_);
    QVERIFY(first.calibrating());
    first.resize(1200, 900);
    QTest::keyClick(&first, Qt::Key_Return);
    QVERIFY(!first.calibrating());
    QCOMPARE(store_->load(primaryKey()), std::optional(first.pixelsPerMm()));
    const ChartWindow second(*store_);
    QVERIFY(!second.calibrating());
    QCOMPARE(second.pixelsPerMm(), first.pixelsPerMm());
}

void TestLumetra::calibratesWithKeysWheelAndMouse()
{
    const auto chart = measuredChart(3.0);
    QTest::keyClick(chart.get(), Qt::Key_E);
    QVERIFY(chart->calibrating());
    QCOMPARE(chart->cardWidthPx(), 256.8);
    QTest::keyClick(chart.get(), Qt::Key_Right);
    QTest::keyClick(chart.get(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(chart.get(), Qt::Key_Minus);
    QVERIFY(std::abs(chart->cardWidthPx() - 266.8) < 1e-9);
    QTest::keyClick(chart.get(), Qt::Key_Escape);
    QCOMPARE(chart->pixelsPerMm(), 3.0);
    QCOMPARE(store_->load(primaryKey()), std::optional(3.0));

    QTest::keyClick(chart.get(), Qt::Key_E);
    // Dragging an edge of the centred card: the pointer is half a card from the middle.
    QTest::mousePress(chart.get(), Qt::LeftButton, {}, QPoint(600 + 171, 450));
    QCOMPARE(chart->cardWidthPx(), 342.0);
    QWheelEvent away({600, 450}, {600, 450}, {}, {0, 240}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(chart.get(), &away);
    QCOMPARE(chart->cardWidthPx(), 344.0);
    QTest::keyClick(chart.get(), Qt::Key_Enter);
    QCOMPARE(chart->pixelsPerMm(), 344.0 / 85.6);
    QCOMPARE(store_->load(primaryKey()), std::optional(344.0 / 85.6));
}

void TestLumetra::chartKeys_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("tenths");
    QTest::addColumn<bool>("whole");
    QTest::addColumn<bool>("mirrored");
    QTest::newRow("nothing larger than 1/10") << QList<int>{Qt::Key_Up} << 1 << true << false;
    QTest::newRow("down and up") << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up} << 2 << true
                                 << false;
    QList<int> twelveDown(12, Qt::Key_Down);
    QTest::newRow("nothing smaller than 10/10") << twelveDown << 10 << true << false;
    QTest::newRow("one line") << QList<int>{Qt::Key_T} << 1 << false << false;
    QTest::newRow("mirror") << QList<int>{Qt::Key_M} << 1 << true << true;
}

void TestLumetra::chartKeys()
{
    QFETCH(QList<int>, keys);
    const auto chart = measuredChart(4.0);
    chart->show();
    for (int key : keys)
        QTest::keyClick(chart.get(), Qt::Key(key));
    QTEST(chart->state().tenths, "tenths");
    QTEST(chart->state().wholeChart, "whole");
    QTEST(chart->state().mirrored, "mirrored");
    QVERIFY(chart->isVisible());
    QTest::keyClick(chart.get(), Qt::Key_Escape);
    QVERIFY(!chart->isVisible());
}

void TestLumetra::drawnLettersHaveTheirHeight_data()
{
    QTest::addColumn<int>("tenths");
    QTest::addColumn<double>("px"); // at 4 pixels per millimetre
    QTest::newRow("1/10") << 1 << 174.53;
    QTest::newRow("10/10") << 10 << 17.45;
}

void TestLumetra::drawnLettersHaveTheirHeight()
{
    QFETCH(int, tenths);
    QFETCH(double, px);
    const auto chart = measuredChart(4.0);
    QTest::keyClick(chart.get(), Qt::Key_T);
    for (int i = 1; i < tenths; ++i)
        QTest::keyClick(chart.get(), Qt::Key_Down);
    // Right of the labels, which are smaller than any letter.
    const int rows = inkedRows(rendered(*chart), 200);
    QVERIFY2(std::abs(rows - px) <= 1.0, qPrintable(QString::number(rows)));
}

void TestLumetra::mirrorIsTheExactReflection()
{
    const auto chart = measuredChart(4.0);
    const QImage straight = rendered(*chart).mirrored(true, false);
    QTest::keyClick(chart.get(), Qt::Key_M);
    const QImage mirrored = rendered(*chart);
    QCOMPARE(chart->pixelsPerMm(), 4.0);
    // The letters are outlines and reflect to within a few grey levels. The labels are text,
    // which is rasterised a little differently reversed: they are only looked for.
    const int labels = 140;
    int worst = 0;
    for (int y = 0; y < mirrored.height(); ++y)
        for (int x = labels; x < mirrored.width() - labels; ++x)
            worst = std::max(worst,
                             std::abs(qGray(mirrored.pixel(x, y)) - qGray(straight.pixel(x, y))));
    QVERIFY2(worst <= 8, qPrintable(QString::number(worst)));
    QCOMPARE(inkedRows(mirrored.copy(0, 0, labels, mirrored.height()), 0), 0);
    QVERIFY(inkedRows(mirrored, mirrored.width() - labels) > 0);
}

void TestLumetra::anyKeyWheelOrSizeIsHarmless()
{
    const auto chart = measuredChart(4.0);
    chart->show();
    QList<int> keys{Qt::Key_F1, Qt::Key_Tab, Qt::Key_Backspace, Qt::Key_PageUp, Qt::Key_Home};
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        if (key < 'a' || key > 'z') // letters come as capitals
            keys << key;
    for (const QSize& size : {QSize(1, 1), QSize(300, 40), QSize(1200, 900)}) {
        chart->resize(size);
        for (bool calibrating : {false, true}) {
            if (calibrating != chart->calibrating())
                QTest::keyClick(chart.get(), Qt::Key_E);
            for (int key : keys)
                if (key != Qt::Key_E)
                    QTest::keyClick(chart.get(), Qt::Key(key), Qt::ShiftModifier);
            for (QPoint delta : {QPoint(0, 120), QPoint(0, -360), QPoint(120, 0), QPoint(0, 30)}) {
                QWheelEvent wheel({5, 5}, {5, 5}, {}, delta, Qt::NoButton, {}, Qt::NoScrollPhase,
                                  false);
                QApplication::sendEvent(chart.get(), &wheel);
            }
            QTest::mouseClick(chart.get(), Qt::LeftButton, {}, QPoint(0, 0));
            rendered(*chart);
            QVERIFY(chart->pixelsPerMm() >= minPixelsPerMm);
        }
        QTest::keyClick(chart.get(), Qt::Key_Escape);
    }
}

QTEST_MAIN(TestLumetra)
#include "tst_lumetra.moc"
