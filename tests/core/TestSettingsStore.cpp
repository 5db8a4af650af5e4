#include "TestFolders.h"
#include "core/SettingsKeys.h"
#include "core/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QtTest>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

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

    void theFileIsTheOwnersFromItsFirstMoment()
    {
        TestFolders f;
        SettingsStore s(f.config());
        const QString name = QFileInfo(s.filePath(app)).fileName();
        const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
        QVERIFY(watch >= 0);
        QVERIFY(::inotify_add_watch(watch, QFile::encodeName(f.config()).constData(),
                                    IN_CREATE | IN_MOVED_TO | IN_ATTRIB) >= 0);
        s.SaveSetting(app, Sect::FTP, "GeoCities Password", "secret");
        s.SaveSetting(app, Sect::FTP, "GeoCities UserID", "me");

        QStringList events;
        alignas(inotify_event) char buffer[8192];
        ssize_t size;
        while ((size = ::read(watch, buffer, sizeof buffer)) > 0) {
            for (char* at = buffer; at < buffer + size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                if (event->len && QFile::decodeName(event->name) == name)
                    events << ((event->mask & IN_ATTRIB) ? "rights" : "appeared");
                at += sizeof(inotify_event) + event->len;
            }
        }
        ::close(watch);
        // Its rights never changed after it appeared: they were these.
        QVERIFY(!events.isEmpty());
        QVERIFY2(!events.contains("rights"), qPrintable(events.join(' ')));
        QCOMPARE(modeOf(s.filePath(app)), 0600u);
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
        QTest::newRow("truncated section") << QByteArray("[startup]\nneigh=SoHo\n[webbro");
        QTest::newRow("lines without values") << QByteArray("this is not\na settings file\n");
    }
    void aDamagedFileIsAnErrorNotEmptySettings()
    {
        QFETCH(QByteArray, content);
        TestFolders f;
        SettingsStore s(f.config());
        QVERIFY(putFile(s.filePath(app), content));
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.GetSetting(app, Sect::Startup, Key::Neigh));
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.SaveSetting(app, Sect::Startup, Key::Neigh, "x"));
        // Deleting the tree is the way out of a damaged store; what was in
        // the file is kept beside it, for its owner only.
        s.DeleteSetting(app);
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh, "d"), QString("d"));
        QCOMPARE(fileBytes(s.filePath(app) + ".bak"), content);
        QCOMPARE(modeOf(s.filePath(app) + ".bak"), 0600u);
    }

    void aFifoOrFolderInItsPlaceIsDamagedNotWaitedFor()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QDir().mkpath(f.config());
        const QByteArray path = QFile::encodeName(s.filePath(app));
        QCOMPARE(::mkfifo(path.constData(), 0600), 0);
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.GetSetting(app, Sect::Startup, Key::Neigh));
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.SaveSetting(app, Sect::Startup, Key::Neigh, "x"));
        s.DeleteSetting(app);
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh, "d"), QString("d"));

        QVERIFY(QDir().mkpath(s.filePath(app)));
        QVERIFY_THROWS_EXCEPTION(SettingsError, s.GetSetting(app, Sect::Startup, Key::Neigh));
    }

    void aFileWrittenByHandIsReadWhateverItsCase()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QVERIFY(putFile(s.filePath(app),
                        "; made by hand\r\n[Startup]\r\nNeigh=SoHo\r\n"
                        "House Number = 4321\r\n\r\n[ADVOPT]\r\nDefaultSN=Cool, isn't it\r\n"));
        QCOMPARE(s.GetSetting(app, Sect::Startup, Key::Neigh), QString("SoHo"));
        QCOMPARE(s.GetSetting(app, "StartUp", Key::HouseNumber), QString("4321"));
        QCOMPARE(s.GetSetting(app, Sect::AdvOpt, Key::DefaultSN), QString("Cool, isn't it"));

        // A save replaces the hand-written value, and the others stay.
        s.SaveSetting(app, Sect::Startup, Key::Neigh, "Paris");
        SettingsStore again(f.config());
        QCOMPARE(again.GetSetting(app, Sect::Startup, Key::Neigh), QString("Paris"));
        QCOMPARE(again.GetSetting(app, Sect::Startup, Key::HouseNumber), QString("4321"));
        QCOMPARE(again.GetSetting(app, Sect::AdvOpt, Key::DefaultSN), QString("Cool, isn't it"));
        QVERIFY(!fileBytes(s.filePath(app)).contains("Neigh"));
    }

    void aFileThatIsNotUtf8IsReadAsWindows1252()
    {
        TestFolders f;
        SettingsStore s(f.config());
        QVERIFY(putFile(s.filePath(app), "[FTP]\r\nGeoCities Password=p\xe4ss\x80\r\n[AdvOpt]\r\n"
                                         "DefaultSN=\x93"
                                         "Cool\x94 site\r\n"));
        const QString password = QString::fromUtf8("p\u00e4ss\u20ac");
        QCOMPARE(s.GetSetting(app, Sect::FTP, "GeoCities Password"), password);
        QCOMPARE(s.GetSetting(app, Sect::AdvOpt, Key::DefaultSN),
                 QString::fromUtf8("\u201cCool\u201d site"));
        // Written back as UTF-8, with nothing lost.
        s.SaveSetting(app, Sect::Startup, Key::Neigh, "SoHo");
        SettingsStore again(f.config());
        QCOMPARE(again.GetSetting(app, Sect::FTP, "GeoCities Password"), password);
        QVERIFY(fileBytes(s.filePath(app)).contains(password.toUtf8()));
    }

    void valuesKeepTheirTextInTheIniFormOfQSettings_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("plain") << "This is a CooL Site!";
        QTest::newRow("separators") << "a, b; c = d";
        QTest::newRow("quotes and backslashes") << "say \"hi\" C:\\Temp\\";
        QTest::newRow("blanks at the ends") << "  padded ";
        QTest::newRow("at sign") << "@home";
        QTest::newRow("controls") << "tab\tnew\nline\x01"
                                     "af";
        QTest::newRow("beyond ASCII") << QString::fromUtf8("M\u00fcller \u20ac \U0001F600");
        QTest::newRow("empty") << "";
    }
    void valuesKeepTheirTextInTheIniFormOfQSettings()
    {
        QFETCH(QString, value);
        TestFolders f;
        SettingsStore s(f.config());
        s.SaveSetting(app, Sect::FTP, "GeoCities/Password x", value);
        QCOMPARE(SettingsStore(f.config()).GetSetting(app, Sect::FTP, "GeoCities/Password x"),
                 value);
        // The file is one that QSettings reads, and one it writes is read.
        QSettings theirs(s.filePath(app), QSettings::IniFormat);
        QCOMPARE(theirs.value("ftp/geocities/password x").toString(), value);
        theirs.setValue("startup/path", value);
        theirs.sync();
        QCOMPARE(SettingsStore(f.config()).GetSetting(app, Sect::Startup, Key::Path), value);
    }
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "TestSettingsStore.moc"
