// The start-up's screen on real widgets and files: the splash window, and
// the lock that tells a second instance, held by a live process or left
// behind by a killed one.
#include "TestContext.h"
#include "app/MainStartupUi.h"
#include "app/WindowRegistry.h"
#include "core/frmStartUp.h"

#include <QApplication>
#include <QLockFile>
#include <QProcess>
#include <QScreen>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {
const char* const HoldLock = "VORLAN_TEST_HOLD_LOCK";

// The child's part: take the lock at the given path and keep it until
// killed, as a running instance of the program does.
int holdLock(const QString& path)
{
    QLockFile lock(path);
    lock.setStaleLockTime(0);
    if (!lock.tryLock(0))
        return 1;
    std::printf("LOCKED\n");
    std::fflush(stdout);
    for (;;)
        pause();
}

frmStartUp* splashOnScreen()
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* splash = qobject_cast<frmStartUp*>(w); splash && splash->isVisible())
            return splash;
    }
    return nullptr;
}

struct ScreenRig
{
    TestContext t;
    WindowRegistry windows{t.ctx};
    QString lockPath = t.folders.root() + "/vorlan.lock";
    MainStartupUi ui{t.ctx, windows, lockPath};
};
} // namespace

class TestStartupScreen : public QObject
{
    Q_OBJECT

private slots:
    void theSplashShowsCentredUntilUnloaded()
    {
        ScreenRig r;
        r.ui.showSplash(QStringLiteral("    Creating Database..."));
        QVERIFY(r.t.state.gblnStartUpShown);
        frmStartUp* splash = splashOnScreen();
        QVERIFY(splash);
        QVERIFY(splash->windowFlags() & Qt::FramelessWindowHint);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QVERIFY(qAbs(splash->geometry().center().x() - screen.center().x()) <= 1);
        QVERIFY(qAbs(splash->geometry().center().y() - screen.center().y()) <= 1);
        QCOMPARE(splash->lblStartUp[3]->font().family(), QString("Times New Roman"));
        // The texts as the program writes them: leading blanks stay, the
        // carriage returns behind are line breaks, and the line fits.
        QCOMPARE(splash->lblStartUp[0]->text(), QString("   Vorlan Version 1.00\n\n"));
        QCOMPARE(splash->lblStartUp[1]->text().left(1), QString("\n"));
        QLabel* status = splash->lblStartUp[3];
        QCOMPARE(status->text(), QString("    Creating Database..."));
        QVERIFY(status->width() >= status->sizeHint().width());

        r.ui.unloadSplash();
        QVERIFY(!r.t.state.gblnStartUpShown);
        QVERIFY(!splashOnScreen());
        // The second splash of a start is a new one, shown the same way.
        r.ui.showSplash(QStringLiteral("    Loading Data..."));
        QVERIFY(r.t.state.gblnStartUpShown && splashOnScreen());
        QCOMPARE(splashOnScreen()->lblStartUp[3]->text(), QString("    Loading Data..."));
        r.ui.unloadSplash();
    }

    void theFirstInstanceTakesTheLockAndASecondFindsIt()
    {
        ScreenRig first;
        QVERIFY(!first.ui.isPrevInstance());
        QVERIFY(QFileInfo::exists(first.lockPath));
        MainStartupUi second{first.t.ctx, first.windows, first.lockPath};
        QVERIFY(second.isPrevInstance());
    }

    void aLockHeldByAnotherProcessMeansASecondInstance()
    {
        ScreenRig r;
        QProcess holder;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(HoldLock, r.lockPath);
        holder.setProcessEnvironment(env);
        holder.start(QCoreApplication::applicationFilePath(), {});
        QVERIFY(holder.waitForReadyRead(10000));
        QCOMPARE(holder.readAllStandardOutput().trimmed(), QByteArray("LOCKED"));
        QVERIFY(r.ui.isPrevInstance());

        // Killed without a chance to remove its lock: the file stays, and
        // the next start takes it over as stale.
        ::kill(static_cast<pid_t>(holder.processId()), SIGKILL);
        QVERIFY(holder.waitForFinished(10000));
        QVERIFY(QFileInfo::exists(r.lockPath));
        MainStartupUi next{r.t.ctx, r.windows, r.lockPath};
        QVERIFY(!next.isPrevInstance());
    }
};

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet(HoldLock)) {
        QCoreApplication app(argc, argv);
        return holdLock(qEnvironmentVariable(HoldLock));
    }
    QApplication app(argc, argv);
    TestStartupScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestStartupScreen.moc"
