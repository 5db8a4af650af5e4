#pragma once

#include <QObject>
#include <QRect>

class BrowserOne;
class LinksPanelHost;
class MainWindowCalls;
struct AppContext;

// The rules of frmWBOLinks, the saved-links panel beside Browser One: the
// Saved menu of Browser One opens and closes it, its place is kept in the
// settings, and one click on a note opens that link. The list it shows is
// the Navigator's (SavedLinks::lstLinks), and a click acts through the
// main window's cmbSavedLinks, which stays the real state.
class LinksPanel : public QObject
{
    Q_OBJECT
public:
    LinksPanel(AppContext& ctx, MainWindowCalls& main, BrowserOne& browser, LinksPanelHost& host);

    // The Click of mnuSaved in Browser One: opens a closed panel, closes an
    // open one.
    void SavedClick();
    // The Click of lstLinks.
    void ListClick();
    // The panel closes by its own close box or with Browser One.
    void QueryUnload();

    // A place moved so that it lies on the screen, as the panel's load
    // keeps it; the size is left alone.
    static QRect KeepOnScreen(const QRect& place, const QRect& screen);

private:
    void open();
    void close();
    void savePlace();

    AppContext& m_ctx;
    MainWindowCalls& m_nav;
    BrowserOne& m_browser;
    LinksPanelHost& m_host;
};
