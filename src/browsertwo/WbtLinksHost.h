#pragma once

#include "browserone/LinksPanelHost.h"

// What Browser Two's saved links ask of their two windows: frmWBTLinks,
// placed and shown as a links panel, and the note dialog frmWBTNote.
class WbtLinksHost : public LinksPanelHost
{
public:
    // Shows frmWBTNote, modeless, over the other windows.
    virtual void showNote() = 0;
    virtual void closeNote() = 0;
};
