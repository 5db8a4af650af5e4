// The import of old saved links: the file loop with its messages, the text
// files of early versions and their reading, the repeat rules, and the
// import of this program's own database files.
#include "ImportRig.h"
#include "addressdata/LinkImport.h"
#include "addressdata/LinksTextFile.h"
#include "addressdata/MainDatabase.h"
#include "addressdata/SequentialInput.h"
#include "core/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

const QByteArray TwoNewLinks =
    "\"SoHo\",\"Lofts\",\"10\",\"01\",\"Art, and more\",\"Saved on: A\"\r\n"
    "\"Area51\",\"\",\"99\",\"99\",\"Aliens\",\"Saved on: B\"\r\n";
const QByteArray TwoOldLinks = "\"SoHo\",\"Lofts\",\"10\",\"01\",\"Art, and more\"\r\n"
                               "\"Area51\",\"\",\"99\",\"99\",\"Aliens\"\r\n";

} // namespace

class TestLinkImport : public QObject
{
    Q_OBJECT

private slots:
    void fieldsAreReadOneAfterTheOther()
    {
        QStringList f;
        QVERIFY(SequentialInput::readFields(
            "\"a, b\" , bare  ,,\"\"\r\n\r\n  \"c\"junk,\"x\"\n\"last\",", f));
        QCOMPARE(f, (QStringList{"a, b", "bare", "", "", "c", "x", "last", ""}));
        QVERIFY(SequentialInput::readFields("", f));
        QVERIFY(f.isEmpty());
        // Old files are single-byte text.
        QVERIFY(SequentialInput::readFields("\"Caf\xe9\"", f));
        QCOMPARE(f, QStringList{QString::fromUtf8("Café")});
        QVERIFY(!SequentialInput::readFields("\"open,\"b\",\"c", f));
        QVERIFY(!SequentialInput::readFields(QByteArray("\"a\",\"b\0\"", 8), f));
    }

    void aLayoutFitsByTheCountOfFieldsAlone()
    {
        ImportRig r;
        QVector<QStringList> records;
        bool old = true;
        // Line ends are separators like commas: 3 + 3 fields make one record.
        QVERIFY(LinksTextFile::read(r.write("a.ini", "\"1\",\"2\",\"3\"\r\n\"4\",\"5\",\"6\""),
                                    records, old));
        QCOMPARE(records, (QVector<QStringList>{{"1", "2", "34", "5", "6"}}));
        QVERIFY(!old);
        QVERIFY(!LinksTextFile::read(r.write("b.ini", "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\""),
                                     records, old));
    }

    void theDialogAsksAgainUntilAUsableFileOrCancel()
    {
        ImportRig r;
        r.t.ctx.SaveSetting(Sect::Startup, Key::ImportPath, r.files);
        const QString copy = r.write("mylinks.ini", TwoNewLinks);
        const QString text = r.write("geolinks.txt", TwoNewLinks);
        const QString noDot = r.write("geolinks", TwoNewLinks);
        const QString bad = r.write("geojapan.ini", "\"1\",\"2\",\"3\",\"4\"");
        const QString wrongBase = r.write("links.mdb", "");
        r.run({copy, text, noDot, bad, wrongBase});
        QCOMPARE(r.fileDialogs(), 6);
        const auto& first = r.t.prompts.shown.first();
        QCOMPARE(first.title, QString("Select Saved Links file!"));
        QCOMPARE(first.start, r.files);
        QCOMPARE(first.filters, (QStringList{"All Files (*.*)", "Other types (*.ini)",
                                             "Access database files (*.mdb)"}));
        QCOMPARE(first.selectedFilter, 1);
        QCOMPARE(r.t.prompts.messages(),
                 (QStringList{"The old links files are geolinks.ini or geojapan.ini",
                              "The file type is not supported!",
                              "This links file is not the correct format!",
                              "Supported databases are geodata.mdb or geobckup.mdb"}));
        QVERIFY(r.rows(Tbl::UsaSaved).isEmpty() && r.rows(Tbl::JapanSaved).isEmpty());
        QVERIFY(r.host.calls.isEmpty());
    }

