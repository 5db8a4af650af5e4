#include "CacheScan.h"

#include "CacheListing.h"
#include "CacheScanHost.h"
#include "core/AppContext.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
const QStringList Extensions = {"jpg", "gif", "mid", "wav", "htm", "txt"};
const QStringList ExtCaptions = {"Jpg", "Gif", "Mid", "wav", "Htm", "Txt"};
const QStringList ActionCaptions = {
    "Copy",        "LCase name",   "UCase name",   "Remove [x]", "Write list",  "Brws Pics ",
    "Html 2 code", "Html 2 text",  "No Repeats",   "LF 2 CRLF",  "No blanks",   "Search",
    "Replace",     "Text 2 lcase", "Text 2 ucase", "Find Email", "Remove CrLf", "Put into 1 file"};
const QStringList ViewerExtensions = {"jpg", "gif", "htm", "bmp", "txt", "ini"};
const QStringList TextExtensions = {"htm", "txt", "bas", "frm", "ini", "csv"};

QString withSlash(const QString& path)
{
    return path.endsWith('/') ? path : path + '/';
}
} // namespace

CacheScan::CacheScan(AppContext& ctx, CacheScanHost& host, const QString& profileCache)
    : m_ctx(ctx), m_host(host), m_profileCache(profileCache)
{
    makeControls();
    connect(&chkNoSubs, &Control::clicked, this, &CacheScan::chkNoSubsClick);
    connect(&txtSearch, &Control::changed, this, &CacheScan::ListCacheFiles);
    connect(&txtExt, &Control::changed, this, &CacheScan::txtExtChange);
    connect(&dirCache, &Control::changed, this, &CacheScan::dirCacheChange);
    connect(&cmdNewOutDir, &Control::clicked, this, &CacheScan::NewOutDirClick);
    connect(m_cmdCache[0], &Control::clicked, this, &CacheScan::DoItClick);
    connect(m_cmdCache[1], &Control::clicked, this, &CacheScan::CloseClick);
    for (int i = 1; i <= ExtCount; ++i)
        connect(&optExt(i), &Control::clicked, this, [this, i] { optExtClick(i); });
    for (int i = 0; i < ActionCount; ++i)
        connect(m_optAction[i], &Control::clicked, this, [this, i] { optActionClick(i); });
}

CacheScan::~CacheScan() = default;

void CacheScan::makeControls()
{
    form.setText(QStringLiteral("Manage Cache Files"));
    dirCache.setToolTip(QStringLiteral("Select a directory here"));
    chkNoSubs.setText(QStringLiteral("No Subs"));
    chkNoSubs.setToolTip(QStringLiteral("Check to stop collecting files from suburbs"));
    txtSearch.setToolTip(QStringLiteral("Enter text to find in file names"));
    Label1.setText(QStringLiteral("Other"));
    Label1.setToolTip(QStringLiteral("Type any file name extension to the right"));
    txtExt.setToolTip(QStringLiteral("Double click for all files."));
    txtOutDir.setToolTip(
        QStringLiteral("This is the directory to which all Vorlan output files will be written"));
    cmdNewOutDir.setText(QStringLiteral("Out Dir"));
    cmdNewOutDir.setToolTip(QStringLiteral("Click to change out put directory"));
    lblAction.setText(QStringLiteral("Action"));
    for (int i = 1; i <= ExtCount; ++i) {
        auto* c = new Control(QStringLiteral("optExt[%1]").arg(i), this);
        c->setText(ExtCaptions[i - 1]);
        c->setToolTip(QStringLiteral("Select a file type extension here"));
        m_optExt.append(c);
    }
    for (int i = 0; i < ActionCount; ++i) {
        auto* c = new Control(QStringLiteral("optAction[%1]").arg(i), this);
        c->setText(ActionCaptions[i]);
        c->setToolTip(QStringLiteral("Select an action here"));
        m_optAction.append(c);
    }
    const QStringList buttons = {"Do it", "Close"};
    const QStringList tips = {"Click to begin action", "Click to cancel an operation or to quit"};
    for (int i = 0; i < 2; ++i) {
        auto* c = new Control(QStringLiteral("cmdCache[%1]").arg(i), this);
        c->setText(buttons[i]);
        c->setToolTip(tips[i]);
        m_cmdCache.append(c);
    }
}

QStringList CacheScan::cacheFolderCandidates(const QString& profileCache)
{
    QStringList folders = {QStringLiteral("C:/WINDOWS/Temporary Internet Files/Content.IE5"),
                           QStringLiteral("C:/WINDOWS/Temporary Internet Files")};
    if (!profileCache.isEmpty())
        folders << profileCache;
    folders << QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return folders;
}

