#pragma once

#include "app.h"
#include "startup.h"
#include "window.h"

#include <QTest>

namespace vorkan::test {

// Closes every window and lets Qt delete them, so that each test starts from nothing.
void closeAllWindows();

// Empties the patient record as it is at start.
void resetRecord();

// Replaces the text of a field by typing, as a user who selects all and types does.
void typeInto(QWidget& field, const QString& text);

// One notch of the wheel over a control; a positive delta turns it away from the user.
void wheel(QWidget& widget, int angleDeltaY, int angleDeltaX = 0);

// Pins the locale whose decimal mark the texts use for the rest of the test.
void useLocale(QLocale::Language language);

} // namespace vorkan::test

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
