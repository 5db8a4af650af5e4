#include "LocalFtpServer.h"
#include "TestContext.h"
#include "core/SettingsKeys.h"
#include "publishing/FtpUpload.h"
#include "publishing/GeoFtp.h"

#include <QDir>
#include <QTcpServer>
#include <QtTest>

namespace {

// The publisher's rules on a test's settings, with every status text and
// caption it showed.
struct Rig
{
    TestContext t;
    QString home; // where the server's login arrives
    QString files;
    QStringList status;
    QStringList captions;
    int unloads = 0;
    std::unique_ptr<GeoFtp> ftp;

    Rig()
    {
        home = t.folders.root() + "/home";
        files = t.folders.root() + "/files/";
        QDir().mkpath(home);
        QDir().mkpath(files);
    }

    void load()
    {
        GeoFtp::Links links;
        links.unload = [this] { ++unloads; };
        links.connectSeconds = 5;
        links.responseSeconds = 2;
        ftp = std::make_unique<GeoFtp>(t.ctx, links);
        QObject::connect(&ftp->StBarFTP, &Control::changed,
                         [this] { status << ftp->StBarFTP.text(); });
        QObject::connect(&ftp->caption, &Control::changed,
                         [this] { captions << ftp->caption.text(); });
        ftp->Load();
    }
    void login(const QString& host, const QString& user, const QString& password)
    {
        ftp->cboFTPHost.setText(host);
        ftp->txtFTPUserID.setText(user);
        ftp->txtFTPPassword.setText(password);
        ftp->credentialsEdited();
    }
    QString setting(const QString& key) const { return t.ctx.GetSetting(Sect::FTP, key); }
};

} // namespace

class TestGeoFtp : public QObject
{
    Q_OBJECT

private slots:
    // Kept files and a typed host: a stale path is forgotten at Load, the
    // files arrive with their bytes, a file gone since is reported and its
    // slot emptied, and the credentials are kept under the host's name.
    void sendToTypedHost()
    {
        Rig r;
        LocalFtpServer server(r.home, "me", "pw");
        QVERIFY2(server.port() > 0, qPrintable(server.failure()));
        const QByteArray page = "<HTML>\nHello\n";
        const QByteArray picture("GIF89a\0\x1a\r\n\xff", 11);
        QVERIFY(putFile(r.files + "Index.htm", page));
        QVERIFY(putFile(r.files + "Pic.GIF", picture));
        QVERIFY(putFile(r.files + "gone.htm", "x"));
        r.t.ctx.SaveSetting(Sect::FTP, "FTP File 1", r.files + "Index.htm");
        r.t.ctx.SaveSetting(Sect::FTP, "FTP File 2", r.files + "stale.htm");
        r.load();
        QCOMPARE(r.ftp->txtFilesToSend[1]->text(), r.files + "Index.htm");
        QVERIFY(r.ftp->txtFilesToSend[2]->text().isEmpty());
        QCOMPARE(r.setting("FTP File 2"), QString(""));
        QCOMPARE(r.ftp->StBarFTP.text(), QString("Click Send to Ftp these files to your site!"));
        QCOMPARE(r.ftp->cboFTPHost.text(), QString("ftp.geocities.com"));

        r.t.prompts.answerPath(r.files + "Pic.GIF");
        r.ftp->cmdSelectFile[3]->click();
        QCOMPARE(r.t.prompts.shown.last().title, QString("Select a file to send!"));
        QCOMPARE(r.setting("FTP File 3"), r.files + "Pic.GIF");
        r.ftp->txtFilesToSend[4]->setText(r.files + "gone.htm");
        QVERIFY(QFile::remove(r.files + "gone.htm"));

        const QString host = QString("127.0.0.1:%1").arg(server.port());
        r.login(host, " me ", "pw");
        r.status.clear();
        r.ftp->cmdSendFiles[0]->click();
        QVERIFY(r.t.prompts.messages().isEmpty());
        QCOMPARE(fileBytes(r.home + "/Index.htm"), page);
        QCOMPARE(fileBytes(r.home + "/Pic.GIF"), picture);
        QCOMPARE(r.captions,
                 (QStringList{"Index.htm sent Successfully!", "Pic.GIF sent Successfully!"}));
        QCOMPARE(r.status,
                 (QStringList{"Connecting...", "Sending file 1; Please Wait...",
                              "Sending file 2; Please Wait...", "Sending file 3; Please Wait...",
                              "Sending file 4; Please Wait...", "gone.htm Not found!",
                              "Sending file 5; Please Wait...", "Finished Sending Files!"}));
        QVERIFY(r.ftp->txtFilesToSend[4]->text().isEmpty());
        QVERIFY(r.ftp->controlsEnabled() && r.ftp->cmdSendFiles[0]->isEnabled());
        QCOMPARE(r.setting(host + " UserID"), QString("me"));
        QCOMPARE(r.setting(host + " Pswrd"), QString("pw"));

        // The boxes follow the host: empty for one with nothing kept.
        r.ftp->cboFTPHost.userSelect(1);
        QVERIFY(r.ftp->txtFTPUserID.text().isEmpty());
        r.ftp->cboFTPHost.setText(host);
        QCOMPARE(r.ftp->txtFTPUserID.text(), QString("me"));
    }

