#pragma once

#include <QRect>

// What the Navigator's rules ask of their own window. The real window
// implements it; tests use a recording one.
class NavigatorHost
{
public:
    virtual ~NavigatorHost() = default;

    // Places in twips: the available screen and this window's frame.
    virtual QRect screenTwips() const = 0;
    virtual QRect windowTwips() const = 0;
    virtual void moveWindowTwips(int left, int top) = 0;
    virtual void setWindowOnTop(bool onTop) = 0;

    // Shows frmWBONote, the note of a link to save, and waits for it.
    virtual void showNoteDialog() = 0;

    // Closes the window and ends the program.
    virtual void endProgram() = 0;
};
