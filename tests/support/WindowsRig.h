#pragma once

// The program's windows on a new database with the main window's catalogue
// loaded, for the window tests; they link the widgets and the support
// library does not, so this stands in the header.

#include "TestContext.h"
#include "app/WindowRegistry.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <functional>

struct WindowsRig
{
    TestContext t;
    WindowRegistry windows{t.ctx};
    frmGeoCities* main = nullptr;

    // beforeLoad runs on the new database, before the main window is made.
    explicit WindowsRig(const std::function<void(AppContext&)>& beforeLoad = {})
    {
        t.createAndOpenDatabase();
        if (beforeLoad)
            beforeLoad(t.ctx);
        main = windows.main();
        main->navigator().LoadCatalogue();
    }

    // A top-level window of the kind, the one on show if shownOnly.
    template <typename W> static W* topLevel(bool shownOnly = false)
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<W*>(top); found && (!shownOnly || found->isVisible()))
                return found;
        return nullptr;
    }
};
