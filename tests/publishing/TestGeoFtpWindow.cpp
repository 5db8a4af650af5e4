#include "LocalFtpServer.h"
#include "WindowsRig.h"
#include "core/SettingsKeys.h"
#include "publishing/frmGeoFtp.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class TestGeoFtpWindow : public QObject
{
    Q_OBJECT

private slots:
    // The user opens "Publish Files", types a host of today with its port,
    // logs in, picks a file and sends it; Close keeps the login.
    void publishThroughTheWindow()
    {
        WindowsRig r;
        TestContext& t = r.t;
        const QString home = t.folders.root() + "/home";
        QDir().mkpath(home);
        LocalFtpServer server(home, "me", "pw");
        QVERIFY2(server.port() > 0, qPrintable(server.failure()));
        const QString file = t.folders.root() + "/My Page.htm";
        QVERIFY(putFile(file, "<HTML>\n"));

        QAction* entry = r.main->findChild<QAction*>("mnuPublish");
        QVERIFY(entry->isEnabled());
        entry->trigger();
        frmGeoFtp* w = WindowsRig::topLevel<frmGeoFtp>(true);
        QVERIFY(w);
        QVERIFY(QTest::qWaitForWindowExposed(w));
        QCOMPARE(w->windowTitle(), QString("Publish"));
        auto* host = w->findChild<QComboBox*>("cboFTPHost");
        QCOMPARE(host->count(), 3);
        QCOMPARE(host->currentText(), QString("ftp.geocities.com"));

        QWheelEvent wheel(QPointF(5, 5), host->mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(host, &wheel);
        QCOMPARE(host->currentText(), QString("ftp.geocities.com"));

        const QString typed = QString("127.0.0.1:%1").arg(server.port());
        host->lineEdit()->selectAll();
        QTest::keyClicks(host->lineEdit(), typed);
        QTest::keyClick(host->lineEdit(), Qt::Key_Return);
        auto* user = w->findChild<QLineEdit*>("txtFTPUserID");
        auto* password = w->findChild<QLineEdit*>("txtFTPPassword");
        QVERIFY(user->text().isEmpty());
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        QTest::keyClicks(user, "me");
        QTest::keyClicks(password, "pw");
        t.prompts.answerPath(file);
        QTest::mouseClick(w->findChild<QPushButton*>("cmdSelectFile[1]"), Qt::LeftButton);
        QCOMPARE(w->findChild<QLineEdit*>("txtFilesToSend[1]")->text(), file);

        QTest::mouseClick(w->findChild<QPushButton*>("cmdSendFiles[0]"), Qt::LeftButton);
        QVERIFY(t.prompts.messages().isEmpty());
        QCOMPARE(w->findChild<QLabel*>("StBarFTP")->text(), QString("Finished Sending Files!"));
        QCOMPARE(w->windowTitle(), QString("My Page.htm sent Successfully!"));
        QCOMPARE(fileBytes(home + "/My Page.htm"), QByteArray("<HTML>\n"));
        QVERIFY(w->findChild<QPushButton*>("cmdSendFiles[0]")->isEnabled());

        QTest::mouseClick(w->findChild<QPushButton*>("cmdSendFiles[1]"), Qt::LeftButton);
        QTRY_VERIFY(!WindowsRig::topLevel<frmGeoFtp>());
        QCOMPARE(t.ctx.GetSetting(Sect::FTP, typed + " UserID"), QString("me"));
        QCOMPARE(t.ctx.GetSetting(Sect::FTP, "FTP File 1"), file);
        QVERIFY(!t.ctx.GetSetting(Sect::Startup, Key::FTP_Top).isEmpty());
    }
};

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    TestGeoFtpWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestGeoFtpWindow.moc"
