#pragma once

#include <QRect>
#include <QString>

// The other windows of the program, as the Navigator's rules reach them.
enum class ProgramWindow
{
    BrowserOne, // frmWBOne
    BrowserTwo, // frmWBTwo
    Cache,      // frmCache
    Export,     // frmExport
    GeoFtp,     // frmGeoFtp
    Options,    // frmOpt
    Script,     // frmVBScript
    NetPics,    // frmNetPics
    Inetget,    // frmInetget
    About,      // frmAbout
    GeoTree     // frmTreeView
};

// What the Navigator's rules ask of the screen and the other windows. The
// real window implements it; tests use a recording one.
class NavigatorHost
{
public:
    virtual ~NavigatorHost() = default;

    // Places in twips: the available screen and this window's frame.
    virtual QRect screenTwips() const = 0;
    virtual QRect windowTwips() const = 0;
    virtual void moveWindowTwips(int left, int top) = 0;
    virtual void setWindowOnTop(bool onTop) = 0;

    // Browser One.
    virtual void ShowBrowserOne() = 0;
    virtual void browserNavigate(const QString& url) = 0;
    virtual void browserStop() = 0;
    virtual void browserGoBack() = 0;
    virtual void toggleBrowserOneOnTop() = 0; // its own on-top call

    // Other windows; false when that window is not part of this build.
    virtual bool showWindow(ProgramWindow window) = 0;
    virtual void unloadWindow(ProgramWindow window) = 0;

    // Shows frmWBONote, the note of a link to save, and waits for it.
    virtual void showNoteDialog() = 0;

    // Closes the window and ends the program.
    virtual void endProgram() = 0;
};
