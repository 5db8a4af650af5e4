#pragma once

#include "browserone/BrowserWindowList.h"
#include "browserone/LinksPanelHost.h"
#include "browserone/frmWBOLinks.h"
#include "browserone/frmWBOne.h"
#include "navigator/NavigatorHost.h"
#include "navigator/frmGeoCities.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

struct AppContext;
class PopUpWindow;
class QWebEnginePage;
class QWebEngineProfile;

// The open windows of the program, each made on first use, through which
// the windows reach each other; and the ordered list of its browser windows.
class WindowRegistry : public QObject, public LinksPanelHost
{
    Q_OBJECT
public:
    explicit WindowRegistry(AppContext& ctx);
    ~WindowRegistry() override;

    frmGeoCities* main(bool create = true);
    frmWBOne* browserOne() const { return m_browserOne; }
    BrowserWindowList& browsers() { return m_browsers; }

    // Whether this build has the window behind a menu entry of that name.
    bool has(const QString& menuEntry) const;
    bool show(ProgramWindow window);
    void unload(ProgramWindow window);

    // Browser One.
    void ShowBrowserOne();
    void browserNavigate(const QString& url);
    void browserStop();
    void browserGoBack();
    void toggleBrowserOneOnTop();
    // A new window for a page that asked for one; returns its page.
    QWebEnginePage* openPopUp();
    // The browser windows' profile: cookies and the page cache, kept in the
    // user's data and cache folders between runs. Made on first use.
    QWebEngineProfile* profile();

    // The tree window's width in twips, 0 while it is not open.
    int treeWidthTwips() const { return 0; }
    void unloadLinksPanel();

    // The saved-links panel of Browser One, made on first use.
    frmWBOLinks* linksPanel() const { return m_linksPanel; }
    QRect screenTwips() const override;
    QRect panelTwips() const override;
    void placePanel(const QString& left, const QString& top, const QString& height,
                    const QString& width) override;
    void showPanel() override;
    void closePanel() override;

private:
    AppContext& m_ctx;
    QPointer<frmGeoCities> m_main;
    QPointer<frmWBOne> m_browserOne;
    QPointer<frmWBOLinks> m_linksPanel;
    BrowserWindowList m_browsers;
    QList<QPointer<PopUpWindow>> m_popUps;
    QWebEngineProfile* m_profile = nullptr;
};
