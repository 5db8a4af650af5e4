#include "TestContext.h"
#include "browsertwo/ServersWithSuburbs.h"
#include "core/Endpoints.h"
#include "core/SwsTable.h"

#include <QtTest>

class TestServersWithSuburbs : public QObject
{
    Q_OBJECT

    static int suburbCount(const SwsTable& table, int row)
    {
        int n = 0;
        while (n < SwsTable::MaxSuburbs && !table.at(row, n + 1).isEmpty())
            ++n;
        return n;
    }

private slots:
    void missingTablesAreMadeAndSeededInOrder()
    {
        TestContext t;
        t.createAndOpenDatabase();
        SwsTable table;
        table.at(7, 3) = "stale";
        QVERIFY(ReadServersWithSuburbs(t.db, table));
        QCOMPARE(table.at(1, 0), QString(Endpoint::AngelfireBaseUrl));
        QCOMPARE(table.at(2, 0), QString(Endpoint::TerraVistaBaseUrl));
        QCOMPARE(table.at(3, 0), QString(Endpoint::TerraVistaBrasilBaseUrl));
        QVERIFY(table.at(4, 0).isEmpty());
        QVERIFY(table.at(7, 3).isEmpty());
        QCOMPARE(suburbCount(table, 1), 51);
        QCOMPARE(suburbCount(table, 2), 14);
        QCOMPARE(suburbCount(table, 3), 7);
        QCOMPARE(table.at(1, 1), QString("ak"));
        QCOMPARE(table.at(1, 51), QString("wy"));
        QCOMPARE(table.at(2, 14), QString("Ancora"));
        QCOMPARE(table.at(3, 7), QString("PraiaBrava"));
        QCOMPARE(t.db.readAll(Sws::SubsTable).size(), 72);
    }

    void anEmptyTableStaysEmptyAndStrayOrdinalsAreIgnored()
    {
        TestContext t;
        t.createAndOpenDatabase();
        t.db.createTable(Sws::ServersTable, {Sws::UrlField});
        t.db.createTable(Sws::SubsTable, {Sws::IndexField, Sws::SubField});
        SwsTable table;
        QVERIFY(ReadServersWithSuburbs(t.db, table));
        QVERIFY(table.at(1, 0).isEmpty());
        QCOMPARE(t.db.recordCount(Sws::ServersTable), 0);

        t.db.append(Sws::ServersTable, {Sws::UrlField}, {{"http://a/"}, {"http://b/"}});
        t.db.append(Sws::SubsTable, {Sws::IndexField, Sws::SubField},
                    {{"2", "b1"}, {"3", "beyond"}, {"x", "junk"}, {"1", "a1"}, {"2", "b2"}});
        QVERIFY(ReadServersWithSuburbs(t.db, table));
        QCOMPARE(table.at(1, 1), QString("a1"));
        QCOMPARE(table.at(2, 1), QString("b1"));
        QCOMPARE(table.at(2, 2), QString("b2"));
        QCOMPARE(suburbCount(table, 1), 1);
        QVERIFY(table.at(3, 0).isEmpty() && table.at(3, 1).isEmpty());
    }

    void moreThanTenServersOrAMissingSubsTableFail()
    {
        TestContext t;
        t.createAndOpenDatabase();
        t.db.createTable(Sws::ServersTable, {Sws::UrlField});
        t.db.append(Sws::ServersTable, {Sws::UrlField}, {{"http://a/"}});
        SwsTable table;
        QVERIFY(!ReadServersWithSuburbs(t.db, table));
        QCOMPARE(table.at(1, 0), QString("http://a/"));

        QVector<QStringList> eleven;
        for (int i = 0; i < 10; ++i)
            eleven.append({QString("http://s%1/").arg(i)});
        t.db.append(Sws::ServersTable, {Sws::UrlField}, eleven);
        t.db.createTable(Sws::SubsTable, {Sws::IndexField, Sws::SubField});
        QVERIFY(!ReadServersWithSuburbs(t.db, table));
    }
};

QTEST_GUILESS_MAIN(TestServersWithSuburbs)
#include "TestServersWithSuburbs.moc"
