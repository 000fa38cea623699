#include "platform.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QScreen>
#include <QTimer>
#include <QToolTip>

#include <utility>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

QPointer<QWidget> tipOwner;

// Qt places a tip below and right of the point it is given, by the cursor's size, and
// keeps it on the screen; the tip goes where the caller asked instead.
void moveTipTo(QPoint corner)
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->inherits("QTipLabel") && widget->isVisible())
            widget->move(corner);
}

// A tip stays up until the pointer leaves its control, as long as anyone reads it.
constexpr int tipDisplayMs = 10 * 60 * 1000;

void showTipAt(const QString& lines, QPoint corner)
{
    QToolTip::showText(corner, lines, nullptr, {}, tipDisplayMs);
    moveTipTo(corner);
}

// Qt hides a tip at every click, also at the release of the very click whose press
// asked for it. Until the next press, a release shows the tip again: a tip asked for
// on a release, as by a button, has seen its release already and is left alone. The
// press that asked for the tip may still be passing on to the parent controls, so
// presses count only from the next turn of the event loop.
class ShowAgainOnRelease : public QObject {
public:
    ShowAgainOnRelease(QString lines, QPoint corner) : lines_(std::move(lines)), corner_(corner)
    {
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, [this] { pressesCount_ = true; });
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const bool press = event->type() == QEvent::MouseButtonPress ||
                           event->type() == QEvent::MouseButtonDblClick;
        if (press && pressesCount_) {
            qApp->removeEventFilter(this);
            deleteLater();
        } else if (event->type() == QEvent::MouseButtonRelease) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                showTipAt(lines_, corner_);
                deleteLater();
            });
        }
        return false;
    }

private:
    QString lines_;
    QPoint corner_;
    bool pressesCount_ = false;
};

QPointer<ShowAgainOnRelease> tipAfterRelease;

} // namespace

namespace Tooltip {

void Show(const QString& text, Int32 x, Int32 y, bool /*persistent*/)
{
    delete tipAfterRelease;
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    tipOwner = QApplication::activeWindow();
    showTipAt(lines, QPoint(x, y));
    tipAfterRelease = new ShowAgainOnRelease(lines, QPoint(x, y));
}

void Hide()
{
    delete tipAfterRelease;
    QToolTip::hideText();
    tipOwner = nullptr;
}

void windowClosing(const QWidget* window)
{
    if (!tipOwner || tipOwner == window)
        Hide();
}

} // namespace Tooltip

namespace System {

Int32 MouseX()
{
    return QCursor::pos().x();
}

Int32 MouseY()
{
    return QCursor::pos().y();
}

} // namespace System

namespace Clipboard {

void setText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace Clipboard

void MsgBox(const QString& text, const QString& title)
{
    QMessageBox::information(QApplication::activeWindow(), title, text);
}

QRect availableScreenArea()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

QString shortDate()
{
    return QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
}

namespace {

// Windows runs only files named as programs, and names each companion so.
QString programFileName(const QString& name)
{
#ifdef Q_OS_WIN
    return name + u".exe"_s;
#else
    return name;
#endif
}

} // namespace

bool launchBesideProgram(const QString& name)
{
    const QString path =
        QDir(QCoreApplication::applicationDirPath()).filePath(programFileName(name));
    const QFileInfo file(path);
    bool started = false;
    if (file.isFile() && file.isExecutable())
        started = QProcess::startDetached(file.absoluteFilePath(), {}, file.absolutePath());
    if (!started)
        std::fprintf(stderr, "vorkan-mac: cannot start %s\n", qUtf8Printable(path));
    return started;
}

} // namespace vorkan
