// Access files of the old program, made by the test's own Jet writer and
// checked with mdbtools' commands, then imported through mdbtools' library.
#include "ImportRig.h"
#include "JetWriter.h"

#include <QProcess>
#include <QtTest>

namespace {

QString run(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

const QStringList Saved{"Neighborhood", "Suburb", "House", "Comment", "Date"};

// An old main database with links in both regions and Browser Two's lists.
JetWriter oldDatabase()
{
    JetWriter w = JetWriter::OldMainDatabase();
    w.table("JapanSaved")->rows = {{"Tokyo", QString(), "1234", "Japan", "Saved on: J"}};
    w.table("UsaSaved")->rows = {{"SoHo", "Lofts", "1001", "Art", "Saved on: new"},
                                 {"Area51", "", "9999", "Aliens", "Saved on: B"}};
    w.table("wbtlinks")->rows = {{"http://x/", "x"}};
    w.table("wbtBaseUrl")->rows = {{"http://a/", "3"}, {"http://b/", "4"}};
    w.table("wbtBadTitles")->rows = {{"Not Found"}, {"404"}};
    return w;
}

} // namespace

class TestAccessImport : public QObject
{
    Q_OBJECT

private slots:
    void theWriterMakesFilesThatMdbtoolsReads()
    {
        TestFolders folders;
        JetWriter w = JetWriter::OldMainDatabase();
        w.table("UsaSaved")->rows = {
            {"SoHo", "Lofts", "1001", QString::fromUtf8("Café, \"x\""), "d"},
            {"Area51", QString(), "9999", "Aliens", ""}};
        const QString path = folders.root() + "/geodata.mdb";
        QVERIFY(w.write(path));
        QCOMPARE(run("mdb-tables", {"-1", path}).split('\n', Qt::SkipEmptyParts),
                 (QStringList{"UsaNeighborhoods", "UsaSuburbs", "UsaSaved", "UsaMisc",
                              "JapanNeighborhoods", "JapanSuburbs", "JapanSaved", "JapanMisc",
                              "wbtlinks", "wbtBaseUrl", "wbtBadTitles"}));
        QCOMPARE(run("mdb-export", {path, "UsaSaved"}),
                 QString::fromUtf8("Neighborhood,Suburb,House,Comment,Date\n"
                                   "\"SoHo\",\"Lofts\",\"1001\",\"Café, \"\"x\"\"\",\"d\"\n"
                                   "\"Area51\",,\"9999\",\"Aliens\",\n"));
    }

    void anAccessFileOfTheOldProgramIsImported()
    {
        ImportRig r;
        r.addSaved(Tbl::UsaSaved, {"SoHo", "Lofts", "1001", "Art", "Saved on: old"});
        r.t.db.append("wbtBadTitles", {"BadTitle"}, {{"404"}});
        QVERIFY(oldDatabase().write(r.files + "/GeoBckUp.mdb"));
        const LinkImport::Counts c = r.run({r.files + "/GeoBckUp.mdb"});
        QCOMPARE(r.t.prompts.messages(),
                 QStringList{"2 WBOne saved links added!\r1 Existing saved links skipped!\r"
                             "1 WBTwo titles to skip added!\r2 WBTwo server base Urls added!\r"
                             "1 WBTwo saved links added!\r"});
        QCOMPARE(c.linksAdded, 2);
        // A NULL Suburb comes in as the empty text.
        QCOMPARE(r.rows(Tbl::JapanSaved),
                 (QVector<QStringList>{{"Tokyo", "", "1234", "Japan", "Saved on: J"}}));
        QCOMPARE(r.rows(Tbl::UsaSaved).size(), 2);
        QCOMPARE(r.rows(Tbl::WbtBaseUrl).value(1), (QStringList{"http://b/", ""}));
        QCOMPARE(r.host.calls, (QStringList{"wait Importing...", "unload", "refresh"}));
    }

    void anAccessFileWithoutEveryTableIsRefused()
    {
        ImportRig r;
        JetWriter w;
        JetWriter all = oldDatabase();
        const QStringList tenTables{"UsaNeighborhoods",   "UsaSuburbs",   "UsaSaved",   "UsaMisc",
                                    "JapanNeighborhoods", "JapanSuburbs", "JapanSaved", "JapanMisc",
                                    "wbtlinks",           "wbtBaseUrl"};
        for (const QString& name : tenTables)
            w.addTable(name, all.table(name)->fields, all.table(name)->rows);
        QVERIFY(w.write(r.files + "/geodata.mdb"));
        // An earlier version's file, with a field short of the others.
        JetWriter older = oldDatabase();
        older.table("UsaSaved")->fields = Saved.mid(0, 4);
        QVERIFY(older.write(r.files + "/geobckup.mdb"));
        r.run({r.files + "/geodata.mdb"});
        r.run({r.files + "/geobckup.mdb"});
        QCOMPARE(r.t.prompts.messages(),
                 (QStringList{"Not a Vorlan database file, or it is corrupt!",
                              "Not a Vorlan database file, or it is corrupt!"}));
        QVERIFY(r.rows(Tbl::UsaSaved).isEmpty() && r.rows(Tbl::JapanSaved).isEmpty());
        QVERIFY(r.host.calls.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestAccessImport)
#include "TestAccessImport.moc"
