#include "Navigator.h"

#include "NavigatorHost.h"
#include "addressdata/CatalogueLoader.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/HelpPages.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"

#include <QFileInfo>
#include <exception>

namespace {
const char* const NoConnection = "No internet connection!";

QString flagText(bool flag)
{
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}
} // namespace

Navigator::Navigator(AppContext& ctx, NavigatorHost& host, NavigatorWindows& windows)
    : m_ctx(ctx), m_host(host), m_windows(windows), m_composer(ctx.state, m_c, *this),
      m_wander(ctx, *this), m_saved(ctx, m_c, m_composer, *this, host, windows),
      m_archiveMenu(ctx, m_sources), m_captured(ctx, m_sources)
{
    connectEvents();
    m_captured.currentBlock = [this] {
        return blockOf(m_c.cmbNeighborhood.text(), m_c.cmbSuburb.text());
    };
    connect(&m_archiveMenu, &ArchiveMenu::sourceChanged, &m_captured, &CapturedWalk::showChoice);
}

void Navigator::connectEvents()
{
    connect(&m_c.cmdOpenSite, &Control::clicked, this, &Navigator::OpenSite);
    connect(&m_c.cmdQuite, &Control::clicked, this, &Navigator::Unload);
    connect(&m_c.picNeighborhood, &Control::clicked, this, &Navigator::PictureClick);
    connect(&m_c.mnuJapan, &Control::clicked, this, &Navigator::JapanClick);
    connect(&m_c.mnuOnTop, &Control::clicked, this, &Navigator::OnTopClick);
    connect(&m_c.mnuGeoTree, &Control::clicked, this, &Navigator::GeoTreeClick);
    connect(&m_c.mnuOptions, &Control::clicked, this, &Navigator::OptionsClick);
    connect(&m_c.mnuAutoNav, &Control::clicked, this, &Navigator::AutoNavClick);
    connect(&m_c.mnuRandNav, &Control::clicked, this, &Navigator::RandNavClick);
}

QPoint Navigator::ClampMainPlace(int left, int top, const QSize& window, const QRect& screen)
{
    top = std::min(top, screen.height() - window.height());
    left = std::min(left, screen.width() - window.width());
    // Last, so that a window larger than the screen keeps its title bar on it.
    return {std::max(left, 0), std::max(top, 0)};
}

void Navigator::Load()
{
    const QRect screen = m_host.screenTwips();
    const QRect window = m_host.windowTwips();
    const int defaultTop = (screen.height() - window.height()) / 2;
    const int defaultLeft = (screen.width() - window.width()) / 2;
    const int top =
        Vb::CLng(m_ctx.GetSetting(Sect::VorlanMain, Key::MF_T, QString::number(defaultTop)));
    const int left =
        Vb::CLng(m_ctx.GetSetting(Sect::VorlanMain, Key::MF_L, QString::number(defaultLeft)));
    const QPoint place = ClampMainPlace(left, top, window.size(), screen);
    m_host.moveWindowTwips(place.x(), place.y());
    m_composer.FillDigitLists();
    m_composer.ComposeAddress();
    m_composer.ControlsReady = true;
}

void Navigator::LoadCatalogue()
{
    m_c.cmbNeighborhood.clear();
    ReadCatalogue(m_ctx, m_ctx.gdbMain);
    const CatalogueData& cat = m_ctx.state.catalogue;
    for (int i = 1; i <= cat.gintNeighborhoodCount; ++i)
        m_c.cmbNeighborhood.addItem(cat.name(i));
    m_saved.LoadSavedLinks(m_ctx.state.gblnJapan ? Tbl::JapanSaved : Tbl::UsaSaved);
    LoadMainSettings();
}

void Navigator::RefreshCatalogue()
{
    const QString neighborhood = m_c.cmbNeighborhood.text();
    const QString suburb = m_c.cmbSuburb.text();
    m_c.cmbNeighborhood.clear();
    ReadCatalogue(m_ctx, m_ctx.gdbMain);
    const CatalogueData& cat = m_ctx.state.catalogue;
    for (int i = 1; i <= cat.gintNeighborhoodCount; ++i)
        m_c.cmbNeighborhood.addItem(cat.name(i));
    m_c.cmbNeighborhood.setText(cat.find(neighborhood) > 0 ? neighborhood : cat.name(1));
    m_composer.FillSuburbs();
    if (m_c.cmbSuburb.items().contains(suburb))
        m_c.cmbSuburb.setText(suburb);
    m_composer.ComposeAddress();
}

