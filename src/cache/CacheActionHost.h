#pragma once

#include "CacheProgressOverflow.h"

#include <QString>
#include <QStringList>
#include <QVector>

// What a running cache action asks of the cache window. Every call comes
// on the window's thread.
class CacheActionHost
{
public:
    virtual ~CacheActionHost() = default;

    // Items in lstCache, and the selected ones' rows in list order.
    virtual int listCount() const = 0;
    virtual QVector<int> selectedRows() const = 0;
    virtual void SaveCacheSettings() = 0;
    // Clears all eighteen optAction (no action chosen).
    virtual void clearActionOptions() = 0;
    // Disables (false) or enables (true) cmdCache(0), chkNoSubs, the folder
    // picker, txtExt, txtOutDir, cmdNewOutDir, every optAction and optExt.
    // Enabling leaves the text actions to the extension rule.
    virtual void setControlsEnabled(bool enabled) = 0;
    virtual void setTitle(const QString& title) = 0;
    // frmProgress: Increm(percent) loads it if needed; a percent above 100
    // throws CacheProgressOverflow, a failure of the counted kind.
    virtual void Increm(int percent) = 0;
    virtual void ResetCount() = 0;
    virtual void unloadProgress() = 0;
    virtual void unloadWait() = 0;
    // Lets the window repaint and take Close (which sets StopRequested).
    virtual void pumpEvents() = 0;
    virtual void ListCacheFiles() = 0;
    // The end of "Brws Pics ": hands the pages to Browser One for paging
    // (CommunicatWithNetPic), opens page 0 and unloads the cache window.
    virtual void showGraphicsPages(const QStringList& pages) = 0;
};
