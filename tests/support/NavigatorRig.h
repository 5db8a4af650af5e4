#pragma once

#include "RecordingHost.h"
#include "TestContext.h"
#include "navigator/Navigator.h"

// The Navigator's rules as the program starts them, on a new main database
// in temporary folders, with a recording host in place of the screen.
struct NavigatorRig
{
    TestContext t;
    RecordingHost host{t.state};
    Navigator nav{t.ctx, host, host};
    NavigatorControls& c = nav.controls();
    AddressComposer& composer = nav.composer();

    // Creates and opens the database, loads the window and the catalogue.
    void start();
    // Selects entries as the user does, by their texts.
    void pickNeighborhood(const QString& name);
    void pickSuburb(const QString& name);
    void pickDigits(const QString& prefix, const QString& suffix);
};
