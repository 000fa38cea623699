#include "digitmask.h"

#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

bool allDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isSeparator(QChar c)
{
    return c.isSpace() || c == u'.';
}

} // namespace

DigitMask::DigitMask(int digits, bool grouped, QObject* parent)
    : QValidator(parent), digits_(digits), grouped_(grouped)
{}

QString DigitMask::withoutSeparators(const QString& text) const
{
    if (!grouped_)
        return text;
    QString digits = text;
    digits.removeIf(isSeparator);
    return digits;
}

// A grouped number loses its separators, then keeps as many digits as the field holds.
QValidator::State DigitMask::validate(QString& input, int& pos) const
{
    if (!grouped_)
        return allDigits(input) && input.size() <= digits_ ? Acceptable : Invalid;
    const QString digits = withoutSeparators(input);
    if (!allDigits(digits))
        return Invalid;
    input = digits.left(digits_);
    pos = std::min(static_cast<int>(input.size()), pos);
    return Acceptable;
}

QString DigitMask::refusal(const QLineEdit& field, const QString& inserted) const
{
    const QString added = withoutSeparators(inserted);
    if (!allDigits(added))
        return u"Nombres entiers uniquement\n(chiffres 0 à 9, sans virgule)"_s;
    const qsizetype kept = field.text().size() - field.selectedText().size();
    if (kept + added.size() > digits_)
        return u"%1 chiffres au plus"_s.arg(digits_);
    return {};
}

} // namespace vorkan
