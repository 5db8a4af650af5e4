#include "FileFaults.h"
#include "RecordingHost.h"
#include "TestContext.h"
#include "addressdata/MainDatabase.h"
#include "addressdata/MainDatabaseFiles.h"
#include "core/EntryProcedure.h"
#include "core/StartupUi.h"
#include "navigator/Navigator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QtTest>
#include <memory>

namespace {

// The screen of the start-up, written down.
class FakeStartupUi : public StartupUi
{
public:
    explicit FakeStartupUi(TestContext& t) : m_t(t) {}

    bool prevInstance = false;
    QStringList splash;
    bool mainShown = false;
    std::unique_ptr<RecordingHost> host;
    std::unique_ptr<Navigator> navigator;

    void showSplash(const QString& status) override
    {
        splash << status;
        m_t.state.gblnStartUpShown = true;
    }
    void unloadSplash() override { m_t.state.gblnStartUpShown = false; }
    Navigator& loadMainWindow() override
    {
        host = std::make_unique<RecordingHost>(m_t.state);
        navigator = std::make_unique<Navigator>(m_t.ctx, *host, *host);
        navigator->Load();
        return *navigator;
    }
    void showMainWindow() override { mainShown = true; }
    bool isPrevInstance() override { return prevInstance; }

private:
    TestContext& m_t;
};

// One start of the program in the test's folders.
struct Start
{
    TestContext t;
    FakeStartupUi ui{t};
    MainDatabaseFiles files{t.ctx};

    bool run(const QString& commandLine = QString())
    {
        EntryProcedure entry(t.ctx, ui, files);
        return entry.run(commandLine);
    }
    QString data() const { return t.folders.appPath() + "GeoData.db"; }
    QString backup() const { return t.folders.appPath() + "GeoBckUp.db"; }
};

// A database with one saved link, so that its origin can be told.
void addMarkerLink(const QString& path)
{
    TextDatabase db("marker");
    db.open(path);
    db.append("UsaSaved", {"Neighborhood", "Suburb", "House", "Comment", "Date"},
              {{"SoHo", "", "1234", "marker", "Saved on: Date = 1/1/2000 Time = 9:15PM"}});
    db.close();
}

bool hasMarkerLink(const QString& path)
{
    TextDatabase db("check");
    db.open(path);
    const bool found = db.recordCount("UsaSaved") == 1;
    db.close();
    return found;
}

// Pads a sound database to some megabytes, more than a nearly full disk
// takes.
void makeLarge(const QString& path)
{
    TextDatabase db("large");
    db.open(path);
    QVector<QStringList> rows(12000, QStringList{QString(250, QLatin1Char('t'))});
    db.append("wbtBadTitles", {"BadTitle"}, rows);
    db.close();
}

// A program folder with a sound GeoData.db and GeoBckUp.db, made by a first start.
void firstStart(Start& s)
{
    QVERIFY(s.run());
    s.t.db.close();
    s.ui.navigator.reset();
    s.ui.mainShown = false;
}

} // namespace

class TestEntryProcedure : public QObject
{
    Q_OBJECT

private slots:
    void aFirstStartMakesTheSettingsFolderAndDatabase()
    {
        Start s;
        QVERIFY(s.run());
        QCOMPARE(s.ui.splash, (QStringList{"    Creating Database...", "    Loading Data..."}));
        QVERIFY(s.ui.mainShown);
        QVERIFY(QFileInfo(s.data()).isFile());
        QCOMPARE(fileBytes(s.backup()), fileBytes(s.data()));
        QCOMPARE(s.t.ctx.GetSetting("Startup", "AdvOptInit"), QString("1"));
        QCOMPARE(s.t.ctx.GetSetting("Startup", "Path"), s.t.folders.appPath());
        QCOMPARE(s.t.ctx.GetSetting("AdvOpt", "DefaultSN"), QString("This is a CooL Site!"));
        QCOMPARE(s.t.ctx.GetSetting("WebBrwsrTwo", "PromptForNewFile"), QString("1"));
        QCOMPARE(s.t.state.gstrAppName, QString("Vorlan 1.0"));
        QCOMPARE(s.t.state.gstrDefaultNote, QString("This is a CooL Site!"));
        QVERIFY(s.t.db.isOpen());
        QCOMPARE(s.ui.navigator->controls().cmbNeighborhood.listCount(), 41);
        QVERIFY(s.t.prompts.shown.isEmpty());
    }

