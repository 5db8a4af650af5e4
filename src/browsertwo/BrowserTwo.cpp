#include "BrowserTwo.h"

#include "BrowserTwoHost.h"
#include "ServersWithSuburbs.h"
#include "TitleTest.h"
#include "WbtServerTables.h"
#include "WordListActions.h"
#include "addressdata/TextDatabase.h"
#include "browserone/BrowserControl.h"
#include "browserone/BrowserOne.h"
#include "core/AppContext.h"
#include "core/Endpoints.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"

#include <QCoreApplication>
#include <exception>

namespace {
const QString FiveBlanks(5, QLatin1Char(' '));
const QString TenBlanks(10, QLatin1Char(' '));
const char* const RowKeys[] = {Key::AServerToolBar, Key::AButtonToolBar, Key::AListToolBar};
const char* const SelectList = "You must first select a list!";

Control* makeControl(QObject* owner, const QString& name, const QString& text = QString())
{
    auto* control = new Control(name, owner);
    control->setText(text);
    return control;
}

QString flag(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}
} // namespace

BrowserTwo::BrowserTwo(AppContext& ctx, BrowserControl& browser, BrowserTwoHost& host,
                       WordListActions& lists)
    : m_ctx(ctx), m_browser(browser), m_host(host), m_lists(lists)
{
    const QStringList tools = {"Prev", "Next", "Back", "Save", "View", "Del", "Stop"};
    for (int i = 0; i < 7; ++i) {
        cmdWBTTools[i] = makeControl(this, QStringLiteral("cmdWBTTools[%1]").arg(i), tools[i]);
        connect(cmdWBTTools[i], &Control::clicked, this, [this, i] { ToolsClick(i); });
    }
    const QStringList lists3 = {"Load", "Del", "Add"};
    const QStringList rows = {"Server Selection", "Navigation Buttons", "Site name Lists"};
    for (int i = 0; i < 3; ++i) {
        cmdLists[i] = makeControl(this, QStringLiteral("cmdLists[%1]").arg(i), lists3[i]);
        connect(cmdLists[i], &Control::clicked, this, [this, i] { ListsClick(i); });
        picTools[i] = makeControl(this, QStringLiteral("picTools[%1]").arg(i));
        picTools[i]->setVisible(false);
        mnuToolsSubs[i] = makeControl(this, QStringLiteral("mnuToolsSubs[%1]").arg(i), rows[i]);
        connect(mnuToolsSubs[i], &Control::clicked, this, [this, i] { RowClick(i); });
    }
    for (int i = 1; i <= 3; ++i)
        panels[i] = makeControl(this, QStringLiteral("StatusBarWBT[%1]").arg(i));
    cmdUnload.setText(QStringLiteral("Unload"));
    form.setText(QStringLiteral("Navigate"));
    cboSWSuburbs.setEnabled(false);
    tmrAuto.setInterval(AutoInterval);

    connect(&browser, &BrowserControl::ProgressChange, this, &BrowserTwo::ProgressChange);
    connect(&browser, &BrowserControl::NewWindow2, this, &BrowserTwo::NewWindow2);
    connect(&browser, &BrowserControl::NavigateComplete2, this, &BrowserTwo::NavigateComplete2);
    connect(&tmrAuto, &QTimer::timeout, this, &BrowserTwo::AutoTick);
    connect(&hscrWBT, &Control::changed, this, &BrowserTwo::BarChange);
    connect(&cmbServer, &Control::clicked, this, &BrowserTwo::SelectServer);
    connect(&cmbServer, &Control::changed, this, &BrowserTwo::SelectServer);
    connect(&cboSWSuburbs, &Control::clicked, this, &BrowserTwo::SuburbChange);
    connect(&cboSWSuburbs, &Control::changed, this, &BrowserTwo::SuburbChange);
    connect(&cmdUnload, &Control::clicked, this, &BrowserTwo::UnloadClick);
}

BrowserTwo::~BrowserTwo() = default;

int BrowserTwo::upperBound() const
{
    return std::max(int(m_ctx.state.gstrSites.size()) - 1, 0);
}

