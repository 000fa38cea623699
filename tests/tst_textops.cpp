#include "core/textops.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace vorkan;

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

void useFrench(bool french)
{
    QLocale::setDefault(french ? QLocale(QLocale::French, QLocale::France) : QLocale::c());
}

} // namespace

class TestTextOps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { useFrench(false); }

    // A French row writes a comma where the others write a point.
    void format_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("expected");
        QTest::newRow("half, up") << 55.75 << u"0.0"_s << false << u"55.8"_s;
        QTest::newRow("half, away from the even digit") << 51.25 << u"0.0"_s << false << u"51.3"_s;
        QTest::newRow("whole") << 47.685 << u"0"_s << false << u"48"_s;
        QTest::newRow("binary just below half") << 2.675 << u"0.00"_s << false << u"2.67"_s;
        QTest::newRow("carry into a new digit") << 99.95 << u"0.0"_s << false << u"100.0"_s;
        QTest::newRow("negative half away from zero") << -0.25 << u"0.0"_s << false << u"-0.3"_s;
        QTest::newRow("rounds to zero, no sign") << -0.04 << u"0.0"_s << false << u"0.0"_s;
        QTest::newRow("single widened") << double(24.221453f) << u"0.0"_s << false << u"24.2"_s;
        QTest::newRow("infinite") << infinite << u"0.0"_s << false << u"\u2014"_s;
        QTest::newRow("undefined") << undefined << u"0.00"_s << false << u"\u2014"_s;
        QTest::newRow("French") << -43.125 << u"0.00"_s << true << u"-43,13"_s;
    }
    void format()
    {
        QFETCH(double, value);
        QFETCH(QString, mask);
        QFETCH(bool, french);
        useFrench(french);
        QTEST(Format(value, mask), "expected");
    }

    void strSingle_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<bool>("french");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no tail of the double") << 61.8f << false << u"61.8"_s;
        QTest::newRow("seven digits show the step") << 86.39999f << false << u"86.39999"_s;
        QTest::newRow("no eighth digit") << 11.475f << false << u"11.475"_s;
        QTest::newRow("whole") << 170.0f << false << u"170"_s;
        QTest::newRow("negative zero") << -0.0f << false << u"0"_s;
        QTest::newRow("no exponent") << 123456789.0f << false << u"123456800"_s;
        QTest::newRow("infinite") << float(infinite) << false << u"\u2014"_s;
        QTest::newRow("French") << 61.8f << true << u"61,8"_s;
    }
    void strSingle()
    {
        QFETCH(float, value);
        QFETCH(bool, french);
        useFrench(french);
        QTEST(Str(value), "expected");
    }

    void val_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        QTest::newRow("empty") << u""_s << 0.0;
        QTest::newRow("point") << u"24.2"_s << 24.2;
        QTest::newRow("comma") << u"24,2"_s << 24.2;
        QTest::newRow("thirteen digits") << u"1234567890123"_s << 1234567890123.0;
        QTest::newRow("negative") << u"-43.1"_s << -43.1;
        QTest::newRow("number then letters") << u"12abc"_s << 12.0;
        QTest::newRow("letters") << u"abc"_s << 0.0;
        QTest::newRow("dash of a non-finite value") << u"\u2014"_s << 0.0;
    }
    void val()
    {
        QFETCH(QString, text);
        QTEST(Val(text), "expected");
    }

    void fieldsAndTruncation()
    {
        const QString rows = u"Bonne,Moyenne,Pauvre,Très mauvaise"_s;
        QCOMPARE(CountFields(rows, u","), 4);
        QCOMPARE(NthField(rows, u",", 4), u"Très mauvaise"_s);
        QCOMPARE(NthField(rows, u",", 0) + NthField(rows, u",", 5), QString());
        QCOMPARE(toInt32(170.9), 170);
        QCOMPARE(toInt32(1234567890123.0), std::numeric_limits<Int32>::max());
        QCOMPARE(toInt64(1234567890123.0), Int64(1234567890123));
        QCOMPARE(toInt32(undefined), 0);
    }
};

QTEST_APPLESS_MAIN(TestTextOps)
#include "tst_textops.moc"
