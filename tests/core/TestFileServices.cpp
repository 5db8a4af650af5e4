#include "TestFolders.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QtTest>

static void touch(const QString& path, const QByteArray& content = "x")
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(content);
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

        // A dot in a folder name splits there: the number lands in the folder name.
        QVERIFY(QDir(dir.path()).mkdir("my.folder"));
        const QString inDotted = dir.path() + "/my.folder/page.htm";
        touch(inDotted);
        QCOMPARE(UniqueFileName(inDotted), dir.path() + "/my1.folder/page.htm");
    }

    void uniqueFileNameCountsAFolderAsTaken()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("out"));
        QCOMPARE(UniqueFileName(dir.path() + "/out"), dir.path() + "/out1");
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
