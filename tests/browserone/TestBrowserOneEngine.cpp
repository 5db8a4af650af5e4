#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "TestContext.h"
#include "WidgetChecks.h"
#include "app/WindowRegistry.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOLinks.h"
#include "browserone/frmWBOne.h"
#include "core/WindowPlace.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QMenu>
#include <QRegularExpression>
#include <QScreen>
#include <QWindow>
#include <QtTest>

namespace {

// House numbers that stall instead of completing, shared with the server.
QSet<QString> stalledHouses;

LocalWebServer::Reply answer(const QString& url)
{
    static const QRegularExpression house(QStringLiteral("/(\\d{4})/$"));
    const auto m = house.match(url);
    if (url.endsWith(QLatin1String("/popup/")))
        return {LocalWebServer::page(
            "Opens a window", "<script>window.open('http://www.geocities.com/popped/');</script>"
                              "<img src='http://www.geocities.com/slow.gif'>")};
    if (url.endsWith(QLatin1String("/slow.gif")))
        return {QByteArray(), 404, false, 400};
    if (m.hasMatch()) {
        const QString number = m.captured(1);
        return {LocalWebServer::page("House " + number), 200, stalledHouses.contains(number)};
    }
    return {LocalWebServer::page("Elsewhere")};
}

// The program's windows on a new database, with the connection up.
struct EngineRig
{
    TestContext t;
    WindowRegistry windows{t.ctx};
    Navigator* nav = nullptr;

    EngineRig()
    {
        t.createAndOpenDatabase();
        nav = &windows.main()->navigator();
        nav->LoadCatalogue();
    }
    ~EngineRig()
    {
        nav->StopAutoModes();
        if (windows.browserOne())
            windows.browserOne()->close();
    }
    BrowserOne& one() { return windows.browserOne()->rules(); }
    bool done() { return windows.browserOne() && one().form.text().endsWith("[Done]"); }
};

} // namespace

class TestBrowserOneEngine : public QObject
{
    Q_OBJECT
    LocalWebServer server{answer};

    QStringList houses() const
    {
        QStringList found;
        for (const QString& url : server.requested) {
            if (url.startsWith("http://www.geocities.com/Area51/"))
                found << url.mid(32, 4);
        }
        return found;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(server.start());
        EngineEnvironment::prepare(server.proxyAddress());
    }

    void init()
    {
        server.requested.clear();
        stalledHouses.clear();
    }

    void openShowsThePageWithItsProgressInTheCaption()
    {
        EngineRig r;
        QStringList captions;
        r.nav->controls().cmdOpenSite.click();
        QVERIFY(r.windows.browserOne());
        QObject::connect(&r.one().form, &Control::viewChanged,
                         [&] { captions << r.one().form.text(); });
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        QVERIFY(!server.requested.isEmpty());
        QCOMPARE(server.requested.first(), QString("http://www.geocities.com/Area51/1000/"));
        QCOMPARE(r.one().form.text(), QString("     House 1000          [Done]"));
        QCOMPARE(r.one().txtAddressBar.text(), QString("http://www.geocities.com/Area51/1000/"));
        QVERIFY(!captions.filter(QRegularExpression("\\[\\d+%\\]$")).isEmpty());
        QVERIFY(r.nav->controls().cmdGoBack.isEnabled());

        // The next page reuses the window and its engine.
        frmWBOne* window = r.windows.browserOne();
        r.nav->controls().cmdNext.click();
        QTRY_VERIFY_WITH_TIMEOUT(r.one().form.text() == "     House 1001          [Done]", 10000);
        QCOMPARE(r.windows.browserOne(), window);
    }

    void theHoverMenuHasEveryEntry()
    {
        EngineRig r;
        r.windows.ShowBrowserOne();
        QMenu* menu = r.windows.browserOne()->mnuCopy();
        QStringList names;
        for (QAction* a : menu->actions())
            names << (a->menu() ? a->menu()->objectName() : a->objectName());
        QCOMPARE(names, (QStringList{"mnuWB1Stop", "mnuNext", "mnuBack", "mnuAutoNav", "mnuRandNav",
                                     "mnuVorlan", "mnuSaved", "mnuXtras", "mnuSearch", "mnuExit"}));
        QStringList xtras;
        for (QAction* a : r.windows.browserOne()->findChild<QMenu*>("mnuXtras")->actions())
            xtras << a->text();
        QCOMPARE(xtras, (QStringList{"AddFavorite", "Get File List", "SaveAs", "Copy URL", "Reduce",
                                     "On Top"}));
        QCOMPARE(r.windows.browserOne()->findChild<QMenu*>("mnuSearch")->actions().size(), 7);
    }

