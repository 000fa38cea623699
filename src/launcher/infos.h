#pragma once

#include <QString>

namespace vorkan {

// The text of the Infos box: name and version, authors, licence, web site and mail
// address, and the subtitle.
QString infosText();

} // namespace vorkan
