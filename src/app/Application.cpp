#include "Application.h"

#include "DesktopIdentity.h"
#include "MainStartupUi.h"
#include "WidgetPrompts.h"
#include "WindowRegistry.h"
#include "addressdata/MainDatabaseFiles.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/EntryProcedure.h"
#include "core/ShellOptions.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <unistd.h>

namespace {
// "--help" and "--version" answer from a shell without a screen: they are
// looked at before the application object, which would need one.
bool answeredFromShell(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const QString text = ShellOptions::answer(arguments);
    if (text.isNull())
        return false;
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return true;
}
} // namespace

int RunVorlan(int argc, char* argv[], std::function<void(QWidget*)> shown)
{
    if (answeredFromShell(argc, argv))
        return 0;
    // The browser engine runs as root only without its sandbox.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vorlan"));
    DesktopIdentity::apply();
    QApplication::setQuitOnLastWindowClosed(false);

    // The command line as one text, as the program reads it.
    const QString commandLine = QApplication::arguments().mid(1).join(QLatin1Char(' '));

    SharedState state;
    SettingsStore settings;
    WidgetPrompts prompts;
    SystemConnectionProbe probe;
    TextDatabase gdbMain(QStringLiteral("gdbMain"));
    AppContext ctx{
        state,
        settings,
        prompts,
        probe,
        gdbMain,
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1Char('/')};
    WindowRegistry windows(ctx);
    MainStartupUi ui(ctx, windows, MainStartupUi::defaultLockPath());
    MainDatabaseFiles files(ctx);
    EntryProcedure entry(ctx, ui, files);
    if (!entry.run(commandLine))
        return 0;
    if (shown)
        QTimer::singleShot(0, &app, [&windows, shown] { shown(windows.main()); });
    return QApplication::exec();
}
