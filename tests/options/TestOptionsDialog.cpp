#include "OptionsRig.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"
#include "navigator/LinkNote.h"
#include "netfetch/GeoTree.h"
#include "netfetch/GeoTreeHost.h"

#include <QtTest>

namespace {
// A screen with no browsers on it, for the tree's Load.
struct NoScreen : GeoTreeHost
{
    QRect screenTwips() const override { return {0, 0, 15360, 11520}; }
    QRect treeTwips() const override { return {0, 0, 3000, 6000}; }
    bool treeMinimised() const override { return false; }
    bool browserOpen(Browser) const override { return false; }
    QRect browserTwips(Browser) const override { return {}; }
    bool browserMaximised(Browser) const override { return false; }
    void placeBrowser(Browser, const QRect&) override {}
    void showBrowserOne() override {}
};

QString blocksFile(OptionsRig& r, bool japan)
{
    const bool was = r.t.state.gblnJapan;
    r.t.state.gblnJapan = japan;
    NoScreen screen;
    GeoTree tree(r.t.ctx, r.nav, screen);
    tree.Load();
    tree.Unload();
    r.t.state.gblnJapan = was;
    return tree.BlocksFile();
}

QString noteFor(OptionsRig& r)
{
    LinkNote note(r.t.ctx, r.nav.savedLinks());
    note.Load([] { return QStringLiteral("Page title"); });
    return note.txtComment.text();
}

// What the program does that one option decides, as a short text.
using Observe = std::function<QString(OptionsRig&)>;
using Set = std::function<void(OptionsDialog&)>;

struct Effect
{
    const char* option;
    Set set;
    Observe observe;
    QString expected;
};

QVector<Effect> effects()
{
    return {
        {"chkSynch", [](OptionsDialog& d) { OptionsRig::setCheck(d.chkSynch, true); },
         [](OptionsRig& r) {
             const int before = r.host.calls.count("toggle BrowserOne ontop");
             r.nav.OnTopClick();
             r.nav.OnTopClick();
             return QString::number(r.host.calls.count("toggle BrowserOne ontop") - before);
         },
         "2"},
        {"chkClosePopUps", [](OptionsDialog& d) { OptionsRig::setCheck(d.chkClosePopUps, false); },
         [](OptionsRig& r) {
             const int before = r.window.closedAfter.size();
             r.browser.progress(10, 100);
             return QString::number(r.window.closedAfter.size() - before);
         },
         "0"},
        {"chkEliminatePopUps",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkEliminatePopUps, true); },
         [](OptionsRig& r) { return QString(r.browser.askNewWindow() ? "opens" : "refused"); },
         "refused"},
        {"chkSWebBrowserNextButton",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkSWebBrowserNextButton, false); },
         [](OptionsRig& r) { return QString(r.one->cmdNext.isVisible() ? "shown" : "hidden"); },
         "hidden"},
        {"chkAssignRandomsToControls",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkAssignRandomsToControls, false); },
         [](OptionsRig& r) {
             r.composer.HouseNumber = "mine";
             r.nav.wander().RandNavStep();
             return QString(r.composer.HouseNumber == "mine" ? "controls kept" : "assigned");
         },
         "controls kept"},
        {"chkBrowseOnSavedLinkClick",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkBrowseOnSavedLinkClick, true); },
         [](OptionsRig& r) {
             r.nav.savedLinks().LeaveSavedView();
             const int before = r.host.navigated().size();
             r.c.cmbSavedLinks.userSelect(0);
             return QString::number(r.host.navigated().size() - before);
         },
         "1"},
        {"txtWaitTime",
         [](OptionsDialog& d) {
             OptionsRig::setCheck(d.chkWaitForFullPage, false);
             d.txtWaitTime.setText("7");
         },
         [](OptionsRig& r) { return QString::number(r.nav.wander().tmrAN.interval()); }, "7000"},
        {"chkWaitForFullPage",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkWaitForFullPage, false); },
         // A page half loaded holds AutoNav only while it waits for full pages.
         [](OptionsRig& r) {
             r.c.mnuAutoNav.click();
             r.browser.progress(10, 100);
             const bool walking = r.nav.wander().tmrAN.isActive();
             r.c.mnuAutoNav.click();
             return QString(walking ? "walks on" : "held");
         },
         "walks on"},
        {"sldrLimit", [](OptionsDialog& d) { d.sldrLimit.setValue(20); },
         [](OptionsRig& r) {
             return QString("%1 %2").arg(r.one->tmrLimit.interval()).arg(r.t.state.gblnAutoLimitOn);
         },
         "20000 1"},
        {"txtAdvOpt[0]", [](OptionsDialog& d) { d.txtAdvOpt[0].setText(" usa.html "); },
         [](OptionsRig& r) { return blocksFile(r, false); }, "usa.html"},
        {"txtAdvOpt[1]", [](OptionsDialog& d) { d.txtAdvOpt[1].setText("japan.html"); },
         [](OptionsRig& r) { return blocksFile(r, true); }, "japan.html"},
        {"txtAdvOpt[2]", [](OptionsDialog& d) { d.txtAdvOpt[2].setText("http://www.find.test/"); },
         [](OptionsRig& r) {
             r.nav.GeoSearchClick();
             return r.host.navigated().last();
         },
         "http://www.find.test/"},
        {"txtAdvOpt[3]", [](OptionsDialog& d) { d.txtAdvOpt[3].setText("http://www.chat.test/"); },
         [](OptionsRig& r) {
             r.nav.GeoChatClick();
             return r.host.navigated().last();
         },
         "http://www.chat.test/"},
        {"txtAdvOpt[4]", [](OptionsDialog& d) { d.txtAdvOpt[4].setText("Mine"); }, noteFor, "Mine"},
        {"chkWBTAdvUseTitles",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.chkWBTAdvUseTitles, true); }, noteFor,
         "Page title"},
        {"chkUsingWBTAuto",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.wbt.chkUsingWBTAuto, false); },
         [](OptionsRig& r) {
             return QString("%1 %2")
                 .arg(r.t.state.gblnWBTAutoMode)
                 .arg(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, "unset"));
         },
         "0 0"},
        {"chkWBTPromptForNew",
         [](OptionsDialog& d) { OptionsRig::setCheck(d.wbt.chkWBTPromptForNew, false); },
         // Browser Two reads it with "1" as the default.
         [](OptionsRig& r) {
             return r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::PromptForNewFile, "1");
         },
         ""},
        {"lstRNS and chkUseSelected",
         [](OptionsDialog& d) {
             d.randNav.lstRNS[1].userSelect(2);
             d.randNav.cmdRandNavAdd[0].click();
             OptionsRig::setCheck(d.randNav.chkUseSelected, true);
         },
         [](OptionsRig& r) {
             Wander& walk = r.nav.wander();
             walk.RandNavClick();
             QStringList names;
             for (qint16 i : walk.RandNavSelection)
                 names << r.t.state.catalogue.name(i);
             walk.RandNavClick();
             return names.join(",");
         },
         "Augusta"},
        {"cboPageSource",
         [](OptionsDialog& d) { d.cboPageSource.userSelect(int(PageSource::OoCities)); },
         [](OptionsRig& r) {
             r.nav.NavigateSomeWhereElse("http://www.geocities.com/Area51/1000/");
             return r.host.navigated().last();
         },
         "http://www.oocities.org/area51/1000/"},
    };
}
} // namespace

