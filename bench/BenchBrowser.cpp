// Browser One against pages served on 127.0.0.1: the time from Open to the
// page's completion (the first page starts the engine, later ones reuse it),
// beside a bare QWebEngineView loading the same pages from the same server,
// the memory with Browser One open, and an AutoNav walk of a thousand pages
// with a short wait, showing whether memory grows past its first pages' level.
#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "ProcessMemory.h"
#include "TestContext.h"
#include "app/WindowRegistry.h"
#include "browserone/frmWBOne.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QWebEngineView>
#include <algorithm>
#include <cstdio>
#include <optional>

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
    return static_cast<int>(
        std::count_if(server.requested.begin(), server.requested.end(),
                      [](const QString& u) { return u.contains("geocities"); }));
}

double mb(qint64 kb)
{
    return kb / 1024.0;
}

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

constexpr int LaterPages = 9;
// Set in the bare view's process: the server's proxy address, the view's width and height.
const char* const BareViewVariable = "VORLAN_BENCH_BARE_VIEW";

QString houseUrl(int house)
{
    return QStringLiteral("http://www.geocities.com/Area51/%1/").arg(house);
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct PageTimes
{
    double first = 0;
    double later = 0; // median
};

// The bare view, run in a process of its own so that its first page, too,
// starts the engine: the same pages, timed from load to loadFinished.
int runBareView(const QStringList& setting)
{
    if (setting.size() != 3)
        return 1;
    EngineEnvironment::prepare(setting[0]);
    QElapsedTimer clock;
    clock.start();
    QWebEngineView view;
    view.resize(setting[1].toInt(), setting[2].toInt());
    view.show();
    bool finished = false;
    QObject::connect(view.page(), &QWebEnginePage::loadFinished, [&](bool) { finished = true; });
    QVector<double> times;
    for (int i = 0; i <= LaterPages; ++i) {
        if (i > 0)
            clock.restart();
        finished = false;
        view.load(QUrl(houseUrl(1000 + i)));
        if (!waitFor([&] { return finished; }, 60000))
            return 2;
        times << clock.nsecsElapsed() / 1e6;
    }
    // QString::number, not printf: the parent reads the figures in the C locale.
    std::printf("%s %s\n", qPrintable(QString::number(times[0], 'f', 3)),
                qPrintable(QString::number(median(times.mid(1)), 'f', 3)));
    return 0;
}

// Starts the bare view's process and serves its pages meanwhile.
std::optional<PageTimes> timeBareView(const QString& proxy, const QSize& size)
{
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(BareViewVariable,
               QStringLiteral("%1;%2;%3").arg(proxy).arg(size.width()).arg(size.height()));
    child.setProcessEnvironment(env);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {});
    if (!waitFor([&] { return child.state() == QProcess::NotRunning; }, 300000)) {
        child.kill();
        child.waitForFinished();
        return std::nullopt;
    }
    const QStringList lines =
        QString::fromLatin1(child.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    const QStringList fields = lines.value(lines.size() - 1).split(' ');
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0 || fields.size() != 2)
        return std::nullopt;
    return PageTimes{fields[0].toDouble(), fields[1].toDouble()};
}

} // namespace

int main(int argc, char* argv[])
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    if (qEnvironmentVariableIsSet(BareViewVariable))
        return runBareView(qEnvironmentVariable(BareViewVariable).split(';'));
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
                     windows.browserOne() ? qPrintable(windows.browserOne()->rules().form.text())
                                          : "no window");
        return 2;
    }
    PageTimes one;
    one.first = clock.nsecsElapsed() / 1e6;
    QVector<double> later;
    for (int i = 1; i <= LaterPages; ++i) {
        clock.restart();
        nav.controls().cmdNext.click();
        if (!waitFor([&] { return completed(QString::number(1000 + i)); }, 30000))
            return 3;
        later << clock.nsecsElapsed() / 1e6;
    }
    one.later = median(later);
    QTest::qWait(500);
    const qint64 selfOpen = ProcessMemory::selfKb();
    const qint64 allOpen = ProcessMemory::withChildrenKb();
    const auto bare = timeBareView(server.proxyAddress(), windows.browserOne()->WBOne()->size());
    if (!bare) {
        std::fprintf(stderr, "the bare view did not load its pages\n");
        return 5;
    }

    std::printf("browser one (pages from 127.0.0.1, platform %s)\n",
                qPrintable(qEnvironmentVariable("QT_QPA_PLATFORM", "default")));
    const auto line = [](const char* label, double ms) {
        std::printf("  %-50s %8.1f ms\n", label, ms);
    };
    line("Open to completion, first page (engine start)", one.first);
    line("Open to completion, later pages (median of 9)", one.later);
    line("bare QWebEngineView in its own process, first page", bare->first);
    line("bare QWebEngineView, later pages (median of 9)", bare->later);
    std::printf("  Browser One / bare view: first page %.2f, later pages %.2f\n",
                one.first / bare->first, one.later / bare->later);
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
    // The engine's page process grows and shrinks with its garbage
    // collection, so memory is sampled every ten pages and compared as means
    // over a hundred pages: the first hundred after the first fifty, and the
    // last hundred.
    struct Sample
    {
        int page;
        qint64 self;
        qint64 all;
    };
    QVector<Sample> samples;
    for (int mark = 10; mark <= walk; mark += 10) {
        if (!waitFor([&] { return pagesServed(server) - start >= mark; }, 600000))
            return 4;
        samples.append({mark, ProcessMemory::selfKb(), ProcessMemory::withChildrenKb()});
    }
    const double seconds = clock.elapsed() / 1000.0;
    nav.StopAutoModes();
    auto mean = [&](int from, int to, bool all) {
        double sum = 0;
        int n = 0;
        for (const Sample& x : samples) {
            if (x.page > from && x.page <= to) {
                sum += all ? x.all : x.self;
                ++n;
            }
        }
        return n ? sum / n : 0.0;
    };
    auto peak = [&](bool all) {
        qint64 top = 0;
        for (const Sample& x : samples)
            top = std::max(top, all ? x.all : x.self);
        return top;
    };
    const double firstSelf = mean(50, 150, false), lastSelf = mean(walk - 100, walk, false);
    const double firstAll = mean(50, 150, true), lastAll = mean(walk - 100, walk, true);
    std::printf("  AutoNav walk of %d pages, 10 ms wait, in %.1f s:\n", walk, seconds);
    std::printf("    this process:       pages 51-150 %.1f MB, last 100 %.1f MB (%+.1f%%),"
                " peak %.1f MB\n",
                mb(firstSelf), mb(lastSelf), 100.0 * (lastSelf - firstSelf) / firstSelf,
                mb(peak(false)));
    std::printf("    with engine helpers: pages 51-150 %.1f MB, last 100 %.1f MB (%+.1f%%),"
                " peak %.1f MB\n",
                mb(firstAll), mb(lastAll), 100.0 * (lastAll - firstAll) / firstAll, mb(peak(true)));
    return 0;
}
