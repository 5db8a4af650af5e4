#include "TestContext.h"
#include "cache/CacheScan.h"
#include "cache/CacheScanHost.h"
#include "core/SettingsKeys.h"

#include <QDir>
#include <QtTest>

namespace {
// The window around the rules, recorded; the folder dialog answers from a
// queue.
struct RecordingScanHost : CacheScanHost
{
    CacheScan* scan = nullptr;
    int waitsUnloaded = 0;
    int runs = 0;
    bool actions = true;
    QStringList viewed;
    QStringList dialogStarts;
    QStringList answers;

    void unloadWait() override { ++waitsUnloaded; }
    void pumpEvents(bool) override {}
    void showOutPutDir(const QString& path) override
    {
        dialogStarts << path;
        scan->PassVariable(answers.takeFirst());
    }
    void openViewer(const QString& path) override { viewed << path; }
    bool hasActions() const override { return actions; }
    void runAction() override { ++runs; }
    void unloadWindow() override {}
};

struct Rig
{
    TestContext t;
    RecordingScanHost host;
    QString folder = t.folders.root() + "/cache/";
    std::unique_ptr<CacheScan> scan;

    Rig(const QStringList& files = {})
    {
        for (const QString& name : files)
            putFile(folder + name, "x");
        QDir().mkpath(folder);
        scan = std::make_unique<CacheScan>(t.ctx, host, folder);
        host.scan = scan.get();
    }
    QString setting(const char* key) const
    {
        return t.ctx.GetSetting(Sect::CacheManager, key, "<none>");
    }
    bool textActionsOn()
    {
        bool on = true;
        for (int i = CacheScan::FirstTextAction; i < CacheScan::ActionCount; ++i)
            on = on && scan->optAction(i).isEnabled();
        return on;
    }
    bool textActionsOff()
    {
        for (int i = CacheScan::FirstTextAction; i < CacheScan::ActionCount; ++i)
            if (scan->optAction(i).isEnabled())
                return false;
        return true;
    }
    void select(const QList<int>& rows)
    {
        QItemSelectionModel& sel = scan->lstSelection();
        sel.clearSelection();
        for (int row : rows)
            sel.setCurrentIndex(scan->lstCache().index(row), QItemSelectionModel::Select);
        scan->lstCacheClick();
    }
};
} // namespace

class TestCacheScan : public QObject
{
    Q_OBJECT

private slots:
    // First opening: Browser One's cache folder, every file, sub-folders on;
    // later ones: what was saved.
    void loadDefaultsAndSettings()
    {
        Rig r({"a.htm", "b.gif", "sub/c.htm"});
        r.scan->Load();
        CacheState& s = r.scan->state;
        QCOMPARE(s.PreviousPath, r.folder);
        QCOMPARE(r.scan->dirCache.text(), r.folder.chopped(1));
        QCOMPARE(s.FilePattern, QString("*"));
        QCOMPARE(r.scan->txtExt.text(), QString("*"));
        QVERIFY(r.textActionsOff());
        QVERIFY(!r.scan->chkNoSubs.isChecked());
        QCOMPARE(s.OutDir, r.t.ctx.appPath);
        QCOMPARE(r.scan->form.text(), QString("I Found 3 Files in 2 Subs!"));
        QCOMPARE(r.host.waitsUnloaded, 1);
        QVERIFY(!s.Loading);

        Rig again({"a.htm", "b.gif", "sub/c.htm"});
        again.t.ctx.SaveSetting(Sect::CacheManager, Key::FilePattern, "htm");
        again.t.ctx.SaveSetting(Sect::CacheManager, Key::GetSubDirFiles, "");
        again.scan->Load();
        QVERIFY(again.scan->optExt(5).isChecked());
        QVERIFY(again.textActionsOn());
        QVERIFY(again.scan->chkNoSubs.isChecked());
        QCOMPARE(again.scan->form.text(), QString("I Found 1 Files."));
        QCOMPARE(again.scan->lstCache().file(0), again.folder + "a.htm");
    }

