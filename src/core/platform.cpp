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
#include <QToolTip>

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

} // namespace

namespace Tooltip {

void Show(const QString& text, Int32 x, Int32 y, bool /*persistent*/)
{
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    tipOwner = QApplication::activeWindow();
    QToolTip::showText(QPoint(x, y), lines, nullptr, {}, tipDisplayMs);
    moveTipTo(QPoint(x, y));
}

void Hide()
{
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

bool launchBesideProgram(const QString& name)
{
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(name);
    const QFileInfo file(path);
    bool started = false;
    if (file.isFile() && file.isExecutable())
        started = QProcess::startDetached(file.absoluteFilePath(), {}, file.absolutePath());
    if (!started)
        std::fprintf(stderr, "vorkan-mac: cannot start %s\n", qUtf8Printable(path));
    return started;
}

} // namespace vorkan
