#include "OptionsRig.h"
#include "browsertwo/ServersWithSuburbs.h"

#include <QSqlQuery>
#include <QtTest>

namespace {
const QString Angelfire = "http://www.angelfire.com/";
const QString TerraVista = "http://www.terravista.pt/";

QVector<QStringList> table(OptionsRig& r, const QString& name)
{
    return FieldTexts(r.t.db.readAll(name));
}

void typeAndAdd(WbtListsEditor& e, int index, const QString& text)
{
    e.txtWBTAdd.setText(text);
    e.cmdWBTAddServer[index].click();
}

void typeSws(SwsEditor& e, const QString& server, const QString& suburb)
{
    e.txtSWSServer.setText(server);
    e.txtSWSSub.setText(suburb);
}
} // namespace

class TestBrowserTwoSettings : public QObject
{
    Q_OBJECT

private slots:
    void emptyTablesGetTheBuiltInRowsInTheDialogsOrder()
    {
        OptionsRig r;
        WbtListsEditor& e = r.open().wbt;
        const QStringList servers = {"http://members.tripod.com/~", "http://members.xoom.com/",
                                     "http://home.sprintmail.com/~", "http://home.earthlink.net/~",
                                     "http://members.aol.com/~"};
        QCOMPARE(e.cmbWBTAddServer.items(), servers);
        QCOMPARE(table(r, "wbtBaseUrl").first(), QStringList({servers[0], "1"}));
        QCOMPARE(r.t.db.recordCount("wbtBaseUrl"), 5);
        QCOMPARE(e.cmbWBTAddBadTitles.listCount(), 12);
        QCOMPARE(e.cmbWBTAddBadTitles.item(5), QString("http://home.sprintmail.com/~"));
        QCOMPARE(e.cmbWBTAddServer.listIndex(), 0);
        r.t.ctx.SaveSetting("WebBrwsrTwo", "CurrentServer", servers[3]);
        QCOMPARE(r.open().wbt.cmbWBTAddServer.text(), servers[3]);
    }

    void addAndDeleteKeepTheirRules()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        WbtListsEditor& e = d.wbt;
        typeAndAdd(e, 0, "");
        typeAndAdd(e, 1, "");
        typeAndAdd(e, 0, "MEMBERS.tripod.com"); // part of a listed server
        typeAndAdd(e, 1, "Not Found");
        typeAndAdd(e, 1, "Welcome To Tripod"); // another case is another title
        typeAndAdd(e, 0, " http://My Host.test/ ");
        QCOMPARE(
            r.t.prompts.messages(),
            QStringList({"You must enter Server's URL in the text box below!",
                         "You must enter Page Title in the text box below!",
                         "This Server's URL already exists!", "This Page Title already exists!"}));
        QCOMPARE(e.cmbWBTAddServer.items().last(), QString("http://myhost.test/"));
        QCOMPARE(e.cmbWBTAddBadTitles.items().last(), QString("Welcome To Tripod"));
        QVERIFY(e.txtWBTAdd.text().isEmpty());
        QVERIFY(e.blnWbtListsChanged);

