#pragma once

#include <QString>
#include <QUrl>

// The program's own help: HTML pages built into the program under
// ":/help", shown in Browser One, or copied out for the desktop's browser,
// which cannot read the program's resources.
class HelpPages
{
public:
    // Copies every help page into folder, creating it with mode 0700, and
    // returns the path of the copied index.html; empty if a page could not
    // be written, or if folder is a link or belongs to another user.
    static QString extractTo(const QString& folder);
    // Where the pages go for the desktop's browser: a folder of the user's
    // own cache, never a shared one.
    static QString desktopFolder();
    // The contents page, for the program's own browser.
    static QUrl indexUrl();
};
