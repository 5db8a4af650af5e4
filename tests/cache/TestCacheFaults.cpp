#include "CacheActionRig.h"
#include "FileFaults.h"

#include <QDir>
#include <QDirIterator>
#include <QThread>
#include <QtTest>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Every file under folder, by its path below it, with its bytes.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), fileBytes(path));
    }
    return files;
}

// A file named by raw bytes that are no UTF-8, listed under the name the
// platform gives it.
QString putRawName(const QString& folder, const QByteArray& name, const QByteArray& bytes)
{
    const QByteArray path = QFile::encodeName(folder) + name;
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd >= 0) {
        if (::write(fd, bytes.constData(), size_t(bytes.size())) != bytes.size())
            qWarning("short write");
        ::close(fd);
    }
    return QFile::decodeName(path);
}

} // namespace

class TestCacheFaults : public QObject
{
    Q_OBJECT

private slots:
    // Odd names, binary bytes, a folder and a vanished file in the list: the
    // readable files are treated, the others passed over without a word, and
    // no listed file changes.
    void oddNamesAndUnreadableEntries_data()
    {
        QTest::addColumn<int>("action");
        QTest::newRow("Copy") << 0;
        QTest::newRow("Text 2 ucase") << 14;
        QTest::newRow("No Repeats") << 8;
        QTest::newRow("Find Email") << 15;
    }
    void oddNamesAndUnreadableEntries()
    {
        QFETCH(int, action);
        QByteArray binary;
        for (int i = 0; i < 70000; ++i)
            binary += char((i * 7919) % 256);
        CacheActionRig r;
        r.list({{"with blank.txt", "a bob@x.com b\r\n"},
                {"br[1]acket.txt", "b\r\n"},
                {"quo\"te's.txt", "c\r\n"},
                {"gone.txt", "d\r\n"},
                {"bin.dat", binary}});
        QFile::remove(r.listed + "gone.txt");
        QDir().mkpath(r.listed + "folder.txt");
        r.state.FoundFiles << r.listed + "folder.txt"
                           << putRawName(r.listed, "raw\xff\xfe.txt", "e\r\n");
        const auto before = snapshot(r.listed);
        r.run(action);
        QVERIFY(r.finished());
        QVERIFY(r.t.prompts.messages().isEmpty());
        QCOMPARE(snapshot(r.listed), before);
        const QStringList made = r.outputs();
        if (action == 15) {
            QCOMPARE(r.output("CacheEmail.Txt"), QByteArray("bob@x.com\r\n"));
            return;
        }
        for (const char* name : {"with blank.txt", "br[1]acket.txt", "quo\"te's.txt", "bin.dat"})
            QVERIFY2(made.contains(name), name);
        if (action == 14)
            QCOMPARE(r.output("bin.dat").size(), binary.size() + 2);
        QVERIFY(!made.contains("gone.txt") && !made.contains("folder.txt"));
    }

    // A file that vanishes during the run is passed over; one that grows is
    // taken as it is when its round comes.
    void filesChangeDuringRun()
    {
        CacheActionRig r;
        r.list({{"a.txt", "a"}, {"b.txt", "b"}, {"c.txt", "c"}});
        r.host.onPump = [&] {
            if (r.host.percents.size() == 1) {
                QFile::remove(r.listed + "b.txt");
                QFile grow(r.listed + "c.txt");
                if (grow.open(QIODevice::Append))
                    grow.write(QByteArray(100000, 'g'));
            }
        };
        r.run(9);
        QCOMPARE(r.outputs(), QStringList({"a.txt", "c.txt"}));
        QCOMPARE(r.output("c.txt"), "c" + QByteArray(100000, 'g') + "\r\n");
        QVERIFY(r.finished());
    }

    // Find Email reads the next files ahead: one rewritten after that is
    // still harvested as it stands when its round comes.
    void harvestTakesAFileAsItsRoundFindsIt()
    {
        CacheActionRig r;
        r.list({{"a.htm", "<a href=mailto:a@x.com>a</a>"},
                {"b.htm", "<a href=mailto:b@x.com>b</a>"},
                {"c.htm", "<a href=mailto:c@x.com>c</a>"},
                {"d.htm", "<a href=mailto:d@x.com>d</a>"}});
        r.host.onPump = [&] {
            if (r.host.percents.size() != 2)
                return;
            // Time for the file to be read ahead before it changes.
            QThread::msleep(200);
            putFile(r.listed + "c.htm", "<a href=mailto:new@x.com>new</a>");
        };
        r.run(15);
        QCOMPARE(r.output("CacheEmail.Txt"),
                 QByteArray("a@x.com\r\nb@x.com\r\nnew@x.com\r\nd@x.com\r\n"));
        QVERIFY(r.finished());
    }

