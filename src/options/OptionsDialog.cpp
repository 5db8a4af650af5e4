#include "OptionsDialog.h"

#include "OptionsHost.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/NavigatorControls.h"
#include "navigator/Wander.h"

#include <limits>

namespace {
struct TabText
{
    const char* caption;
    const char* toolTip;
    const char* title;
};
const TabText Tabs[OptionsDialog::TabCount] = {
    {"Basic", "Set Basic Options", "Basic Options"},
    {"Advanced", "Set Advanced Options", "Advanced Options"},
    {"Add/Remove", "Add / Remove Neighborhoods / Suburbs", "Add/Remove Neighborhoods"},
    {"RandNav", "Select RandNav Neighborhoods", "RandNav Neighborhood Selection"},
    {"WBTwo", "Set Web Browser Two Options", "Web Browser Two Options"},
    {"SWS", "WBTwo Servers With Suburbs (SWS)", "WBTwo Servers With Subs"}};

// The Advanced tab's stored texts: key, section and default.
struct AdvText
{
    const char* label;
    const char* key;
    QString fallback;
};
QVector<AdvText> advTexts()
{
    const QString usa = QString::fromLatin1(Endpoint::UsaSiteUrl);
    return {{"File name for geotree blocks URL U.S.A", Key::UsaTBFN, "blocks.html"},
            {"File name for geotree blocks URL Japan", Key::JapanTBFN, "residence.html"},
            {"Search URL", Key::SearchURL, usa + "/cgi-bin/search/geosearch"},
            {"Chat URL", Key::ChatURL, usa + "/chat/"},
            {"Default Saved Note:", Key::DefaultSN, "This is a CooL Site!"}};
}

QString flag(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

// The warning that closing pop-ups before they open may cost.
const QStringList EliminateWarning = {"Selecting this item may cause",
                                      "Internet Explorer to give you",
                                      "a java debugging error every",
                                      "time a web site is loaded!",
                                      "It may also cause program failure.",
                                      "If so, just uncheck this item!",
                                      "IE5 turns off error notification.",
                                      "If you have IE5 installed do this:\r",
                                      "Select the Tools menu",
                                      "- Internet Options",
                                      "- Advanced\r",
                                      "Uncheck",
                                      "- Display notification about every script error\r",
                                      "Check",
                                      "- Disable script debugging"};
} // namespace

OptionsDialog::OptionsDialog(AppContext& ctx, MainWindowCalls& main, OptionsHost& host)
    : catalogue(ctx, host, [this](bool on) { setControlsEnabled(on); }),
      randNav(ctx, host, [this](bool on) { setControlsEnabled(on); }), wbt(ctx, host), sws(ctx),
      m_ctx(ctx), m_main(main), m_host(host)
{
    buildTabs();
    buildBasic();
    buildAdvanced();
    connectRules();
}

QString OptionsDialog::tabCaption(int tab)
{
    return QString::fromLatin1(Tabs[tab - 1].caption);
}

QString OptionsDialog::tabToolTip(int tab)
{
    return QString::fromLatin1(Tabs[tab - 1].toolTip);
}

QString OptionsDialog::tabTitle(int tab)
{
    return QString::fromLatin1(Tabs[tab - 1].title);
}

QStringList OptionsDialog::pageSourceNames()
{
    return {"The original addresses", "The Internet Archive", "The GeoCities Gallery", "OoCities",
            "A local mirror"};
}

bool OptionsDialog::waitTimeKeyAccepted(int code)
{
    return code >= '0' && code <= '9';
}

void OptionsDialog::buildTabs()
{
    form.setText(QStringLiteral("Basic Options"));
    for (int tab = 1; tab <= TabCount; ++tab)
        tbsOptions.addItem(tabCaption(tab));
    cmdOk.setText(QStringLiteral("OK"));
    cmdCancel.setText(QStringLiteral("Cancel"));
    cmdApply.setText(QStringLiteral("Apply"));
    cmdReSet.setText(QStringLiteral("Reset Defaults"));
}

void OptionsDialog::buildBasic()
{
    chkSynch.setText(QStringLiteral("Synchronize OnTop with browser."));
    chkClosePopUps.setText(QStringLiteral("Close popup menus after they open."));
    chkEliminatePopUps.setText(QStringLiteral("Close popup menus before they open."));
    chkAssignRandomsToControls.setText(QStringLiteral("RandNav, assign randoms to controls."));
    chkSWebBrowserNextButton.setText(QStringLiteral("Show next button on web browser."));
    chkBrowseOnSavedLinkClick.setText(QStringLiteral("Browse to site on saved link click."));
    frameTime.setText(QStringLiteral("AutoNav/RandNav Wait Time (Seconds)"));
    chkWaitForFullPage.setText(QStringLiteral("Wait for full page to download."));
}

void OptionsDialog::buildAdvanced()
{
    fraAdvanced.setText(QStringLiteral("Advanced Options"));
    const auto texts = advTexts();
    for (int i = 0; i < 4; ++i)
        lblAdvOpt[i].setText(QString::fromLatin1(texts[i].label));
    Label8.setText(QString::fromLatin1(texts[4].label));
    chkWBTAdvUseTitles.setText(QStringLiteral("Use site titles."));
    Label6.setText(QStringLiteral("Auto function wait time limit. (0 = No limit)"));
    Label7.setText(QStringLiteral("Seconds"));
    lblPageSource.setText(QStringLiteral("Open the service's pages from:"));
    for (const QString& name : pageSourceNames())
        cboPageSource.addItem(name);
}

void OptionsDialog::connectRules()
{
    connect(&tbsOptions, &Control::clicked, this, [this] { TabClick(selectedTab()); });
    connect(&cmdOk, &Control::clicked, this, &OptionsDialog::OkClick);
    connect(&cmdApply, &Control::clicked, this, &OptionsDialog::ApplyClick);
    connect(&cmdCancel, &Control::clicked, this, &OptionsDialog::CancelClick);
    connect(&cmdReSet, &Control::clicked, this, &OptionsDialog::ReSetClick);
    connect(&txtWaitTime, &Control::changed, this, &OptionsDialog::WaitTimeChange);
    connect(&sldrWaitTime, &Control::changed, this,
            [this] { txtWaitTime.setText(QString::number(sldrWaitTime.value())); });
    connect(&chkWaitForFullPage, &Control::clicked, this, &OptionsDialog::FullPageClick);
    connect(&chkEliminatePopUps, &Control::clicked, this, &OptionsDialog::EliminatePopUpsClick);
    connect(&chkWBTAdvUseTitles, &Control::clicked, this, &OptionsDialog::UseTitlesClick);
    connect(&sldrLimit, &Control::changed, this, [this] {
        txtLimit.setText(QString::number(sldrLimit.value()));
        blnAdvOptChanged = true;
    });
    for (Control& box : txtAdvOpt)
        connect(&box, &Control::changed, this, [this] { blnAdvOptChanged = true; });
}

void OptionsDialog::TabClick(int tab)
{
    if (tab < 1 || tab > TabCount)
        return;
    if (tbsOptions.listIndex() != tab - 1)
        tbsOptions.setListIndex(tab - 1);
    for (int i = 0; i < TabCount; ++i)
        picOptions[i].setEnabled(i == tab - 1);
    form.setText(tabTitle(tab));
    cmdReSet.setVisible(tab == WbtTab || tab == SwsTab);
}

void OptionsDialog::KeyDown(int keyCode, int shift)
{
    if (keyCode == 9 && (shift & 2))
        TabClick(selectedTab() % TabCount + 1);
}

void OptionsDialog::frmOptCalls(OptCall code)
{
    try {
        if (code == OptCall::ServerClick)
            catalogue.ServerClick();
    } catch (const std::exception&) {
    }
}

void OptionsDialog::Load()
{
    SharedState& st = m_ctx.state;
    try {
        m_main.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
        if (st.gblnTreeShown)
            m_main.frmGeoCitiesCalls(GeoCitiesCall::GeoTree);
    } catch (const std::exception&) {
    }
    TabClick(BasicTab);
    loadBasic();
    loadAdvanced();
    catalogue.selectServer(st.gblnJapan);
    randNav.Load();
    loadBrowserTwo();
    wbt.LoadWbtLists();
    sws.LoadSwsLists();
}

void OptionsDialog::loadBasic()
{
    const SharedState& st = m_ctx.state;
    blnFormLoading = true;
    chkEliminatePopUps.setChecked(st.gblnEliminatePopUps);
    chkClosePopUps.setChecked(st.gblnClosePopUps);
    txtWaitTime.setText(QString::number(st.gintGlobalTimer / 1000));
    sldrWaitTime.setMinimum(st.gblnFullPages ? 1 : 5);
    chkWaitForFullPage.setChecked(st.gblnFullPages);
    txtWaitTime.setText(QString::number(sldrWaitTime.value()));
    txtAdvOpt[2].setToolTip(m_ctx.GetSetting(Sect::AdvOpt, Key::SearchURL));
    txtAdvOpt[3].setToolTip(m_ctx.GetSetting(Sect::AdvOpt, Key::ChatURL));
    chkBrowseOnSavedLinkClick.setChecked(st.gblnOSLOC);
    chkSWebBrowserNextButton.setChecked(st.gblnShowNextButton);
    chkAssignRandomsToControls.setChecked(st.gblnAssignRTC);
    chkSynch.setChecked(st.gblnOnTopSynch);
    blnFormLoading = false;
}

void OptionsDialog::loadAdvanced()
{
    const auto texts = advTexts();
    for (int i = 0; i < 5; ++i)
        txtAdvOpt[i].setText(m_ctx.GetSetting(Sect::AdvOpt, texts[i].key, texts[i].fallback));
    const bool fullPages = m_ctx.state.gblnFullPages;
    txtLimit.setEnabled(fullPages);
    sldrLimit.setEnabled(fullPages);
    if (fullPages) {
        const int seconds = Vb::CLng(m_ctx.GetSetting(Sect::Startup, Key::AutoLimit, "0")) / 1000;
        try {
            sldrLimit.setValue(seconds);
        } catch (const std::exception&) {
        }
        txtLimit.setText(QString::number(sldrLimit.value()));
    }
    cboPageSource.setListIndex(static_cast<int>(m_host.pageSource()));
    // Filling the boxes is no change of the user's.
    blnAdvOptChanged = false;
}

void OptionsDialog::loadBrowserTwo()
{
    auto stored = [this](const char* key, const char* fallback) {
        return m_ctx.GetSetting(Sect::WebBrwsrTwo, key, fallback);
    };
    wbt.chkUsingWBTAuto.setChecked(stored(Key::UseAutoMode, "1") == QLatin1String("1"));
    wbt.chkWBTPromptForNew.setChecked(stored(Key::PromptForNewFile, "1") == QLatin1String("1"));
    if (m_ctx.state.gblnWBTwoLoaded && m_ctx.ConnectionUp())
        wbt.txtWBTAdd.setText(m_host.browserTwoLocationName());
    chkWBTAdvUseTitles.setChecked(Vb::Val(stored(Key::UseSiteTitles, "0")) != 0);
    txtAdvOpt[4].setEnabled(!chkWBTAdvUseTitles.isChecked());
}

void OptionsDialog::WaitTimeChange()
{
    if (Vb::Val(txtWaitTime.text()) > 60) {
        txtWaitTime.setText(QStringLiteral("60"));
        return;
    }
    try {
        sldrWaitTime.setValue(Vb::CInt(Vb::Val(txtWaitTime.text())));
    } catch (const std::exception&) {
        // A value under the slider's minimum stays in the box; Ok raises it.
    }
}

void OptionsDialog::FullPageClick()
{
    sldrWaitTime.setMinimum(chkWaitForFullPage.isChecked() ? 1 : 5);
    txtWaitTime.setText(QString::number(sldrWaitTime.value()));
}

void OptionsDialog::EliminatePopUpsClick()
{
    if (!blnFormLoading && chkEliminatePopUps.isChecked())
        ShowLines(m_ctx.prompts, EliminateWarning, QStringLiteral("Warning!"), false);
}

void OptionsDialog::UseTitlesClick()
{
    txtAdvOpt[4].setEnabled(!chkWBTAdvUseTitles.isChecked());
}

void OptionsDialog::ApplyClick()
{
    blnApplyPressed = true;
    OkClick();
}

// Every step runs even when one before it failed; nothing is reported.
void OptionsDialog::OkClick()
{
    const std::function<void()> steps[] = {
        [this] { takeWaitTime(); },
        [this] { takeFlags(); },
        [this] { takeAdvanced(); },
        [this] {
            if (catalogue.blnCatalogueChanged)
                reloadCatalogue();
        },
        [this] { randNav.Save(); },
        [this] { takeBrowserTwo(); },
        [this] { m_main.frmGeoCitiesCalls(GeoCitiesCall::SaveMainSettings); }};
    for (const auto& step : steps) {
        try {
            step();
        } catch (const std::exception&) {
        }
    }
    if (blnApplyPressed) {
        blnApplyPressed = false;
        return;
    }
    closeDialog();
}

// The wait is kept in 16 bits: more than 32 seconds does not fit, and the
// old wait stays, although the box and the slider offer up to 60.
void OptionsDialog::takeWaitTime()
{
    SharedState& st = m_ctx.state;
    const double wanted = Vb::Val(txtWaitTime.text()) * 1000;
    if (wanted <= std::numeric_limits<qint16>::max() &&
        wanted >= std::numeric_limits<qint16>::min())
        st.gintGlobalTimer = Vb::CInt(wanted);
    st.gblnFullPages = chkWaitForFullPage.isChecked();
    if (st.gblnFullPages && st.gintGlobalTimer < 1)
        st.gintGlobalTimer = 1000;
    else if (!st.gblnFullPages && st.gintGlobalTimer < 5000)
        st.gintGlobalTimer = 5000;
}

void OptionsDialog::takeFlags()
{
    SharedState& st = m_ctx.state;
    st.gblnOSLOC = chkBrowseOnSavedLinkClick.isChecked();
    st.gblnClosePopUps = chkClosePopUps.isChecked();
    st.gblnShowNextButton = chkSWebBrowserNextButton.isChecked();
    if (st.gblnWBOneLoaded)
        m_host.browserOneNextButton();
    st.gblnAssignRTC = chkAssignRandomsToControls.isChecked();
    st.gblnOnTopSynch = chkSynch.isChecked();
    m_main.wander().setInterval(st.gintGlobalTimer);
    st.gblnEliminatePopUps = chkEliminatePopUps.isChecked();
}

void OptionsDialog::takeAdvanced()
{
    const PageSource source = static_cast<PageSource>(cboPageSource.listIndex());
    if (cboPageSource.listIndex() >= 0 && source != m_host.pageSource())
        m_host.choosePageSource(source);
    if (!blnAdvOptChanged)
        return;
    blnAdvOptChanged = false;
    const auto texts = advTexts();
    // An emptied box leaves its stored text alone.
    for (int i = 0; i < 4; ++i)
        if (!txtAdvOpt[i].text().isEmpty())
            m_ctx.SaveSetting(Sect::AdvOpt, texts[i].key, txtAdvOpt[i].text().trimmed());
    SharedState& st = m_ctx.state;
    st.gstrDefaultNote = txtAdvOpt[4].text();
    st.glngAutoLimit = Vb::CLng(Vb::Val(txtLimit.text()) * 1000);
    if (st.gblnWBOneLoaded) {
        m_host.browserOneLimit(st.glngAutoLimit);
        st.gblnAutoLimitOn = st.glngAutoLimit >= 1;
    }
    m_ctx.SaveSetting(Sect::Startup, Key::AutoLimit, QString::number(st.glngAutoLimit));
    m_ctx.SaveSetting(Sect::AdvOpt, Key::DefaultSN, st.gstrDefaultNote);
}

void OptionsDialog::takeBrowserTwo()
{
    SharedState& st = m_ctx.state;
    st.gblnWBTAutoMode = wbt.chkUsingWBTAuto.isChecked();
    st.gblnUseSiteTitles = chkWBTAdvUseTitles.isChecked();
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::UseSiteTitles, flag(st.gblnUseSiteTitles));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, flag(st.gblnWBTAutoMode));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::PromptForNewFile,
                      wbt.chkWBTPromptForNew.isChecked() ? QStringLiteral("1") : QString(""));
    if (wbt.blnWbtListsChanged) {
        try {
            wbt.SaveLists();
        } catch (const std::exception&) {
        }
        if (st.gblnWBTwoLoaded)
            m_host.browserTwoReloadLists();
    }
    if (wbt.blnWbtListsChanged || sws.blnSwsChanged) {
        if (sws.blnSwsChanged)
            sws.SaveSwsData();
        if (st.gblnWBTwoLoaded)
            m_host.browserTwoReloadLists();
    }
}

