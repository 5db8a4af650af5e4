#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "WidgetChecks.h"
#include "WindowsRig.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/WebPage.h"
#include "browserone/frmWBOLinks.h"
#include "browserone/frmWBOne.h"
#include "core/WindowPlace.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QScreen>
#include <QWebEngineView>
#include <QWindow>
#include <QtTest>

namespace {

// House numbers that stall instead of completing, shared with the server:
// in the document itself, or in a picture whose answer never arrives.
QSet<QString> stalledHouses;
QSet<QString> stalledPictureHouses;

const QByteArray Untitled = "<html><body>A page without a title</body></html>";

LocalWebServer::Reply answer(const QString& url)
{
    static const QRegularExpression house(QStringLiteral("/(\\d{4})/$"));
    const auto m = house.match(url);
    if (url.endsWith(QLatin1String("/linked/")))
        return {LocalWebServer::page(
            "Linked", "<a id='next' href='http://www.geocities.com/Area51/1001/'>next</a>")};
    if (url.endsWith(QLatin1String("/popup/")))
        return {LocalWebServer::page(
            "Opens a window", "<script>window.open('http://www.geocities.com/popped/');</script>"
                              "<img src='http://www.geocities.com/slow.gif'>")};
    if (url.endsWith(QLatin1String("/slow.gif")))
        return {QByteArray(), 404, false, 400};
    if (url.endsWith(QLatin1String("/never.gif")))
        return {QByteArray(), 200, true};
    if (url.endsWith(QLatin1String("/untitled/")) ||
        url == QLatin1String("http://www.geocities.com/"))
        return {Untitled};
    if (m.hasMatch()) {
        const QString number = m.captured(1);
        const QString picture =
            stalledPictureHouses.contains(number)
                ? QStringLiteral("<img src='http://www.geocities.com/never.gif'>")
                : QString();
        return {LocalWebServer::page("House " + number, "House " + number + picture), 200,
                stalledHouses.contains(number)};
    }
    return {LocalWebServer::page("Elsewhere")};
}

// The program's windows on a new database, with the connection up.
struct EngineRig : WindowsRig
{
    Navigator* nav = &main->navigator();