    void defaultFolderCandidates()
    {
        TestFolders f;
        const QString userCache = qEnvironmentVariable("XDG_CACHE_HOME");
        QCOMPARE(CacheScan::defaultCacheFolder(f.root() + "/missing"), userCache + "/");
        QCOMPARE(CacheScan::defaultCacheFolder(f.root()), f.root() + "/");
        QVERIFY(QDir(userCache).removeRecursively());
        QCOMPARE(CacheScan::defaultCacheFolder(f.root() + "/missing"), QString());
        // With none of them there the folder list starts in the current
        // folder, not at the root.
        Rig none;
        none.scan = std::make_unique<CacheScan>(none.t.ctx, none.host, f.root() + "/missing");
        none.host.scan = none.scan.get();
        QVERIFY(QDir(qEnvironmentVariable("XDG_CACHE_HOME")).removeRecursively());
        const QString current = QDir::currentPath();
        QVERIFY(QDir::setCurrent(f.root()));
        none.scan->Load();
        QDir::setCurrent(current);
        QCOMPARE(none.scan->dirCache.text(), f.root());
        QCOMPARE(none.scan->state.PreviousPath, f.root() + "/");
        const QStringList all = CacheScan::cacheFolderCandidates("/p");
        QCOMPARE(all.mid(0, 3), QStringList({"C:/WINDOWS/Temporary Internet Files/Content.IE5",
                                             "C:/WINDOWS/Temporary Internet Files", "/p"}));
    }

    // The six options and the typed extension switch the pattern and the
    // text actions, and a cleared box brings the option back.
    void extensionRule()
    {
        Rig r({"a.htm", "b.ba", "c.txt", "d.jpg"});
        r.scan->Load();
        CacheScan& c = *r.scan;
        c.optExt(5).click();
        QCOMPARE(c.state.FilePattern, QString("htm"));
        QCOMPARE(c.txtExt.text(), QString());
        QVERIFY(r.textActionsOn());
        c.optAction(8).click();
        QCOMPARE(c.state.SelectedAction, qint16(8));
        c.optExt(1).click();
        QCOMPARE(c.form.text(), QString("I Found 1 Files."));
        QCOMPARE(c.state.SelectedAction, qint16(-1));
        QVERIFY(!c.optAction(8).isChecked());
        QVERIFY(r.textActionsOff());
        QVERIFY(c.optAction(5).isEnabled());

        c.optExt(5).click();
        c.txtExt.setText(" B");
        QCOMPARE(c.state.FilePattern, QString("b"));
        QCOMPARE(c.state.SavedPattern, QString("htm"));
        c.txtExt.setText(" Ba ");
        QCOMPARE(c.form.text(), QString("I Found 1 Files."));
        QVERIFY(!c.optExt(5).isChecked());
        QVERIFY(r.textActionsOff());
        c.txtExt.setText("txt");
        QVERIFY(r.textActionsOn());
        c.txtExt.setText("");
        QCOMPARE(c.state.FilePattern, QString("htm"));
        QVERIFY(c.optExt(5).isChecked());
        QVERIFY(c.state.SavedPattern.isEmpty());

        c.txtExtDblClick();
        QCOMPARE(c.state.FilePattern, QString("*"));
        QCOMPARE(c.form.text(), QString("I Found 4 Files."));
        c.txtExt.setText("");
        QCOMPARE(c.state.FilePattern, QString("htm")); // saved when "*" was typed
    }

    // A short typed extension lists itself until an action starts; then it
    // is widened, saved and listed widened.
    void widenedAtSave()
    {
        Rig r({"a.h", "b.htm", "c.html"});
        r.scan->Load();
        CacheScan& c = *r.scan;
        c.txtExt.setText("h");
        QCOMPARE(c.form.text(), QString("I Found 1 Files."));
        c.chkNoSubs.setChecked(true);
        c.chkNoSubs.click();
        c.SaveCacheSettings();
        QCOMPARE(c.state.FilePattern, QString("h??"));
        QCOMPARE(r.setting(Key::FilePattern), QString("h??"));
        QCOMPARE(r.setting(Key::PreviousPath), r.folder);
        QCOMPARE(r.setting(Key::GetSubDirFiles), QString(""));
        QCOMPARE(r.setting(Key::DefaultOutPutDir), r.t.ctx.appPath);
        c.ListCacheFiles();
        QCOMPARE(c.form.text(), QString("I Found 2 Files."));
        c.txtExt.setText("ht");
        c.SaveCacheSettings();
        QCOMPARE(c.state.FilePattern, QString("ht?"));
        c.txtExt.setText("htm");
        c.chkNoSubs.setChecked(false);
        c.chkNoSubs.click();
        c.SaveCacheSettings();
        QCOMPARE(c.state.FilePattern, QString("htm"));
        QCOMPARE(r.setting(Key::GetSubDirFiles), QString("1"));
    }

