#include "TestContext.h"
#include "addressdata/CatalogueLoader.h"
#include "addressdata/MainDatabase.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"

#include <QSqlQuery>
#include <QtTest>
#include <memory>

namespace {

const QString neighborhoodsWarning = QStringLiteral(
    "Warning!!!\r\rMaximum Neighborhoods\r(99) has been reached!\rNo more will be loaded!\r");

QString suburbsWarning(const QString& name)
{
    return QStringLiteral("Warning!!!\r\rMaximum suburbs For:\r%1\rhas been reached! \r"
                          "No more will be loaded!\r")
        .arg(name);
}

} // namespace

class TestCatalogueLoader : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestContext> t;
    int files = 0;

    // A file with the region tables of the main database holding just these
    // Neighborhoods and (NeighborhoodIndex, Suburb) records.
    void makeTables(const QStringList& neighborhoods, const QVector<QStringList>& suburbs,
                    bool japan = false)
    {
        t->db.close();
        t->db.open(t->folders.data() + QString("/loader%1.db").arg(++files), true);
        const TableNameArray& names = t->state.gastrTables;
        const int n = japan ? Tbl::JapanNeighborhoods : Tbl::UsaNeighborhoods;
        for (int index : {n, n + 1})
            t->db.createTable(names[index][0], FieldNames(names, index));
        QVector<QStringList> rows;
        for (const QString& name : neighborhoods)
            rows.append({name, name + " description"});
        t->db.append(names[n][0], FieldNames(names, n), rows);
        t->db.append(names[n + 1][0], FieldNames(names, n + 1), suburbs);
    }

    static QStringList numbered(const QString& prefix, int count)
    {
        QStringList names;
        for (int i = 1; i <= count; ++i)
            names.append(prefix + QString::number(i));
        return names;
    }

