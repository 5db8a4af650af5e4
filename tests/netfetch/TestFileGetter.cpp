#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "core/SettingsKeys.h"
#include "netfetch/FileGetter.h"
#include "netfetch/FileGetterHost.h"
#include "netfetch/UrlList.h"

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QtTest>

namespace {
// A server on 127.0.0.1 that misbehaves on purpose, by the first part of
// the path: /ok/<bytes>/name, /reset/, /loop/, /endless/, /short/,
// /stall/, /missing/<bytes>/name (a 404 with a page of that size).
class BadServer : public QTcpServer
{
public:
    BadServer()
    {
        listen(QHostAddress::LocalHost, 0);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = nextPendingConnection()) {
                connect(s, &QTcpSocket::readyRead, this, [this, s] { serve(s); });
                connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
            }
        });
    }
    QString url(const QString& path) const
    {
        return QString("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
    }
    static QByteArray body(int size, char fill = 'x') { return QByteArray(size, fill); }

private:
    void serve(QTcpSocket* s)
    {
        m_buffer[s] += s->readAll();
        if (!m_buffer[s].contains("\r\n\r\n"))
            return;
        const QStringList path = QString(m_buffer[s].split(' ').value(1)).split('/');
        m_buffer.remove(s);
        const QString kind = path.value(1);
        const int size = path.value(2).toInt();
        if (kind == "ok")
            reply(s, "200 OK", body(size, path.value(3).at(0).toLatin1()));
        else if (kind == "missing")
            reply(s, "404 Not Found", body(size, 'e'));
        else if (kind == "reset")
            s->abort();
        else if (kind == "loop")
            s->write("HTTP/1.1 302 Found\r\nLocation: /loop/x.jpg\r\nContent-Length: 0\r\n\r\n");
        else if (kind == "short") {
            s->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + body(1000));
            s->disconnectFromHost();
        } else if (kind == "stall")
            s->write("HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + body(600));
        else if (kind == "endless") {
            s->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
            auto* more = new QTimer(s);
            // Paced by what the peer takes, so the one thread that runs both
            // ends is not flooded.
            connect(more, &QTimer::timeout, s, [s] {
                if (s->bytesToWrite() < 65536)
                    s->write(body(16384));
            });
            more->start(1);
        }
    }
    static void reply(QTcpSocket* s, const QByteArray& status, const QByteArray& body)
    {
        s->write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
                 "\r\nConnection: close\r\n\r\n" + body);
        s->disconnectFromHost();
    }
    QHash<QTcpSocket*, QByteArray> m_buffer;
};

struct RecordingGetterHost : FileGetterHost
{
    QStringList calls;
    QStringList clipboard;
    std::function<void()> onShow;
    void showGetter() override
    {
        calls << "show";
        if (onShow)
            onShow();
    }
    void unloadGetter() override { calls << "unload"; }
    void copyToClipboard(const QString& text) override { clipboard << text; }
};

// A browser whose pages load by themselves, each with its address as text;
// addresses that contain "never" never finish.
class LoadingBrowser : public ScriptedBrowser
{
public:
    void Navigate(const QString& target) override
    {
        ScriptedBrowser::Navigate(target);
        url = target;
        title = "text of " + target + "\nsecond line";
        if (!target.contains("never"))
            QTimer::singleShot(0, this, [this] { load(url, title); });
    }
};

struct GetterRig : NavigatorRig
{
    RecordingGetterHost window;
    LoadingBrowser browser;
    BadServer server;
    std::unique_ptr<FileGetter> getter;
    QString folder;
    QStringList titles;

