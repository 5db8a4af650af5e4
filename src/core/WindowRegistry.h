#pragma once

#include "browserone/BrowserWindowList.h"
#include "browserone/frmWBOne.h"
#include "navigator/NavigatorHost.h"
#include "navigator/frmGeoCities.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

struct AppContext;
class QWebEnginePage;

// The open windows of the program, each made on first use, through which
// the windows reach each other; and the ordered list of its browser windows.
class WindowRegistry : public QObject
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

    // The tree window's width in twips, 0 while it is not open.
    int treeWidthTwips() const { return 0; }
    void unloadLinksPanel();

private:
    AppContext& m_ctx;
    QPointer<frmGeoCities> m_main;
    QPointer<frmWBOne> m_browserOne;
    BrowserWindowList m_browsers;
};
