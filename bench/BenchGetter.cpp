// The file getter's file mode against wget and aria2c: the same list of
// 1,000 files of 20 KiB, from the same local server, in the same run.
#include "LocalWebServer.h"
#include "NavigatorRig.h"
#include "ScriptedBrowser.h"
#include "core/SettingsKeys.h"
#include "netfetch/FileGetter.h"
#include "netfetch/FileGetterHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>

namespace {
constexpr int Files = 1000;
constexpr int FileBytes = 20 * 1024;

struct SilentHost : FileGetterHost
{
    void showGetter() override {}
    void unloadGetter() override {}
    void copyToClipboard(const QString&) override {}
};

// The server runs on a thread of its own, as a server in another process
// would, so that it takes no time from the getter's thread.
class ServerThread : public QThread
{
public:
    quint16 port = 0;
    void run() override
    {
        LocalWebServer server(
            [](const QString&) { return LocalWebServer::Reply{QByteArray(FileBytes, 'v')}; });
        server.start();
        port = server.serverPort();
        exec();
    }
};

QString writeList(const QString& folder, quint16 port)
{
    QDir().mkpath(folder);
    QFile list(folder + "/list.txt");
    list.open(QIODevice::WriteOnly);
    for (int i = 0; i < Files; ++i)
        list.write(QString("http://127.0.0.1:%1/files/f%2.jpg\n").arg(port).arg(i).toLatin1());
    return list.fileName();
}

int countFiles(const QString& folder)
{
    return int(QDir(folder).entryList({"f*.jpg"}, QDir::Files).size());
}

double timeTool(const QString& program, const QStringList& args)
{
    if (QStandardPaths::findExecutable(program).isEmpty())
        return -1;
    QElapsedTimer clock;
    clock.start();
    QProcess tool;
    tool.start(program, args);
    tool.waitForFinished(600000);
    return clock.elapsed() / 1000.0;
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    ServerThread server;
    server.start();
    while (server.port == 0)
        QThread::msleep(5);
    QTemporaryDir work;

    NavigatorRig rig;
    rig.start();
    SilentHost host;
    ScriptedBrowser browser;
    FileGetter getter(rig.t.ctx, rig.nav, host, browser);
    const QString ours = work.path() + "/vorlan";
    getter.ListFile = writeList(ours, server.port);
    getter.TargetDir = ours + "/";
    QElapsedTimer clock;
    clock.start();
    getter.FetchList();
    const double vorlan = clock.elapsed() / 1000.0;

    const QString wgetDir = work.path() + "/wget";
    const QString ariaDir = work.path() + "/aria2c";
    const double wget =
        timeTool("wget", {"-q", "-P", wgetDir, "-i", writeList(wgetDir, server.port)});
    const double aria =
        timeTool("aria2c", {"-q", "-j16", "-d", ariaDir, "-i", writeList(ariaDir, server.port)});
    server.quit();
    server.wait();

    std::printf("getter, %d files of %d KiB from a local server (parallel %d)\n", Files,
                FileBytes / 1024, getter.parallel());
    std::printf("  vorlan  %7.2f s  %d files\n", vorlan, countFiles(ours));
    if (wget >= 0)
        std::printf("  wget    %7.2f s  %d files  ratio vorlan/wget %.2f\n", wget,
                    countFiles(wgetDir), vorlan / wget);
    if (aria >= 0)
        std::printf("  aria2c  %7.2f s  %d files  ratio vorlan/aria2c %.2f\n", aria,
                    countFiles(ariaDir), vorlan / aria);
    return countFiles(ours) == Files ? 0 : 1;
}