class TestOptionsDialog : public QObject
{
    Q_OBJECT

private slots:
    // Each option set through its control and taken by Ok changes what the
    // program does, and did not do so before.
    void everyOptionTakesEffect()
    {
        for (const Effect& e : effects()) {
            OptionsRig r;
            OptionsDialog& d = r.open();
            r.t.db.append("UsaSaved", {"Neighborhood", "Suburb", "House", "Comment", "Date"},
                          {{"Area51", "", "1000", "kept", "Saved on: Date = 1"}});
            r.nav.savedLinks().LoadSavedLinks(Tbl::UsaSaved);
            const QString before = e.observe(r);
            QVERIFY2(before != e.expected, e.option);
            e.set(d);
            d.cmdOk.click();
            QCOMPARE_EQ(e.observe(r), e.expected);
            QVERIFY2(!r.c.mnuOptions.isChecked(), e.option);
        }
    }

    void waitTimeKeepsItsSixteenBitLimit_data()
    {
        QTest::addColumn<bool>("fullPage");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("wait");
        QTest::newRow("33 does not fit") << true << "33" << 10000;
        QTest::newRow("60 does not fit") << true << "60" << 10000;
        QTest::newRow("32 fits") << true << "32" << 32000;
        QTest::newRow("0 with full page") << true << "0" << 1000;
        QTest::newRow("3 without full page") << false << "3" << 5000;
        QTest::newRow("letters") << false << "abc" << 5000;
        QTest::newRow("negative") << true << "-4" << 1000;
        QTest::newRow("eleven digits shown as 60") << true << "99999999999" << 10000;
    }
    void waitTimeKeepsItsSixteenBitLimit()
    {
        QFETCH(bool, fullPage);
        QFETCH(QString, typed);
        QFETCH(int, wait);
        OptionsRig r;
        OptionsDialog& d = r.open();
        OptionsRig::setCheck(d.chkWaitForFullPage, fullPage);
        d.txtWaitTime.setText(typed);
        QVERIFY(Vb::Val(d.txtWaitTime.text()) <= 60);
        d.cmdOk.click();
        QCOMPARE(int(r.t.state.gintGlobalTimer), wait);
        QCOMPARE(r.t.ctx.GetSetting("Startup", "GlobalTimer"), QString::number(wait));
        // The next opening shows what was kept.
        QCOMPARE(r.open().txtWaitTime.text(), QString::number(std::max(wait / 1000, 1)));
    }

