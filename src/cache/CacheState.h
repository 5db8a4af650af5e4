#pragma once

#include <QString>
#include <QStringList>

// The cache window's state, one instance at a time, shared by the listing,
// the actions and the picture pages. Paths use "/" where the window's
// original used "\": PreviousPath and OutDir end in "/" once set.
struct CacheState
{
    QStringList FoundFiles{QString()}; // full path of every listed file, in listing order
    QString FilePattern = "*";         // "jpg", "gif", "mid", "wav", "htm", "txt", "*" or typed
    QString PreviousPath;              // folder being listed
    QString OutDir;                    // output folder
    QString CurrentDrive;              // kept for the settings; this platform has one root
    qint16 SelectedAction = -1;        // 0 to 17, or -1 for none
    bool CollectSubs = true;           // immediate sub-folders are listed too
    bool Loading = false;              // the window is being set up
    bool StopRequested = false;        // the user asked a running action to stop
    bool Busy = false;                 // an action runs
    QString SavedPattern;              // FilePattern before typing began in txtExt
};
