#include "chronowindow.h"
#include "windowicon.h"

#include <QApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"Vorkan"_s);
    QApplication::setApplicationName(u"pendulo"_s);
    installWindowIcon();
    const pendulo::SteadyClock clock;
    pendulo::ChronoWindow window(clock);
    // Centred on the main screen's free area, as the main program's windows open.
    window.adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        window.move(screen->availableGeometry().center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
