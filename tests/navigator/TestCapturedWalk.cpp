#include "LocalWebServer.h"
#include "NavigatorRig.h"
#include "navigator/CaptureIndex.h"
#include "navigator/CdxFetcher.h"

#include <QSignalSpy>
#include <QtTest>

namespace {
QVector<int> housesOf(const QBitArray& bits)
{
    QVector<int> list;
    for (int i = 0; i < bits.size(); ++i) {
        if (bits.testBit(i))
            list << i;
    }
    return list;
}

// The query's resume key, or the empty text on the first page.
QString resumeKeyOf(const QString& url)
{
    return QUrlQuery(QUrl(url)).queryItemValue("resumeKey", QUrl::FullyDecoded);
}

// A fetcher whose pauses are written down and then passed at once.
struct FetchRig
{
    std::function<LocalWebServer::Reply(const QString&)> archive;
    LocalWebServer server{[this](const QString& url) { return archive(url); }};
    CdxFetcher fetcher;
    QVector<int> waits;

    FetchRig()
    {
        server.start();
        fetcher.cdxBase = server.proxyAddress();
        fetcher.now = [] { return qint64(0); }; // a clock that stands still
        fetcher.wait = [this](int ms, std::function<void()> then) {
            waits << ms;
            QTimer::singleShot(0, &fetcher, then);
        };
    }
};

// The archive's answer for SoHo/Lofts in three pages tied by resume keys.
LocalWebServer::Reply pagedLofts(const QString& url)
{
    const QString key = resumeKeyOf(url);
    if (key.isEmpty())
        return {"http://www.geocities.com/SoHo/Lofts/1000/\n"
                "http://geocities.com:80/soho/lofts/1002/index.html\n\n"
                "com,geocities)/soho/lofts/1002 2009\n"};
    if (key == "com,geocities)/soho/lofts/1002 2009")
        return {"http://www.geocities.com/SoHo/Lofts/5000/pics/a.gif\n\nsecond page\n"};
    return {"http://www.geocities.com/SoHo/Lofts/9999\n"};
}
} // namespace

class TestCapturedWalk : public QObject
{
    Q_OBJECT

private slots:
    void aPageOfTheIndexGivesItsHouseNumbersAndResumeKey()
    {
        QBitArray houses(10000);
        int addresses = 0;
        const QByteArray body = "http://www.geocities.com/SoHo/1234/\r\n"
                                "https://WWW.GEOCITIES.COM/soho/1235/photos/me.jpg\n"
                                "http://geocities.com:80/SoHo/1236\n"
                                "http://www.geocities.com/SoHo/Lofts/1237/\n" // a Suburb's page
                                "http://www.geocities.com/SoHo/12380/\n"      // five digits
                                "http://www.geocities.com/SoHo/0999/\n"       // below the range
                                "http://www.geocities.com/SoHoX/1239/\n"      // another block
                                "garbage that is no address at all\n"
                                "\n"
                                "com,geocities)/soho/1236 20091026\n";
        const QByteArray key =
            CdxFetcher::parsePage(body, "geocities.com/SoHo", houses, &addresses);
        QCOMPARE(key, QByteArray("com,geocities)/soho/1236 20091026"));
        QCOMPARE(housesOf(houses), (QVector<int>{1234, 1235, 1236}));
        QCOMPARE(addresses, 8);
        // Japan's blocks join Neighborhood and Suburb with a dash; the last page has no key.
        QBitArray japan(10000);
        QVERIFY(CdxFetcher::parsePage("http://www.geocities.co.jp/Hollywood-Kouen/2001/\n",
                                      "geocities.co.jp/Hollywood-Kouen", japan)
                    .isEmpty());
        QCOMPARE(housesOf(japan), QVector<int>{2001});

        QCOMPARE(CdxFetcher::queryUrl("https://web.archive.org", "geocities.com/SoHo", 500, ""),
                 QString("https://web.archive.org/cdx/search/cdx?url=geocities.com/SoHo/"
                         "&matchType=prefix&collapse=urlkey&fl=original&filter=statuscode:200"
                         "&showResumeKey=true&limit=500"));
        QVERIFY(CdxFetcher::queryUrl("http://x", "b", 5, "a b+c").endsWith("&resumeKey=a%20b%2Bc"));
    }