void Navigator::SwitchRegionData(int code)
{
    if (code == 2)
        LoadCatalogue();
}

bool Navigator::readFlag(const char* section, const char* key, const char* defaultValue) const
{
    return m_ctx.GetSetting(section, key, defaultValue) == QLatin1String("1");
}

// A flag is only ever raised here: one stored as "0" keeps what it had.
void Navigator::raise(bool& flag, const char* section, const char* key, const char* defaultValue)
{
    if (readFlag(section, key, defaultValue))
        flag = true;
}

void Navigator::LoadMainSettings()
{
    SharedState& st = m_ctx.state;
    LeaveSavedView();
    raise(st.gblnOnTopSynch, Sect::AdvOpt, Key::OnTopSynch, "0");
    raise(st.gblnJapanRNS, Sect::AdvOpt, Key::JapanRNS, "0");
    raise(st.gblnUsaRNS, Sect::AdvOpt, Key::UsaRNS, "0");
    raise(st.gblnEliminatePopUps, Sect::Startup, Key::EliminatePopUps, "0");
    raise(st.gblnClosePopUps, Sect::Startup, Key::PopUps, "1");
    raise(st.gblnShowNextButton, Sect::Startup, Key::SNBOWB, "1");
    raise(st.gblnAssignRTC, Sect::Startup, Key::AssignRTC, "1");
    raise(st.gblnOSLOC, Sect::Startup, Key::OSLOC, "0");
    raise(st.gblnFullPages, Sect::Startup, Key::FullPages, "1");
    st.glngAutoLimit = Vb::CLng(m_ctx.GetSetting(Sect::Startup, Key::AutoLimit, "0"));
    m_archiveMenu.load();
    m_captured.showChoice();

    const QString firstName = st.catalogue.gastrCatalogue[0][0];
    QString neighborhood, suburb, house;
    if (st.gblnJapan) {
        neighborhood = m_ctx.GetSetting(Sect::Startup, Key::JapanNeighborhood, firstName);
        suburb = m_ctx.GetSetting(Sect::Startup, Key::JapanSuburb, "");
        house = m_ctx.GetSetting(Sect::Startup, Key::JapanHouseNumber, "");
        st.gstrSiteLabel = QLatin1String(Endpoint::JapanSiteLabel) + QLatin1Char('/');
    } else {
        neighborhood = m_ctx.GetSetting(Sect::Startup, Key::Neigh, firstName);
        suburb = m_ctx.GetSetting(Sect::Startup, Key::Subrb, "");
        house = m_ctx.GetSetting(Sect::Startup, Key::HouseNumber, "");
        st.gstrSiteLabel = QLatin1String(Endpoint::UsaSiteLabel) + QLatin1Char('/');
    }
    if (house.isEmpty())
        house = m_ctx.GetSetting(Sect::Startup, Key::HNPS, "1000");
    m_composer.HouseNumber = house;

    // Read into 16 bits: a stored wait above 32767 fails here.
    st.gintGlobalTimer = Vb::CInt(m_ctx.GetSetting(Sect::Startup, Key::GlobalTimer, "10000"));
    m_wander.setInterval(st.gintGlobalTimer);

    m_c.cmbNeighborhood.setText(neighborhood);
    m_composer.FillSuburbs();
    m_c.cmbSuburb.setText(suburb);
}

