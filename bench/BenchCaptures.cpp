// The capture index of the archive mode: filling a Neighborhood's index of
// 200,000 captured addresses from a local server answering as the CDX index
// does, in pages tied by resume keys, and a step of AutoNav over an index
// of 9,000 numbers. The rate limit is set to nothing here: with the
// archive's own limit the fill is 2.5 s a page by design.
#include "LocalWebServer.h"
#include "NavigatorRig.h"
#include "navigator/CaptureIndex.h"
#include "navigator/CdxFetcher.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QUrlQuery>
#include <algorithm>
#include <cstdio>

namespace {
constexpr int Addresses = 200000;
constexpr int PageSize = 10000;

// The pages of the answer: addresses of every house and Suburb, the
// resume key of the next page after an empty line.
QVector<QByteArray> cdxPages()
{
    QVector<QByteArray> pages;
    QByteArray page;
    for (int i = 0; i < Addresses; ++i) {
        const int house = 1000 + (i * 7) % 9000;
        if (i % 3 == 0)
            page += "http://www.geocities.com/SoHo/Lofts/" + QByteArray::number(house) + "/\n";
        else
            page += "http://www.geocities.com/SoHo/" + QByteArray::number(house) + "/page" +
                    QByteArray::number(i) + ".html\n";
        if ((i + 1) % PageSize == 0) {
            pages << page;
            page.clear();
        }
    }
    for (int p = 0; p + 1 < pages.size(); ++p)
        pages[p] += "\npage" + QByteArray::number(p + 1) + "\n";
    return pages;
}

double fillFromServer(const QVector<QByteArray>& pages, int& houses)
{
    LocalWebServer server([&pages](const QString& url) -> LocalWebServer::Reply {
        const QString key = QUrlQuery(QUrl(url)).queryItemValue("resumeKey");
        const int p = key.isEmpty() ? 0 : key.mid(4).toInt();
        return {pages.value(p)};
    });
    server.start();
    TestContext t;
    t.createAndOpenDatabase();
    CaptureIndex index(t.db);
    CdxFetcher fetcher;
    fetcher.cdxBase = server.proxyAddress();
    fetcher.minIntervalMs = 0;
    fetcher.pageSize = PageSize;
    QEventLoop loop;
    QObject::connect(&fetcher, &CdxFetcher::finished,
                     [&](const QString& block, const QVector<int>& found) {
                         index.store(block, found, QDate::currentDate());
                         houses = found.size();
                         loop.quit();
                     });
    QElapsedTimer clock;
    clock.start();
    fetcher.fetch("geocities.com/SoHo");
    loop.exec();
    return clock.nsecsElapsed() / 1e6;
}

double parseAndStore(const QVector<QByteArray>& pages)
{
    TestContext t;
    t.createAndOpenDatabase();
    CaptureIndex index(t.db);
    QElapsedTimer clock;
    clock.start();
    QBitArray houses(CaptureIndex::LastHouse + 1);
    for (const QByteArray& page : pages)
        CdxFetcher::parsePage(page, "geocities.com/SoHo", houses);
    QVector<int> list;
    for (int h = CaptureIndex::FirstHouse; h < houses.size(); ++h) {
        if (houses.testBit(h))
            list << h;
    }
    index.store("geocities.com/SoHo", list, QDate::currentDate());
    return clock.nsecsElapsed() / 1e6;
}

void autoNavSteps()
{
    NavigatorRig r;
    r.start();
    r.pickNeighborhood("SoHo");
    r.pickSuburb("Lofts");
    r.nav.capturedWalk().fetcher().cdxBase = "http://127.0.0.1:9";
    r.nav.archiveMenu().mnuPagesArchive.click();
    QVector<int> all;
    for (int h = 1000; h <= 9999; ++h)
        all << h;
    all.resize(9000);
    r.nav.capturedWalk().index().store(r.nav.blockOf("SoHo", "Lofts"), all, QDate::currentDate());
    const int steps = 9000;
    QElapsedTimer clock;
    clock.start();
    int house = 1000;
    for (int i = 0; i < steps; ++i)
        house = r.nav.CapturedStep(QString::number(house), 1);
    const double lookup = clock.nsecsElapsed() / 1e6 / steps;
    QVector<double> clicks;
    for (int i = 0; i < 500; ++i) {
        clock.restart();
        r.c.cmdNext.click();
        clicks << clock.nsecsElapsed() / 1e6;
        r.host.calls.clear();
    }
    std::sort(clicks.begin(), clicks.end());
    std::printf("  AutoNav over 9,000 captured numbers: the captured step %.4f ms;"
                " a whole Next (compose, save the address, open) median %.3f ms, worst %.3f ms\n",
                lookup, clicks[clicks.size() / 2], clicks.last());
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QVector<QByteArray> pages = cdxPages();
    std::printf("capture index (%d addresses in %lld pages)\n", Addresses,
                static_cast<long long>(pages.size()));
    QVector<double> fills, stores;
    int houses = 0;
    for (int round = 0; round < 5; ++round) {
        fills << fillFromServer(pages, houses);
        stores << parseAndStore(pages);
    }
    std::sort(fills.begin(), fills.end());
    std::sort(stores.begin(), stores.end());
    std::printf("  fill from the local server, %d numbers  median %7.1f ms, worst %7.1f ms\n",
                houses, fills[2], fills.last());
    std::printf("  parse and store alone                  median %7.1f ms, worst %7.1f ms\n",
                stores[2], stores.last());
    autoNavSteps();
    return 0;
}
