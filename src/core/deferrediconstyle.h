#pragma once

#include <QProxyStyle>

namespace vorkan {

// The style the application runs with, whichever the desktop or the user chose, but for
// one thing: the icon of a menu bar's overflow button, shown only when the menus do not
// fit, is read when it is first drawn. Reading it at start makes Qt load every image
// plugin to find the one that reads it, a few percent of the program's start.
class DeferredIconStyle : public QProxyStyle {
public:
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace vorkan
