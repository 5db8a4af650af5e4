#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "browserone/BrowserOne.h"
#include "browserone/LinksPanel.h"
#include "browserone/LinksPanelHost.h"

#include <QtTest>

namespace {
// The panel's window, written down.
class RecordingPanelHost : public LinksPanelHost
{
public:
    QStringList calls;
    QRect place{0, 0, 5000, 3300};

    QRect screenTwips() const override { return {0, 0, 15360, 11520}; }
    QRect panelTwips() const override { return place; }
    void placePanel(const QString& left, const QString& top, const QString& height,
                    const QString& width) override
    {
        calls << QStringList{"place", left, top, height, width}.join(' ');
    }
    void showPanel() override { calls << "show"; }
    void closePanel() override { calls << "close"; }
};

// The Navigator, Browser One's rules on a scripted control, and the panel.
struct PanelRig : NavigatorRig
{
    ScriptedBrowser browser;
    RecordingBrowserHost window;
    RecordingPanelHost panelHost;
    std::unique_ptr<BrowserOne> one;
    std::unique_ptr<LinksPanel> panel;
    SavedLinks& links = nav.savedLinks();

    PanelRig()
    {
        start();
        t.state.gblnWBOneLoaded = true;
        one = std::make_unique<BrowserOne>(t.ctx, nav, browser, window);
        one->Load();
        panel = std::make_unique<LinksPanel>(t.ctx, nav, *one, panelHost);
    }

    void saveAt(const QString& neighborhood, const QString& prefix, const QString& note)
    {
        pickNeighborhood(neighborhood);
        pickDigits(prefix, "00");
        links.SaveNote(note);
    }
};
} // namespace

class TestLinksPanel : public QObject
{
    Q_OBJECT

private slots:
    void savedOpensAndClosesThePanelWhereItWas()
    {
        PanelRig r;
        r.one->mnuSaved.click();
        QCOMPARE(r.panelHost.calls, QStringList({"place 5180 4110 3300 5000", "show"}));
        QVERIFY(r.one->mnuSaved.isChecked());
        QVERIFY(r.t.state.gblnLinksPanelOpen);

        r.panelHost.place = QRect(300, 450, 6000, 4500);
        r.panelHost.calls.clear();
        r.one->frmWBOCalls(WBOCall::Saved);
        QCOMPARE(r.panelHost.calls, QStringList({"close"}));
        QVERIFY(!r.one->mnuSaved.isChecked());
        QVERIFY(!r.t.state.gblnLinksPanelOpen);
        QCOMPARE(r.t.ctx.GetSetting("Startup", "LinksT"), QString("450"));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "LinksL"), QString("300"));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "LinksH"), QString("4500"));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "LinksW"), QString("6000"));

        r.panelHost.calls.clear();
        r.one->frmWBOCalls(WBOCall::Saved);
        QCOMPARE(r.panelHost.calls.first(), QString("place 300 450 4500 6000"));
    }

    void theCloseBoxKeepsThePlaceAndClearsTheCheck()
    {
        PanelRig r;
        r.one->mnuSaved.click();
        r.panelHost.place = QRect(-15, 30, 5000, 3300);
        r.panel->QueryUnload();
        QVERIFY(!r.one->mnuSaved.isChecked());
        QVERIFY(!r.t.state.gblnLinksPanelOpen);
        QCOMPARE(r.t.ctx.GetSetting("Startup", "LinksL"), QString("-15"));
        // The next Saved opens it again rather than closing it.
        r.panelHost.calls.clear();
        r.one->mnuSaved.click();
        QVERIFY(r.panelHost.calls.contains("show"));
    }

    void openingReleasesBrowserOnesOnTop()
    {
        PanelRig r;
        r.one->TopClick();
        QVERIFY(r.t.state.gblnWBOneOnTop);
        r.one->mnuSaved.click();
        QVERIFY(!r.t.state.gblnWBOneOnTop);
        QVERIFY(!r.one->mnuTop.isChecked());
    }

    void anEmptyListIsLoadedWhenThePanelOpens()
    {
        PanelRig r;
        r.t.db.append("UsaSaved", {"Neighborhood", "Suburb", "House", "Comment", "Date"},
                      {{"SoHo", "", "1234", "from elsewhere", ""}});
        r.one->mnuSaved.click();
        QCOMPARE(r.links.lstLinks.items(), QStringList({"from elsewhere"}));
        QCOMPARE(r.links.panelCaption.text(), QString("0 Saved Links"));

        // A filled list is kept when the panel opens again.
        r.t.db.append("UsaSaved", {"Neighborhood", "Suburb", "House", "Comment", "Date"},
                      {{"SoHo", "", "4321", "later", ""}});
        r.one->mnuSaved.click();
        r.one->mnuSaved.click();
        QCOMPARE(r.links.lstLinks.items(), QStringList({"from elsewhere"}));
    }

    void aClickOnANoteOpensItsLinkAndStopsWalks()
    {
        PanelRig r;
        r.saveAt("SoHo", "12", "soho");
        r.saveAt("Paris", "34", "paris");
        r.saveAt("Tokyo", "56", "tokyo");
        r.pickNeighborhood("Hollywood");
        r.pickDigits("50", "00");
        r.one->mnuSaved.click();
        r.nav.AutoNavClick(); // steps on to 5001
        QVERIFY(r.nav.controls().mnuAutoNav.isChecked());
        r.host.calls.clear();

        r.links.lstLinks.userSelect(1);
        NavigatorControls& main = r.nav.controls();
        QCOMPARE(main.cmbSavedLinks.listIndex(), 1);
        QCOMPARE(main.txtFullAddress.text(), QString("geocities.com/Paris/3400/"));
        QCOMPARE(main.cmdSavedLinks0.text(), QString("Return"));
        QVERIFY(!main.mnuAutoNav.isChecked());
        QCOMPARE(r.host.navigated(), QStringList({"http://www.geocities.com/Paris/3400/"}));

        // A link deleted in the main window leaves both lists alike, so the
        // next click still opens the link it shows.
        main.cmdSavedLinks1.click();
        QCOMPARE(r.links.lstLinks.items(), QStringList({"soho", "tokyo"}));
        QCOMPARE(main.txtFullAddress.text(), QString("geocities.com/Hollywood/5001/"));
        r.links.lstLinks.userSelect(1);
        QCOMPARE(main.txtFullAddress.text(), QString("geocities.com/Tokyo/5600/"));
    }

    void thePanelIsKeptOnTheScreen_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<QPoint>("kept");
        QTest::newRow("left of it") << QRect(-900, 200, 5000, 3300) << QPoint(0, 200);
        QTest::newRow("right of it") << QRect(14000, 200, 5000, 3300) << QPoint(10360, 200);
        QTest::newRow("below") << QRect(100, 9000, 5000, 3300) << QPoint(100, 8220);
    }
    void thePanelIsKeptOnTheScreen()
    {
        QFETCH(QRect, place);
        QFETCH(QPoint, kept);
        const QRect result = LinksPanel::KeepOnScreen(place, QRect(0, 0, 15360, 11520));
        QCOMPARE(result.topLeft(), kept);
        QCOMPARE(result.size(), place.size());
    }
};

QTEST_GUILESS_MAIN(TestLinksPanel)
#include "TestLinksPanel.moc"
