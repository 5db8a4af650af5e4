#include "TestFolders.h"
#include "addressdata/TextDatabase.h"

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QtTest>
#include <sys/stat.h>

class TestTextDatabase : public QObject
{
    Q_OBJECT
    const QString conn = QStringLiteral("test-text");
    const QStringList fields = {"a", "b"};

    // A database large enough that its tables span many pages.
    static QByteArray sizeableDatabase(const QString& path)
    {
        {
            TextDatabase db(QStringLiteral("test-sizeable"));
            db.open(path, true);
            db.createTable("Words", {"word", "note"});
            QVector<QStringList> rows;
            for (int i = 0; i < 2000; ++i)
                rows.append({QString::number(i), QString(200, QLatin1Char('x'))});
            db.append("Words", {"word", "note"}, rows);
        }
        return fileBytes(path);
    }

private slots:
    void init()
    {
        // Closing must leave no connection in use behind, nor any other noise.
        QTest::failOnWarning(QRegularExpression(".*"));
    }

    void recordsComeBackInInsertionOrderAsStored()
    {
        TestFolders f;
        const QString path = f.data() + "/t.db";
        TextDatabase db(conn);
        QVERIFY_THROWS_EXCEPTION(DbError, db.open(path));
        db.open(path, true);
        db.createTable("Pairs", fields);
        db.append("Pairs", fields, {{"zeta", "1"}, {"alpha", ""}, {"Müller ∑", QString()}});
        QSqlQuery(db.handle()).exec("INSERT INTO Pairs (a, b) VALUES ('raw', NULL)");
        db.close();

        db.open(path);
        QVERIFY(db.hasTable("pairs"));
        QVERIFY(!db.hasTable("Pair"));
        QCOMPARE(db.recordCount("Pairs"), 4);
        QVector<TextRecord> all = db.readAll("Pairs");
        QCOMPARE(all.size(), 4);
        QCOMPARE(all[0].fields, QStringList({"zeta", "1"}));
        QCOMPARE(all[1].fields, QStringList({"alpha", ""}));
        // Empty texts the program wrote are texts; a NULL from elsewhere is null.
        QVERIFY(!all[1].fields[1].isNull());
        QVERIFY(!all[2].fields[1].isNull());
        QCOMPARE(all[2].fields[0], QString("Müller ∑"));
        QVERIFY(all[3].fields[1].isNull());
        QCOMPARE(NullToEmpty(all[3].fields[1]), QString(""));
        QVERIFY(!NullToEmpty(all[3].fields[1]).isNull());

        // A record appended after a removal still comes last.
        db.remove("Pairs", all[3].rowid);
        db.remove("Pairs", all[0].rowid);
        db.append("Pairs", fields, {{"new", "x"}});
        all = db.readAll("Pairs");
        QCOMPARE(all.size(), 3);
        QCOMPARE(all[0].fields[0], QString("alpha"));
        QCOMPARE(all[2].fields[0], QString("new"));
        db.removeAll("Pairs");
        QCOMPARE(db.recordCount("Pairs"), 0);
    }

    void fieldsHoldAtMost255Characters()
    {
        TestFolders f;
        TextDatabase db(conn);
        db.open(f.data() + "/t.db", true);
        db.createTable("Notes", {"note"});
        // Characters are counted, not bytes: 255 two-byte letters fit.
        db.append("Notes", {"note"},
                  {{QString(255, QLatin1Char('a'))}, {QString(255, QChar(0xE9))}});
        QVERIFY_THROWS_EXCEPTION(DbError,
                                 db.append("Notes", {"note"}, {{QString(256, QLatin1Char('a'))}}));
        QCOMPARE(db.recordCount("Notes"), 2);
        QCOMPARE(db.readAll("Notes")[1].fields[0], QString(255, QChar(0xE9)));
    }

    void aTextOverTheLimitFromElsewhereIsReadNotRefused()
    {
        TestFolders f;
        const QString path = f.data() + "/t.db";
        TextDatabase db(conn);
        db.open(path, true);
        db.createTable("Notes", {"note"});
        QSqlQuery other(db.handle());
        QVERIFY(other.exec("PRAGMA ignore_check_constraints = ON"));
        QVERIFY(other.exec("INSERT INTO Notes VALUES ('" + QString(300, QLatin1Char('n')) + "')"));
        db.close();

        db.open(path);
        QCOMPARE(db.readAll("Notes")[0].fields[0].size(), 300);
        // The limit still holds for what the program writes.
        QVERIFY_THROWS_EXCEPTION(DbError,
                                 db.append("Notes", {"note"}, {{QString(256, QLatin1Char('a'))}}));
    }

    void fieldsAreReadByName()
    {
        TestFolders f;
        TextDatabase db(conn);
        db.open(f.data() + "/t.db", true);
        QSqlQuery other(db.handle());
        QVERIFY(other.exec("CREATE TABLE Wide (extra TEXT, b TEXT, a TEXT)"));
        QVERIFY(other.exec("INSERT INTO Wide VALUES ('x', 'bee', 'ay')"));
        QCOMPARE(db.readAll("Wide", fields)[0].fields, QStringList({"ay", "bee"}));
        // A field the table lacks is an error, never its own name as a text.
        QVERIFY_THROWS_EXCEPTION(DbError, db.readAll("Wide", {"a", "Comment"}));
    }

