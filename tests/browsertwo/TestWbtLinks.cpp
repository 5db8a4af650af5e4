#include "FakeWordLists.h"
#include "ScriptedBrowser.h"
#include "TestContext.h"
#include "browsertwo/BrowserTwo.h"
#include "browsertwo/BrowserTwoHost.h"
#include "browsertwo/WbtLinks.h"
#include "browsertwo/WbtLinksHost.h"
#include "core/SettingsKeys.h"

#include <QtTest>

namespace {

// The walker's and the links' windows, written down.
class Windows : public BrowserTwoHost, public WbtLinksHost
{
public:
    QStringList calls;
    QRect panel{300, 400, 5000, 3300};

    void placeWindow(const QString&, const QString&, const QString&, const QString&) override {}
    QRect windowTwips() const override { return {0, 0, 5000, 3300}; }
    void stackRows() override {}
    void closeWindowsAfter(int) override {}
    void unloadLinkWindows() override {}
    void mainCall(GeoCitiesCall) override {}
    void clearTopmost() override { calls << "clear topmost"; }

    QRect screenTwips() const override { return {0, 0, 15000, 12000}; }
    QRect panelTwips() const override { return panel; }
    void placePanel(const QString& l, const QString& t, const QString& h, const QString& w) override
    {
        calls << QStringList{"place", l, t, h, w}.join(' ');
    }
    void showPanel() override { calls << "show links"; }
    void closePanel() override { calls << "close links"; }
    void showNote() override { calls << "show note"; }
    void closeNote() override { calls << "close note"; }
};

struct Rig
{
    TestContext t;
    ScriptedBrowser browser;
    Windows windows;
    FakeWordLists lists{t.state};
    BrowserTwo two{t.ctx, browser, windows, lists};
    WbtLinks links{t.ctx, two, windows, windows};

    Rig()
    {
        t.createAndOpenDatabase();
        t.state.gstrDefaultNote = "My note";
        t.state.gblnWBTwoLoaded = true;
        two.tmrAuto.start();
    }
    // Saves the address with the note, as the user does through the dialog.
    void save(const QString& address, const QString& note)
    {
        two.txtAddressBar.setText(address);
        two.cmdWBTTools[BrowserTwo::Save]->click();
        links.txtNote.setText(note);
        links.NoteOkClick();
        links.NoteUnload();
    }
    QVector<QStringList> rows() { return FieldTexts(t.db.readAll("wbtlinks")); }
};

} // namespace

class TestWbtLinks : public QObject
{
    Q_OBJECT

private slots:
    void saveHoldsThePageAndStoresTheLinkAsTheRuleSays()
    {
        Rig r;
        const QString longAddress = "HTTP://Members.Tripod.com/~" + QString(90, 'x');
        r.two.txtAddressBar.setText(longAddress);
        r.browser.title = "A Real Site";
        r.two.cmdWBTTools[BrowserTwo::Save]->click();
        QVERIFY(!r.two.tmrAuto.isActive());
        QCOMPARE(r.browser.stops, 1);
        QCOMPARE(r.windows.calls, QStringList({"clear topmost", "show note"}));
        QCOMPARE(r.links.txtNote.text(), QString("My note"));
        // A second Save while the note is open does nothing.
        r.two.cmdWBTTools[BrowserTwo::Save]->click();
        QCOMPARE(r.browser.stops, 1);
        r.links.txtNote.setText("  two\r\nlines ");
        r.links.NoteOkClick();
        QCOMPARE(r.rows(), QVector<QStringList>({{longAddress.left(100).toLower(), "two  lines"}}));
        QCOMPARE(r.windows.calls.last(), QString("close note"));

        // The title starts the note when the options say so, cut to 100.
        r.links.NoteUnload();
        r.t.state.gblnUseSiteTitles = true;
        r.browser.title = QString(120, 't');
        r.two.txtAddressBar.setText("http://b/");
        r.two.cmdWBTTools[BrowserTwo::Save]->click();
        QCOMPARE(r.links.txtNote.text(), QString(100, 't'));
        // A note of blanks saves nothing.
        r.links.txtNote.setText("   ");
        r.links.NoteOkClick();
        QCOMPARE(r.rows().size(), 1);
    }

