// Pow over every argument the windows pass, bit for bit, against MPFR's correctly rounded
// powers. Runs under Wine too, without MPFR.
#include "textops.h"

#include <QTest>

#include <bit>
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

// Written by powreference.py at build time. Kept from moc, whose list of what it read would
// make the table wait for the moc step that the table's own build step waits for.
constexpr PowerRow reference[] = {
#ifndef Q_MOC_RUN
#include "powreference.inc"
#endif
};

} // namespace

class TestPow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void matchesMpfr()
    {
        QCOMPARE(std::size(reference), std::size_t{7000});
        QStringList mismatches;
        for (const auto& [base, exponent, expected] : reference) {
            const Double got = Pow(base, exponent);
            if (std::bit_cast<std::uint64_t>(got) != std::bit_cast<std::uint64_t>(expected))
                mismatches.append(QString::asprintf("Pow(%a, %a) = %a, expected %a", base, exponent,
                                                    double(got), expected));
        }
        // The count, with the first few.
        QVERIFY2(mismatches.isEmpty(),
                 qPrintable(QString::number(mismatches.size()) + u" differ:\n"_s +
                            mismatches.mid(0, 5).join(u'\n')));
    }
};

QTEST_APPLESS_MAIN(TestPow)
#include "tst_pow.moc"
