#include "support.h"

#include <QApplication>
#include <QLocale>
#include <QWheelEvent>

namespace vorkan::test {

void closeAllWindows()
{
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void resetRecord()
{
    App().poids = 0;
    App().taille = 0;
    App().age = 0;
    App().sexe = true;
}

void typeInto(QWidget& field, const QString& text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

void wheel(QWidget& widget, int angleDeltaY, int angleDeltaX)
{
    const QPointF at(widget.width() / 2.0, widget.height() / 2.0);
    QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(angleDeltaX, angleDeltaY),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void useLocale(QLocale::Language language)
{
    QLocale::setDefault(
        QLocale(language, language == QLocale::French ? QLocale::France : QLocale::AnyTerritory));
}

} // namespace vorkan::test
