#pragma once

#include "core/ProgramWindow.h"

#include <QString>

// The other windows of the program as the main window reaches them: Browser
// One, and every window behind a menu entry. The program's registry of
// windows implements it.
class NavigatorWindows
{
public:
    virtual ~NavigatorWindows() = default;

    // Browser One.
    virtual void ShowBrowserOne() = 0;
    virtual void browserNavigate(const QString& url) = 0;
    virtual void browserStop() = 0;
    virtual void browserGoBack() = 0;
    virtual void toggleBrowserOneOnTop() = 0; // its own on-top call
    // The title of the page in Browser One, empty while it is not open.
    virtual QString browserTitle() const = 0;

    // Whether this build has the window.
    virtual bool hasWindow(ProgramWindow window) const = 0;
    // Shows a window, made on first use; false when this build lacks it.
    virtual bool showWindow(ProgramWindow window) = 0;
    virtual void unloadWindow(ProgramWindow window) = 0;
};