    // An output folder that takes no file: each write to the output that
    // never opened counts, and the third ends the run at the third file.
    void readOnlyOutputFolder_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<int>("rounds");
        QTest::newRow("LF 2 CRLF") << 9 << 3;
        // Its scratch file fails to be written and read back as well.
        QTest::newRow("Html 2 code") << 6 << 1;
        QTest::newRow("Write list") << 4 << 3;
        QTest::newRow("Put into 1 file") << 17 << 3;
    }
    void readOnlyOutputFolder()
    {
        QFETCH(int, action);
        QFETCH(int, rounds);
        CacheActionRig r;
        r.list({{"a.htm", "a"}, {"b.htm", "b"}, {"c.htm", "c"}, {"d.htm", "d"}, {"e.htm", "e"}});
        const auto before = snapshot(r.listed);
        ReadOnlyFolder locked(r.out());
        if (!locked.refusesFiles())
            QSKIP("this file system lets every folder take files");
        r.run(action);
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);
        QVERIFY(r.outputs().isEmpty());
        QCOMPARE(r.host.percents.size(), rounds);
        QCOMPARE(snapshot(r.listed), before);
    }

    // A disk that fills: copies that cannot be completed are removed, each
    // counts, and the third ends the run before the small file after them.
    void fullDisk()
    {
        CacheActionRig r;
        const QByteArray big(20000, 'b');
        r.list({{"a.txt", big}, {"b.txt", big}, {"c.txt", big}, {"small.txt", "s"}});
        {
            FileSizeLimit limit(10000);
            r.run(0);
        }
        QVERIFY(r.finished());
        QVERIFY(r.outputs().isEmpty());
        r.run(0);
        QCOMPARE(r.outputs().size(), 4);
    }

    // Files of several megabytes are worked on beside the window's thread:
    // the same copies and addresses come out, and a stop asked for meanwhile
    // ends the run at the next round.
    void largeFiles()
    {
        QByteArray big;
        while (big.size() < (6 << 20))
            big += "<p>Some Text <a href=\"mailto:Big@X.com\">x</a></p>\n";
        CacheActionRig r;
        r.list({{"big.htm", big}, {"small.htm", "Text"}});
        r.t.prompts.answerText("Text");
        r.t.prompts.answerText("Words");
        r.run(12);
        QCOMPARE(r.output("big.htm"), QByteArray(big).replace("Text", "Words") + "\r\n");
        QCOMPARE(r.output("small.htm"), QByteArray("Words\r\n"));
        r.run(15);
        QCOMPARE(r.output("CacheEmail.Txt").size(), big.count("mailto:") * 11);

        r.host.onPump = [&] { r.state.StopRequested = true; };
        r.run(13);
        QCOMPARE(r.output("big1.htm").size(), big.size() + 2);
        QVERIFY(!r.outputs().contains("small1.htm"));
        QVERIFY(r.finished());
    }

    // Links in the output folder that lead elsewhere are never written
    // through: a taken name gets a number, and a page name that is a link
    // is not opened.
    void linksInOutputFolder()
    {
        CacheActionRig r;
        const QString outside = r.t.folders.root() + "/outside/";
        QDir().mkpath(outside);
        r.list({{"a.txt", "a"}, {"b.gif", "1"}, {"c.gif", "2"}, {"d.gif", "3"}, {"e.gif", "4"}});
        QVERIFY(QFile::link(outside + "a.txt", r.out() + "a.txt"));
        QVERIFY(QFile::link(outside + "page.htm", r.out() + "CacheGraphics.htm"));
        r.run(9);
        QCOMPARE(r.output("a1.txt"), QByteArray("a\r\n"));
        r.run(5);
        QCOMPARE(r.host.pages.size(), 1);
        QVERIFY(QDir(outside).isEmpty());
    }

    // An output folder inside the listed one: the work list stays as it was
    // fixed, and the copies land only in the output folder.
    void outputInsideListedFolder()
    {
        CacheActionRig r;
        r.list({{"a.txt", "a"}, {"b.txt", "b"}});
        r.state.OutDir = r.listed;
        const auto before = snapshot(r.listed);
        r.run(0);
        r.run(10);
        const auto after = snapshot(r.listed);
        for (auto it = before.begin(); it != before.end(); ++it)
            QCOMPARE(after.value(it.key()), it.value());
        QCOMPARE(QStringList(after.keys()),
                 QStringList({"a.txt", "a1.txt", "a2.txt", "b.txt", "b1.txt", "b2.txt"}));
        QCOMPARE(after.value("a2.txt"), QByteArray("a\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestCacheFaults)
#include "TestCacheFaults.moc"
