#pragma once

#include <QString>
#include <QStringList>

struct AppContext;
class MainDataFiles;
class StartupUi;

// The program's entry: the command line, a second instance, first-use
// settings, the data folder, verifying, restoring or creating the main
// database, loading the catalogue, and only then the main window.
class EntryProcedure
{
public:
    EntryProcedure(AppContext& ctx, StartupUi& ui, MainDataFiles& files);

    // True when the main window is shown and the window events take over;
    // false when the process is to end.
    bool run(const QString& commandLine);

    // Whether the (lowered) command line counts as a URL.
    static bool LooksLikeUrl(const QString& lowered);

    // Whether a second instance may hand its command line to the desktop: a
    // web or mail address, or a shortcut file that exists.
    static bool DesktopMayOpen(const QString& commandLine);

    static QStringList CorruptLines();

private:
    void firstUseSettings();
    void dataFolder();
    void clearAttributes();
    bool verifyOrRecover(bool backupExists);
    void createMissing(bool backupExists);
    void loadData(const QString& commandLine);
    void settingsErrorRoute();
    void copyOver(const QString& from, const QString& to);

    AppContext& m_ctx;
    StartupUi& m_ui;
    MainDataFiles& m_files;
};
