#include "BrowserOne.h"

#include "BrowserControl.h"
#include "BrowserOneHost.h"
#include "core/AppContext.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/NavigatorControls.h"
#include "navigator/PageSources.h"
#include "navigator/Wander.h"

#include <exception>

namespace {
const QString FiveBlanks(5, QLatin1Char(' '));
const QString TenBlanks(10, QLatin1Char(' '));
} // namespace

BrowserOne::BrowserOne(AppContext& ctx, MainWindowCalls& main, BrowserControl& browser,
                       BrowserOneHost& host)
    : m_ctx(ctx), m_nav(main), m_browser(browser), m_host(host)
{
    form.setText(QStringLiteral("Navigate GeoCities"));
    cmdNext.setText(QStringLiteral("&Next"));
    mnuAutoNav.setText(QStringLiteral("&AutoNav"));
    mnuRandNav.setText(QStringLiteral("&RandNav"));
    mnuTop.setText(QStringLiteral("On Top"));
    mnuSaved.setText(QStringLiteral("Saved"));
    cmdNext.setVisible(false);
    txtAddressBar.setVisible(false);

    connect(&browser, &BrowserControl::ProgressChange, this, &BrowserOne::ProgressChange);
    connect(&browser, &BrowserControl::NewWindow2, this, &BrowserOne::NewWindow2);
    connect(&browser, &BrowserControl::NavigateComplete2, this, &BrowserOne::NavigateComplete2);
    connect(&tmrLimit, &QTimer::timeout, this, &BrowserOne::LimitTick);
    connect(&cmdNext, &Control::clicked, this, &BrowserOne::CmdNextClick);
    connect(&mnuAutoNav, &Control::clicked, this, &BrowserOne::AutoNavClick);
    connect(&mnuRandNav, &Control::clicked, this, &BrowserOne::RandNavClick);
    connect(&mnuTop, &Control::clicked, this, &BrowserOne::TopClick);
    connect(&mnuSaved, &Control::clicked, this, &BrowserOne::savedClicked);
    connect(&main.wander(), &Wander::modeChanged, this, &BrowserOne::showMode);
    connect(&main.wander(), &Wander::limitTimerOff, &tmrLimit, &QTimer::stop);
}

void BrowserOne::Load()
{
    SharedState& st = m_ctx.state;
    try {
        const QRect screen = m_host.screenTwips();
        const QRect window = m_host.windowTwips();
        const QString defaultLeft = QString::number((screen.width() - window.width()) / 2);
        const QString defaultTop = QString::number((screen.height() - window.height()) / 2);
        m_host.placeWindow(m_ctx.GetSetting(Sect::WebBrowser, Key::NSWE_L, defaultLeft),
                           m_ctx.GetSetting(Sect::WebBrowser, Key::NSWE_T, defaultTop),
                           m_ctx.GetSetting(Sect::WebBrowser, Key::NSWE_H, "3300"),
                           m_ctx.GetSetting(Sect::WebBrowser, Key::NSWE_W, "5000"));
    } catch (const std::exception&) {
        // A place that cannot be read leaves the window where it is.
    }
    cmdNext.setVisible(st.gblnShowNextButton);
    txtAddressBar.setVisible(st.gblnShowNextButton);
    if (st.gblnOnTopSynch && st.gblnMainOnTop && !st.gblnWBOneOnTop)
        TopClick();
    tmrLimit.setInterval(std::max(st.glngAutoLimit, 0));
    st.gblnAutoLimitOn = st.glngAutoLimit >= 1;
    showMode();
}

void BrowserOne::Unload()
{
    SharedState& st = m_ctx.state;
    NavigatorControls& main = m_nav.controls();
    if (main.mnuAutoNav.isChecked())
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::AutoNav);
    if (main.mnuRandNav.isChecked())
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::RandNav);
    tmrLimit.stop();
    st.gblnWBOneLoaded = false;
    st.gblnWBOneOnTop = false;
    AddressBarEdited = false;
    m_host.unloadLinksPanel();
    main.cmdGoBack.setEnabled(false);
    PendingList.clear();
    const QRect place = m_host.windowTwips();
    try {
        m_ctx.SaveSetting(Sect::WebBrowser, Key::NSWE_W, QString::number(place.width()));
        m_ctx.SaveSetting(Sect::WebBrowser, Key::NSWE_H, QString::number(place.height()));
        m_ctx.SaveSetting(Sect::WebBrowser, Key::NSWE_L, QString::number(place.left()));
        m_ctx.SaveSetting(Sect::WebBrowser, Key::NSWE_T, QString::number(place.top()));
    } catch (const std::exception&) {
    }
}

