#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "WindowsRig.h"
#include "browserone/WebBrowserControl.h"
#include "netfetch/frmInetget.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QtTest>

namespace {
struct GetterWindowRig : WindowsRig
{
    LocalWebServer server{[](const QString& url) {
        return LocalWebServer::Reply{QByteArray(1000, url.endsWith("b.gif") ? 'b' : 'a')};
    }};

    GetterWindowRig() { server.start(); }
    QAction* entry() { return main->findChild<QAction*>("mnuInetGet"); }
    frmInetget* getter() { return topLevel<frmInetget>(); }
};
} // namespace

class TestInetgetWindow : public QObject
{
    Q_OBJECT

private slots:
    void noConnectionNoGetter()
    {
        GetterWindowRig r;
        QVERIFY(r.entry()->isEnabled());
        r.t.probe.up = false;
        r.entry()->trigger();
        QCOMPARE(r.t.prompts.messages(), QStringList{"No internet connection!"});
        QVERIFY(!r.getter() || !r.getter()->isVisible());
    }

    void theMenuEntryFetchesAList()
    {
        GetterWindowRig r;
        const QString folder = r.t.folders.root() + "/got/";
        QVERIFY(putFile(folder + "list.txt",
                        (r.server.proxyAddress() + "/p/a.jpg\r\nb.gif\r\n").toLatin1()));
        r.t.prompts.answerPath(folder + "list.txt");
        r.entry()->trigger();
        QVERIFY(QFile::exists(folder + "a.jpg") && QFile::exists(folder + "b.gif"));
        frmInetget* w = r.getter();
        QVERIFY(w && !w->isVisible());
        QCOMPARE(w->findChild<QLabel*>("lblInetFiles")->text(),
                 r.server.proxyAddress() + "/p/b.gif, 2 of 2");
        QVERIFY(!r.t.ctx.GetSetting("Startup", "IGWE_W").isEmpty());
    }

    void theViewerShowsAPage()
    {
        GetterWindowRig r;
        const QString page = r.t.folders.root() + "/view.htm";
        QVERIFY(putFile(page, LocalWebServer::page("Viewed")));
        r.t.prompts.answerPath(QString());
        r.entry()->trigger(); // no list chosen: the window unloads
        frmInetget* w = r.getter();
        QVERIFY(w && !w->isVisible());
        w->Load();
        w->rules().frmInetgetCalls(InetgetCall::Viewer, page);
        QVERIFY(w->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(w->control().LocationName(), QString("Viewed"), 40000);
        QTRY_VERIFY(w->windowTitle().endsWith("[Done]"));
        w->close();
        QVERIFY(!w->rules().ViewerMode);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestInetgetWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestInetgetWindow.moc"
