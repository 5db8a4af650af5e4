#include "TestContext.h"
#include "addressdata/BuiltInCatalogue.h"
#include "addressdata/MainDatabase.h"
#include "addressdata/TextDatabase.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

struct Expected
{
    const char* name;
    int suburbs;
};

// Counted from the published lists of the service's two sites.
const Expected usaSite[] = {
    {"Area51", 29},        {"Athens", 18},    {"Augusta", 2},          {"Baja", 7},
    {"BourbonStreet", 5},  {"Broadway", 6},   {"CapeCanaveral", 9},    {"CapitolHill", 4},
    {"CollegePark", 20},   {"Colosseum", 21}, {"EnchantedForest", 9},  {"Eureka", 11},
    {"FashionAvenue", 5},  {"Heartland", 25}, {"Hollywood", 24},       {"HotSprings", 7},
    {"MadisonAvenue", 2},  {"MotorCity", 10}, {"NapaValley", 1},       {"Nashville", 3},
    {"Paris", 19},         {"Pentagon", 3},   {"Petsburgh", 3},        {"PicketFence", 1},
    {"Pipeline", 9},       {"RainForest", 4}, {"ResearchTriangle", 7}, {"RodeoDrive", 3},
    {"SiliconValley", 33}, {"SoHo", 15},      {"SouthBeach", 40},      {"SunsetStrip", 37},
    {"TelevisionCity", 7}, {"TheTropics", 9}, {"TimesSquare", 26},     {"Tokyo", 21},
    {"Vienna", 4},         {"WallStreet", 6}, {"Wellesley", 4},        {"WestHollywood", 7},
    {"Yosemite", 9}};

const Expected japanSite[] = {{"Milkyway", 2},       {"MotorCity", 0}, {"Milano", 0},
                              {"Broadway", 1},       {"Playtown", 3},  {"SilkRoad", 0},
                              {"Hollywood", 2},      {"HeartLand", 4}, {"Berkeley", 0},
                              {"Technopolis", 0},    {"Colosseum", 1}, {"SiliconValley", 1},
                              {"EpicureanTable", 0}, {"WallStreet", 0}};

// The Suburbs of one Neighborhood as stored, in record order.
QStringList suburbsOf(const QVector<TextRecord>& suburbs, int neighborhood)
{
    QStringList names;
    for (const TextRecord& r : suburbs) {
        if (r.fields[0] == QString::number(neighborhood))
            names.append(r.fields[1]);
    }
    return names;
}

} // namespace

class TestMainDatabase : public QObject
{
    Q_OBJECT
    TestFolders folders;
    SharedState state;
    QVector<TextRecord> tables[Tbl::MainTableCount];

    void prepare(SharedState& s, const QString& file)
    {
        s.reset();
        BuildTableNames(s.gastrTables);
        s.gstrGeoData = folders.data() + "/" + file;
    }

    // Statements run on the file, as another tool would.
    static void alter(const QString& path, const QStringList& statements)
    {
        TextDatabase db("test-alter");
        db.open(path);
        for (const QString& sql : statements) {
            QSqlQuery query(db.handle());
            QVERIFY2(query.exec(sql), qPrintable(query.lastError().text()));
        }
    }

    void checkSite(const Expected* site, int count, const QVector<TextRecord>& names,
                   const QVector<TextRecord>& suburbs)
    {
        QCOMPARE(names.size(), count);
        int total = 0;
        for (int i = 1; i <= count; ++i) {
            QCOMPARE(names[i - 1].fields.size(), 2);
            QCOMPARE(names[i - 1].fields[0], QString(site[i - 1].name));
            QVERIFY(!names[i - 1].fields[1].isEmpty());
            QCOMPARE(suburbsOf(suburbs, i).size(), site[i - 1].suburbs);
            total += site[i - 1].suburbs;
        }
        QCOMPARE(suburbs.size(), total);
        // Suburbs are stored Neighborhood by Neighborhood, in seed order.
        int last = 1;
        for (const TextRecord& r : suburbs) {
            const int index = r.fields[0].toInt();
            QVERIFY(index >= last && index <= count);
            QVERIFY(!r.fields[1].isEmpty());
            last = index;
        }
    }

private slots:
    void initTestCase()
    {
        prepare(state, "GeoData.db");
        state.gblnJapan = true;
        CreateMainDatabase(state);
        TextDatabase db("test-main");
        db.open(state.gstrGeoData);
        for (int t = 0; t < Tbl::MainTableCount; ++t)
            tables[t] = db.readAll(state.gastrTables[t][0]);
    }

