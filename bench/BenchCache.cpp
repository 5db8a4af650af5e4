// The cache manager against the command-line tools, on a corpus made here:
// listing 20,000 pages against `find DIR -maxdepth 2 -type f -name '*.htm'`.
#include "CacheCorpus.h"
#include "cache/CacheFileModel.h"
#include "cache/CacheListing.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace {
constexpr int Rounds = 7;

double median(QVector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// The window's listing: the folders read and the list's model filled.
double listOnce(const QString& root, int expected)
{
    QElapsedTimer clock;
    clock.start();
    const CacheListing::Result found = CacheListing::list(root + '/', true, "htm", QString());
    CacheFileModel model;
    model.setFiles(found.files);
    const double ms = clock.nsecsElapsed() / 1e6;
    if (model.rowCount() != expected)
        std::fprintf(stderr, "listed %d files, not %d\n", model.rowCount(), expected);
    return ms;
}

double findOnce(const QString& root, int expected)
{
    QElapsedTimer clock;
    clock.start();
    QProcess find;
    find.start("find", {root, "-maxdepth", "2", "-type", "f", "-name", "*.htm"});
    find.waitForFinished(-1);
    const QByteArray out = find.readAllStandardOutput();
    const double ms = clock.nsecsElapsed() / 1e6;
    if (out.count('\n') != expected)
        std::fprintf(stderr, "find listed %lld files, not %d\n", qint64(out.count('\n')), expected);
    return ms;
}

void benchListing(const QString& root)
{
    CacheCorpus::Shape shape;
    shape.folders = 99; // with the root: 100 folders of 200 pages
    const int pages = CacheCorpus::make(root, shape);
    QVector<double> ours;
    QVector<double> theirs;
    findOnce(root, pages); // both start from a warm file system cache
    listOnce(root, pages);
    for (int i = 0; i < Rounds; ++i) {
        ours << listOnce(root, pages);
        theirs << findOnce(root, pages);
    }
    const double a = median(ours);
    const double b = median(theirs);
    std::printf("cache listing of %d pages in 100 folders: vorlan %.1f ms, find %.1f ms, "
                "ratio %.2f (goal at most 1.50)\n",
                pages, a, b, a / b);
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir work;
    if (!work.isValid())
        return 1;
    benchListing(work.path() + "/listing");
    return 0;
}