void BrowserTwo::Load()
{
    for (int i = 0; i < 3; ++i) {
        if (m_ctx.GetSetting(Sect::WebBrwsrTwo, RowKeys[i], i == ListRow ? "0" : "1") ==
            QLatin1String("1"))
            RowClick(i);
    }
    try {
        const QRect screen = m_host.screenTwips();
        const QRect window = m_host.windowTwips();
        m_host.placeWindow(
            m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::NSWE_L,
                             QString::number((screen.width() - window.width()) / 2)),
            m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::NSWE_T,
                             QString::number((screen.height() - window.height()) / 2)),
            m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::NSWE_H, "3300"),
            m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::NSWE_W, "5000"));
    } catch (const std::exception&) {
    }
    if (WindowReady)
        SavePosition();
    LoadServerList();
    ActiveListName = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList);
    if (!ActiveListName.isEmpty()) {
        cboLists.setText(ActiveListName);
        ListsClick(0);
    }
    WindowReady = true;
    const QString stored = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList);
    if (!stored.isEmpty())
        panels[1]->setText(stored + QStringLiteral(" Loaded!"));
}

void BrowserTwo::Unload()
{
    SharedState& st = m_ctx.state;
    tmrAuto.stop();
    m_host.unloadLinkWindows();
    ServerUrls.clear();
    BadTitles.clear();
    st.gstrSites.clear();
    st.gstrSWS.clear();
    try {
        savePlace();
        for (int i = 0; i < 3; ++i)
            m_ctx.SaveSetting(Sect::WebBrwsrTwo, RowKeys[i], flag(mnuToolsSubs[i]->isChecked()));
        m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CmbServer, cmbServer.text());
        m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CboSubSWS, cboSWSuburbs.text());
        SavePosition();
    } catch (const std::exception&) {
    }
    WindowReady = false;
    st.gblnWBTwoLoaded = false;
    m_lists.release();
}

void BrowserTwo::savePlace()
{
    const QRect place = m_host.windowTwips();
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::NSWE_W, QString::number(place.width()));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::NSWE_H, QString::number(place.height()));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::NSWE_L, QString::number(place.left()));
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::NSWE_T, QString::number(place.top()));
}

void BrowserTwo::SavePosition()
{
    ServerBase = cmbServer.text();
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CurrentServer, ServerBase);
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CurrentSite, QString::number(CurrentSiteIndex));
}

// ---------------------------------------------------------------- servers

void BrowserTwo::LoadServerList()
{
    SharedState& st = m_ctx.state;
    const QString earlier = WindowReady ? cmbServer.text() : QString();
    ServerUrls.clear();
    BadTitles.clear();
    st.gblnWBTAutoMode = false;
    SkipPage = false;
    tmrAuto.stop();
    cmbServer.clear();
    readServerTables();
    ServerBase = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::CmbServer, "");
    CurrentSiteIndex = qint32(Vb::Val(m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::CurrentSite, "1")));
    cmbServer.setText(ServerBase);
    if (WindowReady && ServerUrls.contains(earlier))
        ServerBase = earlier;
    const bool plain = ServerUrls.contains(ServerBase);
    if (plain)
        cmbServer.setText(ServerBase);
    addSuburbServers();
    if (!plain) {
        const int found = cmbServer.items().indexOf(ServerBase, ServerUrls.size());
        cmbServer.setListIndex(found >= 0 ? found : (cmbServer.listCount() > 0 ? 0 : -1));
    }
    SelectServer();
    applyAutoMode();
}

void BrowserTwo::readServerTables()
{
    try {
        ServerUrls = WbtServerTables::readServers(m_ctx.gdbMain, m_ctx.state);
        for (const QString& url : ServerUrls) {
            cmbServer.addItem(url);
            QCoreApplication::processEvents();
        }
        BadTitles = WbtServerTables::readBadTitles(m_ctx.gdbMain, m_ctx.state);
    } catch (const std::exception&) {
        // A table that cannot be read leaves the lists as far as they came.
    }
}

