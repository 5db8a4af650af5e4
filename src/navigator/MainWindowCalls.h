#pragma once

#include <QString>

class NavigatorControls;
class PageSources;
class SavedLinks;
class Wander;

// The codes of frmGeoCitiesCalls, through which other windows press the
// main window's buttons.
enum class GeoCitiesCall
{
    NeighborhoodClick = 1, // Click of cmbNeighborhood
    GoBack = 2,            // Click of cmdGoBack
    Next = 3,              // Click of cmdNext
    OpenSite = 4,          // Click of cmdOpenSite
    ShowBrowserOne = 5,
    BrowserTwo = 6, // Click of mnuBrowserTwo
    Quit = 7,       // Click of cmdQuite
    RandNav = 8,    // Click of mnuRandNav
    AutoNav = 9,    // Click of mnuAutoNav
    SaveMainSettings = 10,
    GeoTree = 11, // Click of mnuGeoTree
    OnTop = 12,   // Click of mnuOnTop
    ValidateSelection = 13,
    LoadMainSettings = 14,
    RandNavStep = 15,
    ComposeAddress = 16,
    StopAutoModes = 17,
    SavedLinkClick = 18 // Click of cmbSavedLinks
};

// The main window as the other windows reach it: its calls, its door to
// Browser One, and the controls, walks and saved links they read.
class MainWindowCalls
{
public:
    virtual ~MainWindowCalls() = default;

    // Presses a button of the main window; errors inside are ignored, and
    // a code outside the table does nothing.
    virtual void frmGeoCitiesCalls(GeoCitiesCall code) = 0;
    virtual void NavigateSomeWhereElse(const QString& url) = 0;

    virtual NavigatorControls& controls() = 0;
    virtual Wander& wander() = 0;
    virtual SavedLinks& savedLinks() = 0;
    // Where the service's pages are opened from.
    virtual PageSources& pageSources() = 0;
};
