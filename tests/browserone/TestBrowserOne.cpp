#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "browserone/BrowserOne.h"

#include <QtTest>

namespace {
// The Navigator and Browser One's rules on a scripted control.
struct BrowserRig : NavigatorRig
{
    ScriptedBrowser browser;
    RecordingBrowserHost window;
    std::unique_ptr<BrowserOne> one;

    void open()
    {
        start();
        t.state.gblnWBOneLoaded = true;
        one = std::make_unique<BrowserOne>(t.ctx, nav, browser, window);
        one->Load();
    }
};
} // namespace

class TestBrowserOne : public QObject
{
    Q_OBJECT

private slots:
    void progressTexts_data()
    {
        QTest::addColumn<int>("progress");
        QTest::addColumn<int>("max");
        QTest::addColumn<QString>("text");
        QTest::newRow("half") << 50 << 100 << "50%";
        QTest::newRow("rounded") << 1 << 3 << "33%";
        QTest::newRow("complete") << 100 << 100 << "100%";
        QTest::newRow("end of a load") << 0 << 0 << "Done";
        QTest::newRow("negative max") << 5 << -1 << "Done";
        QTest::newRow("minus one") << -1 << 100 << "";
        QTest::newRow("beyond") << 150 << 100 << "Done";
        QTest::newRow("huge") << 2000000000 << 1 << "Done";
    }
    void progressTexts()
    {
        QFETCH(int, progress);
        QFETCH(int, max);
        QFETCH(QString, text);
        QCOMPARE(BrowserOne::ProgressTextFor(progress, max), text);
    }

    void captionWithoutTheAddressBar()
    {
        BrowserRig r;
        r.t.ctx.SaveSetting("Startup", "SNBOWB", "0");
        r.t.state.gblnShowNextButton = false;
        r.open();
        r.t.state.gblnShowNextButton = false;
        r.one->Load();
        QVERIFY(!r.one->txtAddressBar.isVisible() && !r.one->cmdNext.isVisible());
        r.browser.title = "T";
        r.browser.progress(-1, 100);
        QCOMPARE(r.one->form.text(), QString("Right Click Page For IE Menu!     []          T"));
        r.browser.url = "http://www.geocities.com/";
        r.browser.progress(25, 100);
        QCOMPARE(r.one->form.text(), QString("http://www.geocities.com/     [25%]          T"));
    }

    void typingHoldsTheAddressBarUntilANavigationCompletes()
    {
        BrowserRig r;
        r.open();
        QVERIFY(r.one->txtAddressBar.isVisible() && r.one->cmdNext.isVisible());
        r.browser.url = "http://www.geocities.com/a/";
        r.browser.progress(10, 100);
        r.one->txtAddressBar.setText("my own");
        r.one->AddressBarKey('x');
        QVERIFY(r.one->AddressBarEdited);
        r.browser.progress(20, 100);
        QCOMPARE(r.one->txtAddressBar.text(), QString("my own"));
        r.browser.load("http://www.geocities.com/b/", "B");
        QVERIFY(!r.one->AddressBarEdited);
        QVERIFY(r.c.cmdGoBack.isEnabled());
        r.browser.progress(0, 0);
        QCOMPARE(r.one->txtAddressBar.text(), QString("http://www.geocities.com/b/"));
    }

    void enterInTheAddressBarStopsWalksAndOpensTheText()
    {
        BrowserRig r;
        r.open();
        r.c.mnuAutoNav.click();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        r.one->txtAddressBar.setText("geocities.com/Paris/1234/");
        r.one->AddressBarKey(13);
        QVERIFY(!r.c.mnuAutoNav.isChecked());
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Paris/1234/"));
        // An empty bar ignores its keys.
        r.one->txtAddressBar.setText("");
        r.one->AddressBarEdited = false;
        r.one->AddressBarKey('a');
        QVERIFY(!r.one->AddressBarEdited);
    }