QString CacheScan::defaultCacheFolder(const QString& profileCache)
{
    for (const QString& folder : cacheFolderCandidates(profileCache)) {
        if (QFileInfo(folder).isDir())
            return withSlash(folder);
    }
    return QString();
}

void CacheScan::Load()
{
    state.Loading = true;
    state.StopRequested = false;
    state.FilePattern = m_ctx.GetSetting(Sect::CacheManager, Key::FilePattern, "*");
    state.CollectSubs =
        m_ctx.GetSetting(Sect::CacheManager, Key::GetSubDirFiles, "1") == QLatin1String("1");
    chkNoSubs.setChecked(!state.CollectSubs);
    state.PreviousPath =
        m_ctx.GetSetting(Sect::CacheManager, Key::PreviousPath, defaultCacheFolder(m_profileCache));
    // With no folder found the folder list stays where a folder list starts:
    // in the program's current folder, not at the root of the file system.
    dirCache.setText(state.PreviousPath.isEmpty() ? QDir::currentPath()
                                                  : state.PreviousPath.chopped(1));
    state.OutDir = OutputDirectory(m_ctx);
    txtOutDir.setText(state.OutDir);
    state.CurrentDrive = QStringLiteral("/");
    cmdCache(0).setEnabled(m_host.hasActions());
    applyPattern();
    ListCacheFiles();
    state.Loading = false;
}

void CacheScan::applyPattern()
{
    const int ext = extIndex(state.FilePattern);
    if (ext > 0) {
        optExtClick(ext);
        return;
    }
    textActions(false);
    txtExt.setText(state.FilePattern);
}

int CacheScan::extIndex(const QString& pattern) const
{
    return Extensions.indexOf(pattern) + 1;
}

bool CacheScan::isTextPattern() const
{
    return state.FilePattern == QLatin1String("htm") || state.FilePattern == QLatin1String("txt");
}

void CacheScan::textActions(bool on)
{
    for (int i = FirstTextAction; i < ActionCount; ++i) {
        Control& option = *m_optAction[i];
        if (!on) {
            if (state.SelectedAction == i)
                state.SelectedAction = -1;
            option.setChecked(false);
        }
        option.setEnabled(on);
    }
}

void CacheScan::patternTextActions()
{
    textActions(isTextPattern());
}

void CacheScan::optExtClick(int i)
{
    if (!txtExt.text().isEmpty())
        txtExt.setText(QString());
    state.FilePattern = Extensions[i - 1];
    for (int k = 1; k <= ExtCount; ++k)
        optExt(k).setChecked(k == i);
    textActions(i == 5 || i == 6);
    if (!state.Loading)
        ListCacheFiles();
}

void CacheScan::txtExtChange()
{
    const QString text = txtExt.text().trimmed().toLower();
    if (text.isEmpty()) {
        if (state.SavedPattern.isEmpty())
            state.FilePattern = QStringLiteral("*");
        else if (const int ext = extIndex(state.SavedPattern); ext > 0)
            optExt(ext).click();
        state.SavedPattern.clear();
        if (!state.Loading)
            ListCacheFiles();
        return;
    }
    if (state.SavedPattern.isEmpty())
        state.SavedPattern = state.FilePattern;
    state.FilePattern = text;
    patternTextActions();
    if (state.Loading)
        return;
    for (int k = 1; k <= ExtCount; ++k)
        optExt(k).setChecked(false);
    ListCacheFiles();
}

void CacheScan::txtExtDblClick()
{
    textActions(false);
    txtExt.setText(QStringLiteral("*"));
    state.FilePattern = txtExt.text();
}

void CacheScan::txtSearchDblClick()
{
    txtSearch.setText(QString());
}

void CacheScan::chkNoSubsClick()
{
    state.CollectSubs = !chkNoSubs.isChecked();
    ListCacheFiles();
}

void CacheScan::dirCacheChange()
{
    state.PreviousPath = withSlash(dirCache.text());
    if (!state.Loading)
        ListCacheFiles();
}

void CacheScan::optActionClick(int i)
{
    state.SelectedAction = qint16(i);
    for (int k = 0; k < ActionCount; ++k)
        m_optAction[k]->setChecked(k == i);
}

void CacheScan::SaveCacheSettings()
{
    const QString typed = txtExt.text().trimmed();
    if (typed.size() == 1)
        state.FilePattern = typed + QStringLiteral("??");
    else if (typed.size() == 2)
        state.FilePattern = typed + QStringLiteral("?");
    state.PreviousPath = withSlash(dirCache.text());
    m_ctx.SaveSetting(Sect::CacheManager, Key::PreviousPath, state.PreviousPath);
    m_ctx.SaveSetting(Sect::CacheManager, Key::FilePattern, state.FilePattern);
    m_ctx.SaveSetting(Sect::CacheManager, Key::GetSubDirFiles,
                      state.CollectSubs ? QStringLiteral("1") : QString());
    m_ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, state.OutDir);
}

