#include "chronowindow.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(u"Vorkan"_s);
    QApplication::setApplicationName(u"pendulo"_s);
    const pendulo::SteadyClock clock;
    pendulo::ChronoWindow window(clock);
    window.show();
    return QApplication::exec();
}
