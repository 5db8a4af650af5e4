// Browser One against pages served on 127.0.0.1: the time from Open to the
// page's completion (the first page starts the engine, later ones reuse it),
// the memory with Browser One open, and an AutoNav walk of a thousand pages
// with a short wait, showing whether memory grows past its first pages' level.
#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "ProcessMemory.h"
#include "TestContext.h"
#include "browserone/frmWBOne.h"
#include "core/WindowRegistry.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <cstdio>

namespace {

LocalWebServer::Reply page(const QString& url)
{
    static const QRegularExpression house(QStringLiteral("/(\\d{4})/$"));
    const QString number = house.match(url).captured(1);
    QString body = QStringLiteral("<h1>Welcome to house %1</h1>").arg(number);
    for (int i = 0; i < 40; ++i)
        body += QStringLiteral("<p>Paragraph %1 of a home page, with <a href='#%1'>a link</a>.</p>")
                    .arg(i);
    return {LocalWebServer::page("House " + number, body)};
}

int pagesServed(const LocalWebServer& server)
{
    return static_cast<int>(std::count_if(server.requested.begin(), server.requested.end(),
                                          [](const QString& u) { return u.contains("geocities"); }));
}

double mb(qint64 kb) { return kb / 1024.0; }

// Waits in an event loop, as the program does: the engine's own work runs
// on this thread's loop, and a busy poll would starve it.
template <typename Predicate> bool waitFor(Predicate done, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QTest::qWait(2);
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    LocalWebServer server(page);
    if (!server.start())
        return 1;
    EngineEnvironment::prepare(server.proxyAddress());

    TestContext t;
    t.createAndOpenDatabase();
    WindowRegistry windows(t.ctx);
    Navigator& nav = windows.main()->navigator();
    nav.LoadCatalogue();
    const qint64 before = ProcessMemory::withChildrenKb();

    auto completed = [&](const QString& house) {
        return windows.browserOne() &&
               windows.browserOne()->rules().form.text() ==
                   QStringLiteral("     House %1          [Done]").arg(house);
    };

    QElapsedTimer clock;
    clock.start();
    nav.controls().cmdOpenSite.click();

    if (!waitFor([&] { return completed("1000"); }, 60000)) {
        std::fprintf(stderr, "first page did not complete: %s\n",
                     windows.browserOne()
                         ? qPrintable(windows.browserOne()->rules().form.text())
                         : "no window");
        return 2;
    }
    const double firstMs = clock.nsecsElapsed() / 1e6;
    QVector<double> later;
    for (int i = 1; i <= 9; ++i) {
        clock.restart();
        nav.controls().cmdNext.click();
        if (!waitFor([&] { return completed(QString::number(1000 + i)); }, 30000))
            return 3;
        later << clock.nsecsElapsed() / 1e6;
    }
    std::sort(later.begin(), later.end());
    QTest::qWait(500);
    const qint64 selfOpen = ProcessMemory::selfKb();
    const qint64 allOpen = ProcessMemory::withChildrenKb();

    std::printf("browser one (pages from 127.0.0.1, platform %s)\n",
                qPrintable(qEnvironmentVariable("QT_QPA_PLATFORM", "default")));
    std::printf("  Open to completion, first page (engine start)  %8.1f ms\n", firstMs);
    std::printf("  Open to completion, later pages (median of 9)  %8.1f ms\n",
                later[later.size() / 2]);
    std::printf("  memory before Browser One: %.1f MB; with it open: %.1f MB"
                " (this process %.1f MB, engine helpers %.1f MB)\n",
                mb(before), mb(allOpen), mb(selfOpen), mb(allOpen - selfOpen));

    // The walk: AutoNav with a short wait, each page held until complete.
    const int walk = qEnvironmentVariableIntValue("BENCH_WALK_PAGES") > 0
                         ? qEnvironmentVariableIntValue("BENCH_WALK_PAGES")
                         : 1000;
    t.state.gblnFullPages = true;
    nav.wander().setInterval(10);
    const int start = pagesServed(server);
    nav.controls().mnuAutoNav.click();
    clock.restart();
    qint64 baseSelf = 0, baseAll = 0;
    std::printf("  AutoNav walk of %d pages, 10 ms wait:\n", walk);
    for (int mark : {50, walk / 4, walk / 2, 3 * walk / 4, walk}) {
        if (!waitFor([&] { return pagesServed(server) - start >= mark; }, 600000))
            return 4;
        const qint64 self = ProcessMemory::selfKb();
        const qint64 all = ProcessMemory::withChildrenKb();
        if (mark == 50) {
            baseSelf = self;
            baseAll = all;
        }
        std::printf("    after %4d pages (%6.1f s): process %.1f MB (%+.1f%%), with engine "
                    "helpers %.1f MB (%+.1f%%)\n",
                    mark, clock.elapsed() / 1000.0, mb(self), 100.0 * (self - baseSelf) / baseSelf,
                    mb(all), 100.0 * (all - baseAll) / baseAll);
    }
    nav.StopAutoModes();
    return 0;
}
