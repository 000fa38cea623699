#include "platform.h"

#include "tipwidget.h"

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

#include <cstdio>

using namespace Qt::StringLiterals;

namespace vorkan {

namespace {

// The program's one tip, made when first needed and kept until the program ends.
TipWidget* programTip = nullptr;
QPointer<QWidget> tipOwner;

} // namespace

namespace Tooltip {

void Show(const QString& text, Int32 x, Int32 y, bool /*persistent*/)
{
    if (!programTip)
        programTip = new TipWidget;
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    tipOwner = QApplication::activeWindow();
    programTip->showAt(lines, QPoint(x, y));
}

void Hide()
{
    if (programTip)
        programTip->hide();
    tipOwner = nullptr;
}

void windowClosing(const QWidget* window)
{
    if (!tipOwner || tipOwner == window)
        Hide();
}

const QLabel* shown()
{
    return programTip && programTip->isVisible() ? programTip : nullptr;
}

void release()
{
    delete programTip;
    programTip = nullptr;
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
