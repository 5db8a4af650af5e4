#pragma once

#include "WbtCall.h"
#include "WbtLinksHost.h"
#include "WordListHost.h"
#include "navigator/MainWindowCalls.h"

#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <functional>

struct AppContext;
class BrowserControl;
class BrowserWindowList;
class QWebEnginePage;
class QWebEngineProfile;
class WordListActions;
class frmWBTLinks;
class frmWBTNote;
class frmWBTwo;

// Browser Two's windows as the program wires them in: the walker window,
// made when the Navigator's "Web Browser Two" opens it, with the word
// source read first. The word lists call back through WordListHost.
class BrowserTwoWindows : public QObject, public WordListHost, public WbtLinksHost
{
    Q_OBJECT
public:
    // What Browser Two borrows from the rest of the program.
    struct Links
    {
        // The browser windows' engine profile, shared with Browser One.
        std::function<QWebEngineProfile*()> profile;
        // A new window for a page that asked for one; returns its page.
        std::function<QWebEnginePage*()> openPopUp;
        // The ordered list of the program's browser windows.
        std::function<BrowserWindowList&()> browsers;
        std::function<void(GeoCitiesCall)> mainCall;
        // The main window and Browser One leave always-on-top.
        std::function<void()> clearTopmost;
        // "Get File List" of Browser Two's page; none leaves it disabled.
        std::function<void()> getFileList;
        // The picture of the splash window shown while the words are read.
        std::function<QPixmap()> splashPicture;
    };

    BrowserTwoWindows(AppContext& ctx, WordListActions& lists, Links links);
    ~BrowserTwoWindows() override;

    frmWBTwo* window() const;
    frmWBTLinks* linksWindow() const;
    frmWBTNote* noteWindow() const;
    BrowserControl* browserControl() const;

    // The Navigator's entry: reads the word source behind the splash
    // window, then opens the walker on it. An open walker comes to the front.
    void ShowBrowserTwo();
    void unload();
    // Presses the walker's buttons for another window; nothing while closed.
    void frmWBTCalls(WBTCall command);

    // For the walker window.
    QWebEngineProfile* profile() { return m_links.profile(); }
    QWebEnginePage* openPopUp() { return m_links.openPopUp(); }
    BrowserWindowList& browsers() { return m_links.browsers(); }
    void mainCall(GeoCitiesCall code);
    bool canGetFileList() const { return bool(m_links.getFileList); }
    void getFileList();
    void unloadLinkWindows();

    // WordListHost
    void Pseudo(int count) override;
    void WBTPassSometext(const QString& name) override;
    void GPysuedo(int count) override;
    void clearTopmost() override;

    // WbtLinksHost
    QRect screenTwips() const override;
    QRect panelTwips() const override;
    void placePanel(const QString& left, const QString& top, const QString& height,
                    const QString& width) override;
    void showPanel() override;
    void closePanel() override;
    void showNote() override;
    void closeNote() override;

private:
    bool readWordSource();
    void open();

    AppContext& m_ctx;
    WordListActions& m_lists;
    Links m_links;
    QPointer<frmWBTwo> m_window;
    QPointer<frmWBTLinks> m_linksWindow;
    QPointer<frmWBTNote> m_note;
    int m_pseudo = 0;     // the count of the word source read at the opening
    QString m_sourceName; // its name, for the walker's first panel
    bool m_opening = false;
};
