#include "GeoTree.h"

#include "core/AppContext.h"
#include "core/SettingsKeys.h"
#include "navigator/MainWindowCalls.h"

namespace {
// The gap between the tree and a browser beside it, in twips.
constexpr int Gap = 5;

int rightEdge(const QRect& r)
{
    return r.x() + r.width();
}
} // namespace

GeoTree::GeoTree(AppContext& ctx, MainWindowCalls& main, GeoTreeHost& host)
    : m_ctx(ctx), m_main(main), m_host(host)
{
}

void GeoTree::Load()
{
    SharedState& st = m_ctx.state;
    m_blocksFile = st.gblnJapan ? m_ctx.GetSetting(Sect::AdvOpt, Key::JapanTBFN, "residence.html")
                                : m_ctx.GetSetting(Sect::AdvOpt, Key::UsaTBFN, "blocks.html");
    st.gblnTreeShown = true;
    makeRoomFor(GeoTreeHost::BrowserTwo);
    makeRoomFor(GeoTreeHost::BrowserOne);
    addNodes();
}

void GeoTree::Unload()
{
    m_ctx.state.gblnTreeShown = false;
    m_nodes.clear();
}

void GeoTree::makeRoomFor(GeoTreeHost::Browser which)
{
    if (!m_host.browserOpen(which))
        return;
    const QRect screen = m_host.screenTwips();
    const int treeRight = rightEdge(m_host.treeTwips());
    QRect place = m_host.browserTwips(which);
    if (m_host.browserMaximised(which)) {
        const int left = treeRight + Gap;
        place = QRect(left, 0, screen.width() - left, screen.height() - 450);
    } else {
        place.moveLeft(qMax(place.x(), treeRight));
        place.setWidth(qMin(place.width(), screen.width() - place.x()));
    }
    m_host.placeBrowser(which, place);
}

void GeoTree::addNodes()
{
    const CatalogueData& cat = m_ctx.state.catalogue;
    const bool japan = m_ctx.state.gblnJapan;
    const QString root =
        japan ? QStringLiteral("GeoCities Japan") : QStringLiteral("GeoCities Usa");
    m_nodes = {Node{}, Node{root, root, 0}};
    const int count = cat.gintNeighborhoodCount;
    for (int n = 1; n <= count; ++n)
        m_nodes.append(Node{QStringLiteral("Avenue%1").arg(n), cat.name(n), 1});
    if (japan)
        return;
    for (int n = 1; n <= count; ++n) {
        const int suburbs = qMin<int>(cat.gaintSuburbCount.value(n), CatalogueData::Columns - 1);
        // m counts the Suburbs added; the first empty cell ends the row.
        for (int m = 1; m <= suburbs && !cat.suburb(n, m).isEmpty(); ++m)
            m_nodes.append(
                Node{QStringLiteral("Avenue%1Suburb%2").arg(n).arg(m), cat.suburb(n, m), n + 1});
    }
}

void GeoTree::NodeClick(int index, const QString& text)
{
    m_main.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
    const CatalogueData& cat = m_ctx.state.catalogue;
    const QString site = m_ctx.state.gstrSiteLabel;
    const int count = cat.gintNeighborhoodCount;
    if (index == 1) {
        browserStep();
        m_main.NavigateSomeWhereElse(site);
    } else if (index >= 2 && index <= count + 1) {
        browserStep();
        m_main.NavigateSomeWhereElse(site + cat.name(index - 1) + QLatin1Char('/') + m_blocksFile);
    } else if (index > count + 1) {
        suburbClick(index, text);
    }
}

void GeoTree::browserStep()
{
    if (m_host.browserOpen(GeoTreeHost::BrowserOne))
        FitBrowserBesideTree();
    else
        ShowBrowserBesideTree();
}

// The Neighborhood is found by the Suburb counts, the Suburb by its name.
void GeoTree::suburbClick(int index, const QString& text)
{
    const CatalogueData& cat = m_ctx.state.catalogue;
    const int count = cat.gintNeighborhoodCount;
    int rest = index - (count + 1);
    int n = 1;
    while (n <= count && rest > cat.gaintSuburbCount.value(n)) {
        rest -= cat.gaintSuburbCount.value(n);
        ++n;
    }
    if (n > count)
        return;
    QString suburb;
    for (int m = 1; m < CatalogueData::Columns && suburb.isEmpty(); ++m) {
        if (cat.suburb(n, m) == text)
            suburb = cat.suburb(n, m);
    }
    if (!m_host.browserOpen(GeoTreeHost::BrowserOne))
        ShowBrowserBesideTree();
    m_main.NavigateSomeWhereElse(m_ctx.state.gstrSiteLabel + cat.name(n) + QLatin1Char('/') +
                                 suburb + QLatin1Char('/') + m_blocksFile);
}

QRect GeoTree::besideTree(const QRect& place, int right) const
{
    const int left = rightEdge(m_host.treeTwips()) + Gap;
    return QRect(left, place.y(), right - left, place.height());
}

void GeoTree::ShowBrowserBesideTree()
{
    m_host.showBrowserOne();
    m_ctx.state.gblnWBOneByTree = true;
    const QRect place = m_host.browserTwips(GeoTreeHost::BrowserOne);
    if (place.x() < rightEdge(m_host.treeTwips()) + Gap)
        m_host.placeBrowser(GeoTreeHost::BrowserOne, besideTree(place, rightEdge(place)));
}

void GeoTree::FitBrowserBesideTree()
{
    const QRect place = m_host.browserTwips(GeoTreeHost::BrowserOne);
    if (m_host.treeMinimised() || place.x() >= rightEdge(m_host.treeTwips()) + Gap)
        return;
    const int right = qMin(rightEdge(place), m_host.screenTwips().width());
    m_host.placeBrowser(GeoTreeHost::BrowserOne, besideTree(place, right));
}