void Navigator::SaveMainSettings()
{
    SharedState& st = m_ctx.state;
    const SettingsStore::Batch batch(m_ctx.settings, st.gstrAppName);
    m_ctx.SaveSetting(Sect::AdvOpt, Key::OnTopSynch,
                      st.gblnOnTopSynch ? QStringLiteral("1") : QString(""));
    m_ctx.SaveSetting(Sect::AdvOpt, Key::JapanRNS, flagText(st.gblnJapanRNS));
    m_ctx.SaveSetting(Sect::AdvOpt, Key::UsaRNS, flagText(st.gblnUsaRNS));
    m_ctx.SaveSetting(Sect::Startup, Key::EliminatePopUps, flagText(st.gblnEliminatePopUps));
    m_ctx.SaveSetting(Sect::Startup, Key::PopUps, flagText(st.gblnClosePopUps));
    m_ctx.SaveSetting(Sect::Startup, Key::SNBOWB, flagText(st.gblnShowNextButton));
    m_ctx.SaveSetting(Sect::Startup, Key::AssignRTC, flagText(st.gblnAssignRTC));
    m_ctx.SaveSetting(Sect::Startup, Key::OSLOC, flagText(st.gblnOSLOC));
    m_ctx.SaveSetting(Sect::Startup, Key::FullPages, flagText(st.gblnFullPages));
    m_ctx.SaveSetting(Sect::Startup, Key::GlobalTimer, QString::number(st.gintGlobalTimer));

    const QRect window = m_host.windowTwips();
    m_ctx.SaveSetting(Sect::VorlanMain, Key::MF_T, QString::number(window.top()));
    m_ctx.SaveSetting(Sect::VorlanMain, Key::MF_L, QString::number(window.left()));

    m_ctx.SaveSetting(Sect::Startup, st.gblnJapan ? Key::JapanNeighborhood : Key::Neigh,
                      m_c.cmbNeighborhood.text());
    m_ctx.SaveSetting(Sect::Startup, st.gblnJapan ? Key::JapanSuburb : Key::Subrb,
                      m_c.cmbSuburb.text());
    const double house = Vb::Val(m_composer.HouseNumber);
    if (house <= 999 || house >= 10000)
        m_composer.HouseNumber = QStringLiteral("1000");
    m_ctx.SaveSetting(Sect::Startup, Key::HNPS, m_composer.HouseNumber);
}

void Navigator::OpenSite()
{
    if (m_c.txtFullAddress.text().isEmpty())
        return;
    if (m_ctx.state.gblnWBOneLoaded)
        m_windows.browserStop();
    else
        m_windows.ShowBrowserOne();
    frmGeoCitiesCalls(GeoCitiesCall::SaveMainSettings);
    NavigateSomeWhereElse(m_c.txtFullAddress.text());
}

void Navigator::NavigateSomeWhereElse(const QString& url)
{
    // A local file is opened as it stands; every other text that does not
    // begin with "http://www." gets that prefix, other URL forms included.
    const bool localFile = !url.isEmpty() && QFileInfo(url).isFile();
    QString target = url;
    if (url.left(11).toLower() != QLatin1String("http://www.") && !localFile)
        target = QStringLiteral("http://www.") + url;
    // The service is gone: its addresses open from the chosen archive or
    // mirror, and every other address as it stands.
    target = m_sources.rewrite(target).target;
    try {
        m_windows.ShowBrowserOne();
    } catch (const std::exception&) {
    }
    try {
        m_windows.browserNavigate(target);
    } catch (const std::exception&) {
    }
}

void Navigator::GoBack()
{
    try {
        StopAutoModes();
        m_windows.browserStop();
        m_windows.browserGoBack();
    } catch (const std::exception&) {
    }
}

QString Navigator::blockOf(const QString& neighborhood, const QString& suburb) const
{
    return CaptureIndex::blockKey(m_ctx.state.gstrSiteLabel, neighborhood, suburb,
                                  m_ctx.state.gblnJapan);
}

int Navigator::CapturedStep(const QString& house, int direction)
{
    return m_captured.step(blockOf(m_c.cmbNeighborhood.text(), m_c.cmbSuburb.text()),
                           static_cast<int>(Vb::Val(house)), direction);
}

void Navigator::LeaveSavedView()
{
    m_saved.LeaveSavedView();
}

void Navigator::StopAutoModes()
{
    if (m_c.mnuRandNav.isChecked())
        RandNavClick();
    if (m_c.mnuAutoNav.isChecked())
        AutoNavClick();
}

bool Navigator::RandNavRunning() const
{
    return m_c.mnuRandNav.isChecked();
}

