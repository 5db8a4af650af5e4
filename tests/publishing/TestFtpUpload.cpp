#include "LocalFtpServer.h"
#include "TestFolders.h"
#include "publishing/FtpUpload.h"

#include <QDir>
#include <QTcpServer>
#include <QtTest>

namespace {

const QString User = QStringLiteral("webmaster");
const QString Password = QStringLiteral("s3cret-pass");

FtpTarget target(int port, const QString& password = Password)
{
    FtpTarget t;
    t.host = QStringLiteral("127.0.0.1");
    t.port = port;
    t.userId = User;
    t.password = password;
    t.connectSeconds = 10;
    t.responseSeconds = 10;
    return t;
}

} // namespace

class TestFtpUpload : public QObject
{
    Q_OBJECT

private slots:
    // Text and binary files arrive under their bare names with their bytes,
    // over one login.
    void filesArrive()
    {
        TestFolders f;
        const QString home = f.root() + "/home";
        QDir().mkpath(home);
        LocalFtpServer server(home, User, Password);
        QVERIFY2(server.port() > 0, qPrintable(server.failure()));

        const QByteArray text = "<HTML>\nline two\n";
        const QByteArray binary("GIF89a\r\n\0\x1a\xff\r", 12);
        QVERIFY(putFile(f.root() + "/My Page.htm", text));
        QVERIFY(putFile(f.root() + "/pic.gif", binary));
        FtpUpload upload(target(server.port()));
        QVERIFY2(upload.put(f.root() + "/My Page.htm", "My Page.htm", true),
                 qPrintable(upload.lastError()));
        QVERIFY2(upload.put(f.root() + "/pic.gif", "pic.gif", false),
                 qPrintable(upload.lastError()));
        QCOMPARE(fileBytes(home + "/My Page.htm"), text);
        QCOMPARE(fileBytes(home + "/pic.gif"), binary);

        QVERIFY(!upload.put(f.root() + "/missing.htm", "missing.htm", true));
        QVERIFY(!upload.lastError().isEmpty());
        QVERIFY(!QFile::exists(home + "/missing.htm"));
    }

    // A refused login fails each file, without the password in the reason.
    void wrongPassword()
    {
        TestFolders f;
        const QString home = f.root() + "/home";
        QDir().mkpath(home);
        LocalFtpServer server(home, User, Password);
        QVERIFY2(server.port() > 0, qPrintable(server.failure()));
        QVERIFY(putFile(f.root() + "/a.htm", "a"));
        FtpUpload upload(target(server.port(), "wrong-guess"));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(!upload.put(f.root() + "/a.htm", "a.htm", true));
            QVERIFY(!upload.lastError().isEmpty());
            QVERIFY(!upload.lastError().contains("wrong-guess"));
        }
        QVERIFY(QDir(home).isEmpty());
    }

    // A server that takes the connection and says nothing is given up.
    void silentServer()
    {
        TestFolders f;
        QVERIFY(putFile(f.root() + "/a.htm", "a"));
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        FtpTarget t = target(silent.serverPort());
        t.responseSeconds = 1;
        FtpUpload upload(t);
        QVERIFY(!upload.put(f.root() + "/a.htm", "a.htm", true));
        QVERIFY(!upload.lastError().isEmpty());
    }

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

QTEST_GUILESS_MAIN(TestFtpUpload)
#include "TestFtpUpload.moc"
