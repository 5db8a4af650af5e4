#include "EngineEnvironment.h"
#include "WidgetChecks.h"
#include "WindowsRig.h"
#include "browserone/frmWBOne.h"
#include "cache/CacheProgressOverflow.h"
#include "cache/CacheWindows.h"
#include "cache/FolderTree.h"
#include "cache/frmCache.h"
#include "cache/frmOutPutDir.h"
#include "cache/frmProgress.h"
#include "cache/frmWait.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {
// Stands for the eighteen actions: a run that shows progress and pumps
// events until the user stops it, as the real ones do between files.
class RecordingActions : public CacheActions
{
public:
    RecordingActions(CacheState& state, CacheActionHost& host) : m_state(state), m_host(host) {}

    static inline int runs = 0;
    static inline int finishes = 0;
    static inline int rounds = 0;

    void RunCacheAction() override
    {
        ++runs;
        m_host.SaveCacheSettings();
        m_host.setControlsEnabled(false);
        m_host.setTitle(QStringLiteral("I'm Busy, don't disturb me!"));
        m_state.Busy = true;
        for (rounds = 0; rounds < 1000000; ++rounds) {
            if (m_state.StopRequested) {
                m_state.StopRequested = false;
                break;
            }
            m_host.Increm(rounds % 100);
            if (rounds % 100 == 99)
                m_host.ResetCount();
            m_host.pumpEvents();
        }
        FinishCacheAction();
        m_host.ListCacheFiles();
    }
    void FinishCacheAction() override
    {
        ++finishes;
        m_host.setControlsEnabled(true);
        m_host.setTitle(QStringLiteral("I'm Finished!"));
        m_host.ResetCount();
        m_host.unloadProgress();
        m_host.unloadWait();
        m_state.Busy = false;
    }

private:
    CacheState& m_state;
    CacheActionHost& m_host;
};

CacheActionsFactory recordingActions()
{
    return [](AppContext&, CacheState& state, CacheActionHost& host) {
        return std::make_unique<RecordingActions>(state, host);
    };
}

struct WindowRig
{
    TestContext t;
    QString folder = t.folders.root() + "/cache/";
    std::unique_ptr<frmCache> w;

    explicit WindowRig(const QStringList& files)
    {
        for (const QString& name : files)
            putFile(folder + name, "x");
        frmCache::Links links;
        links.actions = recordingActions();
        links.profileCache = folder;
        w = std::make_unique<frmCache>(t.ctx, links);
        w->FakeSub();
        if (!QTest::qWaitForWindowExposed(w.get()))
            qWarning("the cache window is not on the screen");
        RecordingActions::runs = RecordingActions::finishes = 0;
    }
    template <typename W> W* child(const char* name) { return w->findChild<W*>(name); }
    // A click on an option's round mark: the button answers no click beside its text.
    void pick(const char* name)
    {
        auto* button = child<QRadioButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
    }
    QListView* list() { return child<QListView>("lstCache"); }
    void clickRow(int row, Qt::KeyboardModifiers mods = Qt::NoModifier)
    {
        QListView* l = list();
        const QRect at = l->visualRect(l->model()->index(row, 0));
        QTest::mouseClick(l->viewport(), Qt::LeftButton, mods, at.center());
    }
    QList<int> selected()
    {
        QList<int> rows;
        for (int row : w->selectedRows())
            rows << row;
        return rows;
    }
};
} // namespace