    void aTextFileIsAddedWithItsRepeatsSkipped()
    {
        ImportRig r;
        // Differs from the first record of the file only in its date.
        r.addSaved(Tbl::UsaSaved, {"SoHo", "Lofts", "1001", "Art, and more", "Saved on: old"});
        const QString path = r.write("GeoLinks.INI", TwoNewLinks);
        const LinkImport::Counts c = r.run({path});
        QCOMPARE(c.linksAdded, 1);
        QCOMPARE(c.linksSkipped, 1);
        QCOMPARE(r.t.prompts.messages(),
                 QStringList{"1 records successfully added \r1 repeating records skipped!\r"});
        QCOMPARE(r.rows(Tbl::UsaSaved).value(0).value(4), QString("Saved on: old"));
        QCOMPARE(r.rows(Tbl::UsaSaved).value(1),
                 (QStringList{"Area51", "", "9999", "Aliens", "Saved on: B"}));
        QCOMPARE(r.host.calls, QStringList{"refresh"});
        // The folder is kept, as given, without its separator.
        QCOMPARE(r.t.ctx.GetSetting(Sect::Startup, Key::ImportPath), r.files);

        // The second time everything is a repeat: only the second line.
        r.t.prompts.clear();
        r.host.calls.clear();
        r.run({path});
        QCOMPARE(r.t.prompts.messages(), QStringList{"2 repeating records skipped!\r"});
        QCOMPARE(r.rows(Tbl::UsaSaved).size(), 2);
        QVERIFY(r.host.calls.isEmpty());
    }

    void intoAnEmptyTableEveryRecordIsAdded()
    {
        ImportRig r;
        const QString path = r.write("geojapan.ini", TwoOldLinks + TwoOldLinks);
        QCOMPARE(r.run({path}).linksAdded, 4);
        QCOMPARE(r.rows(Tbl::JapanSaved).size(), 4);
        QCOMPARE(r.rows(Tbl::JapanSaved).value(0).value(4), QString(""));
        QVERIFY(r.rows(Tbl::UsaSaved).isEmpty());

        r.t.prompts.clear();
        r.run({r.write("geolinks.ini", "\r\n")});
        QCOMPARE(r.t.prompts.messages(), QStringList{""});
    }

    void aDatabaseOfThisProgramIsImportedByContent()
    {
        ImportRig r;
        r.addSaved(Tbl::UsaSaved, {"SoHo", "Lofts", "1001", "Art", "Saved on: A"});
        r.t.db.append("wbtBaseUrl", {"Url", "Counter"}, {{"http://a/", "5"}});

        TestContext source;
        source.createAndOpenDatabase();
        auto add = [&](const QString& table, const QStringList& fields,
                       const QVector<QStringList>& rows) { source.db.append(table, fields, rows); };
        const QStringList saved{"Neighborhood", "Suburb", "House", "Comment", "Date"};
        add("JapanSaved", saved,
            {{"Tokyo", "", "1234", "J", "d"}, {"Tokyo", "", "1234", "J", "e"}});
        add("UsaSaved", saved, {{"SoHo", "Lofts", "1001", "Art", "Saved on: B"}});
        add("wbtlinks", {"link", "comment"}, {{"http://x/", "x"}, {"http://x/", "y"}});
        add("wbtBaseUrl", {"Url", "Counter"}, {{"http://a/", "1"}, {"http://b/", "7"}});
        add("wbtBadTitles", {"BadTitle"}, {{"404"}, {"404"}});
        source.db.close();
        // A file of this program under the old program's name.
        const QString path = r.files + "/GEODATA.MDB";
        QVERIFY(QFile::copy(source.state.gstrGeoData, path));

        const LinkImport::Counts c = r.run({path});
        QCOMPARE(r.host.calls, (QStringList{"wait Importing...", "unload", "refresh"}));
        QCOMPARE(r.t.prompts.shown.last().title, QString("Results of Import!"));
        QCOMPARE(r.t.prompts.messages(),
                 QStringList{"2 WBOne saved links added!\r1 Existing saved links skipped!\r"
                             "2 WBTwo titles to skip added!\r1 WBTwo server base Urls added!\r"
                             "2 WBTwo saved links added!\r"});
        QCOMPARE(c.linksAdded, 2);
        QCOMPARE(r.rows(Tbl::JapanSaved).size(), 2);
        QCOMPARE(r.rows(Tbl::WbtBaseUrl),
                 (QVector<QStringList>{{"http://a/", "5"}, {"http://b/", ""}}));
    }

    void aDatabaseOfAnotherKindIsRefusedOnce()
    {
        ImportRig r;
        TextDatabase other(TextDatabase::uniqueConnectionName("other"));
        other.open(r.files + "/geobckup.db", true);
        other.createTable("UsaSaved", {"Neighborhood"});
        other.close();
        r.write("geodata.mdb", QByteArray(4096, 'x'));
        r.run({r.files + "/geobckup.db"});
        r.run({r.files + "/geodata.mdb"});
        QCOMPARE(r.fileDialogs(), 2);
        QCOMPARE(r.t.prompts.messages(),
                 (QStringList{"Not a Vorlan database file, or it is corrupt!",
                              "Not a Vorlan database file, or it is corrupt!"}));
        QVERIFY(r.host.calls.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestLinkImport)
#include "TestLinkImport.moc"