    void theIndexIsKeptInTheMainDatabaseAndRefreshedAfterThirtyDays()
    {
        TestContext t;
        t.createAndOpenDatabase();
        const QDate day(2026, 3, 1);
        {
            CaptureIndex index(t.db);
            QVERIFY(!index.find("geocities.com/SoHo"));
            QVERIFY(index.isStale("geocities.com/SoHo", day));
            index.store("geocities.com/SoHo", {9999, 1000, 4321, 999, 10000}, day);
            index.store("geocities.com/Paris", {}, day);
        }
        CaptureIndex again(t.db); // a later start reads the table
        const CaptureIndex::Block* soho = again.find("geocities.com/SoHo");
        QVERIFY(soho);
        QCOMPARE(soho->houses, (QVector<int>{1000, 4321, 9999}));
        QCOMPARE(soho->fetched, day);
        QVERIFY(again.find("geocities.com/Paris")->houses.isEmpty());
        QVERIFY(!again.isStale("geocities.com/SoHo", day.addDays(29)));
        QVERIFY(again.isStale("geocities.com/SoHo", day.addDays(30)));
        again.store("geocities.com/SoHo", {2000}, day.addDays(30));
        CaptureIndex third(t.db);
        QCOMPARE(third.find("geocities.com/SoHo")->houses, QVector<int>{2000});
        QCOMPARE(t.db.recordCount(CaptureIndex::Table), 180);
    }

    void stepsMoveAmongCapturedNumbersAndWrap()
    {
        const QVector<int> houses{1200, 3000, 9100};
        QCOMPARE(CaptureIndex::step(houses, 1000, 1), 1200);
        QCOMPARE(CaptureIndex::step(houses, 1200, 1), 3000);
        QCOMPARE(CaptureIndex::step(houses, 2999, 1), 3000);
        QCOMPARE(CaptureIndex::step(houses, 9100, 1), 1200);
        QCOMPARE(CaptureIndex::step(houses, 3000, -1), 1200);
        QCOMPARE(CaptureIndex::step(houses, 1200, -1), 9100);
        QCOMPARE(CaptureIndex::step(houses, 9999, -1), 9100);
        QCOMPARE(CaptureIndex::step({}, 1200, 1), 0);
    }

    void theIndexIsReadPageByPageWithinTheRateLimit()
    {
        FetchRig r;
        r.archive = pagedLofts;
        QSignalSpy done(&r.fetcher, &CdxFetcher::finished);
        QSignalSpy progress(&r.fetcher, &CdxFetcher::progress);
        r.fetcher.fetch("geocities.com/SoHo/Lofts");
        r.fetcher.fetch("geocities.com/SoHo/Lofts"); // asked twice, fetched once
        QTRY_COMPARE(done.size(), 1);
        QCOMPARE(done.first().at(0).toString(), QString("geocities.com/SoHo/Lofts"));
        QCOMPARE(done.first().at(1).value<QVector<int>>(), (QVector<int>{1000, 1002, 5000, 9999}));
        QCOMPARE(r.server.requested.size(), 3);
        QVERIFY(r.server.requested.first().contains(
            "/cdx/search/cdx?url=geocities.com/SoHo/Lofts/&matchType=prefix"));
        QCOMPARE(resumeKeyOf(r.server.requested.at(2)), QString("second page"));
        // The first request leaves at once, each later one 2.5 s after the one before.
        QCOMPARE(r.waits, (QVector<int>{2500, 2500}));
        QCOMPARE(progress.last().at(1).toInt(), 4);
    }

    void busyAnswersAreWaitedOut()
    {
        FetchRig r;
        int asked = 0;
        r.archive = [&asked](const QString& url) -> LocalWebServer::Reply {
            switch (asked++) {
            case 0:
                return {"slow down", 429, false, 0, "Retry-After: 7\r\n"};
            case 1:
                return {"", 503};
            case 2:
                return {"", 503};
            case 3:
                return pagedLofts(url); // the first page, then the rest
            case 4:
                return {"", 429};
            default:
                return pagedLofts(url);
            }
        };
        QSignalSpy done(&r.fetcher, &CdxFetcher::finished);
        r.fetcher.fetch("geocities.com/SoHo/Lofts");
        QTRY_COMPARE(done.size(), 1);
        // Retry-After, then doubling from 10 s; an answer resets the doubling.
        QCOMPARE(r.waits, (QVector<int>{7000, 10000, 20000, 2500, 10000, 2500}));
        QCOMPARE(done.first().at(1).value<QVector<int>>(), (QVector<int>{1000, 1002, 5000, 9999}));
    }

