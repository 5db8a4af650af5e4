#pragma once

#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "browserone/BrowserOne.h"
#include "options/AreaAdder.h"
#include "options/OptionsDialog.h"
#include "options/OptionsHost.h"

#include <functional>
#include <memory>

// The other windows as the options dialog reaches them: the Navigator's
// catalogue, Browser One's rules when a test opens them, and frmAdd played
// by a function of the test on AreaAdder's rules.
struct RigOptionsHost : OptionsHost
{
    Navigator& nav;
    BrowserOne* one = nullptr;
    QStringList calls;
    // Plays frmAdd; returns true for Quit, false for Cancel.
    std::function<bool(AreaAdder&)> playAdd;
    AppContext* ctx = nullptr;

    explicit RigOptionsHost(Navigator& navigator) : nav(navigator) {}

    void reloadCatalogue() override
    {
        calls << "reload";
        nav.RefreshCatalogue();
    }
    void browserOneNextButton() override
    {
        calls << "next button";
        if (one) {
            one->cmdNext.setVisible(ctx->state.gblnShowNextButton);
            one->txtAddressBar.setVisible(ctx->state.gblnShowNextButton);
        }
    }
    void browserOneLimit(int milliseconds) override
    {
        if (one)
            one->tmrLimit.setInterval(milliseconds);
    }
    void browserOneOnTop() override { calls << "browser one on top"; }
    void browserTwoReloadLists() override { calls << "browser two lists"; }
    QString browserTwoLocationName() const override { return QStringLiteral("Dead page"); }
    PageSource pageSource() const override { return nav.pageSources().source; }
    void choosePageSource(PageSource source) override { nav.archiveMenu().choose(source); }
    bool AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood) override
    {
        AreaAdder adder(*ctx);
        adder.AddAreas(neighborhoodTable, suburbTable, addMode, neighborhood);
        const bool quit = playAdd ? playAdd(adder) : false;
        return quit && adder.changed();
    }
    void pumpEvents() override {}
};

// The Navigator on a new database, Browser One's rules on a scripted
// control, and the options dialog's rules loaded over them.
struct OptionsRig : NavigatorRig
{
    ScriptedBrowser browser;
    RecordingBrowserHost window;
    std::unique_ptr<BrowserOne> one;
    RigOptionsHost options{nav};
    std::unique_ptr<OptionsDialog> dlg;

    // Starts the program's rules unless the test did, then loads a new
    // dialog.
    OptionsDialog& open()
    {
        if (!t.db.isOpen())
            start();
        if (!one) {
            t.state.gblnWBOneLoaded = true;
            one = std::make_unique<BrowserOne>(t.ctx, nav, browser, window);
            one->Load();
            options.one = one.get();
            options.ctx = &t.ctx;
        }
        dlg = std::make_unique<OptionsDialog>(t.ctx, nav, options);
        dlg->Load();
        return *dlg;
    }

    // A check box clicked by the user until it shows the state wanted.
    static void setCheck(Control& box, bool on)
    {
        box.setChecked(on);
        box.click();
    }
};
