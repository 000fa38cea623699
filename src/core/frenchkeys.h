#pragma once

#include <QTranslator>

namespace vorkan {

// Writes the names of keys in French wherever Qt shows a shortcut, as in the menus
// ("Ctrl+Maj+Z", "Suppr"), the program's language whatever the system's.
class FrenchKeyNames : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText,
                      const char* disambiguation = nullptr, int n = -1) const override;
    bool isEmpty() const override { return false; }
};

} // namespace vorkan