        r.t.prompts.clear();
        e.cmdWBTDelServer[0].click(); // the server selected at Load goes
        e.cmdWBTDelServer[0].click(); // none is selected now
        e.cmdWBTDelServer[1].click();
        while (e.cmbWBTAddServer.listCount() > 1) {
            e.cmbWBTAddServer.userSelect(0);
            e.cmdWBTDelServer[0].click();
        }
        e.cmbWBTAddServer.userSelect(0);
        e.cmdWBTDelServer[0].click();
        while (e.cmbWBTAddBadTitles.listCount() > 0) {
            e.cmbWBTAddBadTitles.userSelect(0);
            e.cmdWBTDelServer[1].click();
        }
        QCOMPARE(r.t.prompts.messages(),
                 QStringList({"You must select a Server's URL!", "You must select a Page Title!",
                              "You can not delete the last Server!"}));
        QCOMPARE(e.cmbWBTAddServer.items(), QStringList{"http://myhost.test/"});
        // The tables change at Ok only.
        QCOMPARE(r.t.db.recordCount("wbtBadTitles"), 12);
        d.cmdOk.click();
        QCOMPARE(r.t.db.recordCount("wbtBadTitles"), 0);
        QCOMPARE(table(r, "wbtBaseUrl"), (QVector<QStringList>{{"http://myhost.test/", "1"}}));
    }

    // A server that stays keeps its counter; a changed or new one starts at
    // 1; only the first hundred servers read stand in the list.
    void theRewriteKeepsTheCounters()
    {
        OptionsRig r;
        QVector<QStringList> rows = {{"http://a.test/~", "17"}, {"http://b.test/", "3"}};
        for (int i = 0; i < 110; ++i)
            rows << QStringList{QString("http://n%1.test/").arg(i), "9"};
        r.start();
        r.t.db.append("wbtBaseUrl", {"Url", "Counter"}, rows);
        OptionsDialog& d = r.open();
        WbtListsEditor& e = d.wbt;
        QCOMPARE(e.cmbWBTAddServer.listCount(), 100);
        e.cmbWBTAddServer.userSelect(1);
        e.cmdWBTDelServer[0].click();
        typeAndAdd(e, 0, "http://c.test/");
        r.t.state.gblnWBTwoLoaded = true;
        d.cmdApply.click();
        const auto stored = table(r, "wbtBaseUrl");
        QCOMPARE(stored.size(), 100);
        QCOMPARE(stored.first(), QStringList({"http://a.test/~", "17"}));
        QCOMPARE(stored[1], QStringList({"http://n0.test/", "9"}));
        QCOMPARE(stored.last(), QStringList({"http://c.test/", "1"}));
        QCOMPARE(r.options.calls.count("browser two lists"), 2);
    }

    void resetWritesTheDefaultsAtOnce()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        d.TabClick(OptionsDialog::WbtTab);
        typeAndAdd(d.wbt, 0, "http://kept.test/");
        d.cmdApply.click();
        QCOMPARE(r.t.db.recordCount("wbtBaseUrl"), 6);
        r.t.prompts.answer(PromptService::No);
        d.cmdReSet.click();
        QCOMPARE(r.t.db.recordCount("wbtBaseUrl"), 6);
        QCOMPARE(r.t.prompts.shown.last().title, QString("Restore defaults!"));
        r.t.prompts.answer(PromptService::Yes);
        d.cmdReSet.click();
        QCOMPARE(r.t.db.recordCount("wbtBaseUrl"), 5);
        QCOMPARE(d.wbt.cmbWBTAddServer.listCount(), 5);
    }

    void aServerIsAddedOnlyWhenWhole()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        SwsEditor& e = d.sws;
        QCOMPARE(e.cboWBTSWS.items(),
                 QStringList({Angelfire, TerraVista, "http://www.terravista.com.br/"}));
        QCOMPARE(e.cboWBTSWSSubs.text(), QString("ak"));
        const QList<QPair<QString, QString>> bad = {{"", "sub"},
                                                    {"http://a b/", "sub"},
                                                    {"ftp://host/", "sub"},
                                                    {"http://host", "two words"},
                                                    {"http://host", ""}};
        for (const auto& typed : bad) {
            typeSws(e, typed.first, typed.second);
            e.cmdWBTSWSAdd[0].click();
        }
        QCOMPARE(
            r.t.prompts.messages(),
            QStringList({"No Server Url in the Server Url Text Box!", "This is not a valid Url!",
                         "This is not a valid Url! \nhttp:// Missing",
                         "This is not a valid Suburb name!", "No Suburb in the Suburb Text Box!"}));
        QCOMPARE(r.t.prompts.shown[1].title, QString("Spaces Not Allowed"));
        QCOMPARE(e.cboWBTSWS.listCount(), 3);
        for (int i = 0; i < 8; ++i) {
            typeSws(e, QString("HTTP://s%1.test").arg(i), "first");
            QCOMPARE(e.lblUrl.text(), QString("HTTP://s%1.testfirst").arg(i));
            e.cmdWBTSWSAdd[0].click();
        }
        QCOMPARE(r.t.prompts.messages().last(),
                 QString("Maximum number of server Urls (10) already exist!"));
        QCOMPARE(r.t.state.gstrSWS.at(4, 0), QString("HTTP://s0.test/"));
        QCOMPARE(r.t.state.gstrSWS.at(10, 1), QString("first"));
        QVERIFY(e.txtSWSServer.text().startsWith("HTTP://s7.test")); // refused, kept
        // Nothing reaches the tables before Ok.
        QCOMPARE(r.t.db.recordCount("SWS_Servers"), 3);
        d.cmdOk.click();
        QCOMPARE(r.t.db.recordCount("SWS_Servers"), 10);
        QVERIFY(r.t.state.gstrSWS.at(1, 0).isEmpty()); // dropped with the dialog
        SwsTable again;
        QVERIFY(ReadServersWithSuburbs(r.t.db, again));
        QCOMPARE(again.at(10, 0), QString("HTTP://s6.test/"));
        QCOMPARE(again.at(10, 1), QString("first"));
    }

    void suburbsFillUpToFiftyFiveAndTheQuestionDecides()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        SwsEditor& e = d.sws;
        e.cboWBTSWS.userSelect(1);
        const int had = e.cboWBTSWSSubs.listCount();
        for (int i = had; i <= 55; ++i) {
            typeSws(e, "", QString("beach%1").arg(i));
            e.cmdWBTSWSAdd[1].click();
        }
        QCOMPARE(e.cboWBTSWSSubs.listCount(), 55);
        QCOMPARE(r.t.prompts.messages(),
                 QStringList{"Maximum number of suburbs (55) already exist!"});

        e.cboWBTSWS.userSelect(2);
        typeSws(e, "http://both.test/", "Sand");
        r.t.prompts.answer(PromptService::Cancel);
        e.cmdWBTSWSAdd[1].click();
        QCOMPARE(r.t.prompts.shown.last().title, QString("Which do you want?"));
        QCOMPARE(e.cboWBTSWS.listCount(), 3);
        r.t.prompts.answer(PromptService::No);
        e.cmdWBTSWSAdd[1].click();
        QCOMPARE(e.cboWBTSWSSubs.items().last(), QString("Sand"));
        typeSws(e, "http://both.test/", "Dune");
        r.t.prompts.answer(PromptService::Yes);
        e.cmdWBTSWSAdd[1].click();
        QCOMPARE(e.cboWBTSWS.items().last(), QString("http://both.test/"));
        QCOMPARE(r.t.state.gstrSWS.at(4, 1), QString("Dune"));
    }

    void deletionsCloseTheGaps()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        SwsEditor& e = d.sws;
        SwsTable& sws = r.t.state.gstrSWS;
        e.cmdWBTSWSRemove[1].click(); // the first server's suburbs
        e.cboWBTSWS.userSelect(1);
        e.cboWBTSWSSubs.userSelect(1);
        const QString second = e.cboWBTSWSSubs.text();
        e.cmdWBTSWSRemove[1].click();
        QVERIFY(!e.cboWBTSWSSubs.items().contains(second));
        QCOMPARE(sws.at(2, 1), QString("AguaAlto"));
        QCOMPARE(sws.at(2, 2), QString("Bilene"));

        r.t.prompts.answer(PromptService::No);
        e.cmdWBTSWSRemove[0].click();
        QCOMPARE(e.cboWBTSWS.listCount(), 3);
        r.t.prompts.answer(PromptService::Yes);
        e.cmdWBTSWSRemove[0].click();
        QCOMPARE(r.t.prompts.shown.last().text,
                 "Delete " + TerraVista + " and all of it's suburbs?");
        QCOMPARE(sws.at(2, 0), QString("http://www.terravista.com.br/"));
        QCOMPARE(sws.at(2, 1), QString("Albufeira"));
        QVERIFY(sws.at(3, 0).isEmpty() && sws.at(3, 1).isEmpty());
        QCOMPARE(e.cboWBTSWS.listIndex(), 0);

        // The last Suburb goes only with its server.
        e.cboWBTSWS.userSelect(1);
        while (e.cboWBTSWSSubs.listCount() > 1) {
            e.cboWBTSWSSubs.userSelect(0);
            e.cmdWBTSWSRemove[1].click();
        }
        e.cboWBTSWSSubs.userSelect(0);
        e.cmdWBTSWSRemove[1].click();
        e.cboWBTSWS.userSelect(0);
        r.t.prompts.answer(PromptService::Yes);
        e.cmdWBTSWSRemove[0].click();
        e.cmdWBTSWSRemove[0].click();
        const QStringList shown = r.t.prompts.messages();
        QCOMPARE(shown.first(), QString("Can not delete the suburbs of the primary server!"));
        QCOMPARE(shown.mid(shown.size() - 3),
                 QStringList({"Must delete the server to delete the last Suburb!",
                              "Delete " + Angelfire + " and all of it's suburbs?",
                              "You can not delete the last server!"}));
        QCOMPARE(e.cboWBTSWS.items(), QStringList{"http://www.terravista.com.br/"});
        r.t.state.gblnWBTwoLoaded = true;
        d.cmdOk.click();
        QCOMPARE(FieldTexts(r.t.db.readAll("SWS_Servers")),
                 QVector<QStringList>{{"http://www.terravista.com.br/"}});
        QCOMPARE(r.t.db.recordCount("SWS_Subs"), 1);
        QCOMPARE(sws.at(1, 0), QString("http://www.terravista.com.br/")); // Browser Two keeps it
    }

    void resetMakesTheTablesAnew()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        d.sws.cboWBTSWS.userSelect(1);
        r.t.prompts.answer(PromptService::Yes);
        d.sws.cmdWBTSWSRemove[0].click();
        d.cmdApply.click();
        QCOMPARE(r.t.db.recordCount("SWS_Servers"), 2);
        d.TabClick(OptionsDialog::SwsTab);
        r.t.prompts.answer(PromptService::Yes);
        d.cmdReSet.click();
        QCOMPARE(r.t.db.recordCount("SWS_Servers"), 3);
        QCOMPARE(d.sws.cboWBTSWS.listCount(), 3);
        QCOMPARE(d.sws.cboWBTSWS.item(1), TerraVista);
    }

    // Quotes and markup are stored as typed; a text no field can hold is
    // refused at once, and the rewrite at Ok stays whole.
    void oddTextsAreStoredOrRefusedClearly()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        const QString tooLong = "http://" + QString(300, 'x');
        typeAndAdd(d.wbt, 1, "It's \"gone\" <b>404</b>");
        typeAndAdd(d.wbt, 1, QString(300, 't'));
        typeAndAdd(d.wbt, 0, tooLong);
        typeSws(d.sws, tooLong, "sub");
        d.sws.cmdWBTSWSAdd[0].click();
        d.sws.cboWBTSWS.userSelect(1);
        typeSws(d.sws, "", QString(256, 's'));
        d.sws.cmdWBTSWSAdd[1].click();
        QCOMPARE(r.t.prompts.messages(),
                 QStringList(4, "This entry is too long! (255 characters at most)"));
        d.cmdOk.click();
        QCOMPARE(FieldTexts(r.t.db.readAll("wbtBadTitles")).last(),
                 QStringList{"It's \"gone\" <b>404</b>"});
        QCOMPARE(r.t.db.recordCount("wbtBadTitles"), 13);
        QCOMPARE(r.t.db.recordCount("wbtBaseUrl"), 5);
        QCOMPARE(r.t.db.recordCount("SWS_Servers"), 3);
    }

    void aFailedSaveLeavesTheTablesAsTheyWere()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        const auto servers = FieldTexts(r.t.db.readAll("SWS_Servers"));
        const int subs = r.t.db.recordCount("SWS_Subs");
        typeSws(d.sws, "http://new.test/", "one");
        d.sws.cmdWBTSWSAdd[0].click();
        QSqlQuery(r.t.db.handle())
            .exec("CREATE TRIGGER refuse BEFORE INSERT ON SWS_Subs WHEN NEW.SWS_Sub = 'one' "
                  "BEGIN SELECT RAISE(ABORT, 'refused'); END");
        d.cmdOk.click();
        QCOMPARE(r.t.prompts.shown.last().title, QString("ERROR!"));
        QCOMPARE(r.t.prompts.shown.last().text, QString("Adding SWS Data Error occurred!"));
        QCOMPARE(FieldTexts(r.t.db.readAll("SWS_Servers")), servers);
        QCOMPARE(r.t.db.recordCount("SWS_Subs"), subs);
    }

    void theBoxesFilterTheirKeys()
    {
        OptionsRig r;
        SwsEditor& e = r.open().sws;
        for (QChar c : QString("_* $',~`!@#%^&()+=-;[]{}|<>\\"))
            QVERIFY2(!SwsEditor::keyAccepted(true, c.unicode()), qPrintable(QString(c)));
        for (QChar c : QString("az09.:/?"))
            QVERIFY(SwsEditor::keyAccepted(true, c.unicode()));
        for (QChar c : QString("./:-"))
            QVERIFY(!SwsEditor::keyAccepted(false, c.unicode()));
        QVERIFY(SwsEditor::keyAccepted(false, '~') && SwsEditor::keyAccepted(false, 'x'));
        e.txtSWSServer.setText("http://host");
        e.ServerLostFocus();
        QCOMPARE(e.txtSWSServer.text(), QString("http://host/"));
        e.ServerLostFocus();
        QCOMPARE(e.txtSWSServer.text(), QString("http://host/"));
    }
};

QTEST_GUILESS_MAIN(TestBrowserTwoSettings)
#include "TestBrowserTwoSettings.moc"
