#include "textops.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vorkan;

// What the calculators write, where no window shows it: the windows' results check the
// common cases (a half rounded up, a whole number, an infinite value as a dash, seven
// digits) and what is read back (an empty field, a decimal comma, a dash, thirteen
// digits), and the random sessions the decimal mark of each locale on every figure.
class TestTextOps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The exact binary value is rounded half away from zero: 2.675, just below its
    // half in binary, goes down to 2.67.
    void written_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("expected");
        QTest::newRow("binary just below half") << Format(2.675, u"0.00") << u"2.67"_s;
        QTest::newRow("carry into a new digit") << Format(99.95, u"0.0") << u"100.0"_s;
        QTest::newRow("negative half") << Format(-0.25, u"0.0") << u"-0.3"_s;
        QTest::newRow("rounds to zero, no sign") << Format(-0.04, u"0.0") << u"0.0"_s;
        QTest::newRow("undefined") << Format(qQNaN(), u"0.00") << u"\u2014"_s;
        QTest::newRow("negative zero") << Str(-0.0f) << u"0"_s;
        QTest::newRow("no exponent") << Str(123456789.0f) << u"123456800"_s;
        QTest::newRow("infinite single") << Str(float(qInf())) << u"\u2014"_s;
    }
    void written()
    {
        QFETCH(QString, written);
        QTEST(written, "expected");
    }
};

QTEST_APPLESS_MAIN(TestTextOps)
#include "tst_textops.moc"
