#include "textops.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vorkan;

// What the calculators write and read back. The decimal mark of each locale is checked
// on every figure of the random sessions.
class TestTextOps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The exact binary value is rounded half away from zero: 51.25 up to 51.3, but
    // 2.675, just below it in binary, down to 2.67.
    void written_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("expected");
        QTest::newRow("half, away from the even digit") << Format(51.25, u"0.0") << u"51.3"_s;
        QTest::newRow("whole") << Format(47.685, u"0") << u"48"_s;
        QTest::newRow("binary just below half") << Format(2.675, u"0.00") << u"2.67"_s;
        QTest::newRow("carry into a new digit") << Format(99.95, u"0.0") << u"100.0"_s;
        QTest::newRow("negative half") << Format(-0.25, u"0.0") << u"-0.3"_s;
        QTest::newRow("rounds to zero, no sign") << Format(-0.04, u"0.0") << u"0.0"_s;
        QTest::newRow("infinite") << Format(qInf(), u"0.0") << u"\u2014"_s;
        QTest::newRow("undefined") << Format(qQNaN(), u"0.00") << u"\u2014"_s;
        QTest::newRow("no eighth digit") << Str(11.475f) << u"11.475"_s;
        QTest::newRow("negative zero") << Str(-0.0f) << u"0"_s;
        QTest::newRow("no exponent") << Str(123456789.0f) << u"123456800"_s;
        QTest::newRow("infinite single") << Str(float(qInf())) << u"\u2014"_s;
    }
    void written()
    {
        QFETCH(QString, written);
        QTEST(written, "expected");
    }

    void read_data()
    {
        QTest::addColumn<double>("read");
        QTest::addColumn<double>("expected");
        QTest::newRow("empty") << Val(u"") << 0.0;
        QTest::newRow("comma") << Val(u"24,2") << 24.2;
        QTest::newRow("thirteen digits") << Val(u"1234567890123") << 1234567890123.0;
        QTest::newRow("dash of a non-finite value") << Val(u"\u2014") << 0.0;
    }
    void read()
    {
        QFETCH(double, read);
        QTEST(read, "expected");
    }
};

QTEST_APPLESS_MAIN(TestTextOps)
#include "tst_textops.moc"
