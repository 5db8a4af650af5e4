#include "FakeWordLists.h"
#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "TestContext.h"
#include "browsertwo/BrowserTwo.h"
#include "browsertwo/BrowserTwoHost.h"
#include "browsertwo/ServersWithSuburbs.h"
#include "core/Endpoints.h"
#include "core/SettingsKeys.h"

#include <QtTest>

namespace {

class RecordingTwoHost : public BrowserTwoHost
{
public:
    QStringList calls;
    void placeWindow(const QString& l, const QString& t, const QString& h,
                     const QString& w) override
    {
        calls << QStringList{"place", l, t, h, w}.join(' ');
    }
    QRect screenTwips() const override { return {0, 0, 15000, 12000}; }
    QRect windowTwips() const override { return {100, 200, 5000, 3300}; }
    void stackRows() override {}
    void closeWindowsAfter(int keep) override { calls << QString("close after %1").arg(keep); }
    void unloadLinkWindows() override { calls << "unload links"; }
    void mainCall(GeoCitiesCall code) override { calls << QString("main %1").arg(int(code)); }
    void clearTopmost() override { calls << "clear topmost"; }
};

// The walker on a new main database, with the list row's lists in memory.
struct Rig : WordListHost
{
    TestContext t;
    ScriptedBrowser browser;
    RecordingTwoHost host;
    FakeWordLists lists{t.state};
    std::unique_ptr<BrowserTwo> two;
    int gpysuedo = -1;

    explicit Rig(bool autoMode = true)
    {
        t.createAndOpenDatabase();
        t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, autoMode ? "1" : "0");
        lists.host = this;
        two = std::make_unique<BrowserTwo>(t.ctx, browser, host, lists);
    }
    // Opens the window on the words, as the main window's entry does.
    void open(const QStringList& words, const QString& server = Endpoint::TripodBaseUrl)
    {
        t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CmbServer, server);
        lists.source = words;
        lists.PickWordSource("");
        two->Load();
        two->Pseudo(gpysuedo);
    }
    // A page that loads to its end with the title.
    void page(const QString& title)
    {
        browser.url = browser.navigated.value(browser.navigated.size() - 1);
        browser.title = title;
        browser.progress(50, 100);
        browser.progress(100, 100);
        browser.progress(0, 0);
    }
    QString last() const { return browser.navigated.value(browser.navigated.size() - 1); }

    void Pseudo(int count) override { two->Pseudo(count); }
    void WBTPassSometext(const QString& name) override { two->WBTPassSometext(name); }
    void GPysuedo(int count) override
    {
        gpysuedo = count;
        if (two->WindowReady)
            two->Pseudo(count);
    }
    void clearTopmost() override {}
};

const QString Tripod = Endpoint::TripodBaseUrl;

} // namespace

class TestBrowserTwo : public QObject
{
    Q_OBJECT

private slots:
    void steppingWrapsAndNeverReachesTheLastWord()
    {
        Rig r(false);
        r.open({"ann", "bob", "cy", "dee"});
        // Handed four words, the walker counts three until the bar first moves.
        QCOMPARE(r.two->WordCount, qint16(3));
        QCOMPARE(r.two->panels[3]->text(), QString("1 of 3"));
        QCOMPARE(r.two->panels[1]->text(), QString("words.txt Loaded!"));
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        QCOMPARE(r.two->CurrentWord, QString("cy"));
        // On the next-to-last word, Next lands on the first.
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        QCOMPARE(r.two->CurrentSiteIndex, 1);
        QCOMPARE(r.browser.navigated, QStringList({Tripod + "bob", Tripod + "cy", Tripod + "ann"}));
        // Prev on the first word stays on the first.
        r.two->cmdWBTTools[BrowserTwo::Prev]->click();
        QCOMPARE(r.last(), Tripod + "ann");
        QCOMPARE(r.two->panels[2]->text(), QString("ann"));
        // Moving the bar shows its word and opens nothing.
        r.two->hscrWBT.setValue(3);
        QCOMPARE(r.two->CurrentWord, QString("cy"));
        QCOMPARE(r.browser.navigated.size(), 4);
        QVERIFY(!r.two->tmrAuto.isActive());
    }