void OptionsDialog::reloadCatalogue()
{
    catalogue.blnCatalogueChanged = false;
    DisableOptionControls();
    try {
        m_host.reloadCatalogue();
    } catch (const std::exception&) {
    }
    EnableOptionControls();
}

void OptionsDialog::CancelClick()
{
    if (catalogue.blnCatalogueChanged)
        reloadCatalogue();
    closeDialog();
}

void OptionsDialog::closeDialog()
{
    m_main.controls().mnuOptions.setChecked(false);
    Unload();
    emit unloadWanted();
}

void OptionsDialog::ReSetClick()
{
    if (m_ctx.MsgBox(QStringLiteral("Restore defaults, any changes will be lost?"),
                     PromptService::YesNo | PromptService::Question,
                     QStringLiteral("Restore defaults!")) != PromptService::Yes)
        return;
    if (selectedTab() == WbtTab)
        wbt.ResetDefaults();
    else if (selectedTab() == SwsTab)
        sws.ResetDefaults();
}

void OptionsDialog::Unload()
{
    wbt.cmbWBTAddServer.clear();
    wbt.cmbWBTAddBadTitles.clear();
    if (!m_ctx.state.gblnWBTwoLoaded)
        m_ctx.state.gstrSWS.clear();
}

// The whole dialog goes off and on; each control keeps its own state, so
// that txtAdvOpt(4) stays off while site titles are used.
void OptionsDialog::setControlsEnabled(bool enabled)
{
    form.setEnabled(enabled);
}
