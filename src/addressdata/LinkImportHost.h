#pragma once

#include <QString>

// What the import of old links asks of the screen: the wait notice while a
// database is read in, and the saved links of the main window, which show
// what was added at once.
class LinkImportHost
{
public:
    virtual ~LinkImportHost() = default;

    // Shows frmWait with text in its label, and returns once it is shown.
    virtual void showWait(const QString& text) = 0;
    virtual void unloadWait() = 0;
    // Reloads the saved links of the region on show from the main database.
    virtual void refreshSavedLinks() = 0;
};
