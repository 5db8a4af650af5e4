#pragma once

#include "CatalogueData.h"
#include "SavedLink.h"
#include "SwsTable.h"
#include "TableNames.h"

#include <QString>
#include <QVector>

// The process-wide state that the windows share (the g-prefixed variables).
// One object, made by the program's entry and passed to the windows; tests
// make their own and reset it.
struct SharedState
{
    // Start-up
    QString gstrAppName;
    bool gblnCommandUrl = false;
    bool gblnHandedOff = false;
    bool gblnOpenCommandUrl = false;
    QString gstrDefaultNote;
    bool gblnUseSiteTitles = false;
    QString gstrDataPath;
    QString gstrGeoData;
    QString gstrGeoBckUp;
    bool gblnStartUpShown = false;

    // Region
    bool gblnJapan = false;
    QString gstrSiteLabel;

    // Loaded windows and on-top state
    bool gblnWBOneLoaded = false;
    bool gblnWBTwoLoaded = false;
    bool gblnCacheLoaded = false;
    bool gblnTreeShown = false;
    bool gblnWBOneByTree = false; // Browser One was opened by a click in the tree
    bool GettingFileList = false; // a file list of a page is being made
    bool gblnMainOnTop = false;
    bool gblnWBOneOnTop = false;
    bool gblnLinksPanelOpen = false;
    bool gblnNoteOpen = false;

    // Options as read from the settings
    bool gblnOnTopSynch = false;
    bool gblnJapanRNS = false;
    bool gblnUsaRNS = false;
    bool gblnEliminatePopUps = false;
    bool gblnClosePopUps = false;
    bool gblnShowNextButton = false;
    bool gblnAssignRTC = false;
    bool gblnOSLOC = false;
    bool gblnFullPages = false;
    qint32 glngAutoLimit = 0;
    bool gblnAutoLimitOn = false;
    qint16 gintGlobalTimer = 10000;

    // Address data
    TableNameArray gastrTables;
    CatalogueData catalogue;
    QVector<SavedLink> gastrSavedLinks;
    int gintSavedLinkTop = 0;

    // Browser Two
    QVector<QString> gstrSites; // the loaded word list; entry 0 unused, words from 1
    QString gstrNewListName;    // the answer of the list name dialog
    QString gstrMdbResult;      // the word source chosen, lower case
    bool gblnWBTAutoMode = false;
    SwsTable gstrSWS;

    void reset() { *this = SharedState(); }
};
