#pragma once

#include <QString>
#include <QUrl>

// The program's own help: HTML pages built into the program under
// ":/help", shown in Browser One, or copied out for the desktop's browser,
// which cannot read the program's resources.
class HelpPages
{
public:
    // Copies every help page into folder, creating it, and returns the path
    // of the copied index.html; empty if a page could not be written.
    static QString extractTo(const QString& folder);
    // The contents page, for the program's own browser.
    static QUrl indexUrl();
};
