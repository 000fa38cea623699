#include "calibrationstore.h"
#include "chartwindow.h"
#include "windowicon.h"

#include <QApplication>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"Vorkan"_s);
    QApplication::setApplicationName(u"lumetra"_s);
    installWindowIcon();
    QSettings settings;
    lumetra::CalibrationStore store(settings);
    lumetra::ChartWindow chart(store);
    // Covering the screen also without a window manager to honour the full-screen state.
    if (const QScreen* screen = chart.screen())
        chart.setGeometry(screen->geometry());
    chart.showFullScreen();
    return QApplication::exec();
}
