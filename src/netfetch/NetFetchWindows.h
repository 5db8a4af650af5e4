#pragma once

#include "GeoTreeHost.h"

#include <QPointer>
#include <QStringList>
#include <functional>

struct AppContext;
class MainWindowCalls;
class QWidget;
class BrowserControl;
class QWebEngineProfile;
class frmInetget;
class frmNetPics;
class frmTreeView;

// The net fetch tools' windows as the program wires them in, each made on
// first use: GeoTree, NetPic and the file getter. The program's registry makes this and reaches
// the windows through it.
class NetFetchWindows
{
public:
    // What the tools need of the other windows.
    struct Links
    {
        // A browser's window while it is open, else null.
        std::function<QWidget*(GeoTreeHost::Browser)> browserWindow;
        std::function<void()> showBrowserOne;
        // The tree closed itself: its menu entry is given back.
        std::function<void()> treeUnloaded;
        // Hands picture pages to Browser One for paging.
        std::function<void(const QStringList&)> communicatWithNetPic;
        // The browser windows' profile, which the getter's browser shares.
        std::function<QWebEngineProfile*()> profile;
        // The browser control of Browser One (1) or Two (2), null while closed.
        std::function<BrowserControl*(int)> browserControl;
    };

    NetFetchWindows(AppContext& ctx, MainWindowCalls& main, Links links);
    ~NetFetchWindows();

    void showTree();
    void unloadTree();
    frmTreeView* tree() const;
    void showNetPics();
    frmNetPics* netPics() const;
    // The getter, made on first use and loaded on each call.
    void frmInetgetCalls(int code, const QString& url = QString());
    // The text at url, fetched without showing the getter.
    QString InvisibleInetUsage(const QString& url);
    void unloadGetter();
    frmInetget* getter();
    // modInternet's entry for the browsers' "Get File List": code 2 for
    // Browser One's page, 3 for Browser Two's.
    void GetFileListMenu(int menuCode);
    // The tree window's width in twips, 0 while it is not open.
    int treeWidthTwips() const;

private:
    AppContext& m_ctx;
    MainWindowCalls& m_main;
    Links m_links;
    QPointer<frmTreeView> m_tree;
    QPointer<frmTreeView> m_closingTree; // unloaded, not yet deleted
    QPointer<frmNetPics> m_netPics;
    QPointer<frmInetget> m_getter;
};
