// The floor of any Qt Widgets program on this machine: one window, one label.
#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QLabel label(u"Vorkan MAC"_s);
    label.setWindowTitle(u"Minimal"_s);
    label.resize(445, 202);
    label.show();
    return app.exec();
}
