#include "app.h"

#include "accessibility.h"
#include "deferrediconstyle.h"
#include "frenchkeys.h"
#include "platform.h"
#include "version.h"

#include <QMessageBox>

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace vorkan {

App::App(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName(u"Vorkan MAC"_s);
    setOrganizationName(u"Vorkan"_s);
    setApplicationVersion(QStringLiteral(VORKAN_VERSION));
    setStyle(new DeferredIconStyle);
    installTranslator(new FrenchKeyNames(this));
    installAccessibility();
}

App::~App()
{
    Tooltip::release();
}

void App::Event_Open()
{
    setQuitOnLastWindowClosed(true);
}

bool App::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        reportFatalError(error.what());
    } catch (...) {
        reportFatalError("unknown exception");
    }
    return false;
}

class App& App()
{
    return *static_cast<class App*>(QCoreApplication::instance());
}

void reportFatalError(const char* what)
{
    static bool reported = false;
    std::fprintf(stderr, "vorkan-mac: unhandled error: %s\n", what);
    if (reported)
        return;
    reported = true;
    QMessageBox::critical(nullptr, u"Vorkan MAC"_s,
                          u"Une erreur inattendue est survenue ; le programme va se fermer."_s +
                              u"\n\n"_s + QString::fromLocal8Bit(what));
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace vorkan
