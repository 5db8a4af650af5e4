// The cache actions against the command-line tools, in the same run on the
// same generated pages: Replace over 2,000 pages against grep -l and sed
// writing the changed copies, Find Email over 200 MB against ripgrep.
#include "CacheActionCorpus.h"
#include "TestContext.h"
#include "cache/CacheActionHost.h"
#include "cache/CacheActionRunner.h"
#include "cache/CacheState.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

namespace {

struct SilentHost : CacheActionHost
{
    int count = 0;
    int listCount() const override { return count; }
    QVector<int> selectedRows() const override { return {}; }
    void SaveCacheSettings() override {}
    void clearActionOptions() override {}
    void setControlsEnabled(bool) override {}
    void setTitle(const QString&) override {}
    void Increm(int) override {}
    void ResetCount() override {}
    void unloadProgress() override {}
    void unloadWait() override {}
    void pumpEvents() override { QCoreApplication::processEvents(); }
    void ListCacheFiles() override {}
    void showGraphicsPages(const QStringList&) override {}
};

double runAction(TestContext& t, const QStringList& files, const QString& outDir, int action)
{
    QDir().mkpath(outDir);
    CacheState state;
    state.FoundFiles = files;
    state.OutDir = outDir + "/";
    state.SelectedAction = qint16(action);
    SilentHost host;
    host.count = int(files.size());
    CacheActionRunner runner(t.ctx, state, host);
    QElapsedTimer clock;
    clock.start();
    runner.RunCacheAction();
    return clock.elapsed() / 1000.0;
}

double runShell(const QString& script)
{
    QElapsedTimer clock;
    clock.start();
    QProcess shell;
    shell.start("bash", {"-c", script});
    shell.waitForFinished(-1);
    return clock.elapsed() / 1000.0;
}

// Reads every page once, so that both sides find them in memory.
void warm(const QStringList& files)
{
    for (const QString& path : files) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            file.readAll();
    }
}

int filesIn(const QString& folder)
{
    return int(QDir(folder).entryList(QDir::Files).size());
}

void benchReplace(TestContext& t, const QString& root)
{
    const QStringList pages = CacheActionCorpus::make(root + "/replace", 2000, 8 * 1024);
    warm(pages);
    t.prompts.answerText(CacheActionCorpus::Marker);
    t.prompts.answerText("Replaced");
    const double ours = runAction(t, pages, root + "/ours", 12);
    const double peer =
        runShell(QString("cd '%1/replace' && grep -l -F %2 -- *.htm | while IFS= read -r f; do "
                         "sed 's/%2/Replaced/g' \"$f\" > '%1/peer/'\"$f\"; done")
                     .arg(root, CacheActionCorpus::Marker)
                     .prepend(QString("mkdir -p '%1/peer' && ").arg(root)));
    std::printf("Replace, 2000 pages: Vorlan %.3f s (%d copies), grep -l + sed %.3f s (%d "
                "copies); ratio %.2f (goal at most 1.5)\n",
                ours, filesIn(root + "/ours"), peer, filesIn(root + "/peer"), ours / peer);
}

void benchFindEmail(TestContext& t, const QString& root)
{
    const int pages = 400;
    const int bytesEach = 512 * 1024;
    const QStringList files = CacheActionCorpus::make(root + "/email", pages, bytesEach);
    warm(files);
    const double megabytes = double(pages) * bytesEach / 1e6;
    t.prompts.answer(PromptService::Yes); // the warning beyond 20 files
    const double ours = runAction(t, files, root + "/emailout", 15);
    if (QStandardPaths::findExecutable("rg").isEmpty()) {
        std::printf("Find Email, %.0f MB: Vorlan %.0f MB/s; ripgrep is missing\n", megabytes,
                    megabytes / ours);
        return;
    }
    const double peer =
        runShell(QString("rg -o -N --no-filename '[a-z0-9._-]+@[a-z0-9.-]+\\.[a-z]+' "
                         "'%1/email' > '%1/rg.txt'")
                     .arg(root));
    std::printf("Find Email, %.0f MB: Vorlan %.0f MB/s, rg -o %.0f MB/s; throughput ratio "
                "%.2f (goal at least 0.5)\n",
                megabytes, megabytes / ours, megabytes / peer, peer / ours);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    TestContext t;
    QTemporaryDir root;
    benchReplace(t, root.path());
    benchFindEmail(t, root.path());
    return 0;
}
