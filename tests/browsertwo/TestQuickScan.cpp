#include "LocalWebServer.h"
#include "browsertwo/QuickScan.h"
#include "browsertwo/TitleTest.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

// Answers every connection with bytes that are no HTTP, then hangs up.
class GarbageServer : public QTcpServer
{
public:
    GarbageServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection()) {
                socket->write(QByteArray("\x00\x7f\x13 SSH-2.0-nothing\r\n\r\n", 24));
                socket->disconnectFromHost();
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
        listen(QHostAddress::LocalHost, 0);
    }
};

int port = 0;

QString at(const QString& word)
{
    return QStringLiteral("http://127.0.0.1:%1/~%2").arg(port).arg(word);
}

LocalWebServer::Reply answer(const QString& url)
{
    const QString word = url.mid(url.lastIndexOf(QLatin1Char('~')) + 1);
    if (word.startsWith("real"))
        return {LocalWebServer::page("Home of " + word)};
    if (word == "untitled")
        return {"<html><body>Nothing</body></html>", 404};
    if (word == "toreal" || word == "tomissing")
        return {{},
                302,
                false,
                0,
                "Location: " + at(word == "toreal" ? "realthree" : "missing").toLatin1() + "\r\n"};
    if (word == "stall")
        return {"<html><body>" + QByteArray(300, 'x'), 200, true};
    if (word == "stalltitled")
        return {LocalWebServer::page("Slow but real"), 200, true};
    return {LocalWebServer::page("Not Found"), 404};
}

QuickScan::Options quick(int inFlight = 16, int timeoutMs = 1500)
{
    QuickScan::Options o;
    o.inFlight = inFlight;
    o.timeoutMs = timeoutMs;
    return o;
}

} // namespace

class TestQuickScan : public QObject
{
    Q_OBJECT
    LocalWebServer server{answer};

    QVector<QuickScan::Item> items(const QStringList& words)
    {
        QVector<QuickScan::Item> list;
        for (const QString& word : words)
            list.append({word, at(word)});
        return list;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(server.start());
        port = server.serverPort();
    }

    void init()
    {
        server.releaseStalled();
        server.requested.clear();
    }

    void keepsThePagesThatPassTheTitleTestAndCountsTheFailures()
    {
        GarbageServer garbage;
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost, 0));
        const quint16 refusedPort = closed.serverPort();
        closed.close();

        QuickScan scan;
        QSignalSpy done(&scan, &QuickScan::finished);
        QVector<QuickScan::Item> list = items({"realone", "gone", "untitled", "toreal", "tomissing",
                                               "stall", "stalltitled", "realtwo"});
        list.insert(
            3, {"garbage", QStringLiteral("http://127.0.0.1:%1/~g").arg(garbage.serverPort())});
        list.insert(4, {"refused", QStringLiteral("http://127.0.0.1:%1/~r").arg(refusedPort)});
        scan.start(list, {"Not Found", at("")}, quick());
        QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 20000);
        QCOMPARE(done[0][0].toStringList(),
                 QStringList({"realone", "toreal", "stalltitled", "realtwo"}));
        QCOMPARE(done[0][1].toBool(), false);
        QCOMPARE(scan.done(), 10);
        QCOMPARE(scan.found(), 4);
        // The garbage, the refused connection and the stall without a title.
        QCOMPARE(scan.failed(), 3);
        QVERIFY(server.requested.contains("http://127.0.0.1/~realthree"));
        QVERIFY(!scan.isRunning());
    }

    void holdsTheRequestsInFlightAndStopsAtOnce()
    {
        QuickScan scan;
        QSignalSpy done(&scan, &QuickScan::finished);
        QSignalSpy progress(&scan, &QuickScan::progress);
        scan.start(items({"stall", "stall", "stall", "realone"}), {"Not Found"}, quick(2, 60000));
        QTRY_COMPARE_WITH_TIMEOUT(server.requested.size(), 2, 10000);
        QTest::qWait(300);
        QCOMPARE(server.requested.size(), 2);
        QVERIFY(scan.isRunning());
        scan.stop();
        QCOMPARE(done.size(), 1);
        QCOMPARE(done[0][1].toBool(), true);
        QCOMPARE(done[0][0].toStringList(), QStringList());
        QTest::qWait(300);
        QCOMPARE(server.requested.size(), 2);
        QCOMPARE(progress.last().at(3).toInt(), 4);
        // The scanner can run again.
        scan.start(items({"realone"}), {"Not Found"}, quick());
        QTRY_COMPARE_WITH_TIMEOUT(done.size(), 2, 10000);
        QCOMPARE(done[1][0].toStringList(), QStringList({"realone"}));
    }

    void titlesAreReadAsABrowserShowsThem()
    {
        QCOMPARE(TitleOfHtml("<HTML><Title lang=en>\n  Tripod:&nbsp;Defunct\tLink </TITLE>"),
                 QString("Tripod: Defunct Link"));
        QCOMPARE(TitleOfHtml("<title>A &amp; B &#8211; &#x41;&lt;&bogus;</title><title>2</title>"),
                 QString("A & B \u2013 A<&bogus;"));
        QCOMPARE(TitleOfHtml("<title>Caf\xe9</title>"), QString("Caf\u00e9"));
        QCOMPARE(TitleOfHtml("<title>Caf\xc3\xa9</title>"), QString("Caf\u00e9"));
        QCOMPARE(TitleOfHtml("<body>no title here</body>"), QString());
        QCOMPARE(TitleOfHtml("<title>never closed"), QString());
    }
};

QTEST_GUILESS_MAIN(TestQuickScan)
#include "TestQuickScan.moc"
