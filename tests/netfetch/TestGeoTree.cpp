#include "NavigatorRig.h"
#include "core/SettingsKeys.h"
#include "netfetch/GeoTree.h"

#include <QtTest>
#include <map>

namespace {
// A screen of 1024 by 768 pixels with the tree at its left edge, and
// browser windows kept as places in memory.
struct ScreenHost : GeoTreeHost
{
    QRect screen{0, 0, 15360, 11520};
    QRect tree{0, 0, 3300, 11070};
    bool minimised = false;
    std::map<Browser, QRect> open;
    std::map<Browser, bool> maximised;
    QRect shownAt{6000, 600, 7500, 6000}; // where Browser One opens
    int shows = 0;

    QRect screenTwips() const override { return screen; }
    QRect treeTwips() const override { return tree; }
    bool treeMinimised() const override { return minimised; }
    bool browserOpen(Browser which) const override { return open.count(which) > 0; }
    QRect browserTwips(Browser which) const override { return open.at(which); }
    bool browserMaximised(Browser which) const override
    {
        return maximised.count(which) && maximised.at(which);
    }
    void placeBrowser(Browser which, const QRect& place) override
    {
        open[which] = place;
        maximised[which] = false;
    }
    void showBrowserOne() override
    {
        ++shows;
        if (!open.count(BrowserOne))
            open[BrowserOne] = shownAt;
    }
};

struct TreeRig : NavigatorRig
{
    ScreenHost screen;
    GeoTree tree{t.ctx, nav, screen};
    const CatalogueData& cat = t.state.catalogue;

    TreeRig()
    {
        start();
        host.calls.clear();
    }
    int count() const { return cat.gintNeighborhoodCount; }
    // The index of the node of that key.
    int indexOf(const QString& key) const
    {
        for (int i = 1; i < tree.nodes().size(); ++i)
            if (tree.nodes()[i].key == key)
                return i;
        return -1;
    }
    void click(const QString& key)
    {
        tree.NodeClick(indexOf(key), tree.nodes()[indexOf(key)].text);
    }
    QString lastAddress() const { return host.navigated().value(host.navigated().size() - 1); }
};
} // namespace

class TestGeoTree : public QObject
{
    Q_OBJECT

private slots:
    void usaNodesInTheirOrder()
    {
        TreeRig r;
        r.tree.Load();
        const auto& nodes = r.tree.nodes();
        const int n = r.count();
        QVERIFY(n > 2);
        QCOMPARE(nodes[1].key, QString("GeoCities Usa"));
        QCOMPARE(nodes[1].text, QString("GeoCities Usa"));
        QCOMPARE(nodes[2].key, QString("Avenue1"));
        QCOMPARE(nodes[2].text, r.cat.name(1));
        QCOMPARE(nodes[n + 1].key, QString("Avenue%1").arg(n));
        QCOMPARE(nodes[n + 1].parent, 1);
        // The Suburbs follow all Neighborhoods, Neighborhood by Neighborhood.
        QCOMPARE(nodes[n + 2].key, QString("Avenue1Suburb1"));
        QCOMPARE(nodes[n + 2].text, r.cat.suburb(1, 1));
        QCOMPARE(nodes[n + 2].parent, 2);
        int total = 1 + n;
        for (int i = 1; i <= n; ++i)
            total += r.cat.gaintSuburbCount[i];
        QCOMPARE(nodes.size() - 1, total);
        const int second = n + 2 + r.cat.gaintSuburbCount[1];
        QCOMPARE(nodes[second].key, QString("Avenue2Suburb1"));
        QCOMPARE(nodes[second].parent, 3);
        QVERIFY(r.t.state.gblnTreeShown);
        r.tree.Unload();
        QVERIFY(!r.t.state.gblnTreeShown);
    }

    void japanHasNoSuburbsAndItsOwnBlocksFile()
    {
        TreeRig r;
        r.nav.JapanClick();
        r.tree.Load();
        QCOMPARE(r.tree.nodes()[1].key, QString("GeoCities Japan"));
        QCOMPARE(r.tree.nodes().size() - 1, 1 + r.count());
        QCOMPARE(r.tree.BlocksFile(), QString("residence.html"));
        r.click("Avenue1");
        QCOMPARE(r.lastAddress(),
                 QString("http://www.geocities.co.jp/%1/residence.html").arg(r.cat.name(1)));
    }