void Navigator::JapanClick()
{
    SharedState& st = m_ctx.state;
    const QString neighborhood = m_c.cmbNeighborhood.text();
    const QString suburb = m_c.cmbSuburb.text();
    const QString house =
        m_c.cmbHouseNumberPrefix.text().trimmed() + m_c.cmbHouseNumberSuffix.text().trimmed();
    if (st.gblnTreeShown)
        GeoTreeClick(); // the tree shows one site only
    const bool leavingJapan = m_c.mnuJapan.isChecked();
    // A failing store loses the address of the region left, not the switch.
    try {
        m_ctx.SaveSetting(Sect::Startup, leavingJapan ? Key::JapanNeighborhood : Key::Neigh,
                          neighborhood);
        m_ctx.SaveSetting(Sect::Startup, leavingJapan ? Key::JapanSuburb : Key::Subrb, suburb);
        m_ctx.SaveSetting(Sect::Startup, leavingJapan ? Key::JapanHouseNumber : Key::HouseNumber,
                          house);
    } catch (const std::exception&) {
    }
    m_c.form.setText(leavingJapan ? QStringLiteral("Navigate GeoCities USA")
                                  : QStringLiteral("Navigate GeoCities Japan"));
    st.gblnJapan = !leavingJapan;
    m_c.mnuJapan.setChecked(!leavingJapan);
    try {
        SwitchRegionData(2);
    } catch (const std::exception&) {
    }
}

void Navigator::OnTopClick()
{
    SharedState& st = m_ctx.state;
    const bool on = !m_c.mnuOnTop.isChecked();
    m_c.mnuOnTop.setChecked(on);
    m_host.setWindowOnTop(on);
    st.gblnMainOnTop = on;
    if (st.gblnOnTopSynch && st.gblnWBOneLoaded && st.gblnWBOneOnTop != on)
        m_windows.toggleBrowserOneOnTop();
}

void Navigator::releaseOnTop()
{
    if (m_ctx.state.gblnMainOnTop)
        OnTopClick();
    if (m_ctx.state.gblnWBOneOnTop)
        m_windows.toggleBrowserOneOnTop();
}

void Navigator::GeoTreeClick()
{
    SharedState& st = m_ctx.state;
    if (m_c.mnuGeoTree.isChecked()) {
        m_windows.unloadWindow(ProgramWindow::GeoTree);
        m_c.mnuGeoTree.setChecked(false);
        st.gblnTreeShown = false;
        return;
    }
    releaseOnTop();
    if (m_windows.showWindow(ProgramWindow::GeoTree))
        m_c.mnuGeoTree.setChecked(true);
}

void Navigator::OptionsClick()
{
    if (m_c.mnuOptions.isChecked())
        return;
    releaseOnTop();
    m_c.mnuOptions.setChecked(true);
    m_c.mnuOptions.setEnabled(false);
    m_windows.showWindow(ProgramWindow::Options);
    m_c.mnuOptions.setEnabled(true);
}

void Navigator::ShowProgramWindow(ProgramWindow window)
{
    // An open Browser Two only comes to the front: the on-top states stay.
    if (window != ProgramWindow::BrowserTwo || !m_ctx.state.gblnWBTwoLoaded)
        releaseOnTop();
    m_windows.showWindow(window);
}

void Navigator::InetGetClick()
{
    if (!m_ctx.ConnectionUp()) {
        m_ctx.MsgBox(QString::fromLatin1(NoConnection));
        return;
    }
    ShowProgramWindow(ProgramWindow::Inetget);
}

void Navigator::HelpClick()
{
    const QString index = HelpPages::extractTo(m_ctx.state.gstrDataPath + QStringLiteral("help"));
    if (!index.isEmpty())
        NavigateSomeWhereElse(index);
}

void Navigator::HomeClick()
{
    StopAutoModes();
    NavigateSomeWhereElse(QString::fromLatin1(Endpoint::ProductHomeUrl));
}

void Navigator::GeoCitiesClick()
{
    StopAutoModes();
    NavigateSomeWhereElse(m_ctx.state.gstrSiteLabel);
}

void Navigator::GeoSearchClick()
{
    StopAutoModes();
    NavigateSomeWhereElse(m_ctx.GetSetting(Sect::AdvOpt, Key::SearchURL,
                                           QLatin1String(Endpoint::UsaSiteUrl) +
                                               QStringLiteral("/cgi-bin/search/geosearch")));
}

