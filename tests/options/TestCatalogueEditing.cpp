#include "OptionsRig.h"
#include "addressdata/CatalogueLoader.h"

#include <QSqlQuery>
#include <QtTest>

namespace {
// frmAdd played: each entry of texts is typed into the boxes (description,
// name, suburb) and added; then Quit, or Cancel.
void playAdd(OptionsRig& r, const QVector<QStringList>& texts, bool quit = true)
{
    r.options.playAdd = [texts, quit](AreaAdder& add) {
        for (const QStringList& boxes : texts) {
            for (int i = 0; i < boxes.size(); ++i)
                if (!boxes[i].isNull())
                    add.txtAdd[i].setText(boxes[i]);
            add.cmd[0].click();
        }
        add.cmd[quit ? 1 : 2].click();
        return quit;
    };
}

QStringList suburbsOf(const CatalogueData& cat, const QString& name)
{
    const int i = cat.find(name);
    QStringList list;
    for (int s = 1; i > 0 && s <= cat.gaintSuburbCount.value(i); ++s)
        list << cat.suburb(i, s);
    return list;
}

void selectNeighborhood(CatalogueEditor& e, const QString& name)
{
    e.cmbN.userSelect(e.cmbN.items().indexOf(name));
}

void fill(TextDatabase& db, const QString& table, const QStringList& fields, int rows,
          const std::function<QStringList(int)>& row)
{
    QVector<QStringList> all;
    for (int i = 0; i < rows; ++i)
        all << row(i);
    db.append(table, fields, all);
}
} // namespace