    void clicksOpenTheBlocksPages()
    {
        TreeRig r;
        r.tree.Load();
        r.tree.NodeClick(1, "GeoCities Usa");
        QCOMPARE(r.lastAddress(), QString("http://www.geocities.com/"));
        r.click("Avenue2");
        QCOMPARE(r.lastAddress(),
                 QString("http://www.geocities.com/%1/blocks.html").arg(r.cat.name(2)));
        r.click("Avenue2Suburb2");
        QCOMPARE(r.lastAddress(), QString("http://www.geocities.com/%1/%2/blocks.html")
                                      .arg(r.cat.name(2), r.cat.suburb(2, 2)));
    }

    void aClickStopsTheWalks()
    {
        TreeRig r;
        r.tree.Load();
        r.c.mnuAutoNav.click();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        r.click("Avenue1");
        QVERIFY(!r.c.mnuAutoNav.isChecked());
    }

    // A count above the filled cells shifts every later Suburb one run off.
    void countsOutOfStepLandOneRunOff()
    {
        TreeRig r;
        CatalogueData& cat = r.t.state.catalogue;
        const int last = cat.gaintSuburbCount[1];
        cat.gastrCatalogue[0][last].clear();
        r.tree.Load();
        QCOMPARE(r.indexOf(QString("Avenue1Suburb%1").arg(last)), -1);
        r.click("Avenue2Suburb1");
        QCOMPARE(r.lastAddress(),
                 QString("http://www.geocities.com/%1//blocks.html").arg(cat.name(1)));
    }

    void aChangedBlocksFileWaitsForTheNextOpening()
    {
        TreeRig r;
        r.tree.Load();
        r.t.ctx.SaveSetting(Sect::AdvOpt, Key::UsaTBFN, "overview.html");
        r.click("Avenue1");
        QVERIFY(r.lastAddress().endsWith("/blocks.html"));
        GeoTree again(r.t.ctx, r.nav, r.screen);
        again.Load();
        again.NodeClick(2, r.cat.name(1));
        QVERIFY(r.lastAddress().endsWith("/overview.html"));
    }

    void browserOneIsShownBesideTheTree()
    {
        TreeRig r;
        r.screen.shownAt = QRect(1000, 600, 7500, 6000);
        r.tree.Load();
        r.click("Avenue1");
        QCOMPARE(r.screen.shows, 1);
        QVERIFY(r.t.state.gblnWBOneByTree);
        // The right edge stays where it was, the left moves clear of the tree.
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], QRect(3305, 600, 8500 - 3305, 6000));
    }

    void anOpenBrowserIsFittedOnlyWhenItOverlaps()
    {
        TreeRig r;
        r.tree.Load();
        r.screen.open[GeoTreeHost::BrowserOne] = QRect(2000, 300, 14000, 5000);
        r.click("Avenue1");
        QCOMPARE(r.screen.shows, 0);
        // Kept on the screen: its right edge at the screen's.
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], QRect(3305, 300, 15360 - 3305, 5000));
        const QRect clear(5000, 300, 6000, 5000);
        r.screen.open[GeoTreeHost::BrowserOne] = clear;
        r.click("Avenue1");
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], clear);
        r.screen.open[GeoTreeHost::BrowserOne] = QRect(0, 0, 6000, 5000);
        r.screen.minimised = true;
        r.click("Avenue1");
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], QRect(0, 0, 6000, 5000));
        // A Suburb's click leaves an open browser where it is.
        r.screen.minimised = false;
        r.click("Avenue1Suburb1");
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], QRect(0, 0, 6000, 5000));
    }

    void loadMakesRoomForTheBrowsers()
    {
        TreeRig r;
        r.screen.open[GeoTreeHost::BrowserOne] = QRect(0, 0, 15360, 11000);
        r.screen.maximised[GeoTreeHost::BrowserOne] = true;
        r.screen.open[GeoTreeHost::BrowserTwo] = QRect(1000, 500, 14000, 6000);
        r.tree.Load();
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserOne], QRect(3305, 0, 15360 - 3305, 11520 - 450));
        QCOMPARE(r.screen.open[GeoTreeHost::BrowserTwo], QRect(3300, 500, 15360 - 3300, 6000));
    }
};

QTEST_GUILESS_MAIN(TestGeoTree)
#include "TestGeoTree.moc"
