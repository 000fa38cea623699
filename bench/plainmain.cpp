// The main window written directly against Qt, as a careful Qt developer would write it
// without the program's own framework: the same menu, buttons, tips, status bar, date
// and placement. The start-up benchmark measures the framework against it.
#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// The status bar: white, framed in black, the date on the left of a divider.
class StatusBar : public QWidget {
public:
    explicit StatusBar(QWidget* parent) : QWidget(parent)
    {
        setGeometry(0, 173, 445, 29);
        auto* date =
            new QLabel(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat), this);
        date->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        date->setGeometry(6, 6, 88, 16);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setPen(Qt::black);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.fillRect(QRect(109, 0, 1, height()), palette().color(QPalette::Dark));
    }
};

struct Button {
    const char16_t* text;
    QRect geometry;
    const char16_t* tip;
};

// In the order that Tab follows.
constexpr Button buttons[] = {
    {u"Echelle de Norton", {160, 78, 126, 31}, u"Estimation du risque d'escarre"},
    {u"Clé insee", {160, 35, 127, 31}, nullptr},
    {u"IMC", {13, 35, 127, 31}, nullptr},
    {u"Echelle Visuelle", {307, 35, 127, 31}, u"Echelle visuelle 3m"},
    {u"Surface corporelle", {13, 121, 127, 31}, nullptr},
    {u"Poids idéal", {13, 78, 127, 31}, nullptr},
    {u"Chrono", {307, 78, 127, 31}, u"Chrono"},
};

class MainWindow : public QWidget {
public:
    MainWindow()
    {
        setWindowTitle(u"Vorkan MAC"_s);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSizeConstraint(QLayout::SetFixedSize);
        column->setMenuBar(menuBar());
        auto* client = new QWidget(this);
        client->setFixedSize(445, 202);
        column->addWidget(client);
        new StatusBar(client);
        for (const Button& entry : buttons) {
            auto* button = new QPushButton(QString::fromUtf16(entry.text), client);
            button->setGeometry(entry.geometry);
            button->setFocusPolicy(Qt::TabFocus);
            if (entry.tip)
                button->setToolTip(QString::fromUtf16(entry.tip));
        }
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        move(area.center() - QPoint(445 / 2, 202 / 2));
    }

private:
    QMenuBar* menuBar()
    {
        auto* bar = new QMenuBar(this);
        QMenu* options = bar->addMenu(u"&Options"_s);
        options->addAction(u"&Infos"_s, this, [this] {
            QMessageBox::information(this, u"Infos"_s, u"Vorkan MAC 1.0"_s);
        });
        QAction* quit = options->addAction(u"Quitter"_s, qApp, &QApplication::closeAllWindows);
        quit->setShortcut(QKeySequence::Quit);
        quit->setMenuRole(QAction::QuitRole);
        return bar;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    MainWindow window;
    window.show();
    return app.exec();
}
