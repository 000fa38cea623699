#include "infos.h"

#include "textops.h"
#include "version.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace vorkan {

QString infosText()
{
    const QStringList lines{
        u"Vorkan MAC "_s + QStringLiteral(VORKAN_VERSION),
        u"© 2026 Les auteurs de Vorkan MAC"_s,
        QString(),
        u"Logiciel libre, distribué sous licence MIT"_s,
        QString(),
        u"Web : "_s + QStringLiteral(VORKAN_WEB_ADDRESS),
        u"Mail : "_s + QStringLiteral(VORKAN_MAIL_ADDRESS),
        QString(),
        u"Utilitaires médicaux"_s,
    };
    return lines.join(EndOfLine());
}

} // namespace vorkan
