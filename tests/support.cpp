#include "support.h"

#include <QWheelEvent>

#include <array>

namespace vorkan::test {

Window& open(Win window)
{
    static const std::array<Window& (*)(), 6> openers{
        []() -> Window& { return Window1(); }, []() -> Window& { return imc(); },
        []() -> Window& { return surf(); },    []() -> Window& { return pideal(); },
        []() -> Window& { return norton(); },  []() -> Window& { return cleinsee(); }};
    return openers.at(size_t(window))();
}

void closeAllWindows()
{
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
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

QString shown(const Window& window, const QString& names)
{
    QStringList texts;
    for (const QString& name : names.split(u' ')) {
        const auto* field = dynamic_cast<TextField*>(&window.control<QWidget>(name));
        texts << (field ? field->text() : window.control<StaticText>(name).text());
    }
    return texts.join(u' ');
}

void WindowTest::init()
{
    App().poids = App().taille = 0;
}

void WindowTest::cleanup()
{
    closeAllWindows();
    QLocale::setDefault(QLocale::C);
}

} // namespace vorkan::test
