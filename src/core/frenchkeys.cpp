#include "frenchkeys.h"

#include <cstring>
#include <utility>

using namespace Qt::StringLiterals;

namespace vorkan {

QString FrenchKeyNames::translate(const char* context, const char* sourceText,
                                  const char* /*disambiguation*/, int /*n*/) const
{
    static const std::pair<const char*, QString> names[] = {
        {"Shift", u"Maj"_s},    {"Del", u"Suppr"_s},
        {"Ins", u"Inser"_s},    {"Esc", u"Échap"_s},
        {"Home", u"Début"_s},   {"End", u"Fin"_s},
        {"Space", u"Espace"_s}, {"Return", u"Entrée"_s},
        {"Enter", u"Entrée"_s}, {"Backspace", u"Retour arrière"_s},
    };
    if (std::strcmp(context, "QShortcut") != 0)
        return {};
    for (const auto& [english, french] : names)
        if (std::strcmp(sourceText, english) == 0)
            return french;
    return {};
}

} // namespace vorkan