    // A refused login and a server that never answers: each file says
    // " Not sent!" and the run still ends.
    void failedRuns()
    {
        Rig r;
        LocalFtpServer server(r.home, "me", "pw");
        QVERIFY2(server.port() > 0, qPrintable(server.failure()));
        QVERIFY(putFile(r.files + "a.htm", "a"));
        QVERIFY(putFile(r.files + "b.htm", "b"));
        r.load();
        r.ftp->txtFilesToSend[1]->setText(r.files + "a.htm");
        r.ftp->txtFilesToSend[5]->setText(r.files + "b.htm");
        r.login(QString("127.0.0.1:%1").arg(server.port()), "me", "wrong");
        r.ftp->cmdSendFiles[0]->click();
        QCOMPARE(r.captions, (QStringList{"a.htm Not sent!", "b.htm Not sent!"}));
        QCOMPARE(r.status.last(), QString("Finished Sending Files!"));
        QVERIFY(QDir(r.home).isEmpty());
        for (const QString& text : r.status + r.captions)
            QVERIFY(!text.contains("wrong"));

        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        r.captions.clear();
        r.login(QString("127.0.0.1:%1").arg(silent.serverPort()), "me", "pw");
        r.ftp->cmdSendFiles[0]->click();
        QCOMPARE(r.captions, (QStringList{"a.htm Not sent!", "b.htm Not sent!"}));
        QCOMPARE(r.status.last(), QString("Finished Sending Files!"));
    }

    // Each check of Send in its order, with its message; Unload keeps what
    // the boxes hold and an emptied box erases nothing.
    void checksAndUnload()
    {
        Rig r;
        QVERIFY(putFile(r.files + "a.htm", "a"));
        r.load();
        QCOMPARE(r.ftp->StBarFTP.text(),
                 QString("Click the buttons and select files to send to your site!"));
        auto send = [&r] {
            r.t.prompts.clear();
            r.ftp->cmdSendFiles[0]->click();
            return r.t.prompts.messages().value(0);
        };
        QCOMPARE(send(), QString("No files have been selected to transfer!"));
        r.ftp->txtFilesToSend[2]->setText(r.files + "a.htm");
        r.ftp->cboFTPHost.setText(" ");
        QCOMPARE(send(), QString("Please select a FTP Host!"));
        r.login("ftp.xoom.com", "", "");
        QCOMPARE(send(), QString("Must have a password!"));
        r.ftp->txtFTPPassword.setText("pw");
        QCOMPARE(send(), QString("Must have a User Name!"));
        QCOMPARE(r.setting("ftp.xoom.com Pswrd"), QString("pw"));
        r.ftp->txtFTPUserID.setText("me");
        r.t.probe.up = false;
        QCOMPARE(send(), QString("No internet connection!"));
        QVERIFY(r.captions.isEmpty());

        r.ftp->txtFTPPassword.setText("");
        r.ftp->Unload();
        QCOMPARE(r.setting("ftp.xoom.com Pswrd"), QString("pw"));
        QCOMPARE(r.setting("ftp.xoom.com UserID"), QString("me"));
        QCOMPARE(r.setting("FTP Server"), QString("1"));
        QCOMPARE(r.setting("FTP File 2"), r.files + "a.htm");
        r.load();
        QCOMPARE(r.ftp->cboFTPHost.text(), QString("ftp.xoom.com"));
        QCOMPARE(r.ftp->txtFTPPassword.text(), QString("pw"));
        QCOMPARE(r.ftp->txtFilesToSend[2]->text(), r.files + "a.htm");
    }

    // A typed host with or without its port.
    void typedHosts()
    {
        QString host;
        int port = -1;
        QVERIFY(FtpUpload::splitHost(" ftp.example.org ", &host, &port));
        QCOMPARE(host, QString("ftp.example.org"));
        QCOMPARE(port, 0);
        QVERIFY(FtpUpload::splitHost("127.0.0.1:2121", &host, &port));
        QCOMPARE(host, QString("127.0.0.1"));
        QCOMPARE(port, 2121);
        QVERIFY(!FtpUpload::splitHost("host:ftp", &host, &port));
        QVERIFY(!FtpUpload::splitHost("host:70000", &host, &port));
        QVERIFY(!FtpUpload::splitHost(":21", &host, &port));
        QVERIFY(!FtpUpload::splitHost("", &host, &port));
    }
};

QTEST_GUILESS_MAIN(TestGeoFtp)
#include "TestGeoFtp.moc"
