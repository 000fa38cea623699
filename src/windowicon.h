#pragma once

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QIcon>
#include <QTimer>
#include <QWindow>

// Gives every window of the program the icon that the build compiles in under
// :/window-icon, once the first window is on the screen: reading a picture makes Qt look
// through its image plugins, and the first frame does not wait for that. Without
// pictures (Windows, whose windows show the program file's icon) nothing changes.
class WindowIconAfterFirstFrame : public QObject {
public:
    explicit WindowIconAfterFirstFrame(QApplication& app) : QObject(&app)
    {
        app.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* window = qobject_cast<QWindow*>(watched);
        if (event->type() != QEvent::Expose || !window || !window->isExposed())
            return false;
        QCoreApplication::instance()->removeEventFilter(this);
        // Queued: the window draws its first frame in this event, the icon comes after.
        QTimer::singleShot(0, this, [this] {
            if (const QIcon icon = pictures(); !icon.isNull())
                QApplication::setWindowIcon(icon);
            deleteLater();
        });
        return false;
    }

private:
    static QIcon pictures()
    {
        QIcon icon;
        const QDir folder(QStringLiteral(":/window-icon"));
        for (const QString& name : folder.entryList(QDir::Files))
            icon.addFile(folder.filePath(name));
        return icon;
    }
};
