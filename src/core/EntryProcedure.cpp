#include "EntryProcedure.h"

#include "AppContext.h"
#include "FileServices.h"
#include "HelpPages.h"
#include "MainDataFiles.h"
#include "SettingsKeys.h"
#include "StartupUi.h"
#include "Version.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exception>
#include <stdexcept>

namespace {

// A step on a data file that could not be done. The files stay as they were;
// the user is told what failed, and the start ends without the corrupt
// question and without touching the settings.
struct DataFileFailure
{
    QStringList lines;
};

constexpr auto DataFileFailureTitle = "Database Copy Failed!";

[[noreturn]] void failStep(QStringList what, const QString& reason)
{
    what.prepend(QStringLiteral("Warning!!!\r"));
    what << QStringLiteral("(") + reason + QLatin1Char(')')
         << QStringLiteral("Nothing has been deleted.")
         << QStringLiteral("Free some disk space or make the folder")
         << QStringLiteral("writable, then start Vorlan again.");
    throw DataFileFailure{what};
}

} // namespace

EntryProcedure::EntryProcedure(AppContext& ctx, StartupUi& ui, MainDataFiles& files)
    : m_ctx(ctx), m_ui(ui), m_files(files)
{
}

bool EntryProcedure::LooksLikeUrl(const QString& lowered)
{
    if (lowered.size() < 7)
        return false;
    const QString scheme = lowered.left(7);
    return scheme == QLatin1String("http://") || scheme == QLatin1String("mailto:") ||
           lowered.right(3) == QLatin1String("url");
}

bool EntryProcedure::DesktopMayOpen(const QString& commandLine)
{
    const QString lowered = commandLine.toLower();
    for (const char* scheme : {"http://", "https://", "mailto:"}) {
        if (lowered.startsWith(QLatin1String(scheme)))
            return true;
    }
    return lowered.endsWith(QLatin1String(".url")) && QFileInfo(commandLine).isFile();
}

QStringList EntryProcedure::CorruptLines()
{
    return {QStringLiteral("Warning!!!\r"),           QStringLiteral("The database is corrupt"),
            QStringLiteral("I'm about to Delete it"), QStringLiteral("& recreate it! All saved"),
            QStringLiteral("data will be lost!"),     QStringLiteral("PROCEED?")};
}

bool EntryProcedure::run(const QString& commandLine)
{
    SharedState& st = m_ctx.state;
    st.gstrAppName = Version::AppName();
    try {
        // Lowered for the tests only: paths and many servers are case-sensitive.
        const QString lowered = commandLine.toLower();
        if (lowered == QLatin1String("/?")) {
            m_ctx.prompts.openExternally(HelpPages::extractTo(HelpPages::desktopFolder()));
            return false;
        }
        st.gblnCommandUrl = LooksLikeUrl(lowered);
        const bool prevInstance = m_ui.isPrevInstance();
        if (!prevInstance && st.gblnCommandUrl) {
            st.gblnOpenCommandUrl = true;
        } else if (prevInstance && st.gblnCommandUrl) {
            // The program never talks to the first instance: the address
            // goes to the desktop, and this one loads and leaves.
            if (DesktopMayOpen(commandLine))
                m_ctx.prompts.openExternally(commandLine);
            st.gblnHandedOff = true;
        } else if (prevInstance) {
            return false;
        }
        BuildTableNames(st.gastrTables);
        firstUseSettings();
        dataFolder();
        clearAttributes();
        const bool backupExists = QFileInfo(st.gstrGeoBckUp).isFile();
        if (QFileInfo(st.gstrGeoData).isFile()) {
            if (!verifyOrRecover(backupExists))
                return false;
        } else {
            createMissing(backupExists);
        }
        loadData(commandLine);
        return !st.gblnHandedOff;
    } catch (const DataFileFailure& failure) {
        m_ui.unloadSplash();
        ShowLines(m_ctx.prompts, failure.lines, QLatin1String(DataFileFailureTitle), false);
        m_files.Close();
        return false;
    } catch (const std::exception&) {
        settingsErrorRoute();
        return false;
    }
}

