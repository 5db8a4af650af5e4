#include "FileFaults.h"
#include "TestFolders.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QtTest>

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
        QVERIFY(putFile(wished));
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page1.htm");
        QVERIFY(putFile(dir.path() + "/page1.htm"));
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page2.htm");
        // A free gap is taken, not the number after the highest.
        QVERIFY(putFile(dir.path() + "/page3.htm"));
        QCOMPARE(UniqueFileName(wished), dir.path() + "/page2.htm");
    }

    void uniqueFileNameSplitsAtTheFirstDot()
    {
        QTemporaryDir dir;
        const QString noDot = dir.path() + "/list";
        QVERIFY(putFile(noDot));
        QCOMPARE(UniqueFileName(noDot), noDot + "1");

        const QString twoDots = dir.path() + "/page.tar.gz";
        QVERIFY(putFile(twoDots));
        QCOMPARE(UniqueFileName(twoDots), dir.path() + "/page1.tar.gz");

        // Only the file name is split: a dot in a folder name, as in the data
        // folder under ~/.local, stays where it is.
        QVERIFY(QDir(dir.path()).mkpath(".local/share/Vorlan"));
        const QString inDotted = dir.path() + "/.local/share/Vorlan/page.htm";
        QVERIFY(putFile(inDotted));
        QCOMPARE(UniqueFileName(inDotted), dir.path() + "/.local/share/Vorlan/page1.htm");
        const QString dottedNoExtension = dir.path() + "/.local/share/Vorlan/list";
        QVERIFY(putFile(dottedNoExtension));
        QCOMPARE(UniqueFileName(dottedNoExtension), dottedNoExtension + "1");
    }

    void uniqueFileNameCountsAFolderAsTaken()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("out"));
        QCOMPARE(UniqueFileName(dir.path() + "/out"), dir.path() + "/out1");
        // A link that leads nowhere takes its name as well.
        QVERIFY(QFile::link(dir.path() + "/nowhere/x", dir.path() + "/CList.txt"));
        QCOMPARE(UniqueFileName(dir.path() + "/CList.txt"), dir.path() + "/CList1.txt");
    }

    void aCopyOverAFileIsWholeOrNothing()
    {
        QTemporaryDir dir;
        const QString from = dir.path() + "/big.db";
        const QString to = dir.path() + "/target.db";
        QVERIFY(putFile(from, QByteArray(3 << 20, 'b')));
        QVERIFY(putFile(to, "old and sound"));
        {
            const FileSizeLimit nearlyFull(1 << 20);
            QCOMPARE(ReplaceByCopy(from, to), QString("File too large"));
        }
        QCOMPARE(fileBytes(to), QByteArray("old and sound"));
        QVERIFY(!ReplaceByCopy(dir.path() + "/absent.db", to).isEmpty());
        QCOMPARE(fileBytes(to), QByteArray("old and sound"));
        // Nothing half-made is left beside it.
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList({"big.db", "target.db"}));

        QCOMPARE(ReplaceByCopy(from, to), QString());
        QCOMPARE(fileBytes(to), fileBytes(from));
        QCOMPARE(modeOf(to), 0600u);
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

        QVERIFY(putFile(f.root() + "/afile"));
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
        QVERIFY(putFile(file, "one\r\ntwo\r\n"));
        QVERIFY(FileReadable(file));
        QVERIFY(putFile(dir.path() + "/empty.txt", ""));
        QVERIFY(FileReadable(dir.path() + "/empty.txt"));
        QVERIFY(!FileReadable(dir.path()));
        QVERIFY(!FileReadable(""));
        // An end-of-file byte ends text input before the end: binary, then.
        QVERIFY(putFile(dir.path() + "/pic.gif", QByteArray("GIF89a\x1a\0\1", 9)));
        QVERIFY(!FileReadable(dir.path() + "/pic.gif"));
        // Without the right to read it.
        QVERIFY(QFile::setPermissions(file, QFileDevice::WriteOwner));
        QFile probe(file);
        if (probe.open(QIODevice::ReadOnly))
            QSKIP("running with rights that read any file");
        QVERIFY(!FileReadable(file));
    }
};

QTEST_APPLESS_MAIN(TestFileServices)
#include "TestFileServices.moc"
