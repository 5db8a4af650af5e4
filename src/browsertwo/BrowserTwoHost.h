#pragma once

#include "navigator/MainWindowCalls.h"

#include <QRect>
#include <QString>

// What Browser Two's rules ask of their window and of the windows around it.
class BrowserTwoHost
{
public:
    virtual ~BrowserTwoHost() = default;
    // Brings a stored place (texts in twips) on the screen and applies it.
    virtual void placeWindow(const QString& left, const QString& top, const QString& height,
                             const QString& width) = 0;
    virtual QRect screenTwips() const = 0;
    virtual QRect windowTwips() const = 0;
    // Stacks the rows shown, the address bar and the page from the top.
    virtual void stackRows() = 0;
    // Closes the program's browser windows from position keep on (pop-ups).
    virtual void closeWindowsAfter(int keep) = 0;
    // Unloads frmWBTLinks and frmWBTNote, where they are open.
    virtual void unloadLinkWindows() = 0;
    virtual void mainCall(GeoCitiesCall code) = 0;
    // The main window and Browser One leave always-on-top before a dialog.
    virtual void clearTopmost() = 0;
};
