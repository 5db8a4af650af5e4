#include "EngineEnvironment.h"
#include "FakeWordLists.h"
#include "LocalWebServer.h"
#include "TestContext.h"
#include "WidgetChecks.h"
#include "browserone/BrowserWindowList.h"
#include "browserone/WebBrowserControl.h"
#include "browsertwo/BrowserTwoWindows.h"
#include "browsertwo/frmWBTLinks.h"
#include "browsertwo/frmWBTNote.h"
#include "browsertwo/frmWBTwo.h"
#include "core/Endpoints.h"
#include "core/SettingsKeys.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QWebEngineProfile>
#include <QtTest>

namespace {

// Words whose page is a real one; every other word is a host's missing page.
const QStringList RealWords = {"realone", "realtwo"};
// Words whose missing page waits on a picture that never comes.
QSet<QString> stalledWords;

LocalWebServer::Reply answer(const QString& url)
{
    const QString word = url.mid(url.lastIndexOf(QLatin1Char('~')) + 1);
    if (url.endsWith(QLatin1String("/never.gif")))
        return {QByteArray(), 200, true};
    if (RealWords.contains(word))
        return {LocalWebServer::page("Home of " + word)};
    if (url.startsWith(QLatin1String(Endpoint::SprintmailBaseUrl)))
        return {"<html><body>Nobody here</body></html>", 404};
    const QString picture = stalledWords.contains(word)
                                ? QStringLiteral("<img src='http://members.tripod.com/never.gif'>")
                                : QString();
    return {LocalWebServer::page("Tripod: Defunct Link", "Gone" + picture), 404};
}

// Browser Two's windows on a new main database, with lists in memory.
struct Rig
{
    TestContext t;
    FakeWordLists lists{t.state};
    QWebEngineProfile profile;
    BrowserWindowList browsers;
    QStringList mainCalls;
    std::unique_ptr<BrowserTwoWindows> windows;

    explicit Rig(const QStringList& words, const QString& server = Endpoint::TripodBaseUrl,
                 bool autoMode = false)
    {
        t.createAndOpenDatabase();
        t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::UseAutoMode, autoMode ? "1" : "0");
        t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::CmbServer, server);
        lists.source = words;
        BrowserTwoWindows::Links links;
        links.profile = [this] { return &profile; };
        links.openPopUp = [] { return nullptr; };
        links.browsers = [this]() -> BrowserWindowList& { return browsers; };
        links.mainCall = [this](GeoCitiesCall code) { mainCalls << QString::number(int(code)); };
        windows = std::make_unique<BrowserTwoWindows>(t.ctx, lists, links);
        lists.host = windows.get();
    }
    ~Rig()
    {
        if (frmWBTwo* w = windows->window()) {
            w->close();
            delete w;
        }
    }
    frmWBTwo* form() { return windows->window(); }
    BrowserTwo& two() { return form()->rules(); }
    template <typename W> W* child(const QString& name) { return form()->findChild<W*>(name); }
    QAction* action(const QString& name) { return form()->menuBar()->findChild<QAction*>(name); }
};

template <typename W> int WidgetsOf()
{
    int n = 0;
    for (QWidget* top : QApplication::topLevelWidgets())
        n += qobject_cast<W*>(top) ? 1 : 0;
    return n;
}

} // namespace

class TestBrowserTwoWindow : public QObject
{
    Q_OBJECT
    LocalWebServer server{answer};

    QStringList wordsAsked(const QString& base) const
    {
        QStringList words;
        for (const QString& url : server.requested) {
            if (url.startsWith(base) && !url.endsWith(".gif"))
                words << url.mid(base.size());
        }
        return words;
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
        stalledWords.clear();
    }

    void opensOnTheWordSourceOrNotAtAll()
    {
        {
            Rig r({});
            r.windows->ShowBrowserTwo();
            QVERIFY(!r.form());
            QVERIFY(!r.t.state.gblnWBTwoLoaded);
            QCOMPARE(r.lists.calls, QStringList({"pick "}));
        }
        Rig r({"ann", "bob", "cy"});
        // A second press of the entry while the source is read opens nothing more.
        r.lists.whileReading = [&r] { r.windows->ShowBrowserTwo(); };
        r.windows->ShowBrowserTwo();
        QVERIFY(r.form() && r.form()->isVisible());
        QCOMPARE(WidgetsOf<frmWBTwo>(), 1);
        QVERIFY(r.t.state.gblnWBTwoLoaded);
        QVERIFY(!r.t.state.gblnStartUpShown);
        QCOMPARE(r.child<QLabel>("StatusBarWBT[3]")->text(), QString("1 of 2"));
        QCOMPARE(r.child<QLabel>("StatusBarWBT[1]")->text(), QString("words.txt Loaded!"));
        QCOMPARE(r.browsers.count(), 1);
        QCOMPARE(WidgetChecks::unnamedControls(r.form()), QStringList());
        // A second opening brings the same window forward.
        frmWBTwo* first = r.form();
        r.windows->ShowBrowserTwo();
        QCOMPARE(r.form(), first);
        QCOMPARE(r.lists.calls.count("pick "), 1);
    }

