#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/EntryProcedure.h"
#include "core/MainStartupUi.h"
#include "core/WidgetPrompts.h"
#include "core/WindowRegistry.h"

#include <QApplication>
#include <QStandardPaths>
#include <unistd.h>

int main(int argc, char* argv[])
{
    // The browser engine runs as root only without its sandbox.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vorlan"));
    QApplication::setQuitOnLastWindowClosed(false);

    // The command line as one text, as the program reads it.
    const QString commandLine = QApplication::arguments().mid(1).join(QLatin1Char(' '));

    SharedState state;
    SettingsStore settings;
    WidgetPrompts prompts;
    SystemConnectionProbe probe;
    TextDatabase gdbMain(QStringLiteral("gdbMain"));
    AppContext ctx{state, settings, prompts, probe, gdbMain,
                   QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                       QLatin1Char('/')};
    WindowRegistry windows(ctx);
    MainStartupUi ui(ctx, windows, MainStartupUi::defaultLockPath());
    EntryProcedure entry(ctx, ui);
    if (!entry.run(commandLine))
        return 0;
    return QApplication::exec();
}
