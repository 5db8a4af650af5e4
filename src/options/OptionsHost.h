#pragma once

#include "navigator/PageSources.h"

#include <QString>

// What the options dialog asks of the other windows. The program's registry
// implements it; tests use a recording one. A call about a window that is
// not open does nothing.
class OptionsHost
{
public:
    virtual ~OptionsHost() = default;

    // The Navigator reads the catalogue of the region in use again and
    // fills its lists, keeping the Neighborhood shown while it exists.
    virtual void reloadCatalogue() = 0;

    // Browser One shows or hides its next button and the panel behind it
    // as gblnShowNextButton says, then runs its Resize (frmWBOCalls 3).
    virtual void browserOneNextButton() = 0;
    // Browser One's limit timer takes the interval; armed from 1 up.
    virtual void browserOneLimit(int milliseconds) = 0;
    // Browser One takes itself off on-top (frmWBOCalls 1).
    virtual void browserOneOnTop() = 0;

    // Browser Two reads its servers and titles again (frmWBTCalls 1).
    virtual void browserTwoReloadLists() = 0;
    // The name of the page shown in Browser Two, empty while it is closed.
    virtual QString browserTwoLocationName() const = 0;

    // The page source of the service's addresses, as the Tools menu has it.
    virtual PageSource pageSource() const = 0;
    virtual void choosePageSource(PageSource source) = 0;

    // frmAdd, shown modally for a Neighborhood (mode 0) or a Suburb (1);
    // neighborhood is the 1-based position of the Neighborhood a Suburb goes
    // under. True when the window was quit with Quit after an addition.
    virtual bool AddAreas(int neighborhoodTable, int suburbTable, int addMode,
                          int neighborhood) = 0;

    // Lets other events run during a long rewrite.
    virtual void pumpEvents() = 0;
};
