#pragma once

#include <QIcon>

// How the program shows itself to the desktop: the id that names its desktop
// entry (so the desktop matches its windows to the menu entry), and its icon
// on every window, drawn from the same SVG as the installed one.
class DesktopIdentity
{
public:
    static QString appId();
    // The icon in each pixel size built into the program.
    static QIcon icon();
    // Gives the application object the id and the icon; every window made
    // afterwards carries the icon unless it sets one of its own.
    static void apply();
};
