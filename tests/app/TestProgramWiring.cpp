#include "EngineEnvironment.h"
#include "TestFolders.h"
#include "WindowsRig.h"
#include "browsertwo/frmWBTwo.h"
#include "cache/frmCache.h"
#include "core/SettingsKeys.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

// The program's own assembly: the windows that were built apart meet
// through the registry, with their real parts behind them.
class TestProgramWiring : public QObject
{
    Q_OBJECT

    static QAction* entry(WindowsRig& r, const char* name)
    {
        QAction* action = r.main->findChild<QAction*>(name);
        return action && action->isEnabled() ? action : nullptr;
    }

private slots:
    // "Web Browser Two" reads a word file through the real word sources and
    // opens the walker on its words; Unload lets the walker go.
    void browserTwoOpensOnARealWordSource()
    {
        WindowsRig r;
        const QString words = r.t.folders.root() + "/names.txt";
        QVERIFY(putFile(words, "Ann,Bob\r\n\"cy\"\r\n"));
        r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, "0");
        r.t.prompts.answerPath(words);
        QAction* open = entry(r, "mnuBrowserTwo");
        QVERIFY(open);
        open->trigger();
        frmWBTwo* walker = WindowsRig::topLevel<frmWBTwo>(true);
        QVERIFY(walker);
        QVERIFY(r.t.state.gblnWBTwoLoaded);
        QCOMPARE(r.t.state.gstrSites, QVector<QString>({"", "ann", "bob", "cy"}));
        QCOMPARE(walker->findChild<QLabel*>("StatusBarWBT[1]")->text(),
                 QString("names.txt Loaded!"));
        // The walker counts one word less than it was handed, as it always has.
        QCOMPARE(walker->findChild<QLabel*>("StatusBarWBT[3]")->text(), QString("1 of 2"));

        r.windows.unloadWindow(ProgramWindow::BrowserTwo);
        QTRY_VERIFY(!r.t.state.gblnWBTwoLoaded);
        QVERIFY(r.t.state.gstrSites.isEmpty());
    }

    // "IECache Manager" runs a real action: Copy puts each listed file into
    // the output folder and leaves the listed one as it was.
    void cacheManagerRunsARealAction()
    {
        WindowsRig r;
        const QString listed = r.t.folders.root() + "/listed/";
        const QString out = r.t.folders.root() + "/out/";
        QVERIFY(QDir().mkpath(out));
        QVERIFY(putFile(listed + "page one.htm", "<p>one</p>"));
        r.t.ctx.SaveSetting("CacheManager", "PreviousPath", listed);
        r.t.ctx.SaveSetting("CacheManager", "DefaultOutPutDir", out);
        QAction* open = entry(r, "mnuCache");
        QVERIFY(open);
        open->trigger();
        frmCache* cache = WindowsRig::topLevel<frmCache>(true);
        QVERIFY(cache);
        QCOMPARE(cache->windowTitle(), QString("I Found 1 Files."));
        auto* copy = cache->findChild<QRadioButton*>("optAction[0]");
        QTest::mouseClick(copy, Qt::LeftButton, {}, QPoint(6, copy->height() / 2));
        QVERIFY(copy->isChecked());
        QTest::mouseClick(cache->findChild<QPushButton*>("cmdCache[0]"), Qt::LeftButton);
        QTRY_COMPARE(fileBytes(out + "page one.htm"), QByteArray("<p>one</p>"));
        QCOMPARE(fileBytes(listed + "page one.htm"), QByteArray("<p>one</p>"));
        QCOMPARE(cache->windowTitle(), QString("I Found 1 Files."));
        r.windows.unloadWindow(ProgramWindow::Cache);
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestProgramWiring test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestProgramWiring.moc"