    void slowBrokenAndStoppedAnswers()
    {
        FetchRig r;
        r.archive = [](const QString& url) -> LocalWebServer::Reply {
            if (url.contains("Slow"))
                return {"http://www.geocities.com/Slow/1500/\n", 200, false, 300};
            if (url.contains("Cut"))
                return {"http://www.geocities.com/Cut/1500/\n", 200, true};
            return {"", 500};
        };
        QSignalSpy done(&r.fetcher, &CdxFetcher::finished);
        QSignalSpy failed(&r.fetcher, &CdxFetcher::failed);
        QSignalSpy idle(&r.fetcher, &CdxFetcher::idle);
        r.fetcher.fetch("geocities.com/Slow");
        r.fetcher.fetch("geocities.com/Broken");
        r.fetcher.fetch("geocities.com/Cut");
        QTRY_COMPARE(done.size() + failed.size(), 2);
        QCOMPARE(done.first().at(1).value<QVector<int>>(), QVector<int>{1500});
        QCOMPARE(failed.first().at(0).toString(), QString("geocities.com/Broken"));
        QTRY_COMPARE(r.server.requested.size(), 3);
        r.server.releaseStalled(); // the answer ends short of its length
        QTRY_COMPARE(failed.size(), 2);
        QTRY_VERIFY(!idle.isEmpty());

        // A stop ends the fetch under way and drops the queue.
        r.fetcher.fetch("geocities.com/Cut");
        r.fetcher.fetch("geocities.com/Slow");
        QTRY_COMPARE(r.server.requested.size(), 4);
        r.fetcher.stop();
        QVERIFY(!r.fetcher.busy());
        QTest::qWait(400);
        QCOMPARE(r.server.requested.size(), 4);
        QCOMPARE(done.size(), 1);
        r.server.releaseStalled();
    }

    void theWalksKeepToCapturedNumbers()
    {
        NavigatorRig r;
        LocalWebServer server([](const QString&) -> LocalWebServer::Reply {
            return {"http://www.geocities.com/SoHo/Lofts/2000/\n"
                    "http://www.geocities.com/SoHo/Lofts/7000/\n"};
        });
        QVERIFY(server.start());
        CapturedWalk& walk = r.nav.capturedWalk();
        walk.fetcher().cdxBase = server.proxyAddress();
        QDate day(2026, 3, 1);
        walk.today = [&day] { return day; };
        r.start();
        r.pickNeighborhood("SoHo");
        r.pickSuburb("Lofts");
        r.pickDigits("12", "34");
        r.nav.archiveMenu().mnuPagesArchive.click();
        QVERIFY(walk.mnuWalkCaptured.isChecked() && walk.mnuWalkCaptured.isEnabled());

        // No index yet: the walk steps as described while it is filled.
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("1235"));
        QVERIFY(walk.prgCaptures.isVisible());
        QTRY_VERIFY(!walk.prgCaptures.isVisible());
        QCOMPARE(server.requested.size(), 1);

        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("2000"));
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("7000"));
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("2000")); // wrapped
        r.c.cmdPrevious.click();
        QCOMPARE(r.composer.HouseNumber, QString("7000"));
        QVERIFY(r.host.navigated().last().endsWith("/SoHo/Lofts/7000/"));

        // After 30 days the old index serves while it is asked for again;
        // the menu entry asks at once.
        day = day.addDays(30);
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("2000"));
        QTRY_COMPARE(server.requested.size(), 2);
        QTRY_VERIFY(!walk.fetcher().busy());
        QVERIFY(!walk.index().isStale(r.nav.blockOf("SoHo", "Lofts"), day));
        walk.mnuRefreshCaptures.click();
        QTRY_COMPARE(server.requested.size(), 3);
        QTRY_VERIFY(!walk.fetcher().busy());
        // The slider and the digit lists still reach every number.
        r.pickDigits("55", "55");
        QCOMPARE(r.composer.HouseNumber, QString("5555"));

        // RandNav draws only captured numbers of the block it lands on.
        r.t.state.gblnAssignRTC = false;
        const CatalogueData& cat = r.t.state.catalogue;
        const int soho = cat.find("SoHo");
        walk.index().store(r.nav.blockOf("SoHo", ""), {}, day); // drawn again
        for (int s = 1; s <= cat.gaintSuburbCount.value(soho); ++s)
            walk.index().store(r.nav.blockOf("SoHo", cat.suburb(soho, s)), {3333, 4444}, day);
        Wander& w = r.nav.wander();
        w.RandNavSelection = {static_cast<qint16>(soho)};
        r.host.calls.clear();
        for (int i = 0; i < 30; ++i)
            w.RandNavStep();
        const QStringList drawn = r.host.navigated();
        QCOMPARE(drawn.size(), 30);
        for (const QString& url : drawn)
            QVERIFY2(url.contains("/SoHo/") && (url.endsWith("/3333/") || url.endsWith("/4444/")),
                     qPrintable(url));
        w.RandNavSelection.clear();

        // Off, or with the original addresses, every number is visited.
        walk.mnuWalkCaptured.click();
        QVERIFY(!walk.mnuWalkCaptured.isChecked());
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "WalkCaptured"), QString("0"));
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("5556"));
        walk.mnuWalkCaptured.click();
        r.nav.archiveMenu().mnuPagesOriginal.click();
        QVERIFY(!walk.mnuWalkCaptured.isEnabled());
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("5557"));
        QCOMPARE(server.requested.size(), 3);
    }
};

QTEST_GUILESS_MAIN(TestCapturedWalk)
#include "TestCapturedWalk.moc"
