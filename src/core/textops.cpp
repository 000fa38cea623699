#include "textops.h"

#include "power.h"

#include <QLocale>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

const QString notFinite = u"\u2014"_s;

// Copies the leading number of the text into plain ASCII with a point for the mark.
std::string leadingNumber(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && (text[i] == u' ' || text[i] == u'\t'))
        ++i;
    std::string out;
    const auto digitAt = [&](qsizetype at) {
        return at < text.size() && text[at].isDigit() && text[at].unicode() < 128;
    };
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        out += static_cast<char>(text[i++].unicode());
    const auto digitsBefore = out.size();
    while (digitAt(i))
        out += static_cast<char>(text[i++].unicode());
    if (i < text.size() && (text[i] == u'.' || text[i] == u',') && digitAt(i + 1)) {
        out += '.';
        ++i;
        while (digitAt(i))
            out += static_cast<char>(text[i++].unicode());
    }
    if (out.size() == digitsBefore)
        return {};
    if (i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
        qsizetype j = i + 1;
        if (j < text.size() && (text[j] == u'-' || text[j] == u'+'))
            ++j;
        if (digitAt(j)) {
            out += 'e';
            for (qsizetype k = i + 1; k < j; ++k)
                out += static_cast<char>(text[k].unicode());
            while (digitAt(j))
                out += static_cast<char>(text[j++].unicode());
        }
    }
    return out;
}

QString withMark(std::string_view ascii)
{
    QString out = QString::fromLatin1(ascii.data(), static_cast<qsizetype>(ascii.size()));
    const QChar mark = decimalMark();
    if (mark != u'.')
        out.replace(u'.', mark);
    return out;
}

int decimalsOf(QStringView mask)
{
    const qsizetype point = mask.indexOf(u'.');
    return point < 0 ? 0 : static_cast<int>(mask.size() - point - 1);
}

// The exact decimal expansion of a finite, non-negative double: every binary
// fraction digit gives one decimal digit, so this many places lose nothing.
std::string exactDigits(Double magnitude, int atLeast)
{
    int exponent = 0;
    std::frexp(magnitude, &exponent);
    const int places = std::max(atLeast, std::min(1074, 53 - exponent));
    std::array<char, 1500> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                      std::chars_format::fixed, places);
    return {buffer.data(), result.ptr};
}

// Adds one unit in the last place of a string of digits and one point.
void carryUp(std::string& digits)
{
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it == '.')
            continue;
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(digits.begin(), '1');
}

} // namespace

namespace {

template<class Int> Int truncated(Double value)
{
    if (std::isnan(value))
        return 0;
    constexpr auto low = static_cast<Double>(std::numeric_limits<Int>::min());
    constexpr auto high = static_cast<Double>(std::numeric_limits<Int>::max());
    if (value <= low)
        return std::numeric_limits<Int>::min();
    if (value >= high)
        return std::numeric_limits<Int>::max();
    return static_cast<Int>(value);
}

} // namespace

Int32 toInt32(Double value)
{
    return truncated<Int32>(value);
}

Int64 toInt64(Double value)
{
    return truncated<Int64>(value);
}

QChar decimalMark()
{
    return QLocale().decimalPoint() == u","_s ? u',' : u'.';
}

Double Val(QStringView text)
{
    const std::string number = leadingNumber(text);
    Double value = 0;
    if (!number.empty())
        std::from_chars(number.data() + (number.front() == '+' ? 1 : 0),
                        number.data() + number.size(), value);
    return value;
}

QString Str(Int32 value)
{
    return QString::number(value);
}

QString Str(Int64 value)
{
    return QString::number(value);
}

QString Str(Single value)
{
    if (!std::isfinite(value))
        return notFinite;
    std::array<char, 32> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                      static_cast<Double>(std::fabs(value)), std::chars_format::scientific, 6);
    const std::string_view sci(buffer.data(), result.ptr);
    std::string digits{sci[0]};
    digits += sci.substr(2, 6);
    const int exponent = std::stoi(std::string(sci.substr(sci.find('e') + 1)));
    std::string plain;
    if (exponent < 0)
        plain = "0." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
    else if (exponent >= 6)
        plain = digits + std::string(static_cast<size_t>(exponent - 6), '0');
    else
        plain = digits.substr(0, static_cast<size_t>(exponent) + 1) + "." +
                digits.substr(static_cast<size_t>(exponent) + 1);
    if (plain.find('.') != std::string::npos) {
        plain.erase(plain.find_last_not_of('0') + 1);
        if (plain.back() == '.')
            plain.pop_back();
    }
    if (std::signbit(value) && plain != "0")
        plain.insert(plain.begin(), '-');
    return withMark(plain);
}

QString Format(Double value, QStringView mask)
{
    if (!std::isfinite(value))
        return notFinite;
    const int decimals = decimalsOf(mask);
    std::string digits = exactDigits(std::fabs(value), decimals + 1);
    const size_t point = digits.find('.');
    const char firstDropped = digits[point + static_cast<size_t>(decimals) + 1];
    digits.resize(point + static_cast<size_t>(decimals) + (decimals > 0 ? 1 : 0));
    if (firstDropped >= '5')
        carryUp(digits);
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    if (std::signbit(value) && !zero)
        digits.insert(digits.begin(), '-');
    return withMark(digits);
}

QString Chr(Int32 code)
{
    const auto character = static_cast<char32_t>(code);
    return QString::fromUcs4(&character, 1);
}

Int32 Len(QStringView text)
{
    return static_cast<Int32>(text.toUcs4().size());
}

Int32 CountFields(QStringView text, QStringView separator)
{
    if (text.isEmpty())
        return 0;
    if (separator.isEmpty())
        return 1;
    return static_cast<Int32>(text.count(separator) + 1);
}

QString NthField(QStringView text, QStringView separator, Int32 index)
{
    if (index < 1 || index > CountFields(text, separator))
        return {};
    if (separator.isEmpty())
        return text.toString();
    return text.toString().section(separator.toString(), index - 1, index - 1);
}

Double Pow(Double base, Double exponent)
{
    return roundedPower(base, exponent);
}

QString EndOfLine()
{
#ifdef Q_OS_WIN
    return u"\r\n"_s;
#else
    return u"\n"_s;
#endif
}

} // namespace vorkan
