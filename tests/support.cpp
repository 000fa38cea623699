#include "support.h"

#include "calculators/cleinsee.h"
#include "calculators/imc.h"
#include "calculators/norton.h"
#include "calculators/pideal.h"
#include "calculators/surf.h"
#include "core/controls.h"
#include "launcher/window1.h"

#include <QLocale>
#include <QWheelEvent>

#include <stdexcept>

namespace vorkan::test {

Window& open(Win window)
{
    switch (window) {
    case Win::main:
        return Window1();
    case Win::imc:
        return imc();
    case Win::surf:
        return surf();
    case Win::pideal:
        return pideal();
    case Win::norton:
        return norton();
    case Win::cleinsee:
        return cleinsee();
    }
    throw std::invalid_argument("no such window");
}

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

QString shown(const Window& window, const QString& names)
{
    QStringList texts;
    for (const QString& name : names.split(u' ')) {
        if (auto* field = dynamic_cast<TextField*>(&window.control<QWidget>(name)))
            texts << field->text();
        else
            texts << window.control<StaticText>(name).text();
    }
    return texts.join(u' ');
}

} // namespace vorkan::test
