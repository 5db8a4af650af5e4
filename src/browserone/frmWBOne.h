#pragma once

#include "BrowserOne.h"
#include "BrowserOneHost.h"
#include "LinksPanel.h"

#include <QWidget>
#include <memory>

class QLineEdit;
class QMenu;
class QPushButton;
class QWebEngineView;
class WebBrowserControl;
class BrowserOneWindows;
class MainWindowCalls;

// Browser One: a window around one browser control, with an address bar
// and a Next button on top and a menu that pops up when the pointer hovers
// over the window's strip around them or over the address bar. Its rules
// live in BrowserOne.
class frmWBOne : public QWidget, public BrowserOneHost
{
    Q_OBJECT
public:
    frmWBOne(AppContext& ctx, MainWindowCalls& main, BrowserOneWindows& windows);
    ~frmWBOne() override;

    BrowserOne& rules() { return *m_rules; }
    WebBrowserControl& control() { return *m_control; }
    QWebEngineView* WBOne() const { return m_view; }
    QMenu* mnuCopy() const { return m_menu; }
    LinksPanel& linksPanel() { return *m_links; }

    // BrowserOneHost
    void placeWindow(const QString& left, const QString& top, const QString& height,
                     const QString& width) override;
    QRect screenTwips() const override;
    QRect windowTwips() const override;
    void setWindowOnTop(bool onTop) override;
    void showWalkColours(Wander::Mode mode) override;
    void closeWindowsAfter(int keep) override;
    void unloadLinksPanel() override;

    // Menu entries handled by the window itself.
    void VorlanClick();
    void ResizeClick();
    void CopyLinkClick();
    void SaveAsClick();
    void FavoritesClick();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void buildMenu();
    void hover(const QPoint& pos, bool overAddressBar);

    AppContext& m_ctx;
    BrowserOneWindows& m_windows;
    QWebEngineView* m_view = nullptr;
    QLineEdit* m_addressBar = nullptr;
    QPushButton* m_next = nullptr;
    QMenu* m_menu = nullptr;
    WebBrowserControl* m_control = nullptr;
    std::unique_ptr<BrowserOne> m_rules;
    std::unique_ptr<LinksPanel> m_links;
};