class TestCacheWindow : public QObject
{
    Q_OBJECT

private slots:
    // The navigator's entry opens the window over its first listing: the
    // on-top state is given up and both entries wait until it closes.
    void openedFromTheNavigator()
    {
        WindowsRig r;
        r.t.ctx.SaveSetting("CacheManager", "PreviousPath", r.t.folders.root() + "/");
        QAction* onTop = r.main->findChild<QAction*>("mnuOnTop");
        onTop->trigger();
        QVERIFY(r.t.state.gblnMainOnTop);
        QAction* entry = r.main->findChild<QAction*>("mnuCache");
        QVERIFY(entry->isEnabled());
        entry->trigger();
        frmCache* w = WindowsRig::topLevel<frmCache>(true);
        QVERIFY(w);
        QVERIFY(r.t.state.gblnCacheLoaded);
        QVERIFY(!r.t.state.gblnMainOnTop);
        QVERIFY(!entry->isEnabled());
        QVERIFY(!WindowsRig::topLevel<frmWait>());
        QVERIFY(w->windowTitle().startsWith("I Found "));
        QVERIFY(w->findChild<QPushButton*>("cmdCache[0]")->isEnabled()); // the actions are wired in

        r.windows.ShowBrowserOne();
        QMenu* menu = r.windows.browserOne()->mnuCopy();
        QAction* counterpart = menu->findChild<QMenu*>("mnuXtras")->findChild<QAction*>("mnuCache");
        QVERIFY(counterpart);
        QVERIFY(!counterpart->isEnabled());

        w->close(); // the close box is refused
        QVERIFY(w->isVisible());
        QTest::mouseClick(w->findChild<QPushButton*>("cmdCache[1]"), Qt::LeftButton);
        QTRY_VERIFY(!WindowsRig::topLevel<frmCache>(true));
        QVERIFY(!r.t.state.gblnCacheLoaded);
        QVERIFY(entry->isEnabled());
        QVERIFY(counterpart->isEnabled());
        QCOMPARE(r.t.ctx.GetSetting("CacheManager", "CFWE_W").isEmpty(), false);
        counterpart->trigger();
        QVERIFY(WindowsRig::topLevel<frmCache>(true));
        r.windows.unloadWindow(ProgramWindow::Cache);
        QTRY_VERIFY(!WindowsRig::topLevel<frmCache>(true));
    }

