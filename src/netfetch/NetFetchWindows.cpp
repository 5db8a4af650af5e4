#include "NetFetchWindows.h"

#include "core/WindowPlace.h"
#include "frmTreeView.h"

NetFetchWindows::NetFetchWindows(AppContext& ctx, MainWindowCalls& main, Links links)
    : m_ctx(ctx), m_main(main), m_links(std::move(links))
{
}

NetFetchWindows::~NetFetchWindows()
{
    delete m_tree;
}

void NetFetchWindows::showTree()
{
    if (!m_tree) {
        m_tree = new frmTreeView(m_ctx, m_main, m_links.browserWindow, m_links.showBrowserOne);
        QObject::connect(m_tree, &frmTreeView::unloaded, [this] {
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
