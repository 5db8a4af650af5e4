#pragma once

#include "AddressComposer.h"
#include "ArchiveMenu.h"
#include "CapturedWalk.h"
#include "ComposerHooks.h"
#include "MainWindowCalls.h"
#include "NavigatorControls.h"
#include "NavigatorHost.h"
#include "NavigatorWindows.h"
#include "SavedLinks.h"
#include "Wander.h"
#include "core/StartupUi.h"

#include <QObject>
#include <QStringList>

struct AppContext;

// The rules of frmGeoCities, the main window: loading and saving its
// address and options, the region switch, on-top, opening addresses in
// Browser One, the menus, and frmGeoCitiesCalls, through which the other
// windows press its buttons. The window itself only shows the controls.
class Navigator : public QObject,
                  public ComposerHooks,
                  public MainWindowCalls,
                  public MainWindowEntry
{
    Q_OBJECT
public:
    // host is the window around these rules, windows the other windows.
    Navigator(AppContext& ctx, NavigatorHost& host, NavigatorWindows& windows);

    NavigatorControls& controls() override { return m_c; }
    AddressComposer& composer() { return m_composer; }
    AppContext& context() { return m_ctx; }
    Wander& wander() override { return m_wander; }
    SavedLinks& savedLinks() override { return m_saved; }
    PageSources& pageSources() override { return m_sources; }
    ArchiveMenu& archiveMenu() { return m_archiveMenu; }
    CapturedWalk& capturedWalk() { return m_captured; }
    // The index's name of the block of a Neighborhood and Suburb.
    QString blockOf(const QString& neighborhood, const QString& suburb) const;
    NavigatorHost& host() { return m_host; }
    NavigatorWindows& windows() { return m_windows; }

    // The window's load: its place and the digit lists. Throws when a
    // stored place is no number.
    void Load();
    // The region's catalogue into the arrays and lists, then the saved links
    // and the main settings. Throws on a database or settings fault.
    void LoadCatalogue() override;
    // The catalogue read again after an edit of its tables: the lists
    // follow, and the Neighborhood and Suburb shown stay while they exist.
    void RefreshCatalogue();
    void SwitchRegionData(int code);
    void LoadMainSettings();
    void SaveMainSettings();

    void NavigateSomeWhereElse(const QString& url) override;
    // Runs the window's Unload: saves, closes the other windows, ends.
    void Unload() override;

    // Presses a button of this window for another one; errors inside are
    // ignored, any other code does nothing.
    void frmGeoCitiesCalls(GeoCitiesCall code) override;

    // ComposerHooks
    void StopAutoModes() override;
    void LeaveSavedView() override;
    void OpenSite() override;
    bool RandNavRunning() const override;
    void RandNavStep() override;
    void GoBack() override;
    int CapturedStep(const QString& house, int direction) override;

    // Menu entries and other clicks of the window.
    void JapanClick();
    void OnTopClick();
    void GeoTreeClick();
    void OptionsClick();
    void AutoNavClick();
    void RandNavClick();
    void ShowProgramWindow(ProgramWindow window);
    void InetGetClick();
    void HelpClick();
    void HomeClick();
    void GeoCitiesClick();
    void GeoSearchClick();
    void GeoChatClick();
    void PictureClick();

    // The clamp of a stored main window place, all in twips: the window of
    // that size stays whole on the screen, and negative becomes 0.
    static QPoint ClampMainPlace(int left, int top, const QSize& window, const QRect& screen);

    // Stops the load in Browser One, if it is open.
    void browserStop();
    // The preamble of the menus that show a window: the main window and
    // Browser One leave always-on-top, so that the new window is seen.
    void releaseOnTop();

private:
    void connectEvents();
    bool readFlag(const char* section, const char* key, const char* defaultValue) const;
    void raise(bool& flag, const char* section, const char* key, const char* defaultValue);

    AppContext& m_ctx;
    NavigatorHost& m_host;
    NavigatorWindows& m_windows;
    NavigatorControls m_c;
    AddressComposer m_composer;
    Wander m_wander;
    SavedLinks m_saved;
    PageSources m_sources;
    ArchiveMenu m_archiveMenu;
    CapturedWalk m_captured;
};