    void aCleanStartRefreshesTheBackup()
    {
        Start s;
        firstStart(s);
        addMarkerLink(s.data());
        const QDateTime before = QFileInfo(s.backup()).lastModified();
        QThread::msleep(20);
        QVERIFY(s.run());
        QCOMPARE(s.ui.splash.last(), QString("    Loading Data..."));
        QVERIFY(QFileInfo(s.backup()).lastModified() > before);
        QVERIFY(hasMarkerLink(s.backup()));
        QVERIFY(s.t.prompts.shown.isEmpty());
    }

    void aMissingDataFileComesFromTheBackupWithoutAQuestion()
    {
        Start s;
        firstStart(s);
        addMarkerLink(s.backup());
        QFile::remove(s.data());
        QVERIFY(s.run());
        QVERIFY(hasMarkerLink(s.data()));
        QVERIFY(s.t.prompts.shown.isEmpty());
    }

    void aBadDataFileIsRestoredSilently_data()
    {
        QTest::addColumn<QByteArray>("damage");
        QTest::newRow("garbage") << QByteArray("not a database at all, just text");
        QTest::newRow("zero length") << QByteArray();
        QTest::newRow("truncated") << QByteArray("truncate");
        QTest::newRow("a table missing") << QByteArray("DROP TABLE wbtBadTitles");
        QTest::newRow("a field missing") << QByteArray("ALTER TABLE UsaSaved DROP COLUMN Comment");
    }
    void aBadDataFileIsRestoredSilently()
    {
        QFETCH(QByteArray, damage);
        Start s;
        firstStart(s);
        addMarkerLink(s.backup());
        if (damage == "truncate") {
            const QByteArray bytes = fileBytes(s.data());
            QVERIFY(putFile(s.data(), bytes.left(bytes.size() / 2)));
        } else if (damage.startsWith("DROP ") || damage.startsWith("ALTER ")) {
            TextDatabase db("drop");
            db.open(s.data());
            QVERIFY(db.handle().exec(damage).lastError().type() == QSqlError::NoError);
            db.close();
        } else {
            QVERIFY(putFile(s.data(), damage));
        }
        QVERIFY(s.run());
        QVERIFY(s.t.prompts.shown.isEmpty());
        QVERIFY(hasMarkerLink(s.data()));
        QVERIFY(hasMarkerLink(s.backup()));
    }

    void withoutASoundCopyTheUserDecides()
    {
        Start s;
        firstStart(s);
        QFile::remove(s.backup());
        QVERIFY(putFile(s.data(), "garbage"));
        s.t.prompts.answer(PromptService::No);
        QVERIFY(!s.run());
        QCOMPARE(s.t.prompts.shown.size(), 1);
        const auto& asked = s.t.prompts.shown.first();
        QCOMPARE(asked.title, QString("Corrupt Database!"));
        QCOMPARE(asked.text,
                 QString("Warning!!!\r\rThe database is corrupt\rI'm about to Delete it\r"
                         "& recreate it! All saved\rdata will be lost!\rPROCEED?\r"));
        QCOMPARE(asked.style & 7, int(PromptService::YesNo));
        // No leaves the files as they are, and the same question comes back.
        QCOMPARE(fileBytes(s.data()), QByteArray("garbage"));
        QVERIFY(!QFile::exists(s.backup()));
        QVERIFY(!s.ui.mainShown);

        s.t.prompts.clear();
        s.t.prompts.answer(PromptService::Yes);
        QVERIFY(s.run());
        QCOMPARE(s.t.prompts.shown.size(), 1);
        QVERIFY(s.ui.mainShown);
        QVERIFY(VerifyMainDatabase(s.data(), s.t.state.gastrTables));
        QCOMPARE(fileBytes(s.backup()), fileBytes(s.data()));
    }

