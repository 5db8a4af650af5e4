#pragma once

#include "FileGetter.h"
#include "FileGetterHost.h"

#include <QWidget>
#include <functional>
#include <memory>

class QLabel;
class QWebEngineProfile;
class QWebEngineView;
class WebBrowserControl;

// "Get files": the window around the file getter's rules, with the label
// of the file in hand and the browser that shows or loads pages. Closing
// it stops a list; it is hidden, not destroyed, so a list being worked
// never loses its rules under it.
class frmInetget : public QWidget, public FileGetterHost
{
    Q_OBJECT
public:
    frmInetget(AppContext& ctx, MainWindowCalls& main, QWebEngineProfile* profile,
               std::function<int()> treeWidth);
    ~frmInetget() override;

    FileGetter& rules() { return *m_rules; }
    WebBrowserControl& control() { return *m_control; }
    bool isLoaded() const { return m_loaded; }
    // The window's Load: its place, and the walks stopped.
    void Load();

    // FileGetterHost
    void showGetter() override;
    void unloadGetter() override;
    void copyToClipboard(const QString& text) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    AppContext& m_ctx;
    std::function<int()> m_treeWidth;
    QLabel* m_label = nullptr;
    QWebEngineView* m_view = nullptr;
    WebBrowserControl* m_control = nullptr;
    std::unique_ptr<FileGetter> m_rules;
    bool m_loaded = false;
};
