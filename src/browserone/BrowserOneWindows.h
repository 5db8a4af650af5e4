#pragma once

#include "BrowserWindowList.h"
#include "LinksPanelHost.h"

#include <QObject>
#include <QPointer>
#include <functional>

struct AppContext;
class MainWindowCalls;
class PopUpWindow;
class QWebEnginePage;
class QWebEngineProfile;
class QWidget;
class frmWBOLinks;
class frmWBOne;

// Browser One's windows as the program wires them in: frmWBOne and its
// saved-links panel, made on first use, the pop-ups its pages open, the
// ordered list of the program's browser windows, and the engine profile
// they share. The main window reaches Browser One through here.
class BrowserOneWindows : public QObject, public LinksPanelHost
{
    Q_OBJECT
public:
    // mainWindow gives the main window, to bring it back; treeWidth the
    // tree window's width in twips, 0 while it is not open.
    BrowserOneWindows(AppContext& ctx, MainWindowCalls& main, std::function<QWidget*()> mainWindow,
                      std::function<int()> treeWidth);
    ~BrowserOneWindows() override;

    frmWBOne* browserOne() const;
    frmWBOLinks* linksPanel() const;
    BrowserWindowList& browsers() { return m_browsers; }
    QWidget* mainWindow() const { return m_mainWindow(); }
    int treeWidthTwips() const { return m_treeWidth(); }

    // The main window's door: ShowBrowserOne of the Navigator window.
    void ShowBrowserOne();
    void navigate(const QString& url);
    void stop();
    void goBack();
    void toggleOnTop();
    QString title() const;
    void unload();

    // A new window for a page that asked for one; returns its page.
    QWebEnginePage* openPopUp();
    // The browser windows' profile: cookies and the page cache, kept in the
    // user's data and cache folders between runs. Made on first use.
    QWebEngineProfile* profile();

    // LinksPanelHost
    QRect screenTwips() const override;
    QRect panelTwips() const override;
    void placePanel(const QString& left, const QString& top, const QString& height,
                    const QString& width) override;
    void showPanel() override;
    void closePanel() override;

private:
    AppContext& m_ctx;
    MainWindowCalls& m_main;
    std::function<QWidget*()> m_mainWindow;
    std::function<int()> m_treeWidth;
    QPointer<frmWBOne> m_browserOne;
    QPointer<frmWBOLinks> m_linksPanel;
    BrowserWindowList m_browsers;
    QList<QPointer<PopUpWindow>> m_popUps;
    QWebEngineProfile* m_profile = nullptr;
};
