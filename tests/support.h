// What every window test needs: the program's windows and controls, and a user's
// gestures on them. Tests wait with QTest::qWaitFor, not the QTRY_ macros: Qt 6.8's
// narrow their timeout to int on the test's own line, which -Wconversion rejects.
#pragma once

#include "app.h"
#include "cleinsee.h"
#include "controls.h"
#include "imc.h"
#include "norton.h"
#include "pideal.h"
#include "platform.h"
#include "startup.h"
#include "surf.h"
#include "textops.h"
#include "updownarrows.h"
#include "window1.h"

#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vorkan;

namespace vorkan::test {

// The windows a table row can name.
enum class Win { main, imc, surf, pideal, norton, cleinsee };

// That window's one instance, built if it is not open.
Window& open(Win window);

// Closes every window and lets Qt delete them, so that each test starts from nothing.
void closeAllWindows();

// Replaces the text of a field by typing, as a user who selects all and types does.
void typeInto(QWidget& field, const QString& text);

// One notch of the wheel over a control; a positive delta turns it away from the user.
void wheel(QWidget& widget, int angleDeltaY, int angleDeltaX = 0);

// The texts of the fields and labels named, separated by blanks; a name that is no
// field or label throws.
QString shown(const Window& window, const QString& names);

// A test of the program's windows: each test starts with no window open, an empty
// patient record and the C locale.
class WindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace vorkan::test

using namespace vorkan::test;

Q_DECLARE_METATYPE(vorkan::test::Win)

// A test executable whose application object is the program's own.
#define VORKAN_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        class vorkan::App app(argc, argv);                                                         \
        vorkan::newAppInstance(app);                                                               \
        app.setQuitOnLastWindowClosed(false);                                                      \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
