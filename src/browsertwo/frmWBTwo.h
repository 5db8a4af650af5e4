#pragma once

#include "BrowserTwo.h"
#include "BrowserTwoHost.h"
#include "WbtLinks.h"
#include "WbtQuickScan.h"

#include <QWidget>
#include <memory>

class BrowserTwoWindows;
class QLineEdit;
class QMenu;
class QMenuBar;
class QWebEngineView;
class WebBrowserControl;

// Browser Two, the site walker: three tool rows (servers, navigation, word
// lists) that the Tools menu shows or hides, the address bar, the page and
// a status bar of three panels. Its rules live in BrowserTwo.
class frmWBTwo : public QWidget, public BrowserTwoHost
{
    Q_OBJECT
public:
    frmWBTwo(AppContext& ctx, WordListActions& lists, BrowserTwoWindows& windows);
    ~frmWBTwo() override;

    BrowserTwo& rules() { return *m_rules; }
    WbtLinks& links() { return *m_links; }
    WbtQuickScan& quickScan() { return *m_quickScan; }
    WebBrowserControl& control() { return *m_control; }
    QWebEngineView* WBTwo() const { return m_view; }
    QMenuBar* menuBar() const { return m_menuBar; }

    // BrowserTwoHost
    void placeWindow(const QString& left, const QString& top, const QString& height,
                     const QString& width) override;
    QRect screenTwips() const override;
    QRect windowTwips() const override;
    void stackRows() override;
    void closeWindowsAfter(int keep) override;
    void unloadLinkWindows() override;
    void mainCall(GeoCitiesCall code) override;
    void clearTopmost() override;

    // Menu entries handled by the window itself.
    void CopyUrlClick();
    void SaveAsClick();
    void ReduceClick();
    void FavoritesClick();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    QWidget* buildServerRow();
    QWidget* buildButtonRow();
    QWidget* buildListRow();
    void buildQuickScan(QWidget* row);
    void buildStatusBar(class QVBoxLayout* layout);
    void buildMenus();
    QWidget* row(Control& visibility);
    // The input controls of the rows tell the rules when they hold the focus.
    void watchFocus(QWidget* input);

    AppContext& m_ctx;
    BrowserTwoWindows& m_windows;
    QMenuBar* m_menuBar = nullptr;
    QWebEngineView* m_view = nullptr;
    QLineEdit* m_addressBar = nullptr;
    WebBrowserControl* m_control = nullptr;
    std::unique_ptr<BrowserTwo> m_rules;
    std::unique_ptr<WbtLinks> m_links;
    std::unique_ptr<WbtQuickScan> m_quickScan;
    QList<QWidget*> m_inputs;
};