    void tableNamesAreTheSchema()
    {
        const TableNameArray& t = state.gastrTables;
        QCOMPARE(FieldNames(t, Tbl::UsaSaved),
                 QStringList({"Neighborhood", "Suburb", "House", "Comment", "Date"}));
        QCOMPARE(FieldNames(t, Tbl::JapanMisc), QStringList({"RNavNeighborhoodsJapan"}));
        QCOMPARE(t[Tbl::WbtLinks][0], QString("wbtlinks"));
        QCOMPARE(FieldNames(t, Tbl::WbtBaseUrl), QStringList({"Url", "Counter"}));
        QCOMPARE(t[Tbl::UsaMisc + Tbl::JapanOffset][0], QString("JapanMisc"));
        QVERIFY(t[11][0].isEmpty() && FieldNames(t, 11).isEmpty());
        for (const auto& row : t)
            QVERIFY(row[6].isEmpty() && !row[6].isNull());

        // The file's tables carry exactly these fields, in this order.
        TextDatabase db("test-schema");
        db.open(state.gstrGeoData);
        for (int index = 0; index < Tbl::MainTableCount; ++index) {
            const QSqlRecord record = db.handle().record(t[index][0]);
            QStringList columns;
            for (int c = 0; c < record.count(); ++c)
                columns.append(record.fieldName(c));
            QCOMPARE(columns, FieldNames(t, index));
        }
    }

    void aNewFileHoldsTheWholeCatalogue()
    {
        checkSite(usaSite, 41, tables[Tbl::UsaNeighborhoods], tables[Tbl::UsaSuburbs]);
        checkSite(japanSite, 14, tables[Tbl::JapanNeighborhoods], tables[Tbl::JapanSuburbs]);
        QCOMPARE(tables[Tbl::UsaSuburbs].size(), 485);
        QCOMPARE(tables[Tbl::JapanSuburbs].size(), 14);
        QCOMPARE(tables[Tbl::UsaNeighborhoods][0].fields[1],
                 QString("Science fiction and fantasy"));
        QCOMPARE(tables[Tbl::UsaNeighborhoods][39].fields[1],
                 QString("Gay, lesbian, bisexual and transgendered"));
        QCOMPARE(tables[Tbl::JapanNeighborhoods][7].fields[1],
                 QString("Families, self-Introduction, pets"));
    }

    void listOrdersAreKeptWithTheirSlips()
    {
        const QVector<TextRecord>& usa = tables[Tbl::UsaSuburbs];
        const QStringList heartland = suburbsOf(usa, 14);
        QCOMPARE(heartland.mid(9, 4), QStringList({"Hollow", "Lane", "Lake", "Meadows"}));
        QCOMPARE(suburbsOf(usa, 29).mid(4, 4), QStringList({"Campus", "Circuit", "Chip", "Code"}));
        const QStringList southBeach = suburbsOf(usa, 31);
        QCOMPARE(southBeach.mid(12, 2), QStringList({"Cove", "Coast"}));
        QCOMPARE(southBeach.mid(32, 2), QStringList({"Sands", "Sandbar"}));
        QCOMPARE(southBeach.last(2), QStringList({"Tidepool", "Terrace"}));

        QStringList japan;
        for (const TextRecord& r : tables[Tbl::JapanSuburbs])
            japan.append(r.fields.join(":"));
        QCOMPARE(japan, QStringList({"1:Kaigan", "1:Orion", "4:Guitar", "5:Denei", "5:Spade",
                                     "5:Dice", "7:Kouen", "7:Miyuki", "8:Namiki", "8:Gaien",
                                     "8:Suzuran", "8:Icho", "11:Acropolis", "12:PaloAlto"}));
    }

    void theOtherTablesStartEmpty()
    {
        for (int t : {Tbl::UsaSaved, Tbl::UsaMisc, Tbl::JapanSaved, Tbl::JapanMisc, Tbl::WbtLinks,
                      Tbl::WbtBaseUrl, Tbl::WbtBadTitles})
            QVERIFY2(tables[t].isEmpty(), qPrintable(state.gastrTables[t][0]));

        TextDatabase db("test-limit");
        db.open(state.gstrGeoData);
        const QString saved = state.gastrTables[Tbl::UsaSaved][0];
        const QStringList fields = FieldNames(state.gastrTables, Tbl::UsaSaved);
        QVERIFY_THROWS_EXCEPTION(
            DbError, db.append(saved, fields,
                               {{"Area51", "Nebula", "1234", QString(256, QLatin1Char('n')), ""}}));
        QCOMPARE(db.recordCount(saved), 0);
    }

    void creationLeavesTheUsaSiteInTheArrays()
    {
        const CatalogueData& cat = state.catalogue;
        QVERIFY(!state.gblnJapan);
        QCOMPARE(cat.gintNeighborhoodCount, qint16(41));
        QCOMPARE(cat.gintMaxSuburbs, qint16(74));
        QCOMPARE(cat.name(41), QString("Yosemite"));
        QCOMPARE(cat.gastrDescription[41], QString("Hiking, rafting, and the great outdoors"));
        QCOMPARE(cat.suburb(31, 40), QString("Terrace"));
        QCOMPARE(cat.suburb(31, 41), QString(""));
        QCOMPARE(cat.gaintSuburbCount[31], qint16(40));
        QCOMPARE(cat.find("SoHo"), 30);
        QCOMPARE(cat.find("soho"), 0);
    }

