#pragma once

#include "CacheFileModel.h"
#include "CacheState.h"
#include "core/Controls.h"

#include <QItemSelectionModel>
#include <QObject>
#include <QVector>

struct AppContext;
class CacheScanHost;

// The rules of frmCache, "Manage Cache Files", without its widgets: the
// folder and extension pickers, the rule that switches the text actions,
// the listing of files into lstCache and FoundFiles, the output folder, the
// start of an action and the rules of Close, the close box and the keys.
class CacheScan : public QObject
{
    Q_OBJECT
public:
    // profileCache: Browser One's web engine cache folder, a candidate for
    // the default folder after the classic ones.
    CacheScan(AppContext& ctx, CacheScanHost& host, const QString& profileCache);
    ~CacheScan() override;

    static constexpr int ExtCount = 6;     // optExt(1) to (6)
    static constexpr int ActionCount = 18; // optAction(0) to (17)
    static constexpr int FirstTextAction = 6;
    static inline const QString BusyTitle = QStringLiteral("I'm Busy, don't disturb me!");

    CacheState state;

    Control form{QStringLiteral("frmCache")};
    Control dirCache{QStringLiteral("dirCache")}; // text: the folder shown, no trailing "/"
    Control chkNoSubs{QStringLiteral("chkNoSubs")};
    Control txtSearch{QStringLiteral("txtSearch")};
    Control Label1{QStringLiteral("Label1")};
    Control txtExt{QStringLiteral("txtExt")};
    Control txtOutDir{QStringLiteral("txtOutDir")};
    Control cmdNewOutDir{QStringLiteral("cmdNewOutDir")};
    Control lblAction{QStringLiteral("lblAction")};
    Control& optExt(int i) { return *m_optExt.at(i - 1); } // 1 to 6
    Control& optAction(int i) { return *m_optAction.at(i); }
    Control& cmdCache(int i) { return *m_cmdCache.at(i); }

    CacheFileModel& lstCache() { return m_files; }
    QItemSelectionModel& lstSelection() { return m_selection; }

    // Set-up of the window, with its first listing.
    void Load();
    void Unload();

    void ListCacheFiles();
    void SaveCacheSettings();
    void PassVariable(const QString& path);

    // The list's mouse: a click (after the selection changed), a double
    // click, and a press of the right button.
    void lstCacheClick();
    void lstCacheDblClick();
    void lstCacheRightPress();
    void txtExtDblClick();
    void txtSearchDblClick();

    // The user closes the window with its close box: always refused; during
    // an action it stops the action.
    void QueryUnload();
    // True while "Out Dir" waits for the folder dialog's answer.
    bool waitingForFolder() const { return m_waiting; }
    // True while keys pressed in the window are to be dropped.
    bool keysDropped() const { return form.text() == BusyTitle; }

    // For the actions: the text actions on or off, the pickers and buttons
    // off for a run and on again, all eighteen options cleared.
    void textActions(bool on);
    void setControlsEnabled(bool enabled);
    void clearActionOptions();

    // The classic folder candidates, tried before Browser One's and the
    // user's cache folders.
    static QStringList cacheFolderCandidates(const QString& profileCache);
    static QString defaultCacheFolder(const QString& profileCache);

private:
    void optExtClick(int i);
    void txtExtChange();
    void chkNoSubsClick();
    void dirCacheChange();
    void optActionClick(int i);
    void DoItClick();
    void CloseClick();
    void NewOutDirClick();
    void applyPattern();
    void patternTextActions();
    bool isTextPattern() const;
    int extIndex(const QString& pattern) const;
    void makeControls();

    AppContext& m_ctx;
    CacheScanHost& m_host;
    QString m_profileCache;
    QVector<Control*> m_optExt;
    QVector<Control*> m_optAction;
    QVector<Control*> m_cmdCache;
    CacheFileModel m_files;
    QItemSelectionModel m_selection{&m_files};
    bool m_unloaded = false;
    bool m_waiting = false;
};
