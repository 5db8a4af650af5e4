#include "TestFolders.h"
#include "core/SettingsKeys.h"
#include "core/SettingsStore.h"

#include <QFile>
#include <QtTest>
#include <sys/stat.h>

class TestSettingsStore : public QObject
{
    Q_OBJECT
    const QString app = QStringLiteral("Vorlan 1.0");

private slots:
    void absentKeysGiveTheCallersDefault()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::GlobalTimer, "10000"), QString("10000"));
        QVERIFY(s.GetSetting(app, Sect::Startup, Key::Path).isEmpty());
        QVERIFY(!QFile::exists(s.filePath(app)));
    }

    void sectionsAndKeysIgnoreCase()
    {
        TestFolders f;
        SettingsStore s(f.config());
        s.SaveSetting(app, "StartUp", "House Number", "4321");
        QCOMPARE(s.GetSetting(app, "startup", "HOUSE NUMBER"), QString("4321"));
        s.SaveSetting(app, "Startup", "house number", "1234");
        QCOMPARE(s.GetSetting(app, "STARTUP", "House Number"), QString("1234"));
    }

    void valuesSurviveANewStoreAndKeepTheirText()
    {
        TestFolders f;
        {
            SettingsStore s(f.config());
            s.SaveSetting(app, Sect::AdvOpt, Key::DefaultSN, "This is a CooL Site!");
            s.SaveSetting(app, Sect::Startup, Key::Path, "/some path/with = signs;/");
            s.SaveSetting(app, Sect::AdvOpt, Key::OnTopSynch, "");
        }
        SettingsStore again(f.config());
        QCOMPARE(again.GetSetting(app, Sect::AdvOpt, Key::DefaultSN),
                 QString("This is a CooL Site!"));
        QCOMPARE(again.GetSetting(app, Sect::Startup, Key::Path),
                 QString("/some path/with = signs;/"));
        // A stored empty text is a value, not an absent key.
        QCOMPARE(again.GetSetting(app, Sect::AdvOpt, Key::OnTopSynch, "0"), QString(""));
    }

    void theFileIsPrivateToItsOwner()
    {
        TestFolders f;
        SettingsStore s(f.config());
        s.SaveSetting(app, Sect::FTP, "GeoCities Password", "secret");
        struct stat st;
        QCOMPARE(::stat(QFile::encodeName(s.filePath(app)).constData(), &st), 0);
        QCOMPARE(st.st_mode & 0777, 0600u);
        QVERIFY(s.filePath(app).startsWith(f.config()));
        QVERIFY(s.filePath(app).endsWith("/Vorlan 1.0.ini"));
    }

    void deleteRemovesTheWholeApplicationOnly()
    {
        TestFolders f;
        SettingsStore s(f.config());
        s.SaveSetting(app, Sect::Startup, Key::Neigh, "SoHo");
        s.SaveSetting(app, Sect::NetPic, Key::LastExt, "gif");
        s.SaveSetting("Vorlan 1.1", Sect::Startup, Key::Neigh, "Paris");
        s.DeleteSetting(app);
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh, "x"), QString("x"));
        QCOMPARE(s.GetSetting(app, Sect::NetPic, Key::LastExt, "jpg"), QString("jpg"));
        QCOMPARE(s.GetSetting("Vorlan 1.1", Sect::Startup, Key::Neigh), QString("Paris"));
        QVERIFY(!QFile::exists(s.filePath(app)));
    }

    void aBatchWritesTheFileOnceAtItsEnd()
    {
        TestFolders f;
        SettingsStore s(f.config());
        {
            const SettingsStore::Batch batch(s, app);
            s.SaveSetting(app, Sect::Startup, Key::Neigh, "SoHo");
            s.SaveSetting(app, Sect::Startup, Key::HNPS, "4321");
            QVERIFY(!QFile::exists(s.filePath(app)));
            QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh), QString("SoHo"));
        }
        SettingsStore again(f.config());
        QCOMPARE(again.GetSetting(app, Sect::Startup, Key::HNPS), QString("4321"));
    }

    void anotherProcessesChangesAreSeen()
    {
        TestFolders f;
        SettingsStore mine(f.config());
        SettingsStore theirs(f.config());
        mine.SaveSetting(app, Sect::Startup, Key::Neigh, "SoHo");
        QCOMPARE(theirs.GetSetting(app, Sect::Startup, Key::Neigh), QString("SoHo"));
        QTest::qWait(20); // a file time that differs
        theirs.SaveSetting(app, Sect::Startup, Key::Neigh, "Paris!");
        QCOMPARE(mine.GetSetting(app, Sect::Startup, Key::Neigh), QString("Paris!"));
    }

    void aDamagedFileIsAnErrorNotEmptySettings_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("binary") << QByteArray("\x00\x01\x02garbage\xff\xfe", 12);
        QTest::newRow("not utf-8") << QByteArray("[startup]\nneigh=\xff\xfe\xfd\n");
        QTest::newRow("truncated section") << QByteArray("[startup]\nneigh=SoHo\n[webbro");
        QTest::newRow("lines without values") << QByteArray("this is not\na settings file\n");
    }
    void aDamagedFileIsAnErrorNotEmptySettings()
    {
        QFETCH(QByteArray, content);
        TestFolders f;
        SettingsStore s(f.config());
        QDir().mkpath(f.config());
        QFile file(s.filePath(app));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.GetSetting(app, Sect::Startup, Key::Neigh));
        // Deleting the tree is the way out of a damaged store.
        s.DeleteSetting(app);
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh, "d"), QString("d"));
    }
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "TestSettingsStore.moc"