void Navigator::GeoChatClick()
{
    StopAutoModes();
    NavigateSomeWhereElse(
        m_ctx.GetSetting(Sect::AdvOpt, Key::ChatURL,
                         QLatin1String(Endpoint::UsaSiteUrl) + QStringLiteral("/chat/")));
}

void Navigator::PictureClick()
{
    if (!m_ctx.ConnectionUp()) {
        m_ctx.MsgBox(QString::fromLatin1(NoConnection));
        return;
    }
    StopAutoModes();
    const CatalogueData& cat = m_ctx.state.catalogue;
    const int i = m_composer.CurrentNeighborhood;
    if (i >= 1 && i <= CatalogueData::Rows)
        NavigateSomeWhereElse(m_ctx.state.gstrSiteLabel + cat.name(i) + QLatin1Char('/'));
}

void Navigator::Unload()
{
    SharedState& st = m_ctx.state;
    // A store that fails by now (a full disk, a file damaged meanwhile)
    // costs these settings, never the rest of the shutdown.
    try {
        SaveMainSettings();
    } catch (const std::exception&) {
    }
    m_windows.unloadWindow(ProgramWindow::Inetget);
    m_windows.unloadWindow(ProgramWindow::GeoFtp);
    if (st.gblnWBOneLoaded) {
        m_windows.browserStop();
        m_windows.unloadWindow(ProgramWindow::BrowserOne);
    }
    if (st.gblnWBTwoLoaded)
        m_windows.unloadWindow(ProgramWindow::BrowserTwo);
    if (st.gblnCacheLoaded)
        m_windows.unloadWindow(ProgramWindow::Cache);
    m_ctx.gdbMain.close();
    m_host.endProgram();
}

void Navigator::frmGeoCitiesCalls(GeoCitiesCall code)
{
    try {
        switch (code) {
        case GeoCitiesCall::NeighborhoodClick:
            m_c.cmbNeighborhood.click();
            break;
        case GeoCitiesCall::GoBack:
            m_c.cmdGoBack.click();
            break;
        case GeoCitiesCall::Next:
            m_c.cmdNext.click();
            break;
        case GeoCitiesCall::OpenSite:
            m_c.cmdOpenSite.click();
            break;
        case GeoCitiesCall::ShowBrowserOne:
            m_windows.ShowBrowserOne();
            break;
        case GeoCitiesCall::BrowserTwo:
            ShowProgramWindow(ProgramWindow::BrowserTwo);
            break;
        case GeoCitiesCall::Quit:
            m_c.cmdQuite.click();
            break;
        case GeoCitiesCall::RandNav:
            m_c.mnuRandNav.click();
            break;
        case GeoCitiesCall::AutoNav:
            m_c.mnuAutoNav.click();
            break;
        case GeoCitiesCall::SaveMainSettings:
            SaveMainSettings();
            break;
        case GeoCitiesCall::GeoTree:
            m_c.mnuGeoTree.click();
            break;
        case GeoCitiesCall::OnTop:
            m_c.mnuOnTop.click();
            break;
        case GeoCitiesCall::ValidateSelection:
            m_composer.ValidateSelection();
            break;
        case GeoCitiesCall::LoadMainSettings:
            LoadMainSettings();
            break;
        case GeoCitiesCall::RandNavStep:
            RandNavStep();
            break;
        case GeoCitiesCall::ComposeAddress:
            m_composer.ComposeAddress();
            break;
        case GeoCitiesCall::StopAutoModes:
            StopAutoModes();
            break;
        case GeoCitiesCall::SavedLinkClick:
            m_c.cmbSavedLinks.click();
            break;
        }
    } catch (const std::exception&) {
        // Other windows press these buttons blind: a failure stays here.
    }
}

void Navigator::browserStop()
{
    if (m_ctx.state.gblnWBOneLoaded)
        m_windows.browserStop();
}

void Navigator::AutoNavClick()
{
    m_wander.AutoNavClick();
}
void Navigator::RandNavClick()
{
    m_wander.RandNavClick();
}
void Navigator::RandNavStep()
{
    m_wander.RandNavStep();
}