class TestCatalogueEditing : public QObject
{
    Q_OBJECT

private slots:
    void theNinetyNinthNeighborhoodIsTheLast()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        fill(r.t.db, "UsaNeighborhoods", {"Neighborhood", "Description"}, 57, [](int i) {
            return QStringList{QString("Extra%1").arg(i), "d"};
        });
        playAdd(r, {{"Last one", "Last"}, {"Too many", "More"}});
        d.catalogue.cmdAdd[0].click();
        QCOMPARE(r.t.db.recordCount("UsaNeighborhoods"), 99);
        QCOMPARE(r.t.prompts.shown.last().text, QString("Maximum neighborhoods (99) reached!"));
        QCOMPARE(r.t.prompts.shown.last().title, QString("Can not add record!"));
        // Quit after the addition refreshed the lists and the Navigator.
        QCOMPARE(d.catalogue.cmbN.items().last(), QString("Last"));
        QVERIFY(r.c.cmbNeighborhood.items().contains("Last"));
    }

    void theSeventyFifthSuburbIsRefused()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        playAdd(r, {{"My own", "Mine"}});
        d.catalogue.cmdAdd[0].click();
        fill(r.t.db, "UsaSuburbs", {"NeighborhoodIndex", "Suburb"}, 73, [](int i) {
            return QStringList{"42", QString("Sub%1").arg(i)};
        });
        d.catalogue.ServerClick();
        selectNeighborhood(d.catalogue, "Mine");
        playAdd(r, {{QString(), QString(), "Sub73"}, {QString(), QString(), "Sub74"}});
        d.catalogue.cmdAdd[1].click();
        QCOMPARE(r.t.db.readWhere("UsaSuburbs", {"Suburb"}, "NeighborhoodIndex", "42").size(), 74);
        QVERIFY(r.t.prompts.messages().contains("Maximum Suburbs (74) reached!"));
    }

    // Deleting a Neighborhood with five Suburbs lists six names, and the
    // Suburbs of the later one keep their parent, over a restart too.
    void deletionRenumbersAndSurvivesARestart()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        playAdd(r, {{"My own", "Mine"}, {"After it", "Later"}});
        d.catalogue.cmdAdd[0].click();
        selectNeighborhood(d.catalogue, "Mine");
        playAdd(r, {{QString(), QString(), "Alpha"},
                    {QString(), QString(), "Beta"},
                    {QString(), QString(), "Gamma"},
                    {QString(), QString(), "Delta"},
                    {QString(), QString(), "Epsilon"}});
        d.catalogue.cmdAdd[1].click();
        selectNeighborhood(d.catalogue, "Later");
        playAdd(r, {{QString(), QString(), "Omega"}, {QString(), QString(), "Zeta"}});
        d.catalogue.cmdAdd[1].click();
        r.pickNeighborhood("Mine"); // shown in the Navigator while it goes
        QCOMPARE(suburbsOf(r.t.state.catalogue, "Later"), QStringList({"Omega", "Zeta"}));
        const QStringList area51 = suburbsOf(r.t.state.catalogue, "Area51");

        r.t.prompts.clear();
        selectNeighborhood(d.catalogue, "Mine");
        d.catalogue.cmdRemove[0].click();
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Records Deleted:"));
        QCOMPARE(r.t.prompts.shown[0].text.split('\r', Qt::SkipEmptyParts),
                 QStringList({"Mine", "Alpha", "Beta", "Gamma", "Delta", "Epsilon"}));
        QVERIFY(!d.catalogue.cmbN.items().contains("Mine"));
        d.cmdOk.click();
        QVERIFY(!r.c.cmbNeighborhood.items().contains("Mine"));
        QCOMPARE(r.c.cmbNeighborhood.text(), QString("Area51"));

        const QString path = r.t.db.path();
        r.t.db.close();
        r.t.db.open(path);
        ReadCatalogue(r.t.ctx, r.t.db);
        const CatalogueData& cat = r.t.state.catalogue;
        QCOMPARE(cat.gintNeighborhoodCount, qint16(42));
        QCOMPARE(suburbsOf(cat, "Later"), QStringList({"Omega", "Zeta"}));
        QCOMPARE(suburbsOf(cat, "Area51"), area51);
    }

    void basicNeighborhoodsStayButTheirSuburbsMayGo()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        CatalogueEditor& e = d.catalogue;
        selectNeighborhood(e, "Area51");
        e.cmdRemove[0].click();
        QCOMPARE(r.t.prompts.messages(), QStringList{"Can not delete basic Neighborhoods!"});
        const int suburbs = e.cmbS.listCount();
        e.cmbS.userSelect(0);
        const QString first = e.cmbS.text();
        r.t.prompts.answer(PromptService::No);
        e.cmdRemove[1].click();
        QCOMPARE(e.cmbS.listCount(), suburbs);
        QCOMPARE(r.t.prompts.shown.last().title, QString("Basic Neighborhood's Suburb!"));
        QVERIFY(!e.blnCatalogueChanged);
        e.cmbS.userSelect(0);
        r.t.prompts.answer(PromptService::Yes);
        e.cmdRemove[1].click();
        QCOMPARE(e.cmbS.listCount(), suburbs - 1);
        QVERIFY(!e.cmbS.items().contains(first));
        QCOMPARE(r.t.prompts.shown.last().text, first + "\r");
        // Cancel keeps the deletion and refreshes the memory copy.
        d.cmdCancel.click();
        QVERIFY(!suburbsOf(r.t.state.catalogue, "Area51").contains(first));
        QVERIFY(!r.c.cmbSuburb.items().contains(first));
    }

    void japanHasFourteenBasicNeighborhoods()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        CatalogueEditor& e = d.catalogue;
        e.cmbServer.userSelect(1);
        QCOMPARE(e.cmbN.listCount(), 14);
        playAdd(r, {{"Japan extra", "Extra"}});
        e.cmdAdd[0].click();
        QCOMPARE(e.cmbN.listCount(), 15);
        e.cmbN.userSelect(13);
        e.cmdRemove[0].click();
        QCOMPARE(r.t.prompts.messages().last(), QString("Can not delete basic Neighborhoods!"));
        e.cmbN.userSelect(14);
        e.cmdRemove[0].click();
        QCOMPARE(e.cmbN.listCount(), 14);
        // The USA catalogue in memory was not touched.
        QCOMPARE(r.t.state.catalogue.gintNeighborhoodCount, qint16(41));
    }

    void namesAreTypedAsTheBoxesAllow()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        const QString longName(300, QChar('x'));
        playAdd(r, {{"  two words <i>", "O'Brien \"Q\""},
                    {"desc", "<b>Bold</b>"},
                    {longName, longName},
                    {"   ", "   "}});
        d.catalogue.cmdAdd[0].click();
        const auto rows = FieldTexts(r.t.db.readAll("UsaNeighborhoods"));
        QCOMPARE(rows.size(), 44);
        QCOMPARE(rows[41], QStringList({"OBrienQ", "two words i"}));
        QCOMPARE(rows[42], QStringList({"bBoldb", "desc"}));
        QCOMPARE(rows[43], QStringList({QString(21, 'x'), QString(43, 'x')}));
        QCOMPARE(r.t.prompts.messages().last(), QString("Nothing has been typed!"));
        QVERIFY(AreaAdder::keyAccepted(0, ' ') && !AreaAdder::keyAccepted(1, ' '));
        QVERIFY(AreaAdder::keyAccepted(2, 8) && !AreaAdder::keyAccepted(2, '-'));
    }

    void aShortNameIsAskedAbout()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        playAdd(r, {{"Long enough", "Abc"}, {"Long enough", "Xyz"}});
        r.t.prompts.answer(PromptService::No);
        r.t.prompts.answer(PromptService::Yes);
        d.catalogue.cmdAdd[0].click();
        QCOMPARE(r.t.prompts.shown[0].title, QString("Very Small"));
        QCOMPARE(d.catalogue.cmbN.items().mid(41), QStringList{"Xyz"});
    }

    // frmAdd's Cancel after an addition leaves the row in the table, while
    // the lists and the memory copy stay as they were.
    void cancelInTheAddWindowRefreshesNothing()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        playAdd(r, {{"My own", "Mine"}}, false);
        d.catalogue.cmdAdd[0].click();
        QCOMPARE(r.t.db.recordCount("UsaNeighborhoods"), 42);
        QCOMPARE(d.catalogue.cmbN.listCount(), 41);
        QVERIFY(!r.options.calls.contains("reload"));
        QVERIFY(!d.catalogue.blnCatalogueChanged);
    }

    // A failure halfway through a deletion leaves both tables as they were.
    void aFailedDeletionChangesNothing()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        playAdd(r, {{"My own", "Mine"}, {"After it", "Later"}});
        d.catalogue.cmdAdd[0].click();
        r.t.db.append("UsaSuburbs", {"NeighborhoodIndex", "Suburb"},
                      {{"42", "Gone"}, {"43", "Moved"}});
        QSqlQuery(r.t.db.handle())
            .exec("CREATE TRIGGER refuse BEFORE UPDATE ON UsaSuburbs "
                  "BEGIN SELECT RAISE(ABORT, 'refused'); END");
        const auto before = FieldTexts(r.t.db.readAll("UsaSuburbs"));
        selectNeighborhood(d.catalogue, "Mine");
        d.catalogue.cmdRemove[0].click();
        QVERIFY(r.t.prompts.messages().last().startsWith("The Neighborhood could not be deleted"));
        QCOMPARE(FieldTexts(r.t.db.readAll("UsaSuburbs")), before);
        QCOMPARE(r.t.db.recordCount("UsaNeighborhoods"), 43);
        QVERIFY(!d.catalogue.blnCatalogueChanged);
    }

    void frmOptCallsReadsTheListsAgain()
    {
        OptionsRig r;
        OptionsDialog& d = r.open();
        r.t.db.append("UsaNeighborhoods", {"Neighborhood", "Description"}, {{"Quiet", "q"}});
        d.frmOptCalls(OptCall(2));
        QCOMPARE(d.catalogue.cmbN.listCount(), 41);
        d.frmOptCalls(OptCall::ServerClick);
        QCOMPARE(d.catalogue.cmbN.items().last(), QString("Quiet"));
    }
};

QTEST_GUILESS_MAIN(TestCatalogueEditing)
#include "TestCatalogueEditing.moc"
