#pragma once

#include <QString>

class Navigator;

// What the start-up asks of the screen: the splash window, the main window,
// and whether another instance of the program runs already.
class StartupUi
{
public:
    virtual ~StartupUi() = default;

    // Shows frmStartUp with the status line and returns once it is shown.
    virtual void showSplash(const QString& status) = 0;
    virtual void unloadSplash() = 0;
    // Makes frmGeoCities and runs its load.
    virtual Navigator& loadMainWindow() = 0;
    virtual void showMainWindow() = 0;
    virtual bool isPrevInstance() = 0;
};