void CacheScan::ListCacheFiles()
{
    if (state.Busy)
        return;
    const QString filter = txtSearch.text().trimmed().toLower();
    const CacheListing::Result found =
        CacheListing::list(state.PreviousPath, state.CollectSubs, state.FilePattern, filter);
    m_files.setFiles(found.files);
    if (!found.files.isEmpty())
        state.FoundFiles = found.files;
    form.setText(CacheListing::report(found));
    patternTextActions();
    m_host.unloadWait();
}

void CacheScan::lstCacheClick()
{
    const QModelIndex current = m_selection.currentIndex();
    if (!current.isValid())
        return;
    const QString extension = m_files.file(current.row()).right(3).toLower();
    const int selected = m_selection.selectedRows().size();
    if (selected == 1)
        textActions(TextExtensions.contains(extension));
    else if (!isTextPattern())
        textActions(false);
}

void CacheScan::lstCacheDblClick()
{
    const QModelIndex current = m_selection.currentIndex();
    if (!current.isValid())
        return;
    const QString path = m_files.file(current.row());
    if (ViewerExtensions.contains(path.right(3).toLower()))
        m_host.openViewer(path);
}

void CacheScan::lstCacheRightPress()
{
    const QModelIndex current = m_selection.currentIndex();
    if (current.isValid() && m_selection.isSelected(current))
        m_selection.select(current, QItemSelectionModel::Deselect);
}

void CacheScan::DoItClick()
{
    bool chosen = false;
    for (const Control* option : std::as_const(m_optAction))
        chosen = chosen || option->isChecked();
    if (!chosen) {
        m_ctx.MsgBox(QStringLiteral("No Action selected!"));
        return;
    }
    QString folder = txtOutDir.text().trimmed();
    if (folder.endsWith('/'))
        folder.chop(1);
    // The root, "/", is checked as itself rather than as an empty path.
    const bool exists = QFileInfo(folder.isEmpty() ? QStringLiteral("/") : folder).isDir();
    folder += '/';
    if (!exists) {
        m_ctx.MsgBox(QStringLiteral("Output Directory doesn't exist!"));
        NewOutDirClick();
        return;
    }
    txtOutDir.setText(folder);
    state.OutDir = folder;
    if (m_host.hasActions())
        m_host.runAction();
}

void CacheScan::CloseClick()
{
    if (state.Busy) {
        state.StopRequested = true;
        state.Busy = false;
        return;
    }
    m_host.unloadWindow();
}

void CacheScan::QueryUnload()
{
    if (state.Busy) {
        state.StopRequested = true;
        state.Busy = false;
    }
}

void CacheScan::NewOutDirClick()
{
    const QString previous = state.OutDir;
    state.OutDir.clear();
    m_host.showOutPutDir(previous);
    // The dialog answers through PassVariable; an empty answer (OK on the
    // root) leaves this waiting, as the window always did, until the user
    // picks again or the window goes.
    m_waiting = true;
    while (state.OutDir.isEmpty() && !m_unloaded)
        m_host.pumpEvents(true);
    m_waiting = false;
    if (m_unloaded)
        return;
    if (state.OutDir == QLatin1String("aborted"))
        state.OutDir = OutputDirectory(m_ctx);
    else
        m_ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, state.OutDir);
    // Paths are case-sensitive here: the folder is shown as chosen, not in
    // the capitals that a case-blind system could afford.
    txtOutDir.setText(state.OutDir);
}

void CacheScan::PassVariable(const QString& path)
{
    state.OutDir = path;
}

void CacheScan::setControlsEnabled(bool enabled)
{
    for (Control* c : {m_cmdCache[0], &chkNoSubs, &dirCache, &txtExt, &txtOutDir, &cmdNewOutDir})
        c->setEnabled(enabled);
    for (Control* c : std::as_const(m_optAction))
        c->setEnabled(enabled);
    for (Control* c : std::as_const(m_optExt))
        c->setEnabled(enabled);
}

void CacheScan::clearActionOptions()
{
    for (Control* c : std::as_const(m_optAction))
        c->setChecked(false);
}

void CacheScan::Unload()
{
    m_unloaded = true;
    state.FoundFiles = QStringList{QString()};
    m_ctx.state.gblnCacheLoaded = false;
}