    void sliderAndBoxFollowEachOther()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        QCOMPARE(d.sldrWaitTime.minimum(), 1); // full page is on by default
        d.txtWaitTime.setText("75");
        QCOMPARE(d.txtWaitTime.text(), QString("60"));
        QCOMPARE(d.sldrWaitTime.value(), 60);
        d.sldrWaitTime.setValue(2);
        QCOMPARE(d.txtWaitTime.text(), QString("2"));
        OptionsRig::setCheck(d.chkWaitForFullPage, false);
        QCOMPARE(d.sldrWaitTime.minimum(), 5);
        QCOMPARE(d.txtWaitTime.text(), QString("5"));
        QVERIFY(!OptionsDialog::waitTimeKeyAccepted(8));
        QVERIFY(!OptionsDialog::waitTimeKeyAccepted('-'));
        QVERIFY(OptionsDialog::waitTimeKeyAccepted('7'));
    }

    void anEmptiedBoxKeepsItsTextButTheNoteMayBeEmpty()
    {
        OptionsRig r;
        r.t.ctx.SaveSetting("AdvOpt", "SearchURL", "http://kept.test/");
        OptionsDialog& d = r.open();
        d.txtAdvOpt[2].setText("");
        d.txtAdvOpt[4].setText("");
        d.cmdOk.click();
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "SearchURL"), QString("http://kept.test/"));
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "DefaultSN", "unset"), QString(""));
        QCOMPARE(r.t.state.gstrDefaultNote, QString(""));
    }

    void theWarningComesFromTheUserOnly()
    {
        OptionsRig r;
        r.t.state.gblnEliminatePopUps = true;
        OptionsDialog& d = r.open();
        QVERIFY(d.chkEliminatePopUps.isChecked());
        QVERIFY(r.t.prompts.messages().isEmpty());
        OptionsRig::setCheck(d.chkEliminatePopUps, false);
        QVERIFY(r.t.prompts.messages().isEmpty());
        OptionsRig::setCheck(d.chkEliminatePopUps, true);
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Warning!"));
        const QString text = r.t.prompts.shown[0].text;
        QVERIFY(text.startsWith("Selecting this item may cause\r"));
        QVERIFY(text.contains("installed do this:\r\rSelect the Tools menu\r"));
        QVERIFY(text.endsWith("- Disable script debugging\r"));
    }

    void applyStaysOpenAndCancelKeepsWhatItWrote()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        r.c.mnuOptions.setChecked(true);
        QSignalSpy closing(&d, &OptionsDialog::unloadWanted);
        d.randNav.lstRNS[1].userSelect(0);
        d.randNav.cmdRandNavAdd[0].click();
        d.cmdApply.click();
        QCOMPARE(closing.size(), 0);
        QVERIFY(r.c.mnuOptions.isChecked());
        QCOMPARE(r.t.db.recordCount("UsaMisc"), 1);
        // A second Apply writes the same list again; a change before
        // Cancel is lost, and Cancel leaves what Apply wrote.
        d.cmdApply.click();
        QCOMPARE(r.t.db.recordCount("UsaMisc"), 1);
        d.randNav.lstRNS[1].userSelect(1);
        d.randNav.cmdRandNavAdd[0].click();
        d.cmdCancel.click();
        QCOMPARE(closing.size(), 1);
        QVERIFY(!r.c.mnuOptions.isChecked());
        QCOMPARE(FieldTexts(r.t.db.readAll("UsaMisc")), QVector<QStringList>{{"Area51"}});
    }

    void randNavListsEditInPlace()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        RandNavEditor& e = d.randNav;
        e.cmdRandNavAdd[0].click();
        e.cmdRandNavAdd[1].click();
        QCOMPARE(r.t.prompts.messages(), QStringList(2, "You must first select an item!"));
        e.lstRNS[1].userSelect(0);
        e.cmdRandNavAdd[0].click();
        e.cmdRandNavAdd[0].click(); // already there: nothing, no message
        e.lstRNS[1].userSelect(1);
        e.cmdRandNavAdd[0].click();
        QCOMPARE(e.lstRNS[0].items(), QStringList({"Area51", "Athens"}));
        e.lstRNS[0].userSelect(0);
        e.cmdRandNavAdd[1].click();
        QCOMPARE(e.lstRNS[0].items(), QStringList({"Athens"}));
        QCOMPARE(r.t.prompts.messages().size(), 2);
        // The empty selection with the check is stored as it stands.
        e.lstRNS[0].userSelect(0);
        e.cmdRandNavAdd[1].click();
        OptionsRig::setCheck(e.chkUseSelected, true);
        d.cmdOk.click();
        QCOMPARE(r.t.db.recordCount("UsaMisc"), 0);
        QVERIFY(r.t.state.gblnUsaRNS);
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "UsaRNS"), QString("1"));
    }

    // Only the region in use is read and written, whatever the Add/Remove
    // tab shows.
    void randNavEditsTheRegionInUse()
    {
        OptionsRig r;
        r.start();
        r.t.state.gblnJapan = true;
        r.t.ctx.SaveSetting("AdvOpt", "UsaRNS", "1");
        r.nav.LoadCatalogue();
        OptionsDialog& d = r.open();
        RandNavEditor& e = d.randNav;
        QCOMPARE(d.catalogue.cmbServer.listIndex(), 1);
        QCOMPARE(e.lstRNS[1].listCount(), 14);
        QVERIFY(!e.chkUseSelected.isChecked());
        d.catalogue.cmbServer.userSelect(0);
        e.lstRNS[1].userSelect(3);
        e.cmdRandNavAdd[0].click();
        OptionsRig::setCheck(e.chkUseSelected, true);
        d.cmdOk.click();
        QCOMPARE(FieldTexts(r.t.db.readAll("JapanMisc")),
                 QVector<QStringList>{{e.lstRNS[1].item(3)}});
        QCOMPARE(r.t.db.recordCount("UsaMisc"), 0);
        QVERIFY(r.t.state.gblnJapanRNS && r.t.state.gblnUsaRNS);
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "JapanRNS"), QString("1"));
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "UsaRNS"), QString("1"));
    }

    void ctrlTabCyclesAndResetShowsOnTheBrowserTwoTabs()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        QStringList titles;
        QList<bool> resets;
        for (int i = 0; i < OptionsDialog::TabCount; ++i) {
            d.KeyDown(9, 2);
            titles << d.form.text();
            resets << d.cmdReSet.isVisible();
        }
        QCOMPARE(titles, QStringList({"Advanced Options", "Add/Remove Neighborhoods",
                                      "RandNav Neighborhood Selection", "Web Browser Two Options",
                                      "WBTwo Servers With Subs", "Basic Options"}));
        QCOMPARE(resets, QList<bool>({false, false, false, true, true, false}));
        d.KeyDown(9, 0); // Tab alone moves no tab
        QCOMPARE(d.selectedTab(), int(OptionsDialog::BasicTab));
        QVERIFY(d.picOptions[0].isEnabled() && !d.picOptions[1].isEnabled());
    }

    void loadStopsTheWalksAndClosesTheTree()
    {
        OptionsRig r;
        r.start();
        r.host.available << ProgramWindow::GeoTree;
        r.nav.GeoTreeClick();
        QVERIFY(r.t.state.gblnTreeShown);
        r.c.mnuAutoNav.click();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        OptionsDialog d(r.t.ctx, r.nav, r.options);
        d.Load();
        QVERIFY(!r.c.mnuAutoNav.isChecked());
        QVERIFY(r.host.calls.contains("unload GeoTree"));
    }
};

QTEST_GUILESS_MAIN(TestOptionsDialog)
#include "TestOptionsDialog.moc"
