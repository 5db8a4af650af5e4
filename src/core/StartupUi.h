#pragma once

#include <QString>

// What the entry procedure asks of the main window once it is made.
class MainWindowEntry
{
public:
    virtual ~MainWindowEntry() = default;
    // The region's catalogue into the arrays and lists, then the saved
    // links and the main settings. Throws on a database or settings fault.
    virtual void LoadCatalogue() = 0;
    // The window's Unload: saves the settings, closes the other windows.
    virtual void Unload() = 0;
    virtual void NavigateSomeWhereElse(const QString& url) = 0;
};

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
    virtual MainWindowEntry& loadMainWindow() = 0;
    virtual void showMainWindow() = 0;
    virtual bool isPrevInstance() = 0;
};