void BrowserTwo::addSuburbServers()
{
    SwsTable& sws = m_ctx.state.gstrSWS;
    try {
        if (!ReadServersWithSuburbs(m_ctx.gdbMain, sws))
            return;
    } catch (const std::exception&) {
        return;
    }
    for (int row = 1; row <= SwsTable::MaxServers; ++row) {
        if (!sws.at(row, 0).isEmpty())
            cmbServer.addItem(sws.at(row, 0));
    }
}

void BrowserTwo::applyAutoMode()
{
    if (m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, "1") != QLatin1String("1"))
        return;
    m_ctx.state.gblnWBTAutoMode = true;
    SkipPage = true;
    if (!tmrAuto.isActive())
        tmrAuto.start();
}

void BrowserTwo::SelectServer()
{
    const int idx = cmbServer.listIndex();
    if (idx < 0)
        return;
    const SwsTable& sws = m_ctx.state.gstrSWS;
    bool found = false;
    for (int k = 1; k <= SwsTable::MaxServers && !found; ++k) {
        if (cmbServer.item(idx) != sws.at(k, 0))
            continue;
        found = true;
        cboSWSuburbs.setEnabled(true);
        cboSWSuburbs.clear();
        for (int j = 1; j <= SwsTable::MaxSuburbs; ++j) {
            if (!sws.at(k, j).isEmpty())
                cboSWSuburbs.addItem(sws.at(k, j));
        }
        if (cboSWSuburbs.listCount() > 0) {
            cboSWSuburbs.setListIndex(0);
            SuburbChange();
        }
    }
    if (!found) {
        SuburbBase.clear();
        cboSWSuburbs.clear();
        cboSWSuburbs.setEnabled(false);
    }
    if (!WindowReady) {
        cboSWSuburbs.setText(m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::CboSubSWS, ""));
        SuburbChange();
    }
    ServerBase = cmbServer.text();
    form.setText(QStringLiteral("Navigate ") + cmbServer.item(idx).mid(7));
}

void BrowserTwo::SuburbChange()
{
    if (!cboSWSuburbs.text().isEmpty())
        ComposeSuburbBase();
    else
        SuburbBase.clear();
}

void BrowserTwo::ComposeSuburbBase()
{
    SuburbBase = cmbServer.text() + cboSWSuburbs.text();
    if (!SuburbBase.right(2).contains(QLatin1Char('/')))
        SuburbBase += QLatin1Char('/');
    const bool http = SuburbBase.left(7).toLower() == QLatin1String("http://");
    form.setText(QStringLiteral("Navigate ") + (http ? SuburbBase.mid(7) : SuburbBase));
}

// ---------------------------------------------------------------- walking

QString BrowserTwo::addressOf(const QString& word) const
{
    return (SuburbBase.isEmpty() ? ServerBase : SuburbBase) + word;
}

void BrowserTwo::Pseudo(int count)
{
    WordCount = qint16(count - 1);
    hscrWBT.setMaximum(WordCount);
    CurrentSiteIndex = qint32(Vb::Val(m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::CurrentSite, "1")));
    if (CurrentSiteIndex > upperBound() || CurrentSiteIndex < hscrWBT.minimum())
        CurrentSiteIndex = 1;
    try {
        hscrWBT.setValue(CurrentSiteIndex);
    } catch (const std::exception&) {
    }
    panels[3]->setText(QString::number(CurrentSiteIndex) + QStringLiteral(" of ") +
                       QString::number(WordCount));
}

void BrowserTwo::BarChange()
{
    const QVector<QString>& sites = m_ctx.state.gstrSites;
    WordCount = qint16(upperBound());
    hscrWBT.setMaximum(WordCount);
    if (hscrWBT.value() == hscrWBT.maximum())
        hscrWBT.setValue(1);
    CurrentSiteIndex = hscrWBT.value();
    panels[3]->setText(QString::number(CurrentSiteIndex) + QStringLiteral(" of ") +
                       QString::number(WordCount));
    CurrentWord = sites.value(CurrentSiteIndex);
    panels[2]->setText(CurrentWord);
}