    void aBadBackupIsOverwrittenOnlyOnYes()
    {
        Start s;
        firstStart(s);
        QVERIFY(putFile(s.data(), "garbage"));
        QVERIFY(putFile(s.backup(), "bad backup"));
        s.t.prompts.answer(PromptService::No);
        QVERIFY(!s.run());
        QCOMPARE(fileBytes(s.backup()), QByteArray("bad backup"));
        s.t.prompts.answer(PromptService::Yes);
        QVERIFY(s.run());
        QVERIFY(VerifyMainDatabase(s.backup(), s.t.state.gastrTables));
    }

    void aCopyThatFailsIsNoBadBackup_data()
    {
        QTest::addColumn<bool>("restoring");
        QTest::newRow("restoring the backup") << true;
        QTest::newRow("refreshing the backup") << false;
    }
    void aCopyThatFailsIsNoBadBackup()
    {
        QFETCH(bool, restoring);
        Start s;
        firstStart(s);
        addMarkerLink(restoring ? s.backup() : s.data());
        if (restoring) {
            makeLarge(s.backup());
            QVERIFY(putFile(s.data(), "garbage"));
        } else {
            makeLarge(s.data());
        }
        const QByteArray data = fileBytes(s.data());
        const QByteArray backup = fileBytes(s.backup());
        {
            const FileSizeLimit diskNearlyFull(1 << 20);
            QVERIFY(!s.run());
        }
        // Told plainly, not asked about a corrupt database.
        QCOMPARE(s.t.prompts.shown.size(), 1);
        QCOMPARE(s.t.prompts.shown[0].title, QString("Database Copy Failed!"));
        QVERIFY(s.t.prompts.shown[0].text.contains("(File too large)"));
        QVERIFY(!s.ui.mainShown);
        QVERIFY(!s.t.db.isOpen());
        QCOMPARE(fileBytes(s.data()), data);
        QCOMPARE(fileBytes(s.backup()), backup);
        QCOMPARE(QDir(s.t.folders.appPath()).entryList(QDir::Files | QDir::Hidden).size(), 2);
        QCOMPARE(s.t.ctx.GetSetting("Startup", "AdvOptInit"), QString("1"));

        // With room again the same start goes through.
        s.t.prompts.clear();
        QVERIFY(s.run());
        QVERIFY(s.t.prompts.shown.isEmpty());
        QVERIFY(hasMarkerLink(s.data()));
    }

    void aReadOnlyDataFolderKeepsBothFiles()
    {
        Start s;
        firstStart(s);
        addMarkerLink(s.backup());
        QVERIFY(putFile(s.data(), "garbage"));
        const QByteArray backup = fileBytes(s.backup());
        {
            const ReadOnlyFolder locked(s.t.folders.appPath());
            if (!locked.refusesFiles())
                QSKIP("this file system lets the test write into any folder");
            s.t.prompts.answer(PromptService::Yes); // for a question that must not come
            QVERIFY(!s.run());
        }
        QCOMPARE(s.t.prompts.shown.size(), 1);
        QCOMPARE(s.t.prompts.shown[0].title, QString("Database Copy Failed!"));
        QCOMPARE(fileBytes(s.data()), QByteArray("garbage"));
        QCOMPARE(fileBytes(s.backup()), backup);
    }

    void readOnlyFilesDoNotBlockTheStart()
    {
        Start s;
        firstStart(s);
        // Read-only, and readable by all, as a former version left them.
        const auto readOnly = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        QFile::setPermissions(s.data(), readOnly);
        QFile::setPermissions(s.backup(), readOnly);
        QVERIFY(s.run());
        // Writable again, and the owner's alone: they hold saved addresses and notes.
        QCOMPARE(modeOf(s.data()), 0600u);
        QCOMPARE(modeOf(s.backup()), 0600u);
    }

