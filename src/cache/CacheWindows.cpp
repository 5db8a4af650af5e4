#include "CacheWindows.h"

#include "core/AppContext.h"
#include "frmCache.h"
#include "frmWait.h"

CacheWindows::CacheWindows(AppContext& ctx, Links links) : m_ctx(ctx), m_links(std::move(links)) {}

CacheWindows::~CacheWindows()
{
    delete m_cache;
    for (const QPointer<frmCache>& closed : std::as_const(m_closed))
        delete closed;
}

// An unloaded window may still have its run or its wait for the folder
// dialog on the stack, pumping events: it goes only once that has ended.
void CacheWindows::dropClosed()
{
    for (QPointer<frmCache>& closed : m_closed) {
        if (closed && !closed->inUse())
            delete closed;
    }
    m_closed.removeAll(nullptr);
}

void CacheWindows::show()
{
    if (m_ctx.state.gblnCacheLoaded && m_cache)
        return;
    dropClosed();
    if (m_links.enableMenus)
        m_links.enableMenus(false);
    m_wait = std::make_unique<frmWait>(m_ctx.state);
    m_wait->Load();
    frmCache::Links links;
    links.unloadWait = [this] { unloadWait(); };
    links.openViewer = m_links.openViewer;
    links.showPages = m_links.showPages;
    links.releaseOnTop = m_links.releaseOnTop;
    links.treeWidth = m_links.treeWidth;
    links.actions = m_links.actions;
    links.profileCache = m_links.profileCache ? m_links.profileCache() : QString();
    links.unloaded = [this] {
        if (m_links.enableMenus)
            m_links.enableMenus(true);
        m_closed.append(m_cache);
        m_cache = nullptr;
    };
    m_cache = new frmCache(m_ctx, links);
    unloadWait();
    m_cache->FakeSub();
}

frmCache* CacheWindows::window() const
{
    return m_cache;
}

void CacheWindows::unload()
{
    if (m_cache)
        m_cache->Unload();
}

void CacheWindows::unloadWait()
{
    m_wait.reset();
}