    void anArchivedPageShowsWhatItStandsFor()
    {
        BrowserRig r;
        r.open();
        const QString archived = "https://web.archive.org/web/20090805120000if_/"
                                 "http://www.geocities.com/Paris/1234/";
        // With the original addresses an archive's page shows as it is.
        r.browser.url = archived;
        r.browser.title = "Bonjour";
        r.browser.progress(100, 100);
        QCOMPARE(r.one->form.text(), QString("     Bonjour          [100%]"));
        QCOMPARE(r.one->txtAddressBar.text(), archived);
        QCOMPARE(r.one->CopyUrlText(), archived);

        r.nav.archiveMenu().mnuPagesArchive.click();
        const QString shown = "http://www.geocities.com/Paris/1234/  [Archive 2009]";
        r.browser.progress(0, 0);
        QCOMPARE(r.one->form.text(), "     Bonjour          [Done]          " + shown);
        QCOMPARE(r.one->txtAddressBar.text(), shown);
        QCOMPARE(r.one->CopyUrlText(), "http://www.geocities.com/Paris/1234/\n" + archived);
        // Enter on the shown text opens the original address through the rewrite.
        r.one->AddressBarKey(13);
        QCOMPARE(r.host.navigated().last(), "https://web.archive.org/web/2009if_/"
                                            "http://www.geocities.com/Paris/1234/");

        // Japan on a USA-only mirror says where it came from instead.
        r.nav.archiveMenu().mnuPagesGallery.click();
        r.t.state.gblnShowNextButton = false;
        r.browser.url =
            "https://web.archive.org/web/2019if_/http://www.geocities.co.jp/Milkyway/1000/";
        r.browser.progress(50, 100);
        QCOMPARE(r.one->form.text(), QString("http://www.geocities.co.jp/Milkyway/1000/  "
                                             "[Archive 2019, not on Gallery]     [50%]          "
                                             "Bonjour"));
        r.browser.url = "http://www.altavista.com/";
        r.browser.progress(50, 100);
        QCOMPARE(r.one->form.text(),
                 QString("http://www.altavista.com/     [50%]          Bonjour"));
        QCOMPARE(r.one->CopyUrlText(), QString("http://www.altavista.com/"));
    }

    void aWalkWaitsForTheWholePage()
    {
        BrowserRig r;
        r.t.ctx.SaveSetting("Startup", "gblnAutoLimit", "30000");
        r.open();
        QVERIFY(r.t.state.gblnAutoLimitOn);
        Wander& w = r.nav.wander();
        r.c.mnuAutoNav.click();
        QVERIFY(r.one->mnuAutoNav.isChecked());
        r.browser.progress(30, 100);
        QVERIFY(!w.tmrAN.isActive());
        QVERIFY(r.one->tmrLimit.isActive());
        r.browser.progress(100, 100);
        QVERIFY(w.tmrAN.isActive());
        QVERIFY(!r.one->tmrLimit.isActive());
        r.browser.progress(0, 0); // both equal: the timer stays released
        QVERIFY(w.tmrAN.isActive());
        r.browser.progress(40, 100); // a page still loading holds it again
        QVERIFY(!w.tmrAN.isActive());
    }

    void withoutTheWaitTheTimerRunsFromTheFirstEvent()
    {
        BrowserRig r;
        r.open();
        r.t.state.gblnFullPages = false;
        r.c.mnuRandNav.click();
        QVERIFY(r.one->mnuRandNav.isChecked());
        r.browser.progress(5, 100);
        QVERIFY(r.nav.wander().tmrRB.isActive());
        QVERIFY(!r.one->tmrLimit.isActive()); // no limit set
        r.browser.progress(6, 100);
        QVERIFY(r.nav.wander().tmrRB.isActive());
    }

    void withoutALimitAStalledPageHoldsTheWalk()
    {
        BrowserRig r;
        r.open();
        QVERIFY(!r.t.state.gblnAutoLimitOn);
        r.c.mnuAutoNav.click();
        r.browser.progress(10, 100);
        QVERIFY(!r.one->tmrLimit.isActive());
        QVERIFY(!r.nav.wander().tmrAN.isActive());
    }

    void theLimitCutsALoadAndStepsOn()
    {
        BrowserRig r;
        r.t.ctx.SaveSetting("Startup", "gblnAutoLimit", "20");
        r.open();
        r.pickDigits("20", "00");
        r.c.mnuAutoNav.click();
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/2001/"));
        r.browser.progress(10, 100);
        QVERIFY(r.one->tmrLimit.isActive());
        const int stops = r.browser.stops;
        const int opened = r.host.navigated().size();
        // The limit does not stop itself: it goes on cutting until a page completes.
        QTRY_VERIFY(r.host.navigated().size() >= opened + 2);
        QCOMPARE(r.host.navigated().at(opened), QString("http://www.geocities.com/Area51/2002/"));
        QCOMPARE(r.host.navigated().at(opened + 1),
                 QString("http://www.geocities.com/Area51/2003/"));
        QVERIFY(r.browser.stops > stops);
        r.browser.progress(100, 100);
        QVERIFY(!r.one->tmrLimit.isActive());
    }

