#pragma once

// What the address composer asks of the window around it: the walks, the
// saved-link view and the opening of the composed address.
class ComposerHooks
{
public:
    virtual ~ComposerHooks() = default;
    virtual void StopAutoModes() = 0;
    virtual void LeaveSavedView() = 0;
    virtual void OpenSite() = 0; // the Click of cmdOpenSite
    virtual bool RandNavRunning() const = 0;
    virtual void RandNavStep() = 0;
    virtual void GoBack() = 0; // stop the browser's load and go back a page
};
