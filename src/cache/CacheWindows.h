#pragma once

#include "CacheActions.h"

#include <QPointer>
#include <QStringList>
#include <functional>
#include <memory>

struct AppContext;
class frmCache;
class frmWait;

// The cache manager's windows as the program wires them in: frmCache with
// frmWait over its first listing. The program's registry makes this and
// reaches the windows through it.
class CacheWindows
{
public:
    // What the cache manager needs of the other windows.
    struct Links
    {
        // Switches the "IECache Manager" entries of the navigator and of
        // Browser One on or off.
        std::function<void(bool)> enableMenus;
        std::function<void()> releaseOnTop;
        std::function<void(const QString&)> openViewer;
        std::function<void(const QStringList&)> showPages;
        std::function<QString()> profileCache;
        std::function<int()> treeWidth;
        CacheActionsFactory actions;
    };

    CacheWindows(AppContext& ctx, Links links);
    ~CacheWindows();

    // The opening of the window: nothing while it is open; otherwise the
    // menu entries go off and frmWait covers the first listing.
    void show();
    void unload();
    frmCache* window() const;

private:
    void unloadWait();
    // Deletes the unloaded windows that no run or wait holds any longer.
    void dropClosed();

    AppContext& m_ctx;
    Links m_links;
    QPointer<frmCache> m_cache;
    QList<QPointer<frmCache>> m_closed; // unloaded, not yet deleted
    std::unique_ptr<frmWait> m_wait;
};
