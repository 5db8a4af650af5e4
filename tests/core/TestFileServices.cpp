#include "FileFaults.h"
#include "TestFolders.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QtTest>
#include <sys/stat.h>

static void touch(const QString& path, const QByteArray& content = "x")
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(content);
}

static QByteArray contents(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

class TestFileServices : public QObject
{
    Q_OBJECT
    const QString app = QStringLiteral("Vorlan 1.0");

private slots:
    void uniqueFileNameCountsBehindTheBase()
    {
        QTemporaryDir dir;
        const QString wished = dir.path() + "/page.htm";
        QCOMPARE(UniqueFileName(wished), wished);
        touch(wished);
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page1.htm");
        touch(dir.path() + "/page1.htm");
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page2.htm");
        // A free gap is taken, not the number after the highest.
        touch(dir.path() + "/page3.htm");
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page2.htm");
    }

    void uniqueFileNameSplitsAtTheFirstDot()
    {
        QTemporaryDir dir;
        const QString noDot = dir.path() + "/list";
        touch(noDot);
        QCOMPARE(UniqueFileName(noDot), noDot + "1");

        const QString twoDots = dir.path() + "/page.tar.gz";
        touch(twoDots);
        QCOMPARE(UniqueFileName(twoDots), dir.path() + "/page1.tar.gz");

        // Only the file name is split: a dot in a folder name, as in the data
        // folder under ~/.local, stays where it is.
        QVERIFY(QDir(dir.path()).mkpath(".local/share/Vorlan"));
        const QString inDotted = dir.path() + "/.local/share/Vorlan/page.htm";
        touch(inDotted);
        QCOMPARE(UniqueFileName(inDotted), dir.path() + "/.local/share/Vorlan/page1.htm");
        const QString dottedNoExtension = dir.path() + "/.local/share/Vorlan/list";
        touch(dottedNoExtension);
        QCOMPARE(UniqueFileName(dottedNoExtension), dottedNoExtension + "1");
    }

    void uniqueFileNameCountsAFolderAsTaken()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("out"));
        QCOMPARE(UniqueFileName(dir.path() + "/out"), dir.path() + "/out1");
    }

    void aCopyOverAFileIsWholeOrNothing()
    {
        QTemporaryDir dir;
        const QString from = dir.path() + "/big.db";
        const QString to = dir.path() + "/target.db";
        touch(from, QByteArray(3 << 20, 'b'));
        touch(to, "old and sound");
        {
            const FileSizeLimit nearlyFull(1 << 20);
            QCOMPARE(ReplaceByCopy(from, to), QString("File too large"));
        }
        QCOMPARE(contents(to), QByteArray("old and sound"));
        QVERIFY(!ReplaceByCopy(dir.path() + "/absent.db", to).isEmpty());
        QCOMPARE(contents(to), QByteArray("old and sound"));
        // Nothing half-made is left beside it.
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({"big.db", "target.db"}));

        QCOMPARE(ReplaceByCopy(from, to), QString());
        QCOMPARE(contents(to), contents(from));
        struct stat st;
        QCOMPARE(::stat(QFile::encodeName(to).constData(), &st), 0);
        QCOMPARE(st.st_mode & 0777, 0600u);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    void pathBeforeAndNameAfterTheLastSeparator_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("path") << "/home/u/page.htm"
                              << "/home/u/"
                              << "page.htm";
        QTest::newRow("no separator") << "page.htm"
                                      << ""
                                      << "";
        QTest::newRow("ends in separator") << "/home/u/"
                                           << "/home/u/"
                                           << "";
        QTest::newRow("only separator") << "/"
                                        << "/"
                                        << "";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }
    void pathBeforeAndNameAfterTheLastSeparator()
    {
        QFETCH(QString, text);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QCOMPARE(PathBeforeLast(text, '/'), before);
        QCOMPARE(NameAfterLast(text, '/'), after);
        QVERIFY(!PathBeforeLast(text, '/').isNull());
        QVERIFY(!NameAfterLast(text, '/').isNull());
    }

    void outputDirectoryIsTheStoredFolderWhenItExists()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QCOMPARE(OutputDirectory(s, app, f.appPath()), f.appPath());

        const QString out = f.root() + "/out/";
        QVERIFY(QDir().mkpath(out));
        s.SaveSetting(app, Sect::CacheManager, Key::DefaultOutPutDir, out);
        QCOMPARE(OutputDirectory(s, app, f.appPath()), out);

        QVERIFY(QDir(out).removeRecursively());
        QCOMPARE(OutputDirectory(s, app, f.appPath()), f.appPath());

        touch(f.root() + "/afile");
        s.SaveSetting(app, Sect::CacheManager, Key::DefaultOutPutDir, f.root() + "/afile");
        QCOMPARE(OutputDirectory(s, app, f.appPath()), f.appPath());
    }

    void outputDirectoryDefaultEndsInASeparator()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QString app_ = f.appPath();
        app_.chop(1);
        QCOMPARE(OutputDirectory(s, app, app_), f.appPath());
    }

    void fileReadable()
    {
        QTemporaryDir dir;
        const QString file = dir.path() + "/words.txt";
        QVERIFY(!FileReadable(file));
        touch(file, "one\r\ntwo\r\n");
        QVERIFY(FileReadable(file));
        touch(dir.path() + "/empty.txt", "");
        QVERIFY(FileReadable(dir.path() + "/empty.txt"));
        QVERIFY(!FileReadable(dir.path()));
        QVERIFY(!FileReadable(""));
    }

    void aFileWithoutReadRightIsNotReadable()
    {
        QTemporaryDir dir;
        const QString file = dir.path() + "/words.txt";
        touch(file);
        QVERIFY(QFile::setPermissions(file, QFileDevice::WriteOwner));
        QFile probe(file);
        if (probe.open(QIODevice::ReadOnly))
            QSKIP("running with rights that read any file");
        QVERIFY(!FileReadable(file));
    }
};

QTEST_APPLESS_MAIN(TestFileServices)
#include "TestFileServices.moc"
