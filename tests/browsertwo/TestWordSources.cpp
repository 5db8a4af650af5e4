#include "ChildRun.h"
#include "JetWriter.h"
#include "WordListRig.h"
#include "core/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QtTest>

namespace {

const QString Two = QString(Sect::WebBrwsrTwo);

} // namespace

// The word sources: a text file read by the sequential-input rule, a text
// field of an Access or SQLite file, and the memory of the last source.
class TestWordSources : public QObject
{
    Q_OBJECT

    static QString setting(WordListRig& r, const char* key)
    {
        return r.t.ctx.GetSetting(Two, key, "unset");
    }

    // A text source chosen in the file dialog and read.
    static bool readText(WordListRig& r, const QByteArray& bytes, const QString& name = "w.txt")
    {
        const QString path = r.t.folders.root() + "/src/" + name;
        putFile(path, bytes);
        r.t.prompts.answerPath(path);
        return r.lists->PickWordSource("");
    }

    // An Access file with one table of member names, checked with mdbtools'
    // own commands.
    static QString accessFile(WordListRig& r)
    {
        JetWriter w;
        w.addTable("Members", {"Handle", "Note"},
                   {{"  Padded ", "a"},
                    {"ab", "b"},
                    {"Twenty chars exactly", "c"},
                    {"twenty-one characters", "d"},
                    {QString(), "e"},
                    {"Two Words", "f"}});
        w.addTable("Other", {"Word"}, {{"elsewhere"}});
        const QString path = r.t.folders.root() + "/src/Members.mdb";
        QDir().mkpath(r.t.folders.root() + "/src");
        w.write(path);
        return path;
    }

    // Plays the database dialog: picks the table and the field, presses Ok.
    static void choose(MdbChooser& c, const QString& table, const QString& field)
    {
        c.cmbTables.userSelect(c.cmbTables.items().indexOf(table));
        c.cmbName.userSelect(c.cmbName.items().indexOf(field));
        c.cmdOk.click();
    }

private slots:
    void aTextFileGivesItsItemsByTheRuleOnWords()
    {
        WordListRig r;
        QVERIFY(readText(r, "Alpha,BETA\r\n\"Quoted, Word\",  spaced  \r\n"
                            "abcdefghijklmnopq,abcdefghijklmnop\r\nab,,caf\xe9\r\n"));
        QCOMPARE(r.sites(), QStringList({"alpha", "beta", "quoted, word", "spaced",
                                         "abcdefghijklmnop", "ab", QString("caf\u00e9")}));
        QCOMPARE(r.host.calls, QStringList({"GPysuedo 7", "name w.txt"}));
        QCOMPARE(setting(r, Key::WBT_InPutFile), r.t.folders.root() + "/src/w.txt");
        QCOMPARE(setting(r, Key::LastPath), r.t.folders.root() + "/src/");
        QCOMPARE(setting(r, Key::DBTable), QString(""));

        // On first use the dialog starts where the sample source lies.
        const ScriptedPrompts::Shown dialog = r.t.prompts.shown.first();
        QCOMPARE(dialog.title, QString("Sample file = wbtsampl.txt"));
        QCOMPARE(QDir(dialog.start), QDir(r.t.folders.appPath()));
        QFile sample(r.t.folders.appPath() + "wbtsampl.txt");
        QVERIFY(sample.open(QIODevice::ReadOnly));
        QVERIFY(sample.readAll().split('\n').size() > 300);
    }

    void piecesOfALongFileJoinAndTheCountStops()
    {
        // Over a megabyte of items too long to keep, then the words: an item
        // cut between two pieces of the file must not turn into a word.
        QByteArray bytes;
        while (bytes.size() < (3 << 20) / 2)
            bytes += "longlonglonglonglong,\"quoted,longlonglong\"\r\n";
        for (int i = 0; i < 10000; ++i)
            bytes += "w" + QByteArray::number(i) + ",";
        WordListRig r;
        QVERIFY(readText(r, bytes));
        QCOMPARE(r.t.state.gstrSites.size(), 9999);
        QCOMPARE(r.t.state.gstrSites.at(1), QString("w0"));
        QCOMPARE(r.t.state.gstrSites.last(), QString("w9997"));
        QCOMPARE(r.host.calls.first(), QString("GPysuedo 9999"));
    }

