#pragma once

#include "CacheActionHost.h"
#include "CacheActions.h"
#include "CacheScan.h"
#include "CacheScanHost.h"

#include <QWidget>
#include <functional>
#include <memory>

class FolderTree;
class QLineEdit;
class QListView;
class frmProgress;

// "Manage Cache Files": the window around CacheScan's rules. It lists the
// files of a folder, runs the chosen action on them through the actions it
// is handed, and cannot be closed by its close box, which only stops a run.
class frmCache : public QWidget, public CacheActionHost, public CacheScanHost
{
    Q_OBJECT
public:
    // What the window needs of the rest of the program.
    struct Links
    {
        std::function<void()> unloadWait;
        std::function<void(const QString&)> openViewer; // the getter's viewer
        // Hands picture pages to Browser One and opens the first.
        std::function<void(const QStringList&)> showPages;
        std::function<void()> releaseOnTop; // takes the other windows off on-top
        std::function<void()> unloaded;     // the window went: its menu entries back on
        std::function<int()> treeWidth;     // the tree window's width in twips, 0 if closed
        CacheActionsFactory actions;        // none: "Do it" stays off
        QString profileCache;               // Browser One's cache folder
    };

    frmCache(AppContext& ctx, Links links);
    ~frmCache() override;

    CacheScan& rules() { return *m_rules; }
    frmProgress* progress() const { return m_progress.get(); }

    // Shows the window and marks it open.
    void FakeSub();
    // The window's Unload: the run finished, the menus back, the place saved.
    void Unload();
    // True while a run or a wait of this window is on the stack: the window
    // must outlive it.
    bool inUse() const { return m_running || m_rules->waitingForFolder(); }

    // CacheActionHost
    int listCount() const override;
    QVector<int> selectedRows() const override;
    void SaveCacheSettings() override;
    void clearActionOptions() override;
    void setControlsEnabled(bool enabled) override;
    void setTitle(const QString& title) override;
    void Increm(int percent) override;
    void ResetCount() override;
    void unloadProgress() override;
    void unloadWait() override;
    void pumpEvents() override;
    void ListCacheFiles() override;
    void showGraphicsPages(const QStringList& pages) override;

    // CacheScanHost
    void pumpEvents(bool wait) override;
    void showOutPutDir(const QString& path) override;
    void openViewer(const QString& path) override;
    bool hasActions() const override;
    void runAction() override;
    void unloadWindow() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    QWidget* buildActions();
    QWidget* buildExtensions();
    void place();
    void savePlace();

    AppContext& m_ctx;
    Links m_links;
    std::unique_ptr<CacheScan> m_rules;
    std::unique_ptr<CacheActions> m_actions;
    std::unique_ptr<frmProgress> m_progress;
    FolderTree* m_dir = nullptr;
    QListView* m_list = nullptr;
    QLineEdit* m_ext = nullptr;
    QLineEdit* m_search = nullptr;
    bool m_unloaded = false;
    bool m_running = false;
};