    GetterRig()
    {
        start();
        folder = t.folders.root() + "/lists/";
        QDir().mkpath(folder);
        t.ctx.SaveSetting(Sect::Startup, Key::GetterStallMs, "1000");
        t.ctx.SaveSetting(Sect::Startup, Key::GetterMaxBytes, "200000");
        getter = std::make_unique<FileGetter>(t.ctx, nav, window, browser);
        QObject::connect(&getter->form, &Control::viewChanged, [this] {
            if (titles.value(titles.size() - 1) != getter->form.text())
                titles << getter->form.text();
        });
    }
    // Writes the list and runs it as the menu entry does, the list chosen.
    void run(const QStringList& lines)
    {
        QVERIFY(putFile(folder + "urls.txt", lines.join("\r\n").toLatin1()));
        t.prompts.answerPath(folder + "urls.txt");
        getter->frmInetgetCalls(InetgetCall::GetList);
    }
    QStringList files() const
    {
        QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
        names.removeAll("urls.txt");
        return names;
    }
    QByteArray content(const QString& name) const
    {
        return QFile::exists(folder + name) ? fileBytes(folder + name) : "<missing>";
    }
};
} // namespace

class TestFileGetter : public QObject
{
    Q_OBJECT

private slots:
    void theFirstLinesDecideTheMode()
    {
        UrlList pages = UrlList::parse({"http://a.org/dir/", "http://a.org/x.jpg", "junk"});
        QVERIFY(!pages.fileMode);
        QCOMPARE(pages.urls.size(), 3);

        UrlList files = UrlList::parse({"", "http://a.org/p/one.jpg", "two.gif", "readme",
                                        "http://b.org/q/page.html", QString(10000, 'z'),
                                        "http://b.org/q/three.ZIP", "  ab.txt  "});
        QVERIFY(files.fileMode);
        QCOMPARE(files.urls, QStringList({"http://a.org/p/one.jpg", "http://a.org/p/two.gif",
                                          "http://b.org/q/three.ZIP", "http://b.org/q/ab.txt"}));
        // A junk first line makes a list of pages.
        QVERIFY(!UrlList::parse({"hello", "http://a.org/p/one.jpg"}).fileMode);
        QVERIFY(!UrlList::countsAsFile(".jpg") && UrlList::countsAsFile("a.jpg"));

        QStringList many;
        for (int i = 0; i < 15000; ++i)
            many << QString("http://a.org/p/f%1.jpg").arg(i);
        QCOMPARE(UrlList::parse(many).urls.size(), 14999);
    }

    void filesLandInTheListsFolderInOrder()
    {
        GetterRig r;
        const QString outside = QDir(r.t.folders.root()).entryList().join(',');
        r.run({r.server.url("ok/1000/a/pic.jpg"), r.server.url("ok/2000/b/pic.jpg"),
               r.server.url("ok/100/h/pic.jpg"), r.server.url("ok/500/c/small.gif"),
               r.server.url("ok/10/d/note.txt"), r.server.url("reset/x/r.jpg"),
               r.server.url("loop/x.jpg"), r.server.url("endless/x/e.zip"),
               r.server.url("short/x/s.zip"), r.server.url("stall/x/st.zip"),
               r.server.url("missing/300/x/gone.jpg"), r.server.url("missing/700/x/err.jpg"),
               r.server.url("ok/800/f/..%2F..%2Fup.jpg"), "/etc/passwd.jpg",
               r.server.url("ok/3000/g/pic.jpg")});
        QCOMPARE(r.t.prompts.shown.value(0).title, QString("File with URL list!"));
        QCOMPARE(r.files(), QStringList({"..%2F..%2Fup.jpg", "err.jpg", "note.txt", "pic.jpg",
                                         "pic1.jpg", "pic2.jpg"}));
        QCOMPARE(r.content("pic.jpg"), BadServer::body(1000, 'a'));
        QCOMPARE(r.content("pic1.jpg"), BadServer::body(2000, 'b'));
        QCOMPARE(r.content("pic2.jpg"), BadServer::body(3000, 'g'));
        QCOMPARE(r.content("note.txt"), BadServer::body(10, 'd'));
        QCOMPARE(r.content("err.jpg"), BadServer::body(700, 'e'));
        QCOMPARE(QDir(r.t.folders.root()).entryList().join(','), outside);
        QVERIFY(r.getter->FileMode);
        QVERIFY(!r.getter->GetterBusy);
        QCOMPARE(r.window.calls, QStringList({"show", "unload"}));
        QCOMPARE(r.getter->lblInetFiles.text(), r.server.url("ok/3000/g/pic.jpg") + ", 15 of 15");
        QVERIFY(r.titles.contains("Response Completed"));
        QVERIFY(r.titles.contains("ERROR"));
    }

