#pragma once

#include "types.h"

#include <QString>
#include <QStringView>

namespace vorkan {

// The number at the start of the text; either decimal mark is read, so that what
// Format and Str wrote always reads back as the number shown. Anything else reads 0.
Double Val(QStringView text);

QString Str(Int32 value);
QString Str(Int64 value);
// Seven significant digits, no exponent, no trailing zeros, no bare decimal mark.
QString Str(Single value);

// Masks "0", "0.0", "0.00": the exact binary value rounded half away from zero.
// A value that is not finite is written as a dash, which Val reads as 0.
QString Format(Double value, QStringView mask);

QString Chr(Int32 code);
Int32 Len(QStringView text);
Int32 CountFields(QStringView text, QStringView separator);
QString NthField(QStringView text, QStringView separator, Int32 index);
// The exact power rounded to nearest, the same on every platform and processor.
Double Pow(Double base, Double exponent);
QString EndOfLine();

// A real number as a whole number, the fraction dropped; out of range values are held
// at the type's bounds and an undefined value gives 0.
Int32 toInt32(Double value);
Int64 toInt64(Double value);

// The mark Format and Str write: a comma under a locale that writes one, else a point.
QChar decimalMark();

} // namespace vorkan