    void seedingAnotherRegionBlanksTheOldSuburbs()
    {
        SharedState s;
        SeedCatalogue(s);
        QCOMPARE(s.catalogue.suburb(1, 29), QString("Zone"));
        s.gblnJapan = true;
        SeedCatalogue(s);
        const CatalogueData& cat = s.catalogue;
        QCOMPARE(cat.gintNeighborhoodCount, qint16(14));
        QCOMPARE(cat.gastrDescription.size(), 15);
        QCOMPARE(cat.name(1), QString("Milkyway"));
        QCOMPARE(cat.suburb(1, 2), QString("Orion"));
        for (int c = 3; c <= 74; ++c)
            QVERIFY(cat.suburb(1, c).isEmpty());
        QVERIFY(cat.suburb(2, 1).isEmpty());
        QCOMPARE(cat.gaintSuburbCount[2], qint16(0));
        QCOMPARE(BuiltInCatalogue::site(true).size(), 14);
    }

    void creationNeedsAFreshPath()
    {
        SharedState s;
        prepare(s, "existing.db");
        QVERIFY(putFile(s.gstrGeoData, "keep me"));
        QVERIFY_THROWS_EXCEPTION(DbError, CreateMainDatabase(s));
        QCOMPARE(fileBytes(s.gstrGeoData), QByteArray("keep me"));

        // Without the table names nothing can be made, and no usable file is left.
        SharedState bare;
        bare.gstrGeoData = folders.data() + "/nameless.db";
        QVERIFY_THROWS_EXCEPTION(DbError, CreateMainDatabase(bare));
        QVERIFY(!VerifyMainDatabase(bare.gstrGeoData, state.gastrTables));
    }

    void databaseActionCreatesOnlyForItsCode()
    {
        TestContext t;
        t.probe.up = false;
        SharedState& s = t.state;
        AppContext& ctx = t.ctx;
        ScriptedPrompts& prompts = t.prompts;
        prepare(s, "action.db");
        for (int code : {0, 1, 3, 7}) {
            DatabaseAction(ctx, code);
            QVERIFY(!QFile::exists(s.gstrGeoData));
        }
        // 3 is the import, which asks for its file and ends on Cancel.
        QCOMPARE(prompts.shown.size(), 1);
        QCOMPARE(prompts.shown[0].title, QString("Select Saved Links file!"));
        DatabaseAction(ctx, 2);
        QVERIFY(VerifyMainDatabase(s.gstrGeoData, s.gastrTables));
        QVERIFY_THROWS_EXCEPTION(DbError, DatabaseAction(ctx, 2));
        QCOMPARE(prompts.shown.size(), 1);
    }

    void verificationFindsEveryKindOfDamage()
    {
        const QString good = state.gstrGeoData;
        const TableNameArray& t = state.gastrTables;
        QVERIFY(VerifyMainDatabase(good, t));
        const QByteArray whole = fileBytes(good);
        const QString bad = folders.data() + "/bad.db";

        QVERIFY(!VerifyMainDatabase(folders.data() + "/absent.db", t));
        QVERIFY(putFile(bad, QByteArray()));
        QVERIFY(!VerifyMainDatabase(bad, t));
        QVERIFY(putFile(bad, QByteArray(whole.size(), 'g')));
        QVERIFY(!VerifyMainDatabase(bad, t));
        QVERIFY(putFile(bad, whole.left(whole.size() / 2)));
        QVERIFY(!VerifyMainDatabase(bad, t));

        // A sound file that lacks one table, the last one read.
        QVERIFY(putFile(bad, whole));
        {
            TextDatabase db("test-drop");
            db.open(bad);
            QSqlQuery(db.handle()).exec("DROP TABLE " + t[Tbl::WbtBadTitles][0]);
            QVERIFY(!db.hasTable(t[Tbl::WbtBadTitles][0]));
        }
        QVERIFY(!VerifyMainDatabase(bad, t));
        QVERIFY(!QSqlDatabase::contains("test-drop"));

        // A saved-links table without its Comment field.
        QVERIFY(putFile(bad, whole));
        alter(bad, {"ALTER TABLE UsaSaved DROP COLUMN Comment"});
        QVERIFY(!VerifyMainDatabase(bad, t));
        QCOMPARE(QSqlDatabase::connectionNames().size(), 0);
    }

    void whatAnotherToolMayAddIsNoDamage()
    {
        const QString other = folders.data() + "/other.db";
        QVERIFY(putFile(other, fileBytes(state.gstrGeoData)));
        // A column of its own, and a note longer than the program would store.
        alter(other, {"ALTER TABLE UsaSaved ADD COLUMN Rating TEXT",
                      "PRAGMA ignore_check_constraints = ON",
                      "INSERT INTO UsaSaved (Neighborhood, Comment) VALUES ('SoHo', '" +
                          QString(300, QLatin1Char('n')) + "')"});
        QVERIFY(VerifyMainDatabase(other, state.gastrTables));
    }
};

QTEST_GUILESS_MAIN(TestMainDatabase)
#include "TestMainDatabase.moc"