    // The listing: nothing while busy, the old FoundFiles kept when nothing
    // is found, the filter read trimmed and without case.
    void listingState()
    {
        Rig r({"one.gif", "Two.gif"});
        r.scan->Load();
        CacheScan& c = *r.scan;
        QCOMPARE(c.state.FoundFiles, QStringList({r.folder + "one.gif", r.folder + "Two.gif"}));
        c.txtSearch.setText("  TWO ");
        QCOMPARE(c.state.FoundFiles, QStringList({r.folder + "Two.gif"}));
        c.txtSearch.setText("none");
        QCOMPARE(c.lstCache().rowCount(), 0);
        QCOMPARE(c.state.FoundFiles, QStringList({r.folder + "Two.gif"}));
        c.txtSearchDblClick();
        QCOMPARE(c.lstCache().rowCount(), 2);
        c.state.Busy = true;
        c.txtSearch.setText("one");
        QCOMPARE(c.lstCache().rowCount(), 2);
        QCOMPARE(c.form.text(), QString("I Found 2 Files."));
        c.state.Busy = false;
        c.dirCache.setText(r.folder + "gone");
        QCOMPARE(c.state.PreviousPath, r.folder + "gone/");
        QCOMPARE(c.form.text(), QString("I Found 0 Files."));
    }

    // With the pattern "htm" two selected files keep the text actions; a
    // double click views pictures and pages only.
    void listClicks()
    {
        Rig r({"a.htm", "b.gif", "c.htm", "d.zip"});
        r.scan->Load();
        CacheScan& c = *r.scan;
        c.optExt(5).click();
        r.select({0, 1});
        QVERIFY(r.textActionsOn());
        c.txtExtDblClick();
        r.select({1});
        c.lstCacheDblClick();
        r.select({3});
        c.lstCacheDblClick();
        QCOMPARE(r.host.viewed, QStringList({r.folder + "b.gif"}));
    }

    // "Do it" checks the action and the output folder before a run starts.
    void doItChecks()
    {
        Rig r({"a.gif"});
        r.scan->Load();
        CacheScan& c = *r.scan;
        c.cmdCache(0).click();
        QCOMPARE(r.t.prompts.messages(), QStringList({"No Action selected!"}));
        c.optAction(0).click();
        const QString out = r.t.folders.root() + "/out";
        QDir().mkpath(out);
        c.txtOutDir.setText("  " + out + " ");
        c.cmdCache(0).click();
        QCOMPARE(r.host.runs, 1);
        QCOMPARE(c.state.OutDir, out + "/");
        QCOMPARE(c.txtOutDir.text(), out + "/");

        r.t.prompts.clear();
        c.txtOutDir.setText(out + "/missing/");
        r.host.answers << "aborted";
        c.cmdCache(0).click();
        QCOMPARE(r.t.prompts.messages(), QStringList({"Output Directory doesn't exist!"}));
        QCOMPARE(r.host.dialogStarts, QStringList({out + "/"}));
        QCOMPARE(c.state.OutDir, r.t.ctx.appPath);
        QCOMPARE(r.host.runs, 1);

        Rig none({"a.gif"});
        none.host.actions = false;
        none.scan->Load();
        QVERIFY(!none.scan->cmdCache(0).isEnabled());
    }
};

QTEST_GUILESS_MAIN(TestCacheScan)
#include "TestCacheScan.moc"