void BrowserTwo::ToolsClick(int index)
{
    try {
        switch (index) {
        case Prev:
        case Next:
            step(index);
            break;
        case Back:
            m_browser.Stop();
            m_browser.GoBack();
            break;
        case Stop:
            m_browser.Stop();
            SkipPage = false;
            break;
        default:
            emit savedLinkTool(index);
            break;
        }
    } catch (const std::exception&) {
    }
}

void BrowserTwo::step(int index)
{
    if (index == Prev)
        CurrentSiteIndex = CurrentSiteIndex > 1 ? CurrentSiteIndex - 1 : WordCount;
    else
        CurrentSiteIndex = CurrentSiteIndex < WordCount ? CurrentSiteIndex + 1 : 1;
    try {
        hscrWBT.setValue(CurrentSiteIndex);
    } catch (const std::exception&) {
        // An empty list: the bar holds its one position.
    }
    CurrentWord = m_ctx.state.gstrSites.value(CurrentSiteIndex);
    panels[2]->setText(CurrentWord);
    NavigateSomeWhereElseTwo(addressOf(CurrentWord));
}

QStringList BrowserTwo::wordsAhead() const
{
    const QVector<QString>& sites = m_ctx.state.gstrSites;
    const int ub = upperBound();
    const int last = ub > 1 ? ub - 1 : ub;
    QStringList words;
    for (int i = std::max(CurrentSiteIndex, 1); i <= last; ++i)
        words.append(sites.value(i));
    return words;
}

void BrowserTwo::offerWords(const QStringList& words)
{
    QVector<QString>& sites = m_ctx.state.gstrSites;
    sites = {QString()};
    for (const QString& word : words)
        sites.append(word);
    // Stepping never reaches the last entry: an empty one closes the list,
    // so that every word offered is reached.
    sites.append(QString());
    ActiveListName.clear();
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CurrentSite, "1");
    Pseudo(sites.size());
    BarChange();
    panels[1]->setText(QStringLiteral("Quick scan Loaded!"));
    if (!words.isEmpty())
        NavigateSomeWhereElseTwo(addressOf(CurrentWord));
}

void BrowserTwo::AutoTick()
{
    if (!m_ctx.ConnectionUp() || !WindowReady || UserBusy || !SkipPage)
        return;
    SavePosition();
    ToolsClick(Next);
    SkipPage = false;
}

void BrowserTwo::NavigateSomeWhereElseTwo(const QString& url)
{
    m_browser.Navigate(url);
}

void BrowserTwo::ProgressChange(int progress, int progressMax)
{
    if (!WindowReady)
        return;
    if (m_ctx.state.gblnClosePopUps)
        ClosePopUpWindows();
    ProgressText = BrowserOne::ProgressTextFor(progress, progressMax);
    CurrentUrl = m_browser.LocationURL();
    PageTitle = m_browser.LocationName();
    // The engine gives an untitled page no title, where the missing-page
    // test expects the page's own address in its place.
    if (PageTitle.isEmpty())
        PageTitle = CurrentUrl;
    if (m_ctx.state.gblnWBTAutoMode) {
        judgePage();
        if (progress != progressMax)
            tmrAuto.stop();
        else if (!tmrAuto.isActive())
            tmrAuto.start();
    } else {
        tmrAuto.stop();
    }
    const QString hint = QString::fromLatin1(UrlHint);
    if (CurrentUrl.isEmpty())
        CurrentUrl = hint;
    if (PageTitle.isEmpty())
        PageTitle = hint;
    if (CurrentUrl != hint && !AddressBarEdited)
        txtAddressBar.setText(CurrentUrl);
    form.setText(FiveBlanks + PageTitle + TenBlanks + QLatin1Char('[') + ProgressText +
                 QLatin1Char(']'));
}

void BrowserTwo::judgePage()
{
    SkipPage = IsBadTitle(BadTitles, CurrentWord, PageTitle);
}

void BrowserTwo::ClosePopUpWindows()
{
    try {
        m_host.closeWindowsAfter(m_ctx.state.gblnWBOneLoaded ? 2 : 1);
    } catch (const std::exception&) {
    }
}

