// Browser Two's quick scan against ffuf: the same 10,000 words, the same
// local server and the same number of requests in flight, in the same run.
// An argument sets the number in flight (default 16).
#include "LocalWebServer.h"
#include "browsertwo/QuickScan.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>

namespace {
constexpr int Words = 10000;
int InFlight = 16;

// Every hundredth word has a page; the others get the host's missing page.
LocalWebServer::Reply answer(const QString& url)
{
    if (url.endsWith(QLatin1String("00")))
        return {LocalWebServer::page("Home of " + url.section('/', -1))};
    return {LocalWebServer::page("Not Found"), 404};
}

// The server runs on a thread of its own, as a server in another process
// would, so that it takes no time from the scanner's thread.
class ServerThread : public QThread
{
public:
    quint16 port = 0;
    void run() override
    {
        LocalWebServer server(answer);
        server.start();
        port = server.serverPort();
        exec();
    }
};

double timeFfuf(const QString& words, quint16 port)
{
    if (QStandardPaths::findExecutable("ffuf").isEmpty())
        return -1;
    QElapsedTimer clock;
    clock.start();
    QProcess tool;
    tool.start("ffuf", {"-s", "-t", QString::number(InFlight), "-w", words, "-u",
                        QString("http://127.0.0.1:%1/~FUZZ").arg(port)});
    tool.waitForFinished(600000);
    return clock.elapsed() / 1000.0;
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc > 1)
        InFlight = std::max(QString(argv[1]).toInt(), 1);
    ServerThread server;
    server.start();
    while (server.port == 0)
        QThread::msleep(5);
    QTemporaryDir work;
    QFile list(work.path() + "/words.txt");
    list.open(QIODevice::WriteOnly);
    QVector<QuickScan::Item> items;
    for (int i = 0; i < Words; ++i) {
        const QString word = QString("w%1").arg(i, 5, 10, QLatin1Char('0'));
        items.append({word, QString("http://127.0.0.1:%1/~%2").arg(server.port).arg(word)});
        list.write(word.toLatin1() + '\n');
    }
    list.close();

    QuickScan scan;
    QStringList found;
    QObject::connect(&scan, &QuickScan::finished, &app, [&](const QStringList& words, bool) {
        found = words;
        app.quit();
    });
    QuickScan::Options options;
    options.inFlight = InFlight;
    QElapsedTimer clock;
    clock.start();
    scan.start(items, {"Not Found"}, options);
    app.exec();
    const double ours = clock.elapsed() / 1000.0;
    const double ffuf = timeFfuf(list.fileName(), server.port);
    server.quit();
    server.wait();

    std::printf("quick scan, %d words against a local server (%d in flight)\n", Words, InFlight);
    std::printf("  vorlan  %7.2f s  %8.0f requests/s  %lld found, %d failed\n", ours, Words / ours,
                qint64(found.size()), scan.failed());
    if (ffuf >= 0)
        std::printf("  ffuf    %7.2f s  %8.0f requests/s  ratio vorlan/ffuf (requests/s) %.2f\n",
                    ffuf, Words / ffuf, ffuf / ours);
    return found.size() == Words / 100 ? 0 : 1;
}
