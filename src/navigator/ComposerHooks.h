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
    // The captured house number to step to from house in the direction
    // (+1 or -1) while the walk keeps to the archive's captures; 0 to step
    // to the neighbouring number.
    virtual int CapturedStep(const QString& house, int direction) = 0;
};