    void serverBoxTakesNoTypingAndHoldsTheWalk()
    {
        Rig r({"ann", "bob", "cy"});
        r.windows->ShowBrowserTwo();
        auto* box = r.child<QComboBox>("cmbServer");
        QVERIFY(box && box->isVisible());
        box->setFocus();
        QTRY_VERIFY(box->hasFocus());
        QVERIFY(r.two().UserBusy);
        QTest::keyClick(box, Qt::Key_H);
        QTest::keyClick(box, Qt::Key_Down);
        WidgetChecks::wheel(box, -2);
        QCOMPARE(box->currentText(), QString(Endpoint::TripodBaseUrl));
        QCOMPARE(r.two().ServerBase, QString(Endpoint::TripodBaseUrl));
        r.child<QLineEdit>("txtAddressBar")->setFocus();
        QTRY_VERIFY(!box->hasFocus());
        QVERIFY(r.two().UserBusy); // the address bar is one of the inputs too
        r.child<QPushButton>("cmdWBTTools[1]")->setFocus();
        QTRY_VERIFY(!r.two().UserBusy);
    }

    void sliderTrackStepsOneWordAndOpensNothing()
    {
        Rig r({"ann", "bob", "cy", "dee"});
        r.windows->ShowBrowserTwo();
        auto* bar = r.child<QSlider>("hscrWBT");
        QCOMPARE(bar->maximum(), 3); // one less than the words, until the bar moves
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 3, bar->height() / 2));
        QCOMPARE(bar->value(), 2);
        QCOMPARE(r.two().CurrentWord, QString("bob"));
        QCOMPARE(r.child<QLabel>("StatusBarWBT[2]")->text(), QString("bob"));
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 3, bar->height() / 2));
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 3, bar->height() / 2));
        // The last position wraps to the first at once.
        QCOMPARE(bar->value(), 1);
        QCOMPARE(r.two().CurrentWord, QString("ann"));
        QTest::qWait(200);
        QCOMPARE(server.requested, QStringList());
    }

    void menusShowRowsStepAndExit()
    {
        Rig r({"ann", "bob", "cy"});
        r.lists.stored.insert("pets", {"rex"});
        r.windows->ShowBrowserTwo();
        QWidget* listRow = r.child<QWidget>("picTools[2]");
        QVERIFY(!listRow->isVisible());
        r.action("mnuToolsSubs[2]")->trigger();
        QVERIFY(listRow->isVisible());
        QVERIFY(r.action("mnuToolsSubs[2]")->isChecked());
        QCOMPARE(r.child<QComboBox>("cboLists")->count(), 1);
        r.action("mnuToolsSubs[0]")->trigger();
        QVERIFY(!r.child<QWidget>("picTools[0]")->isVisible());
        QVERIFY(!r.action("mnuToolsSubs[4]")->isEnabled()); // no file list here
        r.action("mnuNavigationSubs[0]")->trigger();
        QCOMPARE(r.two().CurrentWord, QString("bob"));
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(Endpoint::TripodBaseUrl), QStringList({"bob"}), 20000);
        r.action("mnuFileSubs[2]")->trigger();
        QCOMPARE(r.mainCalls, QStringList({"7"}));
        // The rows shown come back with the next opening.
        r.form()->close();
        QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::AServerToolBar), QString("0"));
        QCOMPARE(r.t.ctx.GetSetting(Sect::WebBrwsrTwo, Key::AListToolBar), QString("1"));
        QVERIFY(!r.t.state.gblnWBTwoLoaded);
    }

    void savedLinksThroughTheirWindows()
    {
        Rig r({"ann"});
        r.t.state.gstrDefaultNote = "note";
        r.windows->ShowBrowserTwo();
        auto* bar = r.child<QLineEdit>("txtAddressBar");
        bar->setFocus();
        QTest::keyClicks(bar, "http://members.tripod.com/~realone");
        QVERIFY(r.two().AddressBarEdited);
        QTest::keyClick(bar, Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(r.two().form.text().contains("Home of realone"), 20000);
        QVERIFY(!r.two().AddressBarEdited);
        QTest::mouseClick(r.child<QPushButton>("cmdWBTTools[3]"), Qt::LeftButton);
        frmWBTNote* note = r.windows->noteWindow();
        QVERIFY(note && note->isVisible());
        QTRY_VERIFY(note->txtNote()->textCursor().hasSelection());
        // Typing replaces the starting text, which was selected whole.
        QTest::keyClicks(note->txtNote(), "Found it");
        QTest::mouseClick(note->findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        QTRY_VERIFY(!r.windows->noteWindow());
        QCOMPARE(FieldTexts(r.t.db.readAll("wbtlinks")),
                 QVector<QStringList>({{"http://members.tripod.com/~realone", "Found it"}}));

        QTest::mouseClick(r.child<QPushButton>("cmdWBTTools[4]"), Qt::LeftButton);
        frmWBTLinks* links = r.windows->linksWindow();
        QVERIFY(links && links->isVisible());
        QCOMPARE(links->windowTitle(), QString("0 Saved Links"));
        QListWidget* list = links->lstWBTLinks();
        QCOMPARE(list->count(), 1);
        server.requested.clear();
        const QRect item = list->visualItemRect(list->item(0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, item.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, item.center());
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(Endpoint::TripodBaseUrl), QStringList({"realone"}),
                                  20000);
        // The walker's close takes the list with it.
        r.form()->close();
        QTRY_VERIFY(!r.windows->linksWindow());
    }

    void quickScanOffersThePagesFoundForTheWalk()
    {
        const QString base = QStringLiteral("http://127.0.0.1:%1/~").arg(server.serverPort());
        Rig r({"first", "gone1", "realone", "gone2", "realtwo", "last"}, base);
        r.t.db.append("wbtBaseUrl", {"Url"}, {{base}});
        r.windows->ShowBrowserTwo();
        QCOMPARE(r.two().ServerBase, base);
        r.action("mnuToolsSubs[2]")->trigger();
        auto* bar = r.child<QProgressBar>("prgQuickScan");
        QVERIFY(!bar->isVisible());
        r.t.prompts.answer(PromptService::Yes);
        QTest::mouseClick(r.child<QPushButton>("cmdQuickScan"), Qt::LeftButton);
        QVERIFY(bar->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(r.t.prompts.shown.size(), 1, 20000);
        QCOMPARE(r.t.prompts.shown[0].text, QString("2 pages found. Walk them now?"));
        QCOMPARE(r.child<QLabel>("lblQuickScan")->text(),
                 QString("5 of 5 done, 2 found, 0 failed"));
        QCOMPARE(bar->value(), 5);
        QCOMPARE(r.child<QPushButton>("cmdQuickScan")->text(), QString("Quick scan"));
        // The words found are the walk now, every one reached by Next.
        QTRY_VERIFY_WITH_TIMEOUT(r.two().form.text().contains("Home of realone"), 20000);
        QTest::mouseClick(r.child<QPushButton>("cmdWBTTools[1]"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(r.two().form.text().contains("Home of realtwo"), 20000);
        QTest::mouseClick(r.child<QPushButton>("cmdWBTTools[1]"), Qt::LeftButton);
        QCOMPARE(r.two().CurrentWord, QString("realone"));
    }

    void autoWalkSkipsMissingPagesAndStopsAtTheFirstRealOne()
    {
        Rig r({"first", "gone1", "gone2", "realone", "gone3", "last"}, Endpoint::TripodBaseUrl,
              true);
        r.windows->ShowBrowserTwo();
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(Endpoint::TripodBaseUrl),
                                  QStringList({"gone1", "gone2", "realone"}), 30000);
        QTRY_VERIFY_WITH_TIMEOUT(r.two().form.text().endsWith("[Done]"), 20000);
        // The real page stays: no further step.
        QTest::qWait(2 * BrowserTwo::AutoInterval);
        QCOMPARE(wordsAsked(Endpoint::TripodBaseUrl).size(), 3);
        QCOMPARE(r.two().CurrentWord, QString("realone"));
    }

    void untitledMissingPagesAreKnownByTheirAddress()
    {
        const QString base = Endpoint::SprintmailBaseUrl;
        Rig r({"first", "nobody", "realtwo", "x"}, base, true);
        r.windows->ShowBrowserTwo();
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(base), QStringList({"nobody", "realtwo"}), 30000);
        QTest::qWait(2 * BrowserTwo::AutoInterval);
        QCOMPARE(wordsAsked(base).size(), 2);
    }

    void aPageStillLoadingHoldsTheWalk()
    {
        stalledWords.insert("slow");
        Rig r({"first", "slow", "gone", "realone", "x"}, Endpoint::TripodBaseUrl, true);
        r.windows->ShowBrowserTwo();
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(Endpoint::TripodBaseUrl), QStringList({"slow"}),
                                  20000);
        QTRY_VERIFY_WITH_TIMEOUT(r.two().PageTitle == "Tripod: Defunct Link", 20000);
        QVERIFY(r.two().SkipPage);
        QTest::qWait(2 * BrowserTwo::AutoInterval);
        QCOMPARE(wordsAsked(Endpoint::TripodBaseUrl), QStringList({"slow"}));
        server.releaseStalled();
        QTRY_COMPARE_WITH_TIMEOUT(wordsAsked(Endpoint::TripodBaseUrl),
                                  QStringList({"slow", "gone", "realone"}), 30000);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    TestBrowserTwoWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestBrowserTwoWindow.moc"
