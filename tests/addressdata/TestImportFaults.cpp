// Bad input to the import of old links: broken or foreign files end with a
// message and leave the main database as it was; a failure part way keeps
// what was added before it, and nothing saved earlier is touched.
#include "ImportRig.h"
#include "JetWriter.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

const QString NotVorlan = "Not a Vorlan database file, or it is corrupt!";
const QString WrongFormat = "This links file is not the correct format!";
const QStringList Existing{"SoHo", "Lofts", "1001", "Art", "Saved on: old"};

JetWriter oneLinkDatabase()
{
    JetWriter w = JetWriter::OldMainDatabase();
    w.table("UsaSaved")->rows = {{"Area51", "", "9999", "Aliens", "d"}};
    w.table("wbtBadTitles")->rows = {{"404"}};
    return w;
}

// Opens the main database again for reading only, as a file the user may
// not write.
void makeMainReadOnly(ImportRig& r)
{
    r.t.db.close();
    r.t.db.openReadOnly(r.t.state.gstrGeoData);
}

} // namespace

class TestImportFaults : public QObject
{
    Q_OBJECT

private slots:
    void brokenTextFilesAreRefused()
    {
        ImportRig r;
        r.addSaved(Tbl::UsaSaved, Existing);
        const QString quote = r.write("geolinks.ini", "\"SoHo\",\"Lofts,\"10\",\"01\",\"Art\"");
        QStringList paths{quote};
        const char withNul[] = "\"a\",\"b\",\"c\",\"d\",\"e\0\"";
        paths << r.write("geojapan.ini", QByteArray(withNul, sizeof withNul - 1));
        // Seven fields on a line and four on the next fit neither layout.
        paths << r.files + "/counts/geolinks.ini";
        QVERIFY(
            putFile(paths.last(),
                    "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\"\r\n\"1\",\"2\",\"3\",\"4\"\r\n"));
        // Far larger than any links file: refused before it is read.
        QDir().mkpath(r.files + "/big");
        QFile big(r.files + "/big/geolinks.ini");
        QVERIFY(big.open(QIODevice::WriteOnly));
        big.write(TwoRecordsLikeText());
        QVERIFY(big.resize(100 * 1024 * 1024));
        big.close();
        paths << big.fileName();

        r.run(paths);
        QCOMPARE(r.t.prompts.messages(), QStringList(QVector<QString>(4, WrongFormat).toList()));
        QCOMPARE(r.fileDialogs(), 5);
        QCOMPARE(r.rows(Tbl::UsaSaved), QVector<QStringList>{Existing});
        QVERIFY(r.rows(Tbl::JapanSaved).isEmpty());
    }

    void damagedAccessFilesAreRefused()
    {
        ImportRig r;
        const QByteArray sound = oneLinkDatabase().build();
        QStringList paths;
        auto variant = [&](const QString& folder, const QByteArray& bytes) {
            paths << r.files + "/" + folder + "/geodata.mdb";
            QVERIFY(putFile(paths.last(), bytes));
        };
        variant("half-page", sound.left(sound.size() - 100));
        // Cut at a page: the last table's records are gone.
        variant("lost-page", sound.left(sound.size() - JetWriter::PageSize));
        QByteArray scribbled = sound;
        for (int i = 2 * JetWriter::PageSize + 8; i < 3 * JetWriter::PageSize; ++i)
            scribbled[i] = char(i * 7);
        variant("catalog", scribbled);
        JetWriter encoded = oneLinkDatabase();
        encoded.pageKey = 0x5a17c0de;
        variant("encoded", encoded.build());
        variant("header", QByteArray("\0\1\0\0Standard Jet DB", 19) + QByteArray(100, 'x'));
        // This program's own file, cut short.
        const QByteArray own = fileBytes(r.t.state.gstrGeoData);
        variant("sqlite", own.left(own.size() / 2));

        for (const QString& p : paths)
            r.run({p});
        QCOMPARE(r.t.prompts.messages(), QStringList(QVector<QString>(6, NotVorlan).toList()));
        QVERIFY(r.rows(Tbl::UsaSaved).isEmpty());
        QVERIFY(r.rows(Tbl::WbtBadTitles).isEmpty());
        QVERIFY(r.host.calls.isEmpty());
    }

    void aReadOnlyMainDatabaseEndsTheImport()
    {
        ImportRig r;
        r.addSaved(Tbl::UsaSaved, Existing);
        const QString text = r.write("geolinks.ini", TwoRecordsLikeText());
        QVERIFY(oneLinkDatabase().write(r.files + "/geodata.mdb"));
        makeMainReadOnly(r);
        r.run({text});
        r.run({r.files + "/geodata.mdb"});
        QCOMPARE(r.t.prompts.messages(), (QStringList{"Import will abort!", "Import will abort!"}));
        QCOMPARE(r.host.calls, (QStringList{"wait Importing...", "unload", "refresh"}));
        QCOMPARE(r.rows(Tbl::UsaSaved), QVector<QStringList>{Existing});
        QVERIFY(r.rows(Tbl::WbtBadTitles).isEmpty());
    }

    void aFailurePartWayKeepsWhatCameBefore()
    {
        ImportRig r;
        r.addSaved(Tbl::UsaSaved, Existing);
        // The second record's note is longer than a field holds.
        const QByteArray tooLong(300, 'n');
        const QString path =
            r.write("geolinks.ini", "\"A\",\"\",\"11\",\"11\",\"first\",\"d\"\r\n"
                                    "\"B\",\"\",\"22\",\"22\",\"" +
                                        tooLong +
                                        "\",\"d\"\r\n"
                                        "\"C\",\"\",\"33\",\"33\",\"third\",\"d\"\r\n");
        const LinkImport::Counts c = r.run({path});
        QCOMPARE(c.linksAdded, 1);
        QCOMPARE(r.t.prompts.messages(), QStringList{"Import will abort!"});
        QCOMPARE(r.rows(Tbl::UsaSaved),
                 (QVector<QStringList>{Existing, {"A", "", "1111", "first", "d"}}));
        QCOMPARE(r.host.calls, QStringList{"refresh"});
    }

private:
    static QByteArray TwoRecordsLikeText()
    {
        return "\"SoHo\",\"Lofts\",\"10\",\"01\",\"Other\",\"d\"\r\n"
               "\"Area51\",\"\",\"99\",\"99\",\"Aliens\",\"d\"\r\n";
    }
};

QTEST_GUILESS_MAIN(TestImportFaults)
#include "TestImportFaults.moc"