    void aLongNoteFromElsewhereKeepsTheFile()
    {
        Start s;
        firstStart(s);
        {
            TextDatabase db("long");
            db.open(s.data());
            QSqlQuery other(db.handle());
            QVERIFY(other.exec("PRAGMA ignore_check_constraints = ON"));
            QVERIFY(other.exec("INSERT INTO UsaSaved VALUES ('SoHo', '', '1234', '" +
                               QString(300, QLatin1Char('n')) + "', '')"));
        }
        QVERIFY(s.run());
        QVERIFY(s.t.prompts.shown.isEmpty());
        QVERIFY(hasMarkerLink(s.data()));
        QVERIFY(hasMarkerLink(s.backup()));
    }

    void aDamagedSettingsFileTakesTheSettingsErrorRoute()
    {
        Start s;
        firstStart(s);
        addMarkerLink(s.data());
        QVERIFY(putFile(s.t.settings.filePath("Vorlan 1.0"), QByteArray("\x01\x02\x00junk", 7)));
        QVERIFY(!s.run());
        QCOMPARE(
            s.t.prompts.messages(),
            QStringList{"A settings error was encountered!\rYou will need to restart Vorlan!"});
        QVERIFY(!QFile::exists(s.t.settings.filePath("Vorlan 1.0")));
        // What was in it is kept beside it.
        QCOMPARE(fileBytes(s.t.settings.filePath("Vorlan 1.0") + ".bak"),
                 QByteArray("\x01\x02\x00junk", 7));
        QVERIFY(hasMarkerLink(s.data())); // the data stays
        // The next start is a first use again, on the same data.
        s.t.prompts.clear();
        QVERIFY(s.run());
        QVERIFY(hasMarkerLink(s.data()));
    }

    void settingsOfAnotherToolSurviveTheStart()
    {
        Start s;
        firstStart(s);
        // Single-byte text with names in any case, as other tools write it.
        QVERIFY(putFile(s.t.settings.filePath("Vorlan 1.0"),
                        "[StartUp]\r\nADVOPTINIT=1\r\nPath=" + s.t.folders.appPath().toLatin1() +
                            "\r\nNeigh=Paris\r\n[FTP]\r\nGeoCities Password=p\xe4ss\r\n"));
        QVERIFY(s.run());
        QVERIFY(s.t.prompts.shown.isEmpty());
        QCOMPARE(s.ui.navigator->controls().cmbNeighborhood.text(), QString("Paris"));
        QCOMPARE(s.t.ctx.GetSetting("FTP", "GeoCities Password"), QString::fromUtf8("p\u00e4ss"));
    }

    void aWaitTooLongFor16BitsTakesTheSettingsErrorRoute()
    {
        Start s;
        s.t.state.gstrAppName = "Vorlan 1.0";
        s.t.ctx.SaveSetting("Startup", "GlobalTimer", "40000");
        QVERIFY(!s.run());
        QCOMPARE(s.t.prompts.messages().size(), 1);
        QCOMPARE(s.t.ctx.GetSetting("Startup", "GlobalTimer", "gone"), QString("gone"));
        QVERIFY(!s.t.db.isOpen());
    }

    void theHelpSwitchIsTheWholeLine()
    {
        Start s;
        QVERIFY(!s.run("/?"));
        QCOMPARE(s.t.prompts.opened.size(), 1);
        const QFileInfo index(s.t.prompts.opened.first());
        QVERIFY(index.isFile());
        // In a folder of the user's own, closed to others.
        QVERIFY(index.absoluteFilePath().startsWith(s.t.folders.root() + "/cache/"));
        QCOMPARE(QFileInfo(index.absolutePath()).permissions() & 0x0077, QFile::Permissions());
        QVERIFY(!QFile::exists(s.data()));
        QVERIFY(s.ui.splash.isEmpty());

        Start other;
        QVERIFY(other.run("/? please"));
        QVERIFY(other.t.prompts.opened.isEmpty());
    }

