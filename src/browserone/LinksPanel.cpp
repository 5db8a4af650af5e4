#include "LinksPanel.h"

#include "BrowserOne.h"
#include "LinksPanelHost.h"
#include "core/AppContext.h"
#include "core/SettingsKeys.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/NavigatorControls.h"
#include "navigator/SavedLinks.h"

#include <exception>

LinksPanel::LinksPanel(AppContext& ctx, MainWindowCalls& main, BrowserOne& browser,
                       LinksPanelHost& host)
    : m_ctx(ctx), m_nav(main), m_browser(browser), m_host(host)
{
    connect(&browser, &BrowserOne::savedClicked, this, &LinksPanel::SavedClick);
    connect(&main.savedLinks().lstLinks, &Control::clicked, this, &LinksPanel::ListClick);
}

void LinksPanel::SavedClick()
{
    try {
        if (m_browser.mnuSaved.isChecked())
            close();
        else
            open();
    } catch (const std::exception&) {
    }
}

void LinksPanel::open()
{
    SharedState& st = m_ctx.state;
    // A topmost Browser One would cover the panel.
    if (st.gblnWBOneOnTop)
        m_browser.frmWBOCalls(WBOCall::OnTop);
    const QRect screen = m_host.screenTwips();
    const QRect panel = m_host.panelTwips();
    const QString top = m_ctx.GetSetting(Sect::Startup, Key::LinksT,
                                         QString::number((screen.height() - panel.height()) / 2));
    const QString left = m_ctx.GetSetting(Sect::Startup, Key::LinksL,
                                          QString::number((screen.width() - panel.width()) / 2));
    const QString height = m_ctx.GetSetting(Sect::Startup, Key::LinksH, "3300");
    const QString width = m_ctx.GetSetting(Sect::Startup, Key::LinksW, "5000");
    m_browser.mnuSaved.setChecked(true);
    st.gblnLinksPanelOpen = true;
    m_host.placePanel(left, top, height, width);
    SavedLinks& links = m_nav.savedLinks();
    if (links.lstLinks.listCount() < 1)
        links.LoadSavedLinks(st.gblnJapan ? Tbl::JapanSaved : Tbl::UsaSaved);
    m_host.showPanel();
}

void LinksPanel::close()
{
    savePlace();
    m_host.closePanel();
    m_ctx.state.gblnLinksPanelOpen = false;
    m_browser.mnuSaved.setChecked(false);
}

void LinksPanel::QueryUnload()
{
    try {
        savePlace();
    } catch (const std::exception&) {
    }
    m_ctx.state.gblnLinksPanelOpen = false;
    m_browser.mnuSaved.setChecked(false);
}

void LinksPanel::savePlace()
{
    const QRect place = m_host.panelTwips();
    m_ctx.SaveSetting(Sect::Startup, Key::LinksT, QString::number(place.top()));
    m_ctx.SaveSetting(Sect::Startup, Key::LinksL, QString::number(place.left()));
    m_ctx.SaveSetting(Sect::Startup, Key::LinksH, QString::number(place.height()));
    m_ctx.SaveSetting(Sect::Startup, Key::LinksW, QString::number(place.width()));
}

void LinksPanel::ListClick()
{
    const int index = m_nav.savedLinks().lstLinks.listIndex();
    if (index < 0)
        return;
    NavigatorControls& main = m_nav.controls();
    try {
        main.cmbSavedLinks.setListIndex(index);
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::SavedLinkClick);
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
        m_nav.NavigateSomeWhereElse(main.txtFullAddress.text());
    } catch (const std::exception&) {
    }
}

QRect LinksPanel::KeepOnScreen(const QRect& place, const QRect& screen)
{
    QRect kept = place;
    if (kept.left() < 0)
        kept.moveLeft(0);
    if (kept.left() + kept.width() > screen.width())
        kept.moveLeft(screen.width() - kept.width());
    if (kept.top() < 0)
        kept.moveTop(0);
    if (kept.top() + kept.height() > screen.height())
        kept.moveTop(screen.height() - kept.height());
    return kept;
}