    ~EngineRig()
    {
        nav->StopAutoModes();
        if (windows.browserOne())
            windows.browserOne()->close();
    }
    BrowserOne& one() { return windows.browserOne()->rules(); }
    bool done() { return windows.browserOne() && one().form.text().endsWith("[Done]"); }
    QLineEdit* addressBar() { return windows.browserOne()->findChild<QLineEdit*>("txtAddressBar"); }
};

// The colour that fills most of an image: a widget's background.
QColor commonest(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb top = 0;
    int most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            top = it.key();
        }
    }
    return QColor::fromRgb(top);
}

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
        server.releaseStalled();
        server.requested.clear();
        stalledHouses.clear();
        stalledPictureHouses.clear();
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

    void anArchivedPageIsShownAndCopiedByItsOriginalAddress()
    {
        EngineRig r;
        PageSources& sources = r.nav->pageSources();
        sources.archiveBase = "http://web.archive.org"; // the test server has no TLS
        r.nav->archiveMenu().mnuPagesArchive.click();
        r.nav->controls().cmdOpenSite.click();
        // The caption ends in the address shown, after the progress.
        QTRY_VERIFY_WITH_TIMEOUT(r.windows.browserOne() && r.one().form.text().contains("[Done]"),
                                 20000);
        const QString archived =
            "http://web.archive.org/web/2009if_/http://www.geocities.com/Area51/1000/";
        QCOMPARE(server.requested.first(), archived);
        QCOMPARE(r.one().txtAddressBar.text(),
                 QString("http://www.geocities.com/Area51/1000/  [Archive 2009]"));
        QVERIFY(r.one().form.text().endsWith("[Done]          http://www.geocities.com/Area51/"
                                             "1000/  [Archive 2009]"));
        r.windows.browserOne()->findChild<QAction*>("mnuCopyLink")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "http://www.geocities.com/Area51/1000/\n" + archived);
        r.nav->archiveMenu().mnuPagesOriginal.click();
    }

    void aPagesOwnLinkToTheServiceOpensFromTheMirror()
    {
        EngineRig r;
        r.nav->archiveMenu().mnuPagesGallery.click();
        r.nav->NavigateSomeWhereElse("geocities.com/Area51/linked/");
        QTRY_VERIFY_WITH_TIMEOUT(r.windows.browserOne() && r.one().form.text().contains("[Done]"),
                                 20000);
        QCOMPARE(server.requested.first(),
                 QString("http://geocities.restorativland.org/Area51/linked/"));
        r.windows.browserOne()->control().page()->runJavaScript(
            "document.getElementById('next').click()");
        QTRY_VERIFY_WITH_TIMEOUT(
            server.requested.contains("http://geocities.restorativland.org/Area51/1001/"), 20000);
        QVERIFY(!server.requested.contains("http://www.geocities.com/Area51/1001/"));
        QTRY_VERIFY_WITH_TIMEOUT(r.one().txtAddressBar.text() ==
                                     "http://www.geocities.com/Area51/1001/  [Gallery]",
                                 20000);
        r.nav->archiveMenu().mnuPagesOriginal.click();
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
                                     "On Top", "IE&Cache Manager"}));
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
        // The pop-up may be closed before its page asks for anything: what
        // counts is that its window was made and is gone again.
        QSignalSpy asked(&r.windows.browserOne()->control(), &BrowserControl::NewWindow2);
        QTRY_VERIFY_WITH_TIMEOUT(asked.count() >= 1, 20000);
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

    // The engine reports 100 % once the document is in, while a picture is
    // still on its way; only the end of the load completes the page.
    void aPageWaitingForAPictureHoldsTheWalk()
    {
        EngineRig r;
        r.t.state.gblnFullPages = true;
        r.t.state.glngAutoLimit = 60000;
        r.nav->wander().setInterval(100);
        stalledPictureHouses << "1001";
        r.windows.ShowBrowserOne();
        frmWBOne* window = r.windows.browserOne();
        QList<QPoint> events;
        QObject::connect(&window->control(), &BrowserControl::ProgressChange,
                         [&](int p, int max) { events << QPoint(p, max); });
        int engineProgress = 0;
        QObject::connect(window->WBOne()->page(), &QWebEnginePage::loadProgress,
                         [&](int p) { engineProgress = std::max(engineProgress, p); });
        r.nav->controls().mnuAutoNav.click();
        QTRY_VERIFY_WITH_TIMEOUT(
            engineProgress == 100 && r.one().form.text().startsWith("     House 1001 "), 20000);
        QVERIFY(server.requested.contains("http://www.geocities.com/never.gif"));
        QTest::qWait(800); // eight periods of the walk's timer
        QCOMPARE(houses(), QStringList{"1001"});
        QVERIFY(!r.nav->wander().tmrAN.isActive());
        QVERIFY(r.one().tmrLimit.isActive());
        for (const QPoint& e : events)
            QVERIFY2(e.x() != e.y(), qPrintable(QString("(%1, %2)").arg(e.x()).arg(e.y())));
        QCOMPARE(events.last(), QPoint(99, 100));
        QCOMPARE(r.one().form.text(), QString("     House 1001          [99%]"));

        // The picture fails at last: the load ends with its two end events,
        // and the walk goes on.
        server.releaseStalled();
        QTRY_VERIFY_WITH_TIMEOUT(houses().contains("1002"), 20000);
        const int end = events.indexOf(QPoint(100, 100));
        QVERIFY(end > 0);
        QCOMPARE(events.value(end + 1), QPoint(0, 0));
    }

    // Going back reaches a page as much as going forward does: one arrival
    // each, and the title of the page arrived at.
    void everyArrivalIsReportedOnceBackwardsToo()
    {
        EngineRig r;
        r.windows.ShowBrowserOne();
        QStringList arrivals;
        QObject::connect(&r.windows.browserOne()->control(), &BrowserControl::NavigateComplete2,
                         [&](const QString& url) { arrivals << url; });
        r.nav->controls().cmdOpenSite.click();
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        r.nav->controls().cmdNext.click();
        QTRY_VERIFY_WITH_TIMEOUT(r.done() && arrivals.size() == 2, 20000);
        QCOMPARE(r.windows.browserOne()->control().LocationName(), QString("House 1001"));
        r.nav->controls().cmdGoBack.click();
        QTRY_COMPARE_WITH_TIMEOUT(arrivals.size(), 3, 20000);
        QTRY_VERIFY(r.done());
        QCOMPARE(arrivals, (QStringList{"http://www.geocities.com/Area51/1000/",
                                        "http://www.geocities.com/Area51/1001/",
                                        "http://www.geocities.com/Area51/1000/"}));
        QCOMPARE(r.windows.browserOne()->control().LocationName(), QString("House 1000"));
    }

    void aPageThatShowsButNeverFinishesIsReached_data()
    {
        QTest::addColumn<bool>("inDocument");
        QTest::newRow("stalled document") << true;
        QTest::newRow("stalled picture") << false;
    }
    void aPageThatShowsButNeverFinishesIsReached()
    {
        QFETCH(bool, inDocument);
        EngineRig r;
        (inDocument ? stalledHouses : stalledPictureHouses) << "1000";
        r.windows.ShowBrowserOne();
        QStringList arrivals;
        QObject::connect(&r.windows.browserOne()->control(), &BrowserControl::NavigateComplete2,
                         [&](const QString& url) { arrivals << url; });
        QVERIFY(!r.nav->controls().cmdGoBack.isEnabled());
        QLineEdit* bar = r.addressBar();
        QTest::keyClicks(bar, "my own");
        QVERIFY(r.one().AddressBarEdited);
        r.nav->controls().cmdOpenSite.click();
        QTRY_VERIFY_WITH_TIMEOUT(r.one().form.text().startsWith("     House 1000 "), 20000);
        QVERIFY(r.nav->controls().cmdGoBack.isEnabled());
        QVERIFY(!r.one().AddressBarEdited);
        QTRY_COMPARE(bar->text(), QString("http://www.geocities.com/Area51/1000/"));
        QVERIFY(!r.one().form.text().endsWith("[Done]"));
        QTest::qWait(300);
        QCOMPARE(arrivals, QStringList{"http://www.geocities.com/Area51/1000/"}); // once
    }

    void anUntitledPageShowsTheHint()
    {
        EngineRig r;
        const QString file = r.t.folders.root() + "/untitled.htm";
        QVERIFY(putFile(file, Untitled));
        const QStringList addresses = {"geocities.com/untitled/", "geocities.com/", file};
        const QStringList urls = {"http://www.geocities.com/untitled/", "http://www.geocities.com/",
                                  QUrl::fromLocalFile(file).toString()};
        for (int i = 0; i < addresses.size(); ++i) {
            r.nav->NavigateSomeWhereElse(addresses[i]);
            QTRY_VERIFY_WITH_TIMEOUT(r.done() && r.one().CurrentUrl == urls[i], 20000);
            QCOMPARE(r.windows.browserOne()->control().LocationName(), QString());
            QCOMPARE(r.one().form.text(),
                     QString("     Right Click Page For IE Menu!          [Done]"));
        }
        // A page with a title keeps it.
        r.nav->NavigateSomeWhereElse("geocities.com/Area51/1234/");
        QTRY_VERIFY_WITH_TIMEOUT(r.one().form.text() == "     House 1234          [Done]", 20000);
    }

    // The menu opens over the window's own strip around the address bar,
    // never over the page, where a click meant for a link would land on it.
    void theHoverMenuAnswersTheWindowNotThePage()
    {
        EngineRig r;
        r.nav->controls().cmdOpenSite.click();
        QTRY_VERIFY_WITH_TIMEOUT(r.done(), 20000);
        frmWBOne* window = r.windows.browserOne();
        QMenu* menu = window->mnuCopy();
        QWindow* screen = window->windowHandle();
        const QWidget* page = window->WBOne();
        const int width = page->width();
        for (const QPoint& at :
             {QPoint(width / 2, 10), QPoint(width / 2, 40), QPoint(width / 3, 5)})
            QTest::mouseMove(screen, page->mapTo(window, at));
        QTest::qWait(100);
        QVERIFY(!menu->isVisible());

        QTest::mouseMove(screen, QPoint(width / 2, 1));
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
        QTest::mouseMove(screen, QPoint(width * 9 / 10, 1)); // right of 80 %
        QVERIFY(!menu->isVisible());

        const QWidget* bar = r.addressBar();
        const int middle = bar->y() + bar->height() / 2;
        window->WBOne()->setFocus(); // the bar answers only while it has no focus
        QTRY_VERIFY(!r.one().AddressBarHasFocus);
        QTest::mouseMove(screen, QPoint(width * 3 / 10, middle)); // the bar's left half
        QVERIFY(!menu->isVisible());
        QTest::mouseMove(screen, QPoint(width * 6 / 10, middle));
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
    }

    void onlyKeysThatChangeTheTextEditTheAddressBar()
    {
        EngineRig r;
        r.windows.ShowBrowserOne();
        QLineEdit* bar = r.addressBar();
        r.one().txtAddressBar.setText("http://www.geocities.com/Area51/1000/");
        for (Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_Shift,
                            Qt::Key_Control, Qt::Key_F5, Qt::Key_Escape})
            QTest::keyClick(bar, key);
        QTest::keyClick(bar, Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(bar, Qt::Key_Left, Qt::ShiftModifier);
        QVERIFY(!r.one().AddressBarEdited);
        QCOMPARE(bar->text(), QString("http://www.geocities.com/Area51/1000/"));
        // Typing, erasing, cutting and pasting each count.
        const QList<QPair<Qt::Key, Qt::KeyboardModifiers>> edits = {
            {Qt::Key_X, Qt::ShiftModifier},
            {Qt::Key_Backspace, Qt::NoModifier},
            {Qt::Key_Delete, Qt::NoModifier},
            {Qt::Key_V, Qt::ControlModifier},
            {Qt::Key_X, Qt::ControlModifier}};
        for (const auto& [key, modifiers] : edits) {
            r.one().AddressBarEdited = false;
            QTest::keyClick(bar, key, modifiers);
            QVERIFY2(r.one().AddressBarEdited,
                     qPrintable(QKeySequence(key | modifiers).toString()));
        }
    }

    void theWalksShowTheirColours_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QColor>("bar");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<bool>("locked");
        const QPalette system = QGuiApplication::palette();
        QTest::newRow("AutoNav") << QStringList{"mnuAutoNav"} << QColor(180, 0, 0)
                                 << QColor(Qt::white) << QColor(255, 0, 0) << true;
        QTest::newRow("RandNav") << QStringList{"mnuRandNav"} << QColor(0, 0, 180)
                                 << QColor(Qt::white) << QColor(0, 0, 255) << true;
        QTest::newRow("off") << QStringList{"mnuAutoNav", "mnuRandNav", "mnuRandNav"}
                             << system.color(QPalette::Base) << QColor(Qt::black)
                             << system.color(QPalette::Button) << false;
    }
    void theWalksShowTheirColours()
    {
        QFETCH(QStringList, clicks);
        QFETCH(QColor, bar);
        QFETCH(QColor, text);
        QFETCH(QColor, window);
        QFETCH(bool, locked);
        EngineRig r;
        r.windows.ShowBrowserOne();
        for (const QString& menu : clicks)
            (menu == "mnuAutoNav" ? r.nav->controls().mnuAutoNav : r.nav->controls().mnuRandNav)
                .click();
        QLineEdit* addressBar = r.addressBar();
        frmWBOne* form = r.windows.browserOne();
        QCOMPARE(addressBar->palette().color(QPalette::Base), bar);
        QCOMPARE(addressBar->palette().color(QPalette::Text), text);
        QCOMPARE(addressBar->isReadOnly(), locked);
        QCOMPARE(form->palette().color(QPalette::Window), window);
        QCOMPARE(commonest(addressBar->grab().toImage()), bar);
        QCOMPARE(form->grab().toImage().pixelColor(1, 1), window);
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