QString BrowserOne::ProgressTextFor(int progress, int progressMax)
{
    if (progressMax < 1)
        return QStringLiteral("Done");
    int percent = 0;
    try {
        percent = Vb::CInt(static_cast<double>(progress) / progressMax * 100.0);
    } catch (const VbError&) {
        return progress < 0 ? QString() : QStringLiteral("Done");
    }
    if (percent < 0)
        return QString();
    if (percent > 100)
        return QStringLiteral("Done");
    return QString::number(percent) + QLatin1Char('%');
}

void BrowserOne::ProgressChange(int progress, int progressMax)
{
    SharedState& st = m_ctx.state;
    if (st.gblnClosePopUps)
        ClosePopUpWindows();
    ProgressText = ProgressTextFor(progress, progressMax);
    QString title = m_browser.LocationName();
    CurrentUrl = m_browser.LocationURL();
    if (CurrentUrl.isEmpty())
        CurrentUrl = QString::fromLatin1(UrlHint);
    // An archived or mirrored page shows the address it stands for, with
    // the source's short name; any other address shows as it is.
    const QString shown = m_nav.pageSources().shown(CurrentUrl);
    if (st.gblnShowNextButton) {
        if (title.isEmpty())
            title = QString::fromLatin1(UrlHint);
        if (CurrentUrl != QLatin1String(UrlHint) && !AddressBarEdited)
            txtAddressBar.setText(shown);
        QString caption =
            FiveBlanks + title + TenBlanks + QLatin1Char('[') + ProgressText + QLatin1Char(']');
        if (shown != CurrentUrl)
            caption += TenBlanks + shown;
        form.setText(caption);
    } else {
        form.setText(shown + FiveBlanks + QLatin1Char('[') + ProgressText + QLatin1Char(']') +
                     TenBlanks + title);
    }
    paceWalks(progress, progressMax);
}

// With "Wait for full page" the walk's timer runs only from a completed
// load, and any later event of a page still loading holds it again; without
// it the timer runs from the first event on.
void BrowserOne::paceWalks(int progress, int progressMax)
{
    const SharedState& st = m_ctx.state;
    NavigatorControls& main = m_nav.controls();
    QTimer* pace = nullptr;
    if (main.mnuAutoNav.isChecked())
        pace = &m_nav.wander().tmrAN;
    else if (main.mnuRandNav.isChecked())
        pace = &m_nav.wander().tmrRB;
    if (!pace)
        return;
    if (!st.gblnFullPages) {
        Wander::enable(*pace);
    } else if (progress != progressMax) {
        if (st.gblnAutoLimitOn)
            Wander::enable(tmrLimit);
        pace->stop();
    } else {
        if (st.gblnAutoLimitOn)
            tmrLimit.stop();
        Wander::enable(*pace);
    }
}

void BrowserOne::LimitTick()
{
    try {
        if (mnuAutoNav.isChecked()) {
            m_browser.Stop();
            Wander::enable(m_nav.wander().tmrAN);
            m_nav.frmGeoCitiesCalls(GeoCitiesCall::Next);
        } else if (mnuRandNav.isChecked()) {
            m_browser.Stop();
            Wander::enable(m_nav.wander().tmrRB);
            m_nav.frmGeoCitiesCalls(GeoCitiesCall::RandNavStep);
        }
    } catch (const std::exception&) {
    }
}

void BrowserOne::NewWindow2(bool* cancel)
{
    if (m_ctx.state.gblnEliminatePopUps && cancel)
        *cancel = true;
}

void BrowserOne::NavigateComplete2(const QString&)
{
    m_nav.controls().cmdGoBack.setEnabled(true);
    AddressBarEdited = false;
}

