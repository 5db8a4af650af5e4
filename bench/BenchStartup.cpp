// Time from process start to the Navigator on the screen, for a first run
// (data folder and database made) and a later run, beside the same figure
// for a bare Qt window. Each figure is the median of several runs, each in
// a process of its own.
#include "app/Application.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

qint64 nowNs()
{
    timespec ts;
    clock_gettime(CLOCK_REALTIME, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

void reportShown()
{
    std::printf("SHOWN %lld\n", static_cast<long long>(nowNs()));
    std::fflush(stdout);
}

// A bare window, empty or with one line of text: the first text of a
// process loads the font configuration, which an empty window never does.
int bareWindow(int argc, char* argv[], bool withText)
{
    QApplication app(argc, argv);
    QWidget window;
    window.resize(420, 240);
    if (withText)
        (new QLabel(QStringLiteral("Welcome to Vorlan!"), &window))->move(10, 10);
    window.show();
    QTimer::singleShot(0, &app, [] {
        reportShown();
        QCoreApplication::exit(0);
    });
    return QApplication::exec();
}

// One child run; the milliseconds from its start to its window shown.
double timedRun(const QString& mode, const QString& home)
{
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("BENCH_MODE", mode);
    env.insert("XDG_CONFIG_HOME", home + "/config");
    env.insert("XDG_DATA_HOME", home + "/data");
    env.insert("XDG_RUNTIME_DIR", home + "/runtime");
    child.setProcessEnvironment(env);
    child.setProgram(QCoreApplication::applicationFilePath());
    const qint64 start = nowNs();
    child.start();
    child.waitForFinished(60000);
    const QByteArray out = child.readAllStandardOutput();
    const int at = out.indexOf("SHOWN ");
    if (at < 0)
        return -1;
    const qint64 shown = out.mid(at + 6).trimmed().split('\n').first().toLongLong();
    return (shown - start) / 1e6;
}

double median(QVector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.isEmpty() ? -1 : v[v.size() / 2];
}

int driver(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int runs = 7;
    QVector<double> first, later, bare, text;
    for (int i = 0; i < runs; ++i) {
        QTemporaryDir home;
        QDir().mkpath(home.path() + "/runtime");
        QFile::setPermissions(home.path() + "/runtime",
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        first << timedRun("vorlan", home.path());
        later << timedRun("vorlan", home.path());
        bare << timedRun("bare", home.path());
        text << timedRun("text", home.path());
    }
    std::printf("startup (median of %d, platform %s)\n", runs,
                qPrintable(qEnvironmentVariable("QT_QPA_PLATFORM", "default")));
    std::printf("  bare Qt window shown              %8.1f ms\n", median(bare));
    std::printf("  bare Qt window with a text shown  %8.1f ms\n", median(text));
    std::printf("  Navigator shown, first run        %8.1f ms\n", median(first));
    std::printf("  Navigator shown, later run        %8.1f ms\n", median(later));
    std::printf("  Navigator, later run / bare window: %.2f; / bare window with a text: %.2f\n",
                median(later) / median(bare), median(later) / median(text));
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray mode = qgetenv("BENCH_MODE");
    if (mode == "bare" || mode == "text")
        return bareWindow(argc, argv, mode == "text");
    if (mode == "vorlan")
        return RunVorlan(argc, argv, [](QWidget*) {
            reportShown();
            QCoreApplication::exit(0);
        });
    return driver(argc, argv);
}