void EntryProcedure::firstUseSettings()
{
    SharedState& st = m_ctx.state;
    st.gstrDefaultNote = m_ctx.GetSetting(Sect::AdvOpt, Key::DefaultSN, "This is a CooL Site!");
    const QString prompt = m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::PromptForNewFile, "1");
    const QString initialised = m_ctx.GetSetting(Sect::Startup, Key::AdvOptInit, "");
    st.gblnUseSiteTitles =
        m_ctx.GetSetting(Sect::WebBrwsrTwo, Key::UseSiteTitles, "0") == QLatin1String("1");
    if (initialised.isEmpty()) {
        m_ctx.SaveSetting(Sect::AdvOpt, Key::DefaultSN, st.gstrDefaultNote);
        m_ctx.SaveSetting(Sect::WebBrwsrTwo, Key::PromptForNewFile, prompt);
        m_ctx.SaveSetting(Sect::Startup, Key::AdvOptInit, QStringLiteral("1"));
    }
}

void EntryProcedure::dataFolder()
{
    SharedState& st = m_ctx.state;
    st.gstrDataPath = m_ctx.GetSetting(Sect::Startup, Key::Path, "");
    if (st.gstrDataPath.isEmpty()) {
        st.gstrDataPath = m_ctx.appPath;
        if (!st.gstrDataPath.endsWith(QLatin1Char('/')))
            st.gstrDataPath += QLatin1Char('/');
        m_ctx.SaveSetting(Sect::Startup, Key::Path, st.gstrDataPath);
    }
    QDir().mkpath(st.gstrDataPath);
    st.gstrGeoData = st.gstrDataPath + QStringLiteral("GeoData.db");
    st.gstrGeoBckUp = st.gstrDataPath + QStringLiteral("GeoBckUp.db");
}

// A read-only file left by a former copy never blocks the start. The files
// hold the user's addresses and notes: they are the owner's alone.
void EntryProcedure::clearAttributes()
{
    for (const QString& path : {m_ctx.state.gstrGeoBckUp, m_ctx.state.gstrGeoData}) {
        if (QFileInfo::exists(path))
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    }
}

// The copy replaces the target only once it is whole; one that fails is no
// sign of a bad file and leaves both files as they were.
void EntryProcedure::copyOver(const QString& from, const QString& to)
{
    const QString failure = ReplaceByCopy(from, to);
    if (!failure.isEmpty())
        failStep({QStringLiteral("Could not copy"), from, QStringLiteral("to"), to}, failure);
}

// The working file is checked table by table. A bad one is replaced by the
// backup, silently, and checked once more; if it is still bad the user is
// asked before it is made anew. A clean file refreshes the backup.
bool EntryProcedure::verifyOrRecover(bool backupExists)
{
    SharedState& st = m_ctx.state;
    bool bad = !m_files.Verify(st.gstrGeoData);
    if (bad && backupExists) {
        copyOver(st.gstrGeoBckUp, st.gstrGeoData);
        bad = !m_files.Verify(st.gstrGeoData);
    }
    if (bad) {
        if (!ShowLines(m_ctx.prompts, CorruptLines(), QStringLiteral("Corrupt Database!"), true))
            return false;
        QFile bad(st.gstrGeoData);
        if (!bad.remove())
            failStep({QStringLiteral("Could not delete"), st.gstrGeoData}, bad.errorString());
        m_files.Create();
    }
    copyOver(st.gstrGeoData, st.gstrGeoBckUp);
    return true;
}

void EntryProcedure::createMissing(bool backupExists)
{
    SharedState& st = m_ctx.state;
    m_ui.showSplash(QStringLiteral("    Creating Database..."));
    if (backupExists) {
        copyOver(st.gstrGeoBckUp, st.gstrGeoData);
    } else {
        m_files.Create();
        copyOver(st.gstrGeoData, st.gstrGeoBckUp);
    }
    m_ui.unloadSplash();
}

void EntryProcedure::loadData(const QString& commandLine)
{
    SharedState& st = m_ctx.state;
    m_ui.showSplash(QStringLiteral("    Loading Data..."));
    m_files.Open();
    MainWindowEntry& navigator = m_ui.loadMainWindow();
    navigator.LoadCatalogue();
    m_ui.unloadSplash();
    if (st.gblnHandedOff) {
        navigator.Unload(); // saves this instance's settings too
        return;
    }
    if (st.gblnOpenCommandUrl)
        navigator.NavigateSomeWhereElse(commandLine);
    m_ui.showMainWindow();
}

void EntryProcedure::settingsErrorRoute()
{
    m_ui.unloadSplash();
    try {
        m_ctx.settings.DeleteSetting(m_ctx.state.gstrAppName);
    } catch (const std::exception&) {
    }
    m_ctx.prompts.msgBox(
        QStringLiteral("A settings error was encountered!\rYou will need to restart Vorlan!"));
    m_files.Close();
}