    void aScreenReaderCanNameEveryControl()
    {
        EngineRig r;
        r.windows.ShowBrowserOne();
        r.windows.browserOne()->findChild<QAction*>("mnuSaved")->trigger();
        QVERIFY(r.windows.linksPanel());
        QCOMPARE(WidgetChecks::unnamedControls(r.windows.browserOne()), QStringList());
        QCOMPARE(WidgetChecks::unnamedControls(r.windows.linksPanel()), QStringList());
    }

    void theSavedLinksPanelLeavesMaximisedWithItsOwnWidth()
    {
        EngineRig r;
        AppContext& ctx = r.t.ctx;
        ctx.SaveSetting("Startup", "LinksL", "1500");
        ctx.SaveSetting("Startup", "LinksT", "1200");
        ctx.SaveSetting("Startup", "LinksW", "6000");
        ctx.SaveSetting("Startup", "LinksH", "4500");
        r.windows.ShowBrowserOne();
        QAction* saved = r.windows.browserOne()->findChild<QAction*>("mnuSaved");
        saved->trigger();
        frmWBOLinks* panel = r.windows.linksPanel();
        QVERIFY(panel);
        QVERIFY(QTest::qWaitForWindowExposed(panel));

        // Maximised by the window manager, which may give the new size
        // before the state, and by a call of the program; either way the
        // panel goes back at once to its own left and width, at the top of
        // the screen and the screen's height less the task bar's room.
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const int height = screen.height() - twipsToPixels(WindowPlace::TaskBarRoom);
        panel->windowHandle()->setWindowStates(Qt::WindowMaximized);
        QTRY_COMPARE(panel->height(), height);
        panel->resize(panel->width(), 300);
        QTRY_COMPARE(panel->height(), 300);
        panel->showMaximized();
        QTRY_COMPARE(panel->height(), height);
        QVERIFY(!(panel->windowState() & Qt::WindowMaximized));

        saved->trigger();
        QTRY_VERIFY(!r.windows.linksPanel());
        QCOMPARE(ctx.GetSetting("Startup", "LinksW"), QString("6000"));
        QCOMPARE(ctx.GetSetting("Startup", "LinksL"), QString("1500"));
        QCOMPARE(ctx.GetSetting("Startup", "LinksT"), QString::number(pixelsToTwips(screen.top())));
        QCOMPARE(ctx.GetSetting("Startup", "LinksH"), QString::number(pixelsToTwips(height)));
    }

    void popUpsAreRefusedBeforeTheyOpen()
    {
        EngineRig r;
        r.t.state.gblnEliminatePopUps = true;
        r.nav->NavigateSomeWhereElse("geocities.com/popup/");
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        QTest::qWait(300);
        QCOMPARE(r.windows.browsers().count(), 1);
        QVERIFY(!server.requested.contains("http://www.geocities.com/popped/"));
    }

    void popUpsAreClosedAfterTheyOpen()
    {
        EngineRig r;
        r.t.state.gblnEliminatePopUps = false;
        r.t.state.gblnClosePopUps = true;
        r.nav->NavigateSomeWhereElse("geocities.com/popup/");
        QTRY_VERIFY_WITH_TIMEOUT(server.requested.contains("http://www.geocities.com/popped/"),
                                 20000);
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        QTRY_COMPARE(r.windows.browsers().count(), 1);
        QCOMPARE(r.windows.browsers().at(0), r.windows.browserOne());
    }

    void popUpsStayWithBothOptionsOff()
    {
        EngineRig r;
        r.t.state.gblnEliminatePopUps = false;
        r.t.state.gblnClosePopUps = false;
        r.nav->NavigateSomeWhereElse("geocities.com/popup/");
        QTRY_COMPARE_WITH_TIMEOUT(r.windows.browsers().count(), 2, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        QCOMPARE(r.windows.browsers().count(), 2);
        r.windows.browsers().quit(1);
    }

    void autoNavMovesOnAfterCompletedPagesAndAfterTheLimit()
    {
        EngineRig r;
        r.t.state.glngAutoLimit = 600;
        r.nav->wander().setInterval(150);
        stalledHouses << "1003";
        r.nav->controls().mnuAutoNav.click();
        QVERIFY(r.one().tmrLimit.interval() == 600);
        QTRY_VERIFY_WITH_TIMEOUT(houses().contains("1005"), 30000);
        r.nav->StopAutoModes();
        const QStringList walked = houses();
        QCOMPARE(walked.mid(0, 5), (QStringList{"1001", "1002", "1003", "1004", "1005"}));
        QCOMPARE(r.one().mnuAutoNav.isChecked(), false);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    TestBrowserOneEngine test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestBrowserOneEngine.moc"
