#include "NetFetchWindows.h"

#include "PageFileList.h"
#include "core/WindowPlace.h"
#include "frmInetget.h"
#include "frmNetPics.h"
#include "frmTreeView.h"

NetFetchWindows::NetFetchWindows(AppContext& ctx, MainWindowCalls& main, Links links)
    : m_ctx(ctx), m_main(main), m_links(std::move(links))
{
}

NetFetchWindows::~NetFetchWindows()
{
    delete m_getter;
    delete m_netPics;
    delete m_tree;
    delete m_closingTree;
}

void NetFetchWindows::showTree()
{
    if (!m_tree) {
        m_tree = new frmTreeView(m_ctx, m_main, m_links.browserWindow, m_links.showBrowserOne);
        QObject::connect(m_tree, &frmTreeView::unloaded, [this] {
            // An unloaded tree is gone, though its object goes only later.
            m_closingTree = m_tree.data();
            m_tree = nullptr;
            if (m_links.treeUnloaded)
                m_links.treeUnloaded();
        });
    }
    m_tree->show();
    m_tree->raise();
}

void NetFetchWindows::unloadTree()
{
    if (m_tree)
        m_tree->close();
}

int NetFetchWindows::treeWidthTwips() const
{
    return m_tree ? pixelsToTwips(m_tree->frameGeometry().width()) : 0;
}

frmTreeView* NetFetchWindows::tree() const
{
    return m_tree;
}

void NetFetchWindows::showNetPics()
{
    if (!m_netPics)
        m_netPics = new frmNetPics(m_ctx, m_main, m_links.communicatWithNetPic,
                                   [this] { return treeWidthTwips(); });
    m_netPics->show();
    m_netPics->raise();
    m_netPics->activateWindow();
}

frmNetPics* NetFetchWindows::netPics() const
{
    return m_netPics;
}

frmInetget* NetFetchWindows::getter()
{
    if (!m_getter)
        m_getter = new frmInetget(m_ctx, m_main, m_links.profile ? m_links.profile() : nullptr,
                                  [this] { return treeWidthTwips(); });
    return m_getter;
}

void NetFetchWindows::frmInetgetCalls(int code, const QString& url)
{
    frmInetget* window = getter();
    window->Load();
    window->rules().frmInetgetCalls(static_cast<InetgetCall>(code), url);
}

QString NetFetchWindows::InvisibleInetUsage(const QString& url)
{
    return getter()->rules().InvisibleInetUsage(url);
}

void NetFetchWindows::unloadGetter()
{
    if (m_getter && m_getter->isLoaded())
        m_getter->close();
}

void NetFetchWindows::GetFileListMenu(int menuCode)
{
    PageFileList::Links links;
    links.browser = m_links.browserControl;
    links.InvisibleInetUsage = [this](const QString& url) { return InvisibleInetUsage(url); };
    links.copyToClipboard = [this](const QString& text) { getter()->copyToClipboard(text); };
    PageFileList(m_ctx, links).GetFileListMenu(menuCode);
}