private slots:
    void init()
    {
        t = std::make_unique<TestContext>();
        t->probe.up = false;
    }
    void cleanup() { t.reset(); }

    void readsEitherSiteOfANewFile()
    {
        t->state.gstrGeoData = t->folders.data() + "/GeoData.db";
        CreateMainDatabase(t->state);
        CatalogueData& cat = t->state.catalogue;
        cat = CatalogueData();
        t->db.open(t->state.gstrGeoData);

        ReadCatalogue(t->ctx, t->db);
        QCOMPARE(cat.gintNeighborhoodCount, qint16(41));
        QCOMPARE(cat.gaintSuburbCount[1], qint16(29));
        QCOMPARE(cat.gaintSuburbCount[31], qint16(40));
        QCOMPARE(cat.suburb(14, 11), QString("Lane"));
        QCOMPARE(cat.gastrDescription[21], QString("Romance, poetry, the arts"));
        QCOMPARE(cat.gintMaxSuburbs, qint16(40));

        t->state.gblnJapan = true;
        ReadCatalogue(t->ctx, t->db);
        QCOMPARE(cat.gintNeighborhoodCount, qint16(14));
        QCOMPARE(cat.name(2), QString("MotorCity"));
        QCOMPARE(cat.gaintSuburbCount[2], qint16(0));
        QCOMPARE(cat.gaintSuburbCount[8], qint16(4));
        QCOMPARE(cat.suburb(8, 4), QString("Icho"));
        QCOMPARE(cat.gaintSuburbCount.size(), 15);
        // Raised, never lowered: the USA high mark stays.
        QCOMPARE(cat.gintMaxSuburbs, qint16(40));
        QVERIFY(t->prompts.shown.isEmpty());
    }

    void takesAtMost99Neighborhoods()
    {
        makeTables(numbered("N", 101), {{"99", "Last"}, {"100", "Beyond"}, {"1", "First"}});
        ReadCatalogue(t->ctx, t->db);
        const CatalogueData& cat = t->state.catalogue;
        QCOMPARE(t->prompts.messages(), QStringList({neighborhoodsWarning}));
        QCOMPARE(t->prompts.shown[0].title, QString());
        QCOMPARE(t->prompts.shown[0].style, int(PromptService::Information));
        QCOMPARE(cat.gintNeighborhoodCount, qint16(99));
        QCOMPARE(cat.name(99), QString("N99"));
        QCOMPARE(cat.gastrDescription.size(), 100);
        QCOMPARE(cat.suburb(99, 1), QString("Last"));
        QCOMPARE(cat.suburb(1, 1), QString("First"));
        QCOMPARE(cat.gintMaxSuburbs, qint16(1));
    }

    void takesAtMost73SuburbsAndWarnsForEachSurplus()
    {
        QVector<QStringList> suburbs;
        for (const QString& s : numbered("S", 76))
            suburbs.append(QStringList{"2", s});
        suburbs.append(QStringList{"1", "Alone"});
        suburbs.append(QStringList{"2", "S77"});
        makeTables({"Quiet", "Crowded"}, suburbs);
        // A reload does not blank the rows: readers go by the counts.
        t->state.catalogue.gastrCatalogue[1][74] = "left from before";

        ReadCatalogue(t->ctx, t->db);
        const CatalogueData& cat = t->state.catalogue;
        QCOMPARE(t->prompts.messages(), QStringList(4, suburbsWarning("Crowded")));
        QCOMPARE(cat.gaintSuburbCount[2], qint16(73));
        QCOMPARE(cat.suburb(2, 73), QString("S73"));
        QCOMPARE(cat.suburb(2, 74), QString("left from before"));
        // The scan goes on past the surplus.
        QCOMPARE(cat.gaintSuburbCount[1], qint16(1));
        QCOMPARE(cat.suburb(1, 1), QString("Alone"));
        QCOMPARE(cat.gintMaxSuburbs, qint16(73));
    }

    void suburbsOfNoLoadedNeighborhoodAreSkipped()
    {
        makeTables({"One", "Two", "Three"}, {{"0", "zero"},
                                             {"", "empty"},
                                             {"abc", "letters"},
                                             {"4", "beyond"},
                                             {"-1", "negative"},
                                             {"1.5", "fraction"},
                                             {" 2", "blank first"},
                                             {"3x", "trailing text"},
                                             {"2.0", "two point oh"}});
        ReadCatalogue(t->ctx, t->db);
        const CatalogueData& cat = t->state.catalogue;
        QVERIFY(t->prompts.shown.isEmpty());
        QCOMPARE(cat.gaintSuburbCount[1], qint16(0));
        QCOMPARE(cat.gaintSuburbCount[2], qint16(2));
        QCOMPARE(cat.suburb(2, 1), QString("blank first"));
        QCOMPARE(cat.suburb(2, 2), QString("two point oh"));
        QCOMPARE(cat.gaintSuburbCount[3], qint16(1));
        QCOMPARE(cat.suburb(3, 1), QString("trailing text"));
    }

    void fieldsAreTakenByNameWhateverTheirPlace()
    {
        t->db.close();
        t->db.open(t->folders.data() + "/reordered.db", true);
        QSqlQuery other(t->db.handle());
        QVERIFY(other.exec("CREATE TABLE UsaNeighborhoods (Added TEXT, Description TEXT, "
                           "Neighborhood TEXT)"));
        QVERIFY(other.exec("INSERT INTO UsaNeighborhoods VALUES ('x', 'Art', 'SoHo')"));
        QVERIFY(other.exec("CREATE TABLE UsaSuburbs (Suburb TEXT, Added TEXT, "
                           "NeighborhoodIndex TEXT)"));
        QVERIFY(other.exec("INSERT INTO UsaSuburbs VALUES ('Lofts', '7', '1')"));
        ReadCatalogue(t->ctx, t->db);
        const CatalogueData& cat = t->state.catalogue;
        QCOMPARE(cat.name(1), QString("SoHo"));
        QCOMPARE(cat.gastrDescription[1], QString("Art"));
        QCOMPARE(cat.gaintSuburbCount[1], qint16(1));
        QCOMPARE(cat.suburb(1, 1), QString("Lofts"));

        QVERIFY(other.exec("ALTER TABLE UsaSuburbs DROP COLUMN Suburb"));
        QVERIFY_THROWS_EXCEPTION(DbError, ReadCatalogue(t->ctx, t->db));
    }

    void missingOrEmptyTablesAreErrors()
    {
        makeTables({}, {});
        QVERIFY_THROWS_EXCEPTION(DbError, ReadCatalogue(t->ctx, t->db));
        makeTables({"Only"}, {}, true);
        QVERIFY_THROWS_EXCEPTION(DbError, ReadCatalogue(t->ctx, t->db));
        t->state.gblnJapan = true;
        ReadCatalogue(t->ctx, t->db);
        QCOMPARE(t->state.catalogue.name(1), QString("Only"));
        QCOMPARE(t->state.catalogue.gaintSuburbCount[1], qint16(0));
    }
};

QTEST_GUILESS_MAIN(TestCatalogueLoader)
#include "TestCatalogueLoader.moc"
