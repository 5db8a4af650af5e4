#pragma once

#include "CatalogueEditor.h"
#include "OptionsCalls.h"
#include "RandNavEditor.h"
#include "SwsEditor.h"
#include "WbtListsEditor.h"
#include "core/Controls.h"

#include <QObject>

class MainWindowCalls;
class OptionsHost;
struct AppContext;

// The rules of frmOpt, the options dialog: six tabs of options and stored
// lists, read at Load and taken over by Ok or Apply in a fixed order. The
// Basic and Advanced tabs live here; the other four are editors of their
// own.
class OptionsDialog : public QObject
{
    Q_OBJECT
public:
    static constexpr int TabCount = 6;
    enum Tab
    {
        BasicTab = 1,
        AdvancedTab = 2,
        AddRemoveTab = 3,
        RandNavTab = 4,
        WbtTab = 5,
        SwsTab = 6
    };

    OptionsDialog(AppContext& ctx, MainWindowCalls& main, OptionsHost& host);

    // The tab's caption, tool tip and the dialog's title it sets; 1-based.
    static QString tabCaption(int tab);
    static QString tabToolTip(int tab);
    static QString tabTitle(int tab);
    // The page sources offered on the Advanced tab, in cboPageSource's order.
    static QStringList pageSourceNames();

    // Whether a key, as its character code (8 Backspace), may be typed into
    // txtWaitTime; txtLimit takes none.
    static bool waitTimeKeyAccepted(int code);

    Control form{QStringLiteral("frmOpt")};
    ListControl tbsOptions{QStringLiteral("tbsOptions")}; // entry = tab - 1
    Control picOptions[TabCount] = {
        Control(QStringLiteral("picOptions[1]")), Control(QStringLiteral("picOptions[2]")),
        Control(QStringLiteral("picOptions[3]")), Control(QStringLiteral("picOptions[4]")),
        Control(QStringLiteral("picOptions[5]")), Control(QStringLiteral("picOptions[6]"))};
    Control cmdOk{QStringLiteral("cmdOk")};
    Control cmdCancel{QStringLiteral("cmdCancel")};
    Control cmdApply{QStringLiteral("cmdApply")};
    Control cmdReSet{QStringLiteral("cmdReSet")};

    // Basic
    Control fraBasic{QStringLiteral("fraOptions[1]")};
    Control chkSynch{QStringLiteral("chkSynch")};
    Control chkClosePopUps{QStringLiteral("chkClosePopUps")};
    Control chkEliminatePopUps{QStringLiteral("chkEliminatePopUps")};
    Control chkAssignRandomsToControls{QStringLiteral("chkAssignRandomsToControls")};
    Control chkSWebBrowserNextButton{QStringLiteral("chkSWebBrowserNextButton")};
    Control chkBrowseOnSavedLinkClick{QStringLiteral("chkBrowseOnSavedLinkClick")};
    Control frameTime{QStringLiteral("frameTime")};
    Control chkWaitForFullPage{QStringLiteral("chkWaitForFullPage")};
    Control txtWaitTime{QStringLiteral("txtWaitTime")};
    // Its minimum, 1 or 5, is set by the full-page option at Load.
    SliderControl sldrWaitTime{QStringLiteral("sldrWaitTime"), 1, 60};

    // Advanced
    Control fraAdvanced{QStringLiteral("fraOptions[2]")};
    Control lblAdvOpt[4] = {
        Control(QStringLiteral("lblAdvOpt[0]")), Control(QStringLiteral("lblAdvOpt[1]")),
        Control(QStringLiteral("lblAdvOpt[2]")), Control(QStringLiteral("lblAdvOpt[3]"))};
    Control Label8{QStringLiteral("Label8")};
    Control txtAdvOpt[5] = {
        Control(QStringLiteral("txtAdvOpt[0]")), Control(QStringLiteral("txtAdvOpt[1]")),
        Control(QStringLiteral("txtAdvOpt[2]")), Control(QStringLiteral("txtAdvOpt[3]")),
        Control(QStringLiteral("txtAdvOpt[4]"))};
    Control chkWBTAdvUseTitles{QStringLiteral("chkWBTAdvUseTitles")};
    Control Label6{QStringLiteral("Label6")};
    SliderControl sldrLimit{QStringLiteral("sldrLimit"), 0, 60};
    Control txtLimit{QStringLiteral("txtLimit")};
    Control Label7{QStringLiteral("Label7")};
    // Where the service's pages open from, beside the Tools menu's entries.
    Control lblPageSource{QStringLiteral("lblPageSource")};
    ListControl cboPageSource{QStringLiteral("cboPageSource")};

    CatalogueEditor catalogue;
    RandNavEditor randNav;
    WbtListsEditor wbt;
    SwsEditor sws;

    void Load();
    void OkClick();
    void ApplyClick();
    void CancelClick();
    void ReSetClick();
    // tab is 1-based.
    void TabClick(int tab);
    int selectedTab() const { return tbsOptions.listIndex() + 1; }
    // A key on the dialog: Ctrl+Tab (code 9, control bit 2) selects the
    // next tab, from the last the first.
    void KeyDown(int keyCode, int shift);
    // Errors inside are ignored; a code outside the table does nothing.
    void frmOptCalls(OptCall code);
    // The dialog is going: its lists are dropped, and gstrSWS with them
    // while Browser Two is not open.
    void Unload();

    void DisableOptionControls() { setControlsEnabled(false); }
    void EnableOptionControls() { setControlsEnabled(true); }

signals:
    // Ok without Apply, or Cancel: the dialog has unloaded, the window is
    // to close.
    void unloadWanted();

private:
    void buildTabs();
    void buildBasic();
    void buildAdvanced();
    void connectRules();
    void loadBasic();
    void loadAdvanced();
    void loadBrowserTwo();
    void WaitTimeChange();
    void FullPageClick();
    void EliminatePopUpsClick();
    void UseTitlesClick();
    void takeWaitTime();
    void takeFlags();
    void takeAdvanced();
    void takeBrowserTwo();
    void reloadCatalogue();
    void setControlsEnabled(bool enabled);
    void closeDialog();

    AppContext& m_ctx;
    MainWindowCalls& m_main;
    OptionsHost& m_host;
    bool blnFormLoading = false;
    bool blnApplyPressed = false;
    bool blnAdvOptChanged = false;
};