    void positionComesBackAndAnEmptyListOpensTheBase()
    {
        {
            Rig r(false);
            r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CurrentSite, "3");
            r.open({"a", "b", "c", "d", "e"});
            QCOMPARE(r.two->CurrentWord, QString("c"));
            r.two->cmdWBTTools[BrowserTwo::Next]->click();
            r.two->Unload();
            QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::CurrentSite), QString("4"));
            QVERIFY(r.t.state.gstrSites.isEmpty());
            QVERIFY(r.host.calls.contains("unload links"));
        }
        Rig r(false);
        r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CurrentSite, "7");
        r.open({});
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        QCOMPARE(r.last(), Tripod);
        QCOMPARE(r.two->CurrentSiteIndex, 1);
    }

    void autoModeLeavesMissingPagesAndStopsAtTheFirstRealOne()
    {
        Rig r;
        r.open({"ann", "bob", "cy", "dee", "eve"});
        QVERIFY(r.two->tmrAuto.isActive());
        // The walk starts by itself with the first tick: one step on.
        r.two->AutoTick();
        QCOMPARE(r.last(), Tripod + "bob");
        r.page("Tripod: Defunct Link");
        QVERIFY(r.two->SkipPage);
        QVERIFY(r.two->tmrAuto.isActive());
        r.two->AutoTick();
        QCOMPARE(r.last(), Tripod + "cy");
        // Only the exact title counts, case included.
        r.page("tripod: defunct link");
        QVERIFY(!r.two->SkipPage);
        r.two->AutoTick();
        QCOMPARE(r.last(), Tripod + "cy");
        QCOMPARE(r.two->form.text(), QString("     tripod: defunct link          [Done]"));
        QCOMPARE(r.two->txtAddressBar.text(), Tripod + "cy");
    }

    void anAddressTitleMatchesOnlyWithItsOwnWord()
    {
        Rig r;
        const QString earth = Endpoint::EarthLinkBaseUrl;
        r.open({"ann", "bob", "cy"}, earth);
        r.two->AutoTick();
        QCOMPARE(r.last(), earth + "bob");
        r.page(earth + "ann");
        QVERIFY(!r.two->SkipPage);
        // An untitled page has its address for a title.
        r.page(QString());
        QCOMPARE(r.two->PageTitle, earth + "bob");
        QVERIFY(r.two->SkipPage);
    }

    void autoModeWaitsForTheLoadTheUserAndTheConnection()
    {
        Rig r;
        r.open({"ann", "bob", "cy", "dee"});
        r.browser.title = "Not Found";
        r.browser.progress(40, 100);
        QVERIFY(r.two->SkipPage);
        QVERIFY(!r.two->tmrAuto.isActive());
        r.browser.progress(100, 100);
        QVERIFY(r.two->tmrAuto.isActive());
        r.two->InputFocus(true);
        r.two->AutoTick();
        QVERIFY(r.browser.navigated.isEmpty());
        r.two->InputFocus(false);
        r.t.probe.up = false;
        r.two->AutoTick();
        QVERIFY(r.browser.navigated.isEmpty());
        r.t.probe.up = true;
        // Stop ends the walk at once.
        r.two->cmdWBTTools[BrowserTwo::Stop]->click();
        r.two->AutoTick();
        QVERIFY(r.browser.navigated.isEmpty());
        QCOMPARE(r.browser.stops, 1);
    }

    void autoModeOffComparesNoTitles()
    {
        Rig r(false);
        r.open({"ann", "bob"});
        QVERIFY(!r.t.state.gblnWBTAutoMode);
        r.browser.title = "Not Found";
        r.browser.progress(100, 100);
        QVERIFY(!r.two->SkipPage);
        QVERIFY(!r.two->tmrAuto.isActive());
        // Pop-ups close after the program's own browsers, two while both are open.
        r.t.state.gblnClosePopUps = true;
        r.t.state.gblnWBOneLoaded = true;
        r.browser.progress(0, 0);
        QCOMPARE(r.host.calls.filter("close"), QStringList({"close after 2"}));
    }

    void serverListIsSeededInOrderAndComesBack()
    {
        Rig r(false);
        r.open({"ann"}, "http://nowhere/");
        QCOMPARE(r.two->ServerUrls.size(), 5);
        QCOMPARE(r.two->ServerUrls.first(), Tripod);
        QCOMPARE(r.two->ServerUrls.last(), QString(Endpoint::XoomBaseUrl));
        QCOMPARE(r.two->BadTitles.size(), 12);
        QCOMPARE(r.two->cmbServer.listCount(), 8);
        // An unknown server falls back to the first entry.
        QCOMPARE(r.two->cmbServer.text(), Tripod);
        QCOMPARE(r.two->form.text(), QString("Navigate members.tripod.com/~"));
        // The table emptied behind the program's back comes back.
        r.t.db.removeAll("wbtBaseUrl");
        r.two->cmbServer.userSelect(2);
        r.two->frmWBTCalls(WBTCall::LoadServerList);
        QCOMPARE(r.two->ServerUrls.size(), 5);
        QCOMPARE(r.two->cmbServer.text(), QString(Endpoint::SprintmailBaseUrl));
    }

    void suburbServersComposeTheirBase()
    {
        Rig r(false);
        r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CboSubSWS, "ny");
        r.open({"ann", "bob", "cy"}, Endpoint::AngelfireBaseUrl);
        QVERIFY(r.two->cboSWSuburbs.isEnabled());
        QCOMPARE(r.two->cboSWSuburbs.listCount(), 51);
        // The suburb of the last session, not the first of the list; the
        // caption names the server alone until a suburb is chosen.
        QCOMPARE(r.two->SuburbBase, QString("http://www.angelfire.com/ny/"));
        QCOMPARE(r.two->form.text(), QString("Navigate www.angelfire.com/"));
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        QCOMPARE(r.last(), QString("http://www.angelfire.com/ny/bob"));
        r.two->cboSWSuburbs.userSelect(0);
        QCOMPARE(r.two->SuburbBase, QString("http://www.angelfire.com/ak/"));
        QCOMPARE(r.two->form.text(), QString("Navigate www.angelfire.com/ak/"));
        // A plain server clears the suburb.
        r.two->cmbServer.userSelect(1);
        QVERIFY(r.two->SuburbBase.isEmpty());
        QVERIFY(!r.two->cboSWSuburbs.isEnabled());
        r.two->cmdWBTTools[BrowserTwo::Next]->click();
        QCOMPARE(r.last(), QString(Endpoint::AolBaseUrl) + "ann");
    }

    void suburbSlashAndCaptionRules()
    {
        Rig r(false);
        r.open({"ann"});
        r.two->cmbServer.setText("HTTP://x.org/");
        r.two->cboSWSuburbs.setText("a/");
        QCOMPARE(r.two->SuburbBase, QString("HTTP://x.org/a/"));
        QCOMPARE(r.two->form.text(), QString("Navigate x.org/a/"));
        r.two->cboSWSuburbs.setText("a/b");
        QCOMPARE(r.two->SuburbBase, QString("HTTP://x.org/a/b"));
        r.two->cmbServer.setText("ftp://x.org/");
        r.two->cboSWSuburbs.setText("ab");
        QCOMPARE(r.two->SuburbBase, QString("ftp://x.org/ab/"));
        QCOMPARE(r.two->form.text(), QString("Navigate ftp://x.org/ab/"));
    }

    void listRowAsksForADatabaseAndItsButtonsTellWhatIsWrong()
    {
        Rig r(false);
        r.lists.dbExists = false;
        r.open({"ann", "bob", "cy"});
        // At Load nothing is asked: the row stays hidden.
        r.two->RowClick(BrowserTwo::ListRow);
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Create list DB"));
        QVERIFY(!r.two->picTools[BrowserTwo::ListRow]->isVisible());
        r.t.prompts.answer(PromptService::Yes);
        r.lists.stored.insert("girls", {"ann", "eve", "flo", "gil"});
        r.two->RowClick(BrowserTwo::ListRow);
        QVERIFY(r.two->picTools[BrowserTwo::ListRow]->isVisible());
        QCOMPARE(r.two->cboLists.items(), QStringList({"girls"}));

        r.t.prompts.clear();
        r.two->cmdLists[0]->click();
        r.two->cmdLists[1]->click();
        r.two->cmdUnload.click();
        QCOMPARE(r.t.prompts.messages(),
                 QStringList({"You must first select a list!", "You must first select a list!",
                              "You haven't loaded a list!"}));
        r.two->cboLists.userSelect(0);
        r.two->cmdLists[0]->click();
        QCOMPARE(r.two->panels[1]->text(), QString("girls Loaded!"));
        QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList), QString("girls"));
        QCOMPARE(r.two->WordCount, qint16(3));
        // Unload goes back to the word source.
        r.two->cmdUnload.click();
        QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList), QString(""));
        QCOMPARE(r.t.state.gstrSites.value(1), QString("ann"));
        QCOMPARE(r.two->WordCount, qint16(2));
        // Delete asks first; No keeps the list.
        r.two->cboLists.userSelect(0);
        r.two->cmdLists[1]->click();
        QVERIFY(r.lists.stored.contains("girls"));
        r.t.prompts.answer(PromptService::Yes);
        r.two->cmdLists[1]->click();
        QVERIFY(r.lists.stored.isEmpty());
        QCOMPARE(r.two->cboLists.listCount(), 0);
    }

    void aStoredListOfTheLastSessionReplacesTheSource()
    {
        Rig r(false);
        r.lists.stored.insert("boys", {"al", "bo", "cal"});
        r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBSiteList, "boys");
        r.open({"ann", "bob", "cy", "dee"});
        QCOMPARE(r.two->panels[1]->text(), QString("boys Loaded!"));
        QVERIFY(r.two->ListLoaded);
        // A list that vanished makes the source be read afresh.
        r.lists.stored.clear();
        r.two->cboLists.addItem("boys");
        r.two->cboLists.userSelect(0);
        r.two->cmdLists[0]->click();
        QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList), QString(""));
        QCOMPARE(r.lists.calls.last(), QString("pick "));
    }

    void theMainEntryLeavesOnTopOnlyForANewWindow()
    {
        NavigatorRig r;
        r.start();
        r.host.available << ProgramWindow::BrowserTwo;
        r.c.mnuOnTop.click();
        r.t.state.gblnWBTwoLoaded = true;
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::BrowserTwo);
        QVERIFY(r.t.state.gblnMainOnTop);
        r.t.state.gblnWBTwoLoaded = false;
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::BrowserTwo);
        QVERIFY(!r.t.state.gblnMainOnTop);
        QCOMPARE(r.host.calls.filter("BrowserTwo").size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestBrowserTwo)
#include "TestBrowserTwo.moc"
