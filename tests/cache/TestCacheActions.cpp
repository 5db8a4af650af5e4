#include "CacheActionRig.h"

#include <QDir>
#include <QtTest>

using Files = QVector<QPair<QString, QByteArray>>;
using Outputs = QMap<QString, QByteArray>;

namespace {
QByteArray numberedLines(int count)
{
    QByteArray lines;
    for (int i = 1; i <= count; ++i)
        lines += "line" + QByteArray::number(i) + "\r\n";
    return lines;
}
} // namespace

class TestCacheActions : public QObject
{
    Q_OBJECT

private slots:
    // Whole runs over small files the test writes: every output byte for
    // byte, the output folder holding nothing else, the listed files as
    // they were. "$L" stands for the listed folder.
    void outputs_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<Files>("files");
        QTest::addColumn<Files>("present"); // in the output folder before
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<Outputs>("expected");
        QTest::addColumn<QString>("notice");
        const QStringList yes{"Yes"};
        const Files none;

        QTest::newRow("LF 2 CRLF")
            << 9 << Files{{"a.txt", "a\nb\r\nc"}, {"b", {"\0\xff\n", 3}}} << none << yes
            << Outputs{{"a.txt", "a\r\nb\r\r\nc\r\n"}, {"b", {"\0\xff\r\n\r\n", 6}}} << "";
        // Only CR ends a line; a lone LF stays in it, and only blanks trim.
        QTest::newRow("No blanks") << 10 << Files{{"n.txt", "  a  \r\n\r\n   \r\nb\tc \n d\r"}}
                                   << none << yes << Outputs{{"n.txt", "a\r\nb\tc \n d\r\n"}} << "";
        QTest::newRow("Text 2 lcase") << 13 << Files{{"l", "AbC \xc9\x8a"}} << none << yes
                                      << Outputs{{"l", "abc \xe9\x9a\r\n"}} << "";
        QTest::newRow("Text 2 ucase") << 14 << Files{{"u", "abc \xe9\x9a\xff"}} << none << yes
                                      << Outputs{{"u", "ABC \xc9\x8a\x9f\r\n"}} << "";
        // After a direct join the search goes on past the right part's first
        // character, so a CR standing there stays.
        QTest::newRow("Remove CrLf")
            << 16
            << Files{{"r", "one\r\ntwo \r\nthree\r\n\r\nfour"}, {"q", "x \r\rz"}, {"s", "a\r b"}}
            << none << yes
            << Outputs{{"r", "one two three  four\r\n"}, {"q", "x \rz\r\n"}, {"s", "a b\r\n"}}
            << "";
        QTest::newRow("Html 2 code")
            << 6 << Files{{"page.htm", "<p class=\"x\">\r\n  Hi  \n\n\rEnd"}, {"p.html", "x"}}
            << none << yes
            << Outputs{{"page.txt", "Print #9, \"<p class=\" + Chr$(34) + \"x\" + Chr$(34) + "
                                    "\">\"\r\nPrint #9, \"Hi\"\r\nPrint #9, \"End\"\r\n"},
                       {"p.html", "Print #9, \"x\"\r\n"}}
            << "";
        QTest::newRow("Html 2 code, No, limit")
            << 6 << Files{{"big.htm", QByteArray(65000, 'a')}, {"s.htm", "<b>s</b>"}} << none
            << QStringList{"No"} << Outputs{{"big.txt", ""}, {"s.txt", ".Write \"<b>s</b>\"\r\n"}}
            << "";
        // The in-tag flag carries over into the next file.
        QTest::newRow("Html 2 text")
            << 7
            << Files{{"a.htm", "<b>Bold</b>&nbsp;x\n<i\n>y</i>\n\n  z  <a "}, {"b.html", "x>w"}}
            << none << yes << Outputs{{"a.txt", "Bold x\r\ny\r\nz\r\n"}, {"b.htxt", "w\r\n"}} << "";
        // One LF short of the limit, over it once the LFs are doubled.
        QTest::newRow("Html 2 text limit") << 7 << Files{{"big.htm", QByteArray(64998, 'b') + "\n"}}
                                           << none << yes << Outputs{{"big.txt", ""}} << "";
        // A line written once is left out of every later file of the run.
        QTest::newRow("No Repeats")
            << 8 << Files{{"a", "x\r\n y \r\nx\r\n\r\n"}, {"b", "y\r\nz\r\n\r\nx"}} << none << yes
            << Outputs{{"a", "x\r\ny\r\n\r\n"}, {"b", "z\r\n"}} << "";
        // 150 lines give the factor 2: lines 51 and 52 overflow the progress
        // window and count, and line 53's third failure ends the run.
        QTest::newRow("No Repeats past 100 percent")
            << 8 << Files{{"a", numberedLines(150)}, {"b", "never"}} << none << yes
            << Outputs{{"a", numberedLines(52)}} << "";
        QTest::newRow("Search") << 11
                                << Files{{"a", "a Cat"}, {"b", "a cat"}, {"c", "Cat"}, {"e", ""}}
                                << none << QStringList{"Cat"}
                                << Outputs{{"a", "a Cat\r\n"}, {"c", "Cat\r\n"}}
                                << "2 files containing Cat !";
        // Cancelling gives the empty text, which every file but an empty one
        // holds; with no match the count shows as nothing.
        QTest::newRow("Search cancelled")
            << 11 << Files{{"a", "a"}, {"e", ""}} << none << QStringList{}
            << Outputs{{"a", "a\r\n"}} << "1 files containing  !";
        QTest::newRow("Search none") << 11 << Files{{"a", "a"}} << none << QStringList{"dog"}
                                     << Outputs{} << " files containing dog !";
        QTest::newRow("Replace") << 12 << Files{{"a", "a Cat"}, {"b", "cat"}, {"c", "CatCat"}}
                                 << none << QStringList{"Cat", "Dog"}
                                 << Outputs{{"a", "a Dog\r\n"}, {"c", "DogDog\r\n"}}
                                 << "2 files containing Cat !";
        QTest::newRow("Copy") << 0 << Files{{"one.gif", {"\0G", 2}}, {"two words", "t"}}
                              << Files{{"one.gif", "old"}} << yes
                              << Outputs{{"one.gif", "old"},
                                         {"one1.gif", {"\0G", 2}},
                                         {"two words", "t"}}
                              << "";
        QTest::newRow("Write list")
            << 4 << Files{{"a b", ""}, {"c", ""}} << Files{{"CList.txt", ""}} << yes
            << Outputs{{"CList.txt", ""}, {"CList1.txt", "$La b\r\n$Lc\r\n"}} << "";
        // Named after the first file, with a number when that name is taken.
        QTest::newRow("Put into 1 file")
            << 17 << Files{{"one.htm", {"\0G", 2}}, {"x", ""}, {"t", "t"}}
            << Files{{"one.htm", "old"}} << yes
            << Outputs{{"one.htm", "old"}, {"one1.htm", {"\0G\r\n\r\nt\r\n", 9}}} << "";
    }
    void outputs()
    {
        QFETCH(int, action);
        QFETCH(Files, files);
        QFETCH(Files, present);
        QFETCH(QStringList, answers);
        QFETCH(Outputs, expected);
        QFETCH(QString, notice);
        CacheActionRig r;
        r.list(files);
        for (const auto& file : present)
            putFile(r.out() + file.first, file.second);
        for (const QString& answer : answers)
            answer == "Yes"  ? r.t.prompts.answer(PromptService::Yes)
            : answer == "No" ? r.t.prompts.answer(PromptService::No)
                             : r.t.prompts.answerText(answer);
        r.run(action);
        QCOMPARE(r.outputs(), QStringList(expected.keys()));
        for (auto it = expected.begin(); it != expected.end(); ++it)
            QCOMPARE(r.output(it.key()), QByteArray(it.value()).replace("$L", r.listed.toUtf8()));
        for (const auto& file : files)
            QCOMPARE(fileBytes(r.listed + file.first), file.second);
        QCOMPARE(r.t.prompts.messages().filter(" files containing "),
                 notice.isEmpty() ? QStringList() : QStringList{notice});
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
    }

    // The three renames in place. A change of case reaches the whole path:
    // the file moves only where the folders exist in that case, and never
    // over a file standing there.
    void renames_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("folderThere");
        QTest::addColumn<QString>("renamed");
        QTest::newRow("LCase") << 1 << "MiXed.GIF" << true << "mixed.gif";
        QTest::newRow("UCase") << 2 << "MiXed.gif" << true << "MIXED.GIF";
        QTest::newRow("UCase, no such folder") << 2 << "MiXed.gif" << false << "MIXED.GIF";
        QTest::newRow("Remove [x]") << 3 << "pic[1].tar.gz" << true << "pic.tar.gz";
        QTest::newRow("Remove [x] without one") << 3 << "pic.jpg" << true << "pic1.jpg";
    }
    void renames()
    {
        QFETCH(int, action);
        QFETCH(QString, name);
        QFETCH(bool, folderThere);
        QFETCH(QString, renamed);
        CacheActionRig r;
        r.list({{name, "data"}, {"Zz", "mine"}});
        const QString before = r.state.FoundFiles[0];
        QString target = r.listed + renamed;
        const QString taken =
            action == 1 ? (r.listed + "Zz").toLower() : (r.listed + "Zz").toUpper();
        if (action == 1 || action == 2) {
            target = action == 1 ? before.toLower() : before.toUpper();
            if (folderThere)
                QVERIFY(QDir().mkpath(QFileInfo(target).path()) && putFile(taken, "taken"));
        }
        r.run(action);
        QCOMPARE(fileBytes(target), folderThere ? QByteArray("data") : QByteArray());
        QCOMPARE(QFileInfo::exists(before), !folderThere);
        if ((action == 1 || action == 2) && folderThere)
            QVERIFY(fileBytes(r.listed + "Zz") == "mine" && fileBytes(taken) == "taken");
        QVERIFY(r.outputs().isEmpty());
    }

    // What a run asks of the window from its start to its finish.
    void startAndFinish()
    {
        CacheActionRig r;
        r.runner.RunCacheAction();
        QCOMPARE(r.t.prompts.messages(), QStringList{"No files selected!"});
        r.list({{"a.txt", "a"}, {"b.txt", "b"}, {"c.txt", "c"}});
        r.run(-1);
        r.run(18);
        QCOMPARE(r.t.prompts.messages().last(), QString("You must first select an Action!"));
        QCOMPARE(r.host.calls, QStringList({"clearActionOptions", "clearActionOptions"}));
        r.run(9);
        QCOMPARE(r.host.calls.mid(2, 3), QStringList({"SaveCacheSettings", "controls off",
                                                      "title I'm Busy, don't disturb me!"}));
        QCOMPARE(r.host.calls.mid(r.host.calls.size() - 6),
                 QStringList({"controls on", "title I'm Finished!", "ResetCount", "unloadProgress",
                              "unloadWait", "ListCacheFiles"}));
        QCOMPARE(r.host.percents, QVector<int>({0, 50, 100}));

        // One listed file, no selection: the step is a division by zero.
        CacheActionRig one;
        one.list({{"a.txt", "x"}});
        one.run(9);
        QCOMPARE(one.host.percents, QVector<int>{0});
        QCOMPARE(one.outputs(), QStringList{"a.txt"});
    }

    // A selection narrows the work list; its extra round past the end fails
    // once and the run finishes as usual, notice included.
    void selectionRunsExtraRound()
    {
        CacheActionRig r;
        r.list({{"a.htm", "key"}, {"b.htm", "key"}, {"c.htm", "key"}});
        r.host.selection = {0, 2};
        r.t.prompts.answerText("key");
        r.run(11);
        QCOMPARE(r.state.FoundFiles, QStringList({r.listed + "a.htm", r.listed + "c.htm"}));
        QCOMPARE(r.outputs(), QStringList({"a.htm", "c.htm"}));
        QCOMPARE(r.t.prompts.messages().last(), QString("2 files containing key !"));
        QCOMPARE(r.host.percents, QVector<int>({0, 50}));
        QVERIFY(r.finished());
    }

    // Close during a run takes effect at the next round.
    void stopBetweenFiles()
    {
        CacheActionRig r;
        r.list({{"a.txt", "a"}, {"b.txt", "b"}, {"c.txt", "c"}});
        r.host.onPump = [&] { r.state.StopRequested = r.host.percents.size() == 2; };
        r.run(13);
        QCOMPARE(r.outputs(), QStringList({"a.txt", "b.txt"}));
        QVERIFY(!r.state.StopRequested);
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
    }

    // More than 20 files ask first, and No writes nothing. The harvest takes
    // link targets and plain addresses, lower-cased, every occurrence, in
    // list order, into a new file.
    void findEmail()
    {
        CacheActionRig r;
        Files files{{"a.htm", "<A HREF=\"MAILTO:Bob@X.com?subject=hi\">Bob</A>"},
                    {"b.txt", "write to Ann@Example.COM or not"}};
        for (int i = 0; i < 20; ++i)
            files.append({QString("f%1.htm").arg(i), "<a href=mailto:bob@x.com>again</a>"});
        r.list(files);
        putFile(r.out() + "CacheEmail.Txt", "old");
        r.run(15);
        QCOMPARE(r.t.prompts.shown.last().title, QString("Warning!"));
        QCOMPARE(r.t.prompts.messages().last(),
                 QString("Searching for email addresses can\rtake a VERY long time! If you "
                         "don't\rmind waiting 30 or more minutes.\r\rShould I Proceed? \r\r"));
        QVERIFY(r.finished());
        QCOMPARE(r.outputs(), QStringList{"CacheEmail.Txt"});

        r.t.prompts.answer(PromptService::Yes);
        r.run(15);
        QCOMPARE(r.output("CacheEmail1.Txt"),
                 "bob@x.com\r\nann@example.com\r\n" + QByteArray("bob@x.com\r\n").repeated(20));
        QCOMPARE(r.output("CacheEmail.Txt"), QByteArray("old"));
    }
};

QTEST_GUILESS_MAIN(TestCacheActions)
#include "TestCacheActions.moc"