    // The pickers through their widgets: a folder chosen in the tree, an
    // option, typing and a double click in the extension box.
    void pickers()
    {
        WindowRig r({"a.htm", "b.gif", "c.ba", "inner/d.htm", "inner/e.gif"});
        frmCache& w = *r.w;
        QCOMPARE(w.windowTitle(), QString("I Found 5 Files in 2 Subs!"));
        QCOMPARE(WidgetChecks::unnamedControls(&w), QStringList());

        r.pick("optExt[5]");
        QCOMPARE(w.windowTitle(), QString("I Found 2 Files in 2 Subs!"));
        QVERIFY(r.child<QRadioButton>("optAction[9]")->isEnabled());
        r.pick("optAction[9]");
        r.pick("optAction[0]");
        QVERIFY(!r.child<QRadioButton>("optAction[9]")->isChecked());
        QVERIFY(r.child<QRadioButton>("optAction[0]")->isChecked());

        QLineEdit* ext = r.child<QLineEdit>("txtExt");
        QTest::keyClicks(ext, "b");
        QCOMPARE(w.windowTitle(), QString("I Found 0 Files in 0 Subs!"));
        QVERIFY(!r.child<QRadioButton>("optExt[5]")->isChecked());
        QTest::keyClicks(ext, "a");
        QCOMPARE(w.windowTitle(), QString("I Found 1 Files in 1 Subs!"));
        QVERIFY(!r.child<QRadioButton>("optAction[9]")->isEnabled());
        QTest::keyClick(ext, Qt::Key_Backspace);
        QTest::keyClick(ext, Qt::Key_Backspace);
        QVERIFY(r.child<QRadioButton>("optExt[5]")->isChecked());
        QTest::mouseDClick(ext, Qt::LeftButton);
        QCOMPARE(ext->text(), QString("*"));
        QCOMPARE(w.windowTitle(), QString("I Found 5 Files in 2 Subs!"));

        QTest::mouseClick(r.child<QCheckBox>("chkNoSubs"), Qt::LeftButton);
        QCOMPARE(w.windowTitle(), QString("I Found 3 Files."));

        auto* tree = r.child<FolderTree>("dirCache");
        auto* model = static_cast<QFileSystemModel*>(tree->model());
        const QModelIndex inner = model->index(r.folder + "inner");
        QVERIFY(inner.isValid());
        tree->scrollTo(inner);
        QTRY_VERIFY(tree->visualRect(inner).isValid());
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(inner).center());
        QCOMPARE(w.rules().state.PreviousPath, r.folder + "inner/");
        QCOMPARE(w.windowTitle(), QString("I Found 2 Files."));
    }

    // Selection with the mouse and the keys; the right button deselects.
    void listSelection()
    {
        WindowRig r({"a.bas", "b.gif", "c.htm", "d.zip"});
        QListView* list = r.list();
        r.clickRow(0);
        QCOMPARE(r.selected(), QList<int>({0}));
        QVERIFY(r.child<QRadioButton>("optAction[6]")->isEnabled()); // one .bas file
        r.clickRow(2, Qt::ControlModifier);
        QCOMPARE(r.selected(), QList<int>({0, 2}));
        QVERIFY(!r.child<QRadioButton>("optAction[6]")->isEnabled());
        r.clickRow(1);
        QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(r.selected(), QList<int>({1, 2}));
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(r.selected(), QList<int>({3}));
        QVERIFY(!r.child<QRadioButton>("optAction[6]")->isEnabled()); // one .zip file
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(r.selected(), QList<int>({2}));
        QVERIFY(r.child<QRadioButton>("optAction[6]")->isEnabled()); // one .htm file
        QTest::keyClicks(list, "a");                                 // no search by letters
        QCOMPARE(r.selected(), QList<int>({2}));
        QTest::mouseClick(list->viewport(), Qt::RightButton, {},
                          list->visualRect(list->model()->index(0, 0)).center());
        QVERIFY(r.selected().isEmpty());
        QCOMPARE(r.w->listCount(), 4);
    }

    // During a run the window repaints, drops keys, and Close or the close
    // box stops the run, which gives the controls back.
    void closeDuringRun()
    {
        WindowRig r({"a.gif", "b.gif"});
        frmCache& w = *r.w;
        r.pick("optAction[0]");
        r.w->rules().txtOutDir.setText(r.t.folders.root());
        QLineEdit* search = r.child<QLineEdit>("txtSearch");
        auto* close = r.child<QPushButton>("cmdCache[1]");
        QStringList seen;
        QTimer::singleShot(100, &w, [&] {
            seen << w.windowTitle();
            QTest::keyClicks(search, "zz");
            seen << search->text();
            seen << QString::number(r.child<QPushButton>("cmdCache[0]")->isEnabled());
            seen << QString::number(w.progress() && w.progress()->isVisible());
            w.close();
        });
        QTest::mouseClick(r.child<QPushButton>("cmdCache[0]"), Qt::LeftButton);
        QCOMPARE(RecordingActions::runs, 1);
        QCOMPARE(seen, QStringList({"I'm Busy, don't disturb me!", "", "0", "1"}));
        QVERIFY(w.isVisible());
        QVERIFY(!w.rules().state.Busy);
        QCOMPARE(w.windowTitle(), QString("I Found 2 Files."));
        QVERIFY(r.child<QPushButton>("cmdCache[0]")->isEnabled());
        QVERIFY(!w.progress());

        QTimer::singleShot(50, close, [close] { QTest::mouseClick(close, Qt::LeftButton); });
        QTest::mouseClick(r.child<QPushButton>("cmdCache[0]"), Qt::LeftButton);
        QCOMPARE(RecordingActions::runs, 2);
        QVERIFY(RecordingActions::rounds > 0);
        QVERIFY(w.isVisible());
    }

    // The program unloads the window and the user opens it again while a
    // run is still on the stack: the old window outlives its run.
    void reopenedDuringRun()
    {
        TestContext t;
        t.ctx.SaveSetting("CacheManager", "PreviousPath", t.folders.root() + "/");
        CacheWindows::Links links;
        links.actions = recordingActions();
        int menuSwitches = 0;
        links.enableMenus = [&menuSwitches](bool) { ++menuSwitches; };
        CacheWindows windows(t.ctx, links);
        windows.show();
        QPointer<frmCache> first = windows.window();
        QVERIFY(first && t.state.gblnCacheLoaded);
        first->rules().optAction(0).click();
        QPointer<frmCache> second;
        QTimer::singleShot(50, [&] {
            windows.unload();
            windows.show();
            second = windows.window();
        });
        first->rules().cmdCache(0).click();
        QVERIFY(first);
        QVERIFY(second && second != first && second->isVisible());
        QCOMPARE(menuSwitches, 3);
        windows.unload();
        windows.show();
        QVERIFY(!first && !second);
    }

    // The output folder dialog: Cancel reads the stored folder again; OK
    // on the root answers nothing and the window waits on.
    void outputFolderDialog()
    {
        WindowRig r({"a.gif"});
        frmCache& w = *r.w;
        const QString chosen = r.t.folders.root() + "/out";
        QDir().mkpath(chosen);
        auto answerDialog = [](const std::function<void(frmOutPutDir*)>& act) {
            QTimer::singleShot(0, [act] {
                QTRY_VERIFY(qobject_cast<frmOutPutDir*>(QApplication::activeModalWidget()));
                act(qobject_cast<frmOutPutDir*>(QApplication::activeModalWidget()));
            });
        };
        answerDialog([&chosen](frmOutPutDir* d) {
            d->Dir1->setPath(chosen);
            QTest::mouseClick(d->OKButton, Qt::LeftButton);
        });
        QTest::mouseClick(r.child<QPushButton>("cmdNewOutDir"), Qt::LeftButton);
        QCOMPARE(r.child<QLineEdit>("txtOutDir")->text(), chosen + "/");
        QCOMPARE(r.t.ctx.GetSetting("CacheManager", "DefaultOutPutDir"), chosen + "/");

        answerDialog([](frmOutPutDir* d) { QTest::mouseClick(d->CancelButton, Qt::LeftButton); });
        QTest::mouseClick(r.child<QPushButton>("cmdNewOutDir"), Qt::LeftButton);
        QCOMPARE(w.rules().state.OutDir, chosen + "/");

        bool waited = false;
        answerDialog([&](frmOutPutDir* d) {
            d->Dir1->setPath("/");
            QTest::mouseClick(d->OKButton, Qt::LeftButton);
            QTimer::singleShot(50, [&] {
                waited = w.rules().state.OutDir.isEmpty();
                w.rules().PassVariable(chosen + "/later/");
            });
        });
        QTest::mouseClick(r.child<QPushButton>("cmdNewOutDir"), Qt::LeftButton);
        QVERIFY(waited);
        QCOMPARE(w.rules().state.OutDir, chosen + "/later/");
    }

    // The bar shows a label per percent and fails past its last one.
    void progressBar()
    {
        frmProgress p;
        p.Increm(3);
        QVERIFY(p.isVisible());
        QCOMPARE(p.lblPercent->text(), QString("3%"));
        QVERIFY(p.lblProgress[3]->isVisibleTo(&p) && !p.lblProgress[4]->isVisibleTo(&p));
        p.Increm(2);
        QCOMPARE(p.count(), 3);
        p.Increm(99);
        QVERIFY_THROWS_EXCEPTION(CacheProgressOverflow, p.Increm(102));
        QVERIFY(p.lblProgress[100]->isVisibleTo(&p));
        QCOMPARE(p.lblPercent->text(), QString("100%"));
        p.ResetCount();
        QCOMPARE(p.count(), 0);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestCacheWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestCacheWindow.moc"
