#include "CacheActionRig.h"

#include <QDir>
#include <QtTest>

using Files = QVector<QPair<QString, QByteArray>>;

class TestCacheActions : public QObject
{
    Q_OBJECT

private slots:
    // The actions that turn each file into one converted copy of the same
    // or a derived name, byte for byte.
    void conversions_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QString>("outName");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("LF 2 CRLF") << 9 << "a.txt" << QByteArray("a\nb\r\nc") << "a.txt"
                                   << QByteArray("a\r\nb\r\r\nc\r\n");
        QTest::newRow("LF 2 CRLF on binary bytes")
            << 9 << "b.txt" << QByteArray("\x00\xff\n\x1a", 4) << "b.txt"
            << QByteArray("\x00\xff\r\n\x1a\r\n", 7);
        // Only CR ends a line; a lone LF stays inside it, and only blanks
        // are trimmed.
        QTest::newRow("No blanks") << 10 << "n.txt" << QByteArray("  a  \r\n\r\n   \r\nb\tc \n d\r")
                                   << "n.txt" << QByteArray("a\r\nb\tc \n d\r\n");
        QTest::newRow("Text 2 lcase") << 13 << "l.txt" << QByteArray("AbC \xc9\x8a") << "l.txt"
                                      << QByteArray("abc \xe9\x9a\r\n");
        QTest::newRow("Text 2 ucase") << 14 << "u.txt" << QByteArray("abc \xe9\x9a\xff") << "u.txt"
                                      << QByteArray("ABC \xc9\x8a\x9f\r\n");
        QTest::newRow("Remove CrLf")
            << 16 << "r.txt" << QByteArray("one\r\ntwo \r\nthree\r\n\r\nfour") << "r.txt"
            << QByteArray("one two three  four\r\n");
        // After a direct join the search goes on past the right part's
        // first character, so a second CR there stays.
        QTest::newRow("Remove CrLf passes over")
            << 16 << "q.txt" << QByteArray("x \r\rz") << "q.txt" << QByteArray("x \rz\r\n");
        QTest::newRow("Html 2 code")
            << 6 << "page.htm" << QByteArray("<p class=\"x\">\r\n  Hi  \n\n\rEnd") << "page.txt"
            << QByteArray("Print #9, \"<p class=\" + Chr$(34) + \"x\" + Chr$(34) + \">\"\r\n"
                          "Print #9, \"Hi\"\r\nPrint #9, \"End\"\r\n");
        QTest::newRow("Html 2 code keeps other names")
            << 6 << "page.html" << QByteArray("x") << "page.html"
            << QByteArray("Print #9, \"x\"\r\n");
        QTest::newRow("Html 2 text")
            << 7 << "a.htm" << QByteArray("<b>Bold</b>&nbsp;x\n<i\n>y</i>\n\n  z  ") << "a.txt"
            << QByteArray("Bold x\r\ny\r\nz\r\n");
        QTest::newRow("Html 2 text cuts three characters")
            << 7 << "a.html" << QByteArray("w") << "a.htxt" << QByteArray("w\r\n");
    }
    void conversions()
    {
        QFETCH(int, action);
        QFETCH(QString, name);
        QFETCH(QByteArray, input);
        QFETCH(QString, outName);
        QFETCH(QByteArray, expected);
        CacheActionRig r;
        r.list({{name, input}});
        r.t.prompts.answer(PromptService::Yes);
        r.run(action);
        QCOMPARE(r.outputs(), QStringList{outName});
        QCOMPARE(r.output(outName), expected);
        QCOMPARE(fileBytes(r.listed + name), input);
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
    }

    // The answer No gives the other prefix; the limit of 65,000 bytes leaves
    // an empty copy, and both conversions carry on with the next file.
    void conversionLimits()
    {
        CacheActionRig r;
        const QByteArray big = QByteArray(64999, 'a') + "\n";
        r.list({{"big.htm", big}, {"small.htm", "<b>s</b>"}});
        r.t.prompts.answer(PromptService::No);
        r.run(6);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Write or Print?"));
        QCOMPARE(r.outputs(), QStringList({"big.txt", "small.txt"}));
        QCOMPARE(r.output("big.txt"), QByteArray());
        QCOMPARE(r.output("small.txt"), QByteArray(".Write \"<b>s</b>\"\r\n"));

        CacheActionRig text;
        // One LF short of the limit before the LFs are doubled, over it after.
        text.list({{"big.htm", QByteArray(64998, 'b') + "\n"}, {"z.htm", "<i>z</i>"}});
        text.run(7);
        QCOMPARE(text.output("big.txt"), QByteArray());
        QCOMPARE(text.output("z.txt"), QByteArray("z\r\n"));
    }

    // A file that ends inside a tag starts the next one inside it.
    void tagCarriedToNextFile()
    {
        CacheActionRig r;
        r.list({{"a.htm", "one<a href="}, {"b.htm", "x>two"}});
        r.run(7);
        QCOMPARE(r.output("a.txt"), QByteArray("one\r\n"));
        QCOMPARE(r.output("b.txt"), QByteArray("two\r\n"));
    }

    // Lines written in one file are left out of every later file of the run,
    // but a new run starts afresh.
    void noRepeatsAcrossFiles()
    {
        CacheActionRig r;
        r.list({{"a.txt", "x\r\n y \r\nx\r\n\r\n"}, {"b.txt", "y\r\nz\r\n\r\nx"}});
        r.run(8);
        QCOMPARE(r.output("a.txt"), QByteArray("x\r\ny\r\n\r\n"));
        QCOMPARE(r.output("b.txt"), QByteArray("z\r\n"));
        r.run(8);
        QCOMPARE(r.output("a1.txt"), QByteArray("x\r\ny\r\n\r\n"));
        QCOMPARE(r.output("b1.txt"), QByteArray("z\r\n"));
        // Under 50 lines the factor rounds to 0: no progress beyond the rounds'.
        QVERIFY(!r.host.percents.contains(1));
    }

    // With 150 lines the factor is 2: lines 51 and 52 overflow the progress
    // window and count, and line 53's third failure ends the run there.
    void noRepeatsProgressEndsRun()
    {
        CacheActionRig r;
        QByteArray lines;
        for (int i = 1; i <= 150; ++i)
            lines += "line" + QByteArray::number(i) + "\r\n";
        r.list({{"a.txt", lines}, {"b.txt", "never\r\n"}});
        r.run(8);
        QByteArray expected;
        for (int i = 1; i <= 52; ++i)
            expected += "line" + QByteArray::number(i) + "\r\n";
        QCOMPARE(r.output("a.txt"), expected);
        QCOMPARE(r.outputs(), QStringList{"a.txt"});
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
    }

    void searchAndReplace_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QStringList>("outputs");
        QTest::addColumn<QByteArray>("firstOutput");
        QTest::addColumn<QString>("notice");

        QTest::newRow("Search") << 11 << QStringList{"Cat"} << QStringList{"a.htm", "c.htm"}
                                << QByteArray("a Cat\r\n") << "2 files containing Cat !";
        QTest::newRow("Search none") << 11 << QStringList{"dog"} << QStringList{} << QByteArray()
                                     << " files containing dog !";
        // Cancelling gives the empty text, which every non-empty file holds.
        QTest::newRow("Search cancelled")
            << 11 << QStringList{} << QStringList{"a.htm", "b.htm", "c.htm"}
            << QByteArray("a Cat\r\n") << "3 files containing  !";
        QTest::newRow("Replace") << 12 << QStringList{"Cat", "Dog"} << QStringList{"a.htm", "c.htm"}
                                 << QByteArray("a Dog\r\n") << "2 files containing Cat !";
        QTest::newRow("Replace none") << 12 << QStringList{"x", "y"} << QStringList{}
                                      << QByteArray() << " files containing x !";
    }
    void searchAndReplace()
    {
        QFETCH(int, action);
        QFETCH(QStringList, answers);
        QFETCH(QStringList, outputs);
        QFETCH(QByteArray, firstOutput);
        QFETCH(QString, notice);
        CacheActionRig r;
        r.list({{"a.htm", "a Cat"}, {"b.htm", "a cat"}, {"c.htm", "CatCat"}, {"e.htm", ""}});
        for (const QString& answer : answers)
            r.t.prompts.answerText(answer);
        r.run(action);
        QCOMPARE(r.outputs(), outputs);
        if (!outputs.isEmpty())
            QCOMPARE(r.output(outputs[0]), firstOutput);
        QCOMPARE(r.t.prompts.messages().last(), notice);
        QCOMPARE(r.t.prompts.shown.last().title, QString("Copied to default output dir!"));
        QVERIFY(r.finished());
    }

    // Copies, lists and one joined file: each name made unique in the output
    // folder, nothing of the listed files changed.
    void copiesAndLists()
    {
        CacheActionRig r;
        r.list({{"one.gif", QByteArray("\x00GIF", 4)}, {"two words.txt", "t"}});
        putFile(r.out() + "one.gif", "old");
        r.run(0);
        QCOMPARE(r.outputs(), QStringList({"one.gif", "one1.gif", "two words.txt"}));
        QCOMPARE(r.output("one1.gif"), QByteArray("\x00GIF", 4));
        QCOMPARE(r.output("one.gif"), QByteArray("old"));

        r.run(4);
        QCOMPARE(r.output("CList.txt"),
                 (r.listed + "one.gif\r\n" + r.listed + "two words.txt\r\n").toUtf8());
        r.run(4);
        QVERIFY(r.outputs().contains("CList1.txt"));

        r.state.FilePattern = "txt";
        r.run(17);
        // Named after the first file, whose name was taken: with a number.
        QCOMPARE(r.output("one2.gif"), QByteArray("\x00GIF\r\nt\r\n", 9));
        QCOMPARE(fileBytes(r.listed + "one.gif"), QByteArray("\x00GIF", 4));
    }

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
    // The three renames in place. A change of case reaches the whole path:
    // the file moves only where the folders exist in that case too.
    void renames()
    {
        QFETCH(int, action);
        QFETCH(QString, name);
        QFETCH(bool, folderThere);
        QFETCH(QString, renamed);
        CacheActionRig r;
        r.list({{name, "data"}});
        const QString before = r.state.FoundFiles[0];
        QString target = r.listed + renamed;
        if (action == 1 || action == 2) {
            target = action == 1 ? before.toLower() : before.toUpper();
            if (folderThere)
                QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        }
        r.run(action);
        QCOMPARE(fileBytes(target), folderThere ? QByteArray("data") : QByteArray());
        QCOMPARE(QFileInfo::exists(before), !folderThere);
        QVERIFY(r.outputs().isEmpty());
        QVERIFY(r.finished());
    }

    // A rename never takes the place of a file that is there already.
    void renameKeepsExistingFile()
    {
        CacheActionRig r;
        r.list({{"A.txt", "upper"}, {"a.txt", "lower"}});
        r.run(1);
        QCOMPARE(fileBytes(r.listed + "a.txt"), QByteArray("lower"));
        QCOMPARE(fileBytes(r.listed + "A.txt"), QByteArray("upper"));
    }

    // The rules of starting and ending a run.
    void startAndFinish()
    {
        CacheActionRig r;
        r.runner.RunCacheAction();
        QCOMPARE(r.t.prompts.messages(), QStringList{"No files selected!"});
        r.list({{"a.txt", "a"}, {"b.txt", "b"}, {"c.txt", "c"}});
        r.run(-1);
        QCOMPARE(r.t.prompts.messages().last(), QString("You must first select an Action!"));
        QCOMPARE(r.host.calls, QStringList{"clearActionOptions"});
        r.run(18);
        QVERIFY(r.host.calls.count("clearActionOptions") == 2 && r.outputs().isEmpty());

        r.run(9);
        QCOMPARE(r.host.calls.mid(2, 3), QStringList({"SaveCacheSettings", "controls off",
                                                      "title I'm Busy, don't disturb me!"}));
        QCOMPARE(r.host.calls.mid(r.host.calls.size() - 6),
                 QStringList({"controls on", "title I'm Finished!", "ResetCount", "unloadProgress",
                              "unloadWait", "ListCacheFiles"}));
        QCOMPARE(r.host.percents, QVector<int>({0, 50, 100}));
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

        // One listed file, no selection: the step is a division by zero.
        CacheActionRig one;
        one.list({{"a.txt", "x"}});
        one.run(9);
        QCOMPARE(one.host.percents, QVector<int>{0});
        QCOMPARE(one.outputs(), QStringList{"a.txt"});
    }

    // Close during a run takes effect at the next round.
    void stopBetweenFiles()
    {
        CacheActionRig r;
        r.list({{"a.txt", "a"}, {"b.txt", "b"}, {"c.txt", "c"}});
        r.host.onPump = [&] {
            if (r.host.percents.size() == 2)
                r.state.StopRequested = true;
        };
        r.run(13);
        QCOMPARE(r.outputs(), QStringList({"a.txt", "b.txt"}));
        QVERIFY(!r.state.StopRequested);
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
    }

    // More than 20 files ask first; No ends the run with nothing written.
    void findEmailWarning()
    {
        CacheActionRig r;
        Files files;
        for (int i = 0; i < 22; ++i)
            files.append({QString("f%1.htm").arg(i), "<a href=\"mailto:x@y.com\">x</a>"});
        r.list(files);
        r.run(15);
        QCOMPARE(r.t.prompts.shown.last().title, QString("Warning!"));
        QCOMPARE(r.t.prompts.messages().last(),
                 QString("Searching for email addresses can\rtake a VERY long time! If you "
                         "don't\rmind waiting 30 or more minutes.\r\rShould I Proceed? \r\r"));
        QVERIFY(r.outputs().isEmpty());
        QVERIFY(r.finished());

        r.t.prompts.answer(PromptService::Yes);
        r.run(15);
        QByteArray expected;
        for (int i = 0; i < 22; ++i)
            expected += "x@y.com\r\n";
        QCOMPARE(r.output("CacheEmail.Txt"), expected);
    }

    // The harvest over the files: link targets and plain addresses, lower
    // case, every occurrence, in list order.
    void findEmailWritesEachAddress()
    {
        CacheActionRig r;
        r.list({{"a.htm", "<A HREF=\"MAILTO:Bob@X.com?subject=hi\">Bob</A> <a "
                          "href=mailto:bob@x.com>again</a>"},
                {"b.txt", "write to Ann@Example.COM or not"},
                {"c.txt", "nothing here"}});
        putFile(r.out() + "CacheEmail.Txt", "old");
        r.run(15);
        QCOMPARE(r.output("CacheEmail1.Txt"),
                 QByteArray("bob@x.com\r\nbob@x.com\r\nann@example.com\r\n"));
        QCOMPARE(r.output("CacheEmail.Txt"), QByteArray("old"));
    }
};

QTEST_GUILESS_MAIN(TestCacheActions)
#include "TestCacheActions.moc"