    void oddFilesEndCleanly()
    {
        WordListRig r;
        QVERIFY(readText(r, ""));
        QCOMPARE(r.t.state.gstrSites, QVector<QString>({""}));
        QCOMPARE(r.host.calls.first(), QString("GPysuedo 0"));

        // A quote never closed takes the rest of the file.
        WordListRig q;
        QVERIFY(readText(q, "one,\"two,three\r\nfour"));
        QCOMPARE(q.sites(), QStringList({"one", "two,three\r\nfour"}));
        QVERIFY(readText(q, "one,\"two,three"));
        QCOMPARE(q.sites(), QStringList({"one", "two,three"}));
        // One that stays open for megabytes ends the reading there.
        QVERIFY(readText(q, "a,\"" + QByteArray(6 << 20, 'x') + "\",b"));
        QCOMPARE(q.sites(), QStringList({"a"}));

        WordListRig b;
        QVERIFY(!readText(b, QByteArray("word,\0\1\2,more", 14)));
        QCOMPARE(b.t.prompts.shown.last().title, QString("Exiting function!"));
        QVERIFY(
            b.t.prompts.messages().last().startsWith("An error has occured!\r\n\r\nDescription:"));
        QVERIFY(b.host.calls.isEmpty());
    }

    void theLastSourceIsOfferedAgainWhileItExists()
    {
        WordListRig r;
        QVERIFY(readText(r, "first", "list.csv"));
        r.t.ctx.SaveSetting(Two, Key::PromptForNewFile, "1");
        r.t.prompts.clear();

        r.t.prompts.answer(PromptService::Yes);
        QVERIFY(r.lists->PickWordSource(""));
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].text, QString("Use previous input source?"));
        QCOMPARE(r.t.prompts.shown[0].title, QString("Use Previous?"));
        QCOMPARE(r.t.prompts.shown[0].style, int(PromptService::YesNo));
        QCOMPARE(r.sites(), QStringList({"first"}));

        // No: the dialog starts in the folder of the last source.
        r.t.prompts.clear();
        QVERIFY(readText(r, "second", "other.txt"));
        QCOMPARE(r.t.prompts.shown[1].kind, QString("openFile"));
        QCOMPARE(QDir(r.t.prompts.shown[1].start), QDir(r.t.folders.root() + "/src"));
        QCOMPARE(r.sites(), QStringList({"second"}));

        // A source moved away is asked for without the question; a cancel
        // reads nothing and forgets nothing.
        QVERIFY(
            QFile::rename(r.t.folders.root() + "/src/other.txt", r.t.folders.root() + "/o.txt"));
        r.t.prompts.clear();
        QVERIFY(!r.lists->PickWordSource(""));
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].kind, QString("openFile"));
        QCOMPARE(r.t.state.gstrSites, QVector<QString>({""}));
        QCOMPARE(setting(r, Key::WBT_InPutFile), r.t.folders.root() + "/src/other.txt");

        QVERIFY(r.lists->PickWordSource("ABORTED"));
        QCOMPARE(r.t.state.gstrMdbResult, QString("aborted"));
    }

    void anAccessFieldIsReadAfterTheDialogThenSilently()
    {
        WordListRig r;
        const QString file = accessFile(r);
        QVERIFY(ChildRun::of("mdb-tables", {"-1", file}).out.split('\n').contains("Members"));
        QVERIFY(ChildRun::of("mdb-export", {file, "Members"})
                    .out.contains("\"Twenty chars exactly\",\"c\""));

        r.dialogs.playMdb = [](MdbChooser& c) {
            QCOMPARE(c.cmbTables.items(), QStringList({"Members", "Other"}));
            choose(c, "Members", "Handle");
            QVERIFY(c.isUnloaded());
        };
        r.t.prompts.answerPath(file);
        QVERIFY(r.lists->PickWordSource(""));
        QCOMPARE(r.sites(), QStringList({"  padded ", "twenty chars exactly", "two words"}));
        QCOMPARE(r.host.calls, QStringList({"clearTopmost", "name Members.mdb", "GPysuedo 3"}));
        QCOMPARE(setting(r, Key::DBTable), QString("Members"));
        QCOMPARE(setting(r, Key::DBField), QString("Handle"));

        // Remembered: no dialog.
        r.t.ctx.SaveSetting(Two, Key::PromptForNewFile, "1");
        r.t.prompts.answer(PromptService::Yes);
        QVERIFY(r.lists->PickWordSource(""));
        QCOMPARE(r.dialogs.mdbCount, 1);
        QCOMPARE(r.sites().size(), 3);

        // The file chosen again: table and field are asked afresh; Cancel
        // leaves no source.
        r.dialogs.playMdb = [](MdbChooser& c) { c.cmdCancel.click(); };
        r.t.prompts.answer(PromptService::No);
        r.t.prompts.answerPath(file);
        QVERIFY(!r.lists->PickWordSource(""));
        QCOMPARE(r.dialogs.mdbCount, 2);
        QCOMPARE(r.t.state.gstrMdbResult, QString("aborted"));
        QCOMPARE(setting(r, Key::DBField), QString(""));
    }

    void theDialogRefusesWhatItCannotRead()
    {
        WordListRig r;
        const QString file = r.t.folders.root() + "/src/mixed.MDB";
        {
            TextDatabase db(TextDatabase::uniqueConnectionName("fixture"));
            QDir().mkpath(r.t.folders.root() + "/src");
            db.open(file, true);
            QSqlQuery q(db.handle());
            QVERIFY(q.exec("CREATE TABLE nums (n INTEGER, w TEXT)"));
            QVERIFY(q.exec("INSERT INTO nums VALUES (1, 'Word')"));
            QVERIFY(q.exec("CREATE TABLE empty (w TEXT)"));
        }
        r.dialogs.playMdb = [&r](MdbChooser& c) {
            c.cmdOk.click();
            QCOMPARE(r.t.prompts.messages().last(), QString("Must select a table and a field!"));
            c.cmdSDShelp.click();
            QCOMPARE(r.t.prompts.shown.last().title, QString("Help."));
            QVERIFY(
                r.t.prompts.messages().last().endsWith("If you do not know the field cancel!\r"));

            c.cmbTables.userSelect(c.cmbTables.items().indexOf("nums"));
            QCOMPARE(c.cmbName.items(), QStringList({"n", "w"}));
            c.cmbName.userSelect(0);
            c.cmdOk.click();
            QCOMPARE(r.t.prompts.messages().last(), QString("n Is not a text data field!"));
            QCOMPARE(c.cmbName.items(), QStringList({"w"}));
            QVERIFY(!c.isUnloaded() && c.cmdOk.isEnabled());
            QCOMPARE(c.form.text(), QString("Select Data Source"));

            // The fields of a second table are added to those of the first.
            c.cmbTables.userSelect(c.cmbTables.items().indexOf("empty"));
            QCOMPARE(c.cmbName.items(), QStringList({"w", "w"}));
            c.cmbName.userSelect(1);
            c.cmdOk.click();
            QVERIFY(r.t.prompts.messages().last().endsWith("Description:No current record."));
            QCOMPARE(r.t.ctx.GetSetting(Two, Key::DBTable, "x"), QString(""));
            QVERIFY(!c.isUnloaded());
            choose(c, "nums", "w");
        };
        r.t.prompts.answerPath(file);
        QVERIFY(r.lists->PickWordSource(""));
        QCOMPARE(r.sites(), QStringList({"word"}));

        // Not a database, or an Access file cut short.
        WordListRig n;
        QVERIFY(!readText(n, "just text", "junk.mdb"));
        QCOMPARE(n.t.prompts.messages().last(),
                 QString("junk.mdb is not a Microsoft access database file!"));
        QCOMPARE(n.t.ctx.GetSetting(Two, Key::WBT_InPutFile, "x"), QString(""));
        QVERIFY(
            !readText(n, fileBytes(accessFile(n)).left(3 * JetWriter::PageSize + 100), "cut.mdb"));
        QCOMPARE(n.t.prompts.messages().last(),
                 QString("cut.mdb is not a Microsoft access database file!"));
        QCOMPARE(n.dialogs.mdbCount, 0);

        MdbChooser gone(n.t.ctx, n.host, [](MdbChooser&) {});
        gone.StartTheFuckingThing(n.t.folders.root() + "/gone.mdb");
        QCOMPARE(n.t.prompts.messages().last(),
                 "gone.mdb Not Found in " + n.t.folders.root() + "/");
        QVERIFY(gone.isUnloaded());
    }
};

QTEST_MAIN(TestWordSources)
#include "TestWordSources.moc"