    void popUpsAreRefusedOrClosed()
    {
        BrowserRig r;
        r.open();
        QVERIFY(r.browser.askNewWindow());
        r.t.state.gblnEliminatePopUps = true;
        QVERIFY(!r.browser.askNewWindow());

        r.browser.progress(10, 100);
        QCOMPARE(r.window.closedAfter, QList<int>{1});
        r.t.state.gblnWBTwoLoaded = true;
        r.browser.progress(20, 100);
        QCOMPARE(r.window.closedAfter.last(), 2);
        r.t.state.gblnClosePopUps = false;
        r.browser.progress(30, 100);
        QCOMPARE(r.window.closedAfter.size(), 2);
    }

    void aPendingListIsWalkedFromItsSecondEntry()
    {
        BrowserRig r;
        r.open();
        r.one->CommunicatWithNetPic({"a.example/1", "a.example/2", "a.example/3"});
        r.one->cmdNext.click();
        QCOMPARE(r.host.navigated().last(), QString("http://www.a.example/2"));
        r.one->cmdNext.click();
        QCOMPARE(r.host.navigated().last(), QString("http://www.a.example/3"));
        r.one->cmdNext.click();
        QVERIFY(!r.one->PendingActive);
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/1001/"));

        r.one->CommunicatWithNetPic({"only.example/"});
        r.one->cmdNext.click();
        QVERIFY(!r.one->PendingActive);
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/1002/"));
    }

    void onTopKeepsTheMainWindowInStepWhenSynchronised()
    {
        BrowserRig r;
        r.open();
        r.one->TopClick();
        QVERIFY(r.t.state.gblnWBOneOnTop && r.one->mnuTop.isChecked());
        QVERIFY(!r.t.state.gblnMainOnTop);
        r.one->TopClick();
        r.t.state.gblnOnTopSynch = true;
        r.one->frmWBOCalls(WBOCall::OnTop);
        QVERIFY(r.t.state.gblnMainOnTop && r.t.state.gblnWBOneOnTop);
        r.one->frmWBOCalls(WBOCall::OnTop);
        QVERIFY(!r.t.state.gblnMainOnTop && !r.t.state.gblnWBOneOnTop);
    }

    void searchHosts()
    {
        QCOMPARE(BrowserOne::SearchHost(0, false), QString("altavista.com"));
        QCOMPARE(BrowserOne::SearchHost(6, false), QString("yahoo.com"));
        QCOMPARE(BrowserOne::SearchHost(6, true), QString("yahoo.co.jp"));
        BrowserRig r;
        r.open();
        r.one->SearchClick(3);
        QCOMPARE(r.host.navigated().last(), QString("http://www.lycos.com"));
    }

    void theHoverMenuOpensOverTheTopOfThePage_data()
    {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<bool>("bar");
        QTest::addColumn<bool>("opens");
        QTest::newRow("middle top") << QPoint(400, 50) << false << true;
        QTest::newRow("left edge") << QPoint(50, 50) << false << false;
        QTest::newRow("right edge") << QPoint(900, 50) << false << false;
        QTest::newRow("lower") << QPoint(400, 300) << false << false;
        QTest::newRow("bar left half") << QPoint(300, 10) << true << false;
        QTest::newRow("bar right half") << QPoint(600, 10) << true << true;
    }
    void theHoverMenuOpensOverTheTopOfThePage()
    {
        QFETCH(QPoint, at);
        QFETCH(bool, bar);
        QFETCH(bool, opens);
        QCOMPARE(BrowserOne::HoverMenuAt(at.x(), at.y(), 1000, 800, bar), opens);
    }

    void unloadEndsWalksAndKeepsThePlace()
    {
        BrowserRig r;
        r.open();
        r.c.mnuRandNav.click();
        r.browser.load("http://www.geocities.com/x/", "X");
        r.one->Unload();
        QVERIFY(!r.c.mnuRandNav.isChecked());
        QVERIFY(!r.t.state.gblnWBOneLoaded);
        QVERIFY(!r.c.cmdGoBack.isEnabled());
        QVERIFY(r.window.calls.contains("unload links"));
        QCOMPARE(r.t.ctx.GetSetting("WebBrowser", "NSWE_L"), QString("1000"));
        QCOMPARE(r.t.ctx.GetSetting("WebBrowser", "NSWE_T"), QString("2000"));
        QCOMPARE(r.t.ctx.GetSetting("WebBrowser", "NSWE_W"), QString("6000"));
        QCOMPARE(r.t.ctx.GetSetting("WebBrowser", "NSWE_H"), QString("4000"));
        // The next load places the window where it was.
        r.one->Load();
        QCOMPARE(r.window.calls.filter("place").last(), QString("place 1000 2000 4000 6000"));
    }
};

QTEST_GUILESS_MAIN(TestBrowserOne)
#include "TestBrowserOne.moc"
