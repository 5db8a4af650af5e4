#pragma once

#include <functional>

class QWidget;

// Runs the program: makes the application object, the shared state and the
// services, runs the entry and then the window events. shown, when given,
// is called once the main window is on the screen.
int RunVorlan(int argc, char* argv[], std::function<void(QWidget*)> shown = {});
