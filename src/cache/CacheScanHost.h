#pragma once

#include <QString>

// What the cache window's rules ask of the window around them.
class CacheScanHost
{
public:
    virtual ~CacheScanHost() = default;

    virtual void unloadWait() = 0;
    // Lets the window repaint and take the user's clicks; with wait set it
    // first waits for the next event.
    virtual void pumpEvents(bool wait) = 0;
    // frmOutPutDir.Fake: shows the folder dialog modally, starting at path;
    // it answers through PassVariable.
    virtual void showOutPutDir(const QString& path) = 0;
    // The file getter's viewer on a local file (frmInetgetCalls code 1).
    virtual void openViewer(const QString& path) = 0;
    // RunCacheAction, when this program has the actions.
    virtual bool hasActions() const = 0;
    virtual void runAction() = 0;
    // Unloads the window (the Click of "Close" while idle).
    virtual void unloadWindow() = 0;
};