void BrowserTwo::NewWindow2(bool* cancel)
{
    if (m_ctx.state.gblnEliminatePopUps && cancel)
        *cancel = true;
}

void BrowserTwo::NavigateComplete2(const QString&)
{
    AddressBarEdited = false;
}

void BrowserTwo::AddressBarKey(int key)
{
    if (key == 13)
        NavigateSomeWhereElseTwo(txtAddressBar.text());
    else
        AddressBarEdited = true;
}

void BrowserTwo::InputFocus(bool gained)
{
    UserBusy = gained;
}

void BrowserTwo::WBTPassSometext(const QString& name)
{
    ActiveListName = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::DBSiteList);
    if (ActiveListName.isEmpty())
        panels[1]->setText(name + QStringLiteral(" Loaded!"));
}

void BrowserTwo::frmWBTCalls(WBTCall command)
{
    if (command == WBTCall::LoadServerList)
        LoadServerList();
}

void BrowserTwo::AltaVistaClick()
{
    NavigateSomeWhereElseTwo(QString::fromLatin1(Endpoint::AltaVistaUrl));
}

void BrowserTwo::ExitClick()
{
    m_host.mainCall(GeoCitiesCall::Quit);
}

// ---------------------------------------------------------------- rows

void BrowserTwo::RowClick(int index)
{
    bool show = !mnuToolsSubs[index]->isChecked();
    if (show && index == ListRow)
        show = showListRow();
    mnuToolsSubs[index]->setChecked(show);
    picTools[index]->setVisible(show);
    m_host.stackRows();
}

// The list row needs the list database; one is offered when there is none.
bool BrowserTwo::showListRow()
{
    if (!m_lists.OpenWordListDb()) {
        if (!WindowReady ||
            !ShowLines(m_ctx.prompts, {"No List database exits!", "Create one?"}, "Create list DB",
                       true) ||
            !m_lists.CreateWordListDb())
            return false;
    }
    fillListNames();
    return true;
}

void BrowserTwo::fillListNames()
{
    cboLists.clear();
    for (const QString& name : m_lists.FillListNames())
        cboLists.addItem(name);
}

// ---------------------------------------------------------------- lists

void BrowserTwo::ListsClick(int index)
{
    const int selected = cboLists.listIndex();
    const QString name = ActiveListName.isEmpty() ? cboLists.item(selected) : ActiveListName;
    const bool none = ActiveListName.isEmpty() && selected < 0;
    try {
        if (index == 0) {
            if (none)
                m_ctx.MsgBox(SelectList);
            else
                loadList(name);
        } else if (index == 1) {
            if (none)
                m_ctx.MsgBox(SelectList);
            else
                deleteList(name);
        } else if (m_lists.AddWordList()) {
            m_ctx.MsgBox("List successfully added!");
            fillListNames();
        }
    } catch (const std::exception&) {
    }
    ActiveListName.clear();
}

void BrowserTwo::loadList(const QString& name)
{
    ActiveListName.clear();
    ListLoaded = true;
    if (m_lists.LoadWordList(name)) {
        panels[1]->setText(name + QStringLiteral(" Loaded!"));
        m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBSiteList, name);
    } else {
        // The stored list is gone: the word source is read afresh.
        UnloadClick();
    }
}

void BrowserTwo::deleteList(const QString& name)
{
    if (m_ctx.MsgBox("Are you sure you would like to delete this list?!", PromptService::YesNo,
                     "Delete list?") != PromptService::Yes)
        return;
    if (m_lists.DeleteWordList(name))
        fillListNames();
    else
        m_ctx.MsgBox("Deletion error!");
}

void BrowserTwo::UnloadClick()
{
    if (!ListLoaded) {
        m_ctx.MsgBox("You haven't loaded a list!");
        return;
    }
    SkipPage = false;
    ListLoaded = false;
    m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBSiteList, "");
    m_lists.PickWordSource(QString());
    cboLists.setText(QString());
}
