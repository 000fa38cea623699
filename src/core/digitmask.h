#pragma once

#include <QValidator>

class QLineEdit;

namespace vorkan {

// What a field with a mask of n "#" takes: up to n digits and nothing else. A field
// whose number is often written in groups takes a pasted "1 85 05 78 006 084" as its
// digits, up to n of them.
class DigitMask : public QValidator {
public:
    DigitMask(int digits, bool grouped, QObject* parent);

    State validate(QString& input, int& pos) const override;

    // Why the field refuses that text typed or pasted at its cursor, in words for the
    // user; empty when the field takes it.
    QString refusal(const QLineEdit& field, const QString& inserted) const;

private:
    QString withoutSeparators(const QString& text) const;

    int digits_;
    bool grouped_;
};

} // namespace vorkan
