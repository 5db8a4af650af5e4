#pragma once

#include "navigator/Wander.h"

#include <QRect>
#include <QString>

// What Browser One's rules ask of its window.
class BrowserOneHost
{
public:
    virtual ~BrowserOneHost() = default;
    // Brings a stored place (texts in twips) on the screen and applies it.
    virtual void placeWindow(const QString& left, const QString& top, const QString& height,
                             const QString& width) = 0;
    virtual QRect screenTwips() const = 0;
    virtual QRect windowTwips() const = 0;
    virtual void setWindowOnTop(bool onTop) = 0;
    // The address bar's and the window's colours of a walk.
    virtual void showWalkColours(Wander::Mode mode) = 0;
    // The list of the program's browser windows, for closing pop-ups.
    virtual void closeWindowsAfter(int keep) = 0;
    // Unloads the saved-links panel, if it is open.
    virtual void unloadLinksPanel() = 0;
};
