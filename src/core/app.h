#pragma once

#include "accessor.h"
#include "types.h"

#include <QApplication>

namespace vorkan {

// The application object; it holds the patient record that the calculators share.
class App : public QApplication {
public:
    App(int& argc, char** argv);
    ~App() override;

    // Weight in kilograms and height in centimetres as last calculated; 0 until then.
    Single poids = 0;
    Single taille = 0;
    // Kept in the record although no window uses them yet.
    Int32 age = 0;
    bool sexe = true;

    // The menus of every window that has none of its own.
    const class MenuBar* MenuBar = nullptr;

    // The program ends with its last window.
    void Event_Open();

    bool notify(QObject* receiver, QEvent* event) override;
};

// The one application object, from anywhere.
VORKAN_ACCESSOR(App)

// Shows an error that escaped a handler, once, and ends the program with a failure.
void reportFatalError(const char* what);

} // namespace vorkan