    void aStopEndsTheListCleanly()
    {
        GetterRig r;
        QObject::connect(&r.getter->lblInetFiles, &Control::viewChanged, [&r] {
            if (r.getter->lblInetFiles.text().endsWith(", 3 of 5"))
                r.getter->Unload();
        });
        QStringList lines;
        for (int i = 0; i < 5; ++i)
            lines << r.server.url(QString("ok/600/%1/f.jpg").arg(char('a' + i)));
        r.run(lines);
        QCOMPARE(r.files(), QStringList({"f.jpg", "f1.jpg"}));
        QVERIFY(r.getter->StopFlag && !r.getter->GetterBusy);
        // A new list may start after the stop.
        r.run({r.server.url("ok/600/z/z.jpg")});
        QVERIFY(r.files().contains("z.jpg"));
    }

    void anUnreadableListIsRefused()
    {
        GetterRig r;
        r.t.prompts.answerPath(r.folder); // a folder, not a file
        r.getter->frmInetgetCalls(InetgetCall::GetList);
        QCOMPARE(r.window.calls, QStringList({"unload"}));
        r.getter->ListFile = r.folder;
        r.getter->GetterBusy = true;
        r.getter->FetchList();
        QCOMPARE(r.t.prompts.messages(), QStringList{"Incorrect file type!"});
        QVERIFY(!r.getter->GetterBusy && r.getter->StopFlag);
    }

    void pagesAreLoadedAndTheirTextSaved()
    {
        GetterRig r;
        r.t.ctx.SaveSetting(Sect::Startup, Key::GetterPageWaitMs, "300");
        r.run(
            {"http://pages.test/one/", "http://pages.test/never/", "http://pages.test/never.html"});
        QVERIFY(!r.getter->FileMode);
        QCOMPARE(r.browser.navigated,
                 QStringList({"http://pages.test/one/", "http://pages.test/never/",
                              "http://pages.test/never.html"}));
        // The page that never finished spent the wait of the whole list: the
        // one after it is stopped at once, and its text taken as it stands.
        QCOMPARE(r.browser.stops, 2);
        QCOMPARE(r.files(), QStringList({"Page.txt", "Page1.txt", "Page2.txt"}));
        QCOMPARE(r.content("Page.txt"),
                 QByteArray("text of http://pages.test/one/\r\nsecond line"));
        QCOMPARE(r.window.clipboard.size(), 3);
        QVERIFY(r.titles.contains("http://pages.test/one/     [Done]"));
    }

    void theViewerStaysOpenAndRefusesWindows()
    {
        GetterRig r;
        r.getter->frmInetgetCalls(InetgetCall::Viewer, r.folder + "x.htm");
        QVERIFY(r.getter->ViewerMode);
        QCOMPARE(r.window.calls, QStringList{"show"});
        QVERIFY(!r.browser.askNewWindow());
        r.getter->Unload();
        QVERIFY(!r.getter->ViewerMode);
    }

    void theSilentFetchReturnsText()
    {
        GetterRig r;
        QCOMPARE(r.getter->InvisibleInetUsage(r.server.url("ok/5/q/x.htm")), QString("qqqqq"));
        QCOMPARE(r.getter->InvisibleInetUsage(r.server.url("reset/x")), QString());
        QCOMPARE(r.getter->InvisibleInetUsage(r.server.url("endless/x")), QString());
        QVERIFY(r.files().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFileGetter)
#include "TestFileGetter.moc"