    void aLinkIsFoundAgainOnlyAsTyped()
    {
        Rig r;
        r.save("http://a.org/~ann", "Ann's");
        r.t.prompts.clear();
        r.two.txtAddressBar.setText("http://a.org/~ann");
        r.two.cmdWBTTools[BrowserTwo::Save]->click();
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Already Saved!"));
        QCOMPARE(r.t.prompts.shown[0].text,
                 QString("This Site is already Saved!!!\r\rComment:\rAnn's\r"));
        QVERIFY(!r.links.gblnWBTNoteOpen);
        // In capitals the stored lower-case link goes unnoticed.
        r.save("HTTP://A.ORG/~ann", "again");
        QCOMPARE(r.rows().size(), 2);
    }

    void theTableReachesOneLinkPastAThousand()
    {
        Rig r;
        QVector<QStringList> many;
        for (int i = 0; i < 999; ++i)
            many.append({QString("http://h/%1").arg(i), "n"});
        r.t.db.append("wbtlinks", {"link", "comment"}, many);
        r.save("http://new/1", "one");
        r.save("http://new/2", "two");
        QCOMPARE(r.t.db.recordCount("wbtlinks"), 1001);
        QVERIFY(r.t.prompts.messages().isEmpty());
        r.save("http://new/3", "three");
        QCOMPARE(r.t.db.recordCount("wbtlinks"), 1001);
        QCOMPARE(r.t.prompts.messages(),
                 QStringList({"Maximum number of Links (1,000) already saved!"}));
    }

    void viewListsTheNotesAndDelRemovesTheOneChosen()
    {
        Rig r;
        r.two.cmdWBTTools[BrowserTwo::View]->click();
        QCOMPARE(r.t.prompts.messages(), QStringList({"No saved links!"}));
        QVERIFY(!r.links.gblnWBTLinksOpen);
        r.save("http://a/", "same");
        QCOMPARE(r.windows.calls.filter("links"), QStringList());
        r.two.cmdWBTTools[BrowserTwo::View]->click();
        QCOMPARE(r.links.linksCaption.text(), QString("0 Saved Links"));
        QCOMPARE(r.windows.calls.filter(QRegularExpression("^(place|show links)")),
                 QStringList({"place 5000 4350 3300 5000", "show links"}));
        // A link saved while the list is open shows at once.
        r.save("http://b/", "same");
        r.save("http://c/", "other");
        QCOMPARE(r.links.lstWBTLinks.items(), QStringList({"same", "same", "other"}));

        r.t.prompts.clear();
        r.two.cmdWBTTools[BrowserTwo::Del]->click();
        QCOMPARE(r.t.prompts.messages(),
                 QStringList({"You must highlight a saved link by clicking it once!"}));
        r.links.lstWBTLinks.userSelect(1);
        QCOMPARE(r.links.lstWBTLinks.toolTip(), QString("http://b/"));
        r.links.ListDoubleClick();
        QCOMPARE(r.browser.navigated, QStringList({"http://b/"}));
        r.two.cmdWBTTools[BrowserTwo::Del]->click();
        QCOMPARE(r.rows(), QVector<QStringList>({{"http://a/", "same"}, {"http://c/", "other"}}));
        QCOMPARE(r.links.gstrWbtLinks, QStringList({"http://a/", "http://c/"}));

        // View again closes the list and keeps its place.
        r.two.cmdWBTTools[BrowserTwo::View]->click();
        QVERIFY(!r.links.gblnWBTLinksOpen);
        QCOMPARE(r.windows.calls.last(), QString("close links"));
        QCOMPARE(r.t.ctx.GetSetting(Sect::Startup, Key::WBT_LinksT), QString("400"));
        QCOMPARE(r.t.ctx.GetSetting(Sect::Startup, Key::WBT_LinksW), QString("5000"));
    }
};

QTEST_GUILESS_MAIN(TestWbtLinks)
#include "TestWbtLinks.moc"