    void aNewFileIsTheOwnersAlone()
    {
        TestFolders f;
        const QString path = f.data() + "/t.db";
        const mode_t before = ::umask(0);
        {
            TextDatabase db(conn);
            db.open(path, true);
            db.createTable("Pairs", fields);
            db.append("Pairs", fields, {{"a", "b"}});
        }
        ::umask(before);
        QCOMPARE(modeOf(path), 0600u);
    }

    void aFailedWriteStoresNothing()
    {
        TestFolders f;
        TextDatabase db(conn);
        db.open(f.data() + "/t.db", true);
        db.createTable("Pairs", fields);
        db.append("Pairs", fields, {{"kept", "1"}});

        QVERIFY_THROWS_EXCEPTION(
            DbError,
            db.append("Pairs", fields,
                      {{"one", "1"}, {"two", "2"}, {"three", QString(300, QLatin1Char('x'))}}));
        QVERIFY_THROWS_EXCEPTION(DbError, db.append("Pairs", fields, {{"one", "1"}, {"short"}}));
        QCOMPARE(db.recordCount("Pairs"), 1);

        // Nested writes: a failure after two good batches undoes both.
        QVERIFY_THROWS_EXCEPTION(DbError, db.runInTransaction([&] {
            db.append("Pairs", fields, {{"a", "1"}});
            db.append("Pairs", fields, {{"b", "2"}});
            db.append("Nowhere", fields, {{"c", "3"}});
        }));
        QCOMPARE(db.recordCount("Pairs"), 1);

        // The database is usable afterwards and a good nested write is kept.
        db.runInTransaction([&] {
            db.append("Pairs", fields, {{"a", "1"}});
            db.append("Pairs", fields, {{"b", "2"}});
        });
        QCOMPARE(db.recordCount("Pairs"), 3);
    }

    void aMissingTableIsAnError()
    {
        TestFolders f;
        TextDatabase db(conn);
        db.open(f.data() + "/t.db", true);
        db.createTable("Pairs", fields);
        QVERIFY_THROWS_EXCEPTION(DbError, db.readAll("Missing"));
        QVERIFY_THROWS_EXCEPTION(DbError, db.recordCount("Missing"));
        QVERIFY_THROWS_EXCEPTION(DbError, db.append("Missing", fields, {{"a", "b"}}));
        db.close();
        QVERIFY_THROWS_EXCEPTION(DbError, db.readAll("Pairs"));
    }

    void openRefusesWhatIsNotADatabase_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("missing") << 0;
        QTest::newRow("zero length") << 1;
        QTest::newRow("garbage") << 2;
        QTest::newRow("text") << 3;
        QTest::newRow("first half of a database") << 4;
        QTest::newRow("folder") << 5;
        QTest::newRow("damaged pages inside") << 6;
    }

    void openRefusesWhatIsNotADatabase()
    {
        QFETCH(int, kind);
        TestFolders f;
        const QString path = f.data() + "/bad.db";
        QByteArray garbage(8192, '\0');
        for (char& c : garbage)
            c = static_cast<char>(QRandomGenerator::global()->generate());
        switch (kind) {
        case 1:
            QVERIFY(putFile(path, QByteArray()));
            break;
        case 2:
            QVERIFY(putFile(path, garbage));
            break;
        case 3:
            QVERIFY(putFile(path, "Neighborhood,Suburb\r\nArea51,Nebula\r\n"));
            break;
        case 4: {
            const QByteArray whole = sizeableDatabase(f.data() + "/whole.db");
            QVERIFY(putFile(path, whole.left(whole.size() / 2)));
            break;
        }
        case 5:
            QDir().mkpath(path);
            break;
        case 6: {
            QByteArray whole = sizeableDatabase(f.data() + "/whole.db");
            whole.replace(whole.size() / 4, garbage.size(), garbage);
            QVERIFY(putFile(path, whole));
            break;
        }
        }
        TextDatabase db(conn);
        QVERIFY_THROWS_EXCEPTION(DbError, db.open(path));
        QVERIFY(!db.isOpen());
        QVERIFY(!QSqlDatabase::contains(conn));
    }

    void closingReleasesTheConnection()
    {
        TestFolders f;
        const QString path = f.data() + "/t.db";
        {
            TextDatabase db(conn);
            db.open(path, true);
            db.createTable("Pairs", fields);
            QVERIFY(db.isOpen());
            QCOMPARE(db.path(), path);
            // The same name cannot serve two databases at once.
            TextDatabase twin(conn);
            QVERIFY_THROWS_EXCEPTION(DbError, twin.open(path));
            QVERIFY(db.isOpen());
            db.readAll("Pairs");
            db.close();
            QVERIFY(!QSqlDatabase::contains(conn));
            db.open(path);
            QVERIFY(db.hasTable("Pairs"));
        }
        QVERIFY(!QSqlDatabase::contains(conn));
        QVERIFY(TextDatabase::uniqueConnectionName("x") != TextDatabase::uniqueConnectionName("x"));
    }
};

QTEST_GUILESS_MAIN(TestTextDatabase)
#include "TestTextDatabase.moc"
