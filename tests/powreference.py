"""Writes the table that tst_pow checks Pow against: every whole base 0 to 999 with each
exponent the surface and body-mass formulas use, then the squares of H / 100, each with
MPFR's correctly rounded power. Runs on the build machine, also for a cross build.

powreference.py OUTPUT"""

import sys

import gmpy2

gmpy2.set_context(gmpy2.ieee(64))  # a double's precision and exponent range


def row(base, exponent):
    power = float(gmpy2.mpfr(base) ** gmpy2.mpfr(exponent))
    return f"{{{base.hex()}, {exponent.hex()}, {power.hex()}}},\n"


with open(sys.argv[1], "w") as out:
    for exponent in (0.725, 0.425, 0.42246, 0.51456, 0.5, 2.0):
        out.writelines(row(float(base), exponent) for base in range(1000))
    out.writelines(row(height / 100, 2.0) for height in range(1000))
