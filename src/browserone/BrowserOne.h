#pragma once

#include "core/Controls.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

struct AppContext;

// The codes of frmWBOCalls, through which other windows press Browser One's
// menu entries.
enum class WBOCall
{
    OnTop = 1,  // Click of mnuTop
    Saved = 2,  // Click of mnuSaved
    Resize = 3, // the window's Resize handling
};
class BrowserControl;
class BrowserOneHost;
class MainWindowCalls;

// The rules of frmWBOne, the program's first browser window: it shows the
// page, reports the load in its caption, holds and releases the walks'
// timers by the load's progress, refuses or closes pop-ups, and forwards
// its menu commands to the main window. It never navigates by itself: every
// address goes through the Navigator's NavigateSomeWhereElse.
class BrowserOne : public QObject
{
    Q_OBJECT
public:
    static constexpr const char* UrlHint = "Right Click Page For IE Menu!";

    BrowserOne(AppContext& ctx, MainWindowCalls& main, BrowserControl& browser,
               BrowserOneHost& host);

    // Controls of the window.
    Control form{QStringLiteral("frmWBOne")}; // its text is the caption
    Control txtAddressBar{QStringLiteral("txtAddressBar")};
    Control cmdNext{QStringLiteral("cmdNext")};
    Control mnuAutoNav{QStringLiteral("mnuAutoNav")};
    Control mnuRandNav{QStringLiteral("mnuRandNav")};
    Control mnuTop{QStringLiteral("mnuTop")};
    Control mnuSaved{QStringLiteral("mnuSaved")};
    QTimer tmrLimit;

    // Fields of the window.
    QString CurrentUrl;
    QString ProgressText;
    QStringList PendingList;
    int PendingIndex = 0;
    bool PendingActive = false;
    bool AddressBarHasFocus = false;
    bool AddressBarEdited = false;

    BrowserControl& browser() { return m_browser; }

    void Load();
    void Unload();

    // Browser events.
    void ProgressChange(int progress, int progressMax);
    void NewWindow2(bool* cancel);
    void NavigateComplete2(const QString& url);
    void ClosePopUpWindows();

    // The text of ProgressText for an event.
    static QString ProgressTextFor(int progress, int progressMax);

    void CommunicatWithNetPic(const QStringList& list);
    void CmdNextClick();
    void AddressBarKey(int key);
    void AddressBarClick();
    // What "Copy URL" puts on the clipboard: the address on show, or for an
    // archived or mirrored page the original address and it on two lines.
    QString CopyUrlText() const;
    void WindowKey(int key);
    void TopClick();
    void SearchClick(int index);
    void frmWBOCalls(WBOCall command);
    void LimitTick();

    // Menu entries that forward to the main window.
    void StopClick();
    void NextClick();
    void BackClick();
    void AutoNavClick();
    void RandNavClick();
    void ExitClick();

    // Whether a move at (x, y) of the window, over its own area or over the
    // address bar, opens the hover menu: measured against the page's size,
    // within its top quarter and between 10 % and 80 % of its width (50 %
    // over the address bar). Moves over the page itself never do.
    static bool HoverMenuAt(int x, int y, int pageWidth, int pageHeight, bool overAddressBar);
    // The search services of the Search menu, without scheme and "www.".
    static QString SearchHost(int index, bool japan);

signals:
    // The saved-links panel is to open or close (frmWBOCalls 2).
    void savedClicked();
    // The window's resize handling is to run (frmWBOCalls 3).
    void resizeRequested();

private:
    void showCaption(const QString& title);
    void paceWalks(int progress, int progressMax);
    void showMode();

    AppContext& m_ctx;
    MainWindowCalls& m_nav;
    BrowserControl& m_browser;
    BrowserOneHost& m_host;
};
