// Pow over every argument the windows pass, bit for bit: against MPFR's correctly rounded
// powers, and Mosteller's square roots checked exactly. Runs under Wine too, without MPFR.
#include "textops.h"

#include <QTest>

#include <bit>
#include <cmath>
#include <cstdint>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace vorkan;

namespace {

struct PowerRow {
    double base;
    double exponent;
    double expected;
};

// Written by powreference at build time. Kept from moc, whose list of what it read would
// make the table wait for the moc step that the table's own build step waits for.
constexpr PowerRow reference[] = {
#ifndef Q_MOC_RUN
#include "powreference.inc"
#endif
};

QString hex(double value)
{
    return QString::asprintf("%a", value);
}

// The count of failures, with the first few for the message.
QByteArray report(const QStringList& failures)
{
    return (QString::number(failures.size()) + u" differ:\n"_s + failures.mid(0, 5).join(u'\n'))
        .toUtf8();
}

__extension__ using Unsigned128 = unsigned __int128;

// r is sqrt(x) rounded to nearest iff x lies strictly between the squares of the midpoints
// to r's neighbours. In units of ulp(r) / 4, r is 4R and the midpoints are 4R + 2 and 4R - 2
// (4R - 1 below a power of two); x is then an integer of at most 110 bits.
bool isRoundedSquareRoot(double x, double r)
{
    if (x == 0 || r <= 0)
        return x == 0 && r == 0;
    int rExponent = 0;
    int xExponent = 0;
    const auto R = static_cast<std::uint64_t>(std::ldexp(std::frexp(r, &rExponent), 53));
    const auto X = static_cast<std::uint64_t>(std::ldexp(std::frexp(x, &xExponent), 53));
    const int shift = xExponent - 2 * rExponent + 57;
    if (shift < 0 || shift > 74)
        return false;
    const Unsigned128 scaledX = Unsigned128{X} << shift;
    const Unsigned128 above = 4 * Unsigned128{R} + 2;
    const Unsigned128 below = 4 * Unsigned128{R} - (R == std::uint64_t{1} << 52 ? 1 : 2);
    return below * below < scaledX && scaledX < above * above;
}

} // namespace

class TestPow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void matchesMpfr();
    void mostellerRootsRoundToNearest();
};

void TestPow::matchesMpfr()
{
    QCOMPARE(std::size(reference), std::size_t{7000});
    QStringList mismatches;
    for (const auto& [base, exponent, expected] : reference) {
        const Double got = Pow(base, exponent);
        if (std::bit_cast<std::uint64_t>(got) != std::bit_cast<std::uint64_t>(expected))
            mismatches.append(u"Pow(%1, %2) = %3, expected %4"_s.arg(hex(base), hex(exponent),
                                                                     hex(got), hex(expected)));
    }
    QVERIFY2(mismatches.isEmpty(), report(mismatches).constData());
}

// Mosteller's base: H x W, a product of Singles, over 3600.
void TestPow::mostellerRootsRoundToNearest()
{
    QStringList mismatches;
    for (int height = 0; height < 1000; ++height) {
        for (int weight = 0; weight < 1000; ++weight) {
            const Single product = static_cast<Single>(height) * static_cast<Single>(weight);
            const Double base = product / 3600.0;
            const Double root = Pow(base, 0.5);
            if (!isRoundedSquareRoot(base, root))
                mismatches.append(u"H %1, W %2: Pow(%3, 0.5) = %4"_s.arg(height).arg(weight).arg(
                    hex(base), hex(root)));
        }
    }
    QVERIFY2(mismatches.isEmpty(), report(mismatches).constData());
}

QTEST_APPLESS_MAIN(TestPow)
#include "tst_pow.moc"