// The program's own browser windows come first: one, or two while Browser
// Two is open. Every window after them was opened by a page.
void BrowserOne::ClosePopUpWindows()
{
    try {
        m_host.closeWindowsAfter(m_ctx.state.gblnWBTwoLoaded ? 2 : 1);
    } catch (const std::exception&) {
    }
}

void BrowserOne::CommunicatWithNetPic(const QStringList& list)
{
    PendingList = list;
    PendingIndex = 0;
    PendingActive = true;
}

void BrowserOne::CmdNextClick()
{
    if (PendingActive) {
        ++PendingIndex;
        if (PendingIndex != PendingList.size()) {
            m_nav.NavigateSomeWhereElse(PendingList.value(PendingIndex));
            return;
        }
        PendingActive = false;
        PendingIndex = 0;
        PendingList.clear();
    }
    NextClick();
}

void BrowserOne::AddressBarKey(int key)
{
    if (txtAddressBar.text().isEmpty())
        return;
    if (key == 13) {
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
        m_nav.NavigateSomeWhereElse(PageSources::withoutLabel(txtAddressBar.text()));
    } else {
        AddressBarEdited = true;
    }
}

QString BrowserOne::CopyUrlText() const
{
    const QString original = m_nav.pageSources().originalOf(CurrentUrl).original;
    return original.isEmpty() ? CurrentUrl : original + QLatin1Char('\n') + CurrentUrl;
}

void BrowserOne::AddressBarClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
}

void BrowserOne::WindowKey(int key)
{
    if (key == 13 || key == 32)
        NextClick();
}

void BrowserOne::TopClick()
{
    SharedState& st = m_ctx.state;
    try {
        const bool on = !mnuTop.isChecked();
        mnuTop.setChecked(on);
        m_host.setWindowOnTop(on);
        st.gblnWBOneOnTop = on;
        if (st.gblnOnTopSynch && on != st.gblnMainOnTop)
            m_nav.frmGeoCitiesCalls(GeoCitiesCall::OnTop);
    } catch (const std::exception&) {
    }
}

QString BrowserOne::SearchHost(int index, bool japan)
{
    static const char* const hosts[] = {"altavista.com", "hotbot.com", "switchboard.com",
                                        "lycos.com",     "excite.com", "infoseek.com",
                                        "yahoo.com"};
    if (index == 6 && japan)
        return QStringLiteral("yahoo.co.jp");
    return index >= 0 && index <= 6 ? QString::fromLatin1(hosts[index]) : QString();
}

void BrowserOne::SearchClick(int index)
{
    try {
        m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
        m_nav.NavigateSomeWhereElse(SearchHost(index, m_ctx.state.gblnJapan));
    } catch (const std::exception&) {
    }
}

void BrowserOne::frmWBOCalls(WBOCall command)
{
    try {
        switch (command) {
        case WBOCall::OnTop:
            TopClick();
            break;
        case WBOCall::Saved:
            emit savedClicked();
            break;
        case WBOCall::Resize:
            emit resizeRequested();
            break;
        }
    } catch (const std::exception&) {
    }
}

bool BrowserOne::HoverMenuAt(int x, int y, int pageWidth, int pageHeight, bool overAddressBar)
{
    const double from = overAddressBar ? 0.5 : 0.1;
    return x > from * pageWidth && x < 0.8 * pageWidth && y < 0.25 * pageHeight;
}

void BrowserOne::StopClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
    m_browser.Stop();
}

void BrowserOne::NextClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::Next);
}

void BrowserOne::BackClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::StopAutoModes);
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::GoBack);
}

void BrowserOne::AutoNavClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::AutoNav);
}
void BrowserOne::RandNavClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::RandNav);
}
void BrowserOne::ExitClick()
{
    m_nav.frmGeoCitiesCalls(GeoCitiesCall::Quit);
}

void BrowserOne::showMode()
{
    const Wander::Mode mode = m_nav.wander().mode();
    mnuAutoNav.setChecked(mode == Wander::Mode::AutoNav);
    mnuRandNav.setChecked(mode == Wander::Mode::RandNav);
    m_host.showWalkColours(mode);
}
