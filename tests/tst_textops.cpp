#include "textops.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace vorkan;

class TestTextOps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void format_data();
    void format();
    void formatUsesTheLocalesMark();
    void strSingle_data();
    void strSingle();
    void val_data();
    void val();
    void fields_data();
    void fields();
    void truncation_data();
    void truncation();
};

void TestTextOps::format_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("expected");
    const double inf = std::numeric_limits<double>::infinity();

    QTest::newRow("exact half, odd") << 55.75 << u"0.0"_s << u"55.8"_s;
    QTest::newRow("exact half, even") << 51.25 << u"0.0"_s << u"51.3"_s;
    QTest::newRow("whole, rounds up") << 47.685 << u"0"_s << u"48"_s;
    QTest::newRow("two decimals") << 1.8097 << u"0.00"_s << u"1.81"_s;
    QTest::newRow("binary just below half") << 2.675 << u"0.00"_s << u"2.67"_s;
    QTest::newRow("binary just above half") << 0.05 << u"0.0"_s << u"0.1"_s;
    QTest::newRow("carry into a new digit") << 99.95 << u"0.0"_s << u"100.0"_s;
    QTest::newRow("carry, whole") << 999.5 << u"0"_s << u"1000"_s;
    QTest::newRow("negative") << -525.0 << u"0.0"_s << u"-525.0"_s;
    QTest::newRow("negative half away from zero") << -0.25 << u"0.0"_s << u"-0.3"_s;
    QTest::newRow("negative rounding to zero") << -0.04 << u"0.0"_s << u"0.0"_s;
    QTest::newRow("negative zero") << -0.0 << u"0"_s << u"0"_s;
    QTest::newRow("single widened") << double(24.221453f) << u"0.0"_s << u"24.2"_s;
    QTest::newRow("infinite") << inf << u"0.0"_s << u"\u2014"_s;
    QTest::newRow("undefined") << std::numeric_limits<double>::quiet_NaN() << u"0.00"_s
                               << u"\u2014"_s;
}

void TestTextOps::format()
{
    QFETCH(double, value);
    QFETCH(QString, mask);
    QFETCH(QString, expected);
    QCOMPARE(Format(value, mask), expected);
}

void TestTextOps::formatUsesTheLocalesMark()
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    QCOMPARE(Format(24.2, u"0.0"), u"24,2"_s);
    QCOMPARE(Format(-43.125, u"0.00"), u"-43,13"_s);
    QCOMPARE(Format(48.2, u"0"), u"48"_s);
    QCOMPARE(Str(61.8f), u"61,8"_s);
    QCOMPARE(Str(170.0f), u"170"_s);
}

void TestTextOps::strSingle_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no tail of the double") << 61.8f << u"61.8"_s;
    QTest::newRow("seven digits show the step") << 86.39999f << u"86.39999"_s;
    QTest::newRow("no eighth digit") << 11.475f << u"11.475"_s;
    QTest::newRow("whole") << 170.0f << u"170"_s;
    QTest::newRow("zero") << 0.0f << u"0"_s;
    QTest::newRow("negative zero") << -0.0f << u"0"_s;
    QTest::newRow("negative") << -2.5f << u"-2.5"_s;
    QTest::newRow("no exponent, large") << 1e7f << u"10000000"_s;
    QTest::newRow("no exponent, rounded to seven digits") << 123456789.0f << u"123456800"_s;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << u"\u2014"_s;
}

void TestTextOps::strSingle()
{
    QFETCH(float, value);
    QFETCH(QString, expected);
    QCOMPARE(Str(value), expected);
}

void TestTextOps::val_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    QTest::newRow("empty") << u""_s << 0.0;
    QTest::newRow("whole") << u"170"_s << 170.0;
    QTest::newRow("point") << u"24.2"_s << 24.2;
    QTest::newRow("comma") << u"24,2"_s << 24.2;
    QTest::newRow("same double as the constant") << u"34.9"_s << 34.9;
    QTest::newRow("thirteen digits") << u"1234567890123"_s << 1234567890123.0;
    QTest::newRow("negative") << u"-43.1"_s << -43.1;
    QTest::newRow("number then letters") << u"12abc"_s << 12.0;
    QTest::newRow("letters") << u"abc"_s << 0.0;
    QTest::newRow("dash of a non-finite value") << u"\u2014"_s << 0.0;
    QTest::newRow("exponent") << u"1e3"_s << 1000.0;
    QTest::newRow("mark first") << u",5"_s << 0.5;
    QTest::newRow("non-ASCII digits are not read") << u"\u0663"_s << 0.0;
}

void TestTextOps::val()
{
    QFETCH(QString, text);
    QFETCH(double, expected);
    QCOMPARE(Val(text), expected);
}

void TestTextOps::fields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("field");
    const QString rows = u"Bonne,Moyenne,Pauvre,Très mauvaise"_s;
    QTest::newRow("first") << rows << 4 << 1 << u"Bonne"_s;
    QTest::newRow("last, with an accent") << rows << 4 << 4 << u"Très mauvaise"_s;
    QTest::newRow("index zero") << rows << 4 << 0 << u""_s;
    QTest::newRow("index past the end") << rows << 4 << 5 << u""_s;
    QTest::newRow("empty text") << u""_s << 0 << 1 << u""_s;
    QTest::newRow("empty fields") << u",,"_s << 3 << 2 << u""_s;
}

void TestTextOps::fields()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(QString, field);
    QCOMPARE(CountFields(text, u","), count);
    QCOMPARE(NthField(text, u",", index), field);
}

void TestTextOps::truncation_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("int32");
    QTest::addColumn<qint64>("int64");
    QTest::newRow("fraction dropped") << 170.9 << qint64(170) << qint64(170);
    QTest::newRow("thirteen digits")
        << 1234567890123.0 << qint64(2147483647) << qint64(1234567890123);
    QTest::newRow("undefined") << std::numeric_limits<double>::quiet_NaN() << qint64(0)
                               << qint64(0);
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << qint64(-2147483648LL)
                              << std::numeric_limits<qint64>::min();
}

void TestTextOps::truncation()
{
    QFETCH(double, value);
    QFETCH(qint64, int32);
    QFETCH(qint64, int64);
    QCOMPARE(qint64(toInt32(value)), int32);
    QCOMPARE(toInt64(value), int64);
}

QTEST_APPLESS_MAIN(TestTextOps)
#include "tst_textops.moc"