    void urlsOnTheCommandLine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("url");
        QTest::newRow("http in capitals") << "HTTP://www.GeoCities.com/SoHo/" << true;
        QTest::newRow("mailto") << "mailto:someone@example.org" << true;
        QTest::newRow("shortcut of 9") << "abcde.url" << true;
        QTest::newRow("shortcut of 5") << "a.url" << false;
        QTest::newRow("other argument") << "--verbose" << false;
        QTest::newRow("too short") << "http:/" << false;
    }
    void urlsOnTheCommandLine()
    {
        QFETCH(QString, line);
        QFETCH(bool, url);
        QCOMPARE(EntryProcedure::LooksLikeUrl(line.toLower()), url);
        Start s;
        QVERIFY(s.run(line));
        QCOMPARE(s.t.state.gblnOpenCommandUrl, url);
        QCOMPARE(!s.ui.host->navigated().isEmpty(), url);
        // Lowered for the tests only, opened as given.
        if (url)
            QVERIFY(s.ui.host->navigated().first().endsWith(line));
    }

    void aSecondInstanceWithoutAnAddressLeavesNoTrace()
    {
        Start s;
        s.ui.prevInstance = true;
        QVERIFY(!s.run());
        QVERIFY(!QFile::exists(s.t.settings.filePath("Vorlan 1.0")));
        QVERIFY(!QFile::exists(s.data()));
        QVERIFY(s.t.prompts.shown.isEmpty() && s.t.prompts.opened.isEmpty());
    }

    void aSecondInstanceHandsOnlyWebAndMailAddressesOn_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("opened");
        QTest::newRow("mail") << "mailto:Someone@Example.org" << true;
        QTest::newRow("https shortcut") << "HTTPS://example.org/Page.url" << true;
        QTest::newRow("existing shortcut") << "shortcut" << true;
        QTest::newRow("missing shortcut") << "/nowhere/Page.url" << false;
        QTest::newRow("script") << "javascript:alert(1)//url" << false;
        QTest::newRow("local file") << "file:///etc/passwd#.url" << false;
        QTest::newRow("data") << "data:text/html,<b>hi</b>url" << false;
    }
    void aSecondInstanceHandsOnlyWebAndMailAddressesOn()
    {
        QFETCH(QString, line);
        QFETCH(bool, opened);
        Start s;
        if (line == "shortcut") {
            line = s.t.folders.root() + "/Home Page.URL";
            QVERIFY(putFile(line, "[InternetShortcut]\r\nURL=http://www.geocities.com/\r\n"));
        }
        s.ui.prevInstance = true;
        QVERIFY(!s.run(line));
        QCOMPARE(s.t.prompts.opened, opened ? QStringList{line} : QStringList());
        // Either way this instance loads, saves its settings and leaves.
        QVERIFY(s.t.state.gblnHandedOff);
        QVERIFY(!s.ui.mainShown);
        QCOMPARE(s.ui.host->calls.last(), QString("end"));
    }

    void aSecondInstanceHandsItsAddressOnAndLeaves()
    {
        Start s;
        s.ui.prevInstance = true;
        QVERIFY(!s.run("http://www.geocities.com/Paris/1234/"));
        QCOMPARE(s.t.prompts.opened, QStringList{"http://www.geocities.com/Paris/1234/"});
        QVERIFY(s.t.state.gblnHandedOff);
        QVERIFY(!s.ui.mainShown);
        QCOMPARE(s.ui.host->calls.last(), QString("end"));
        // It loaded its data and saved its main window's settings on the way out.
        QCOMPARE(s.t.ctx.GetSetting("Startup", "HNPS"), QString("1000"));
        QVERIFY(QFile::exists(s.data()));
    }
};

QTEST_GUILESS_MAIN(TestEntryProcedure)
#include "TestEntryProcedure.moc"
