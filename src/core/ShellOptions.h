#pragma once

#include <QString>
#include <QStringList>

// The two options every program of this desktop answers from a shell,
// "--help" and "--version". They are answered before the application object
// is made, so they work without a screen. Like "/?", each counts only when
// it stands alone on the command line; anything else goes to the entry.
class ShellOptions
{
public:
    // The text to print for the arguments behind the program's name, or a
    // null string when they are not one of the two options.
    static QString answer(const QStringList& arguments);

    static QString helpText();
    static QString versionText();
};
