#pragma once

#include <QString>
#include <QStringList>

// One listing of the cache window: the files of a folder, and of its
// immediate sub-folders when asked, whose extension fits a pattern and
// whose name holds a filter. Folders are read with readdir, names matched
// as bytes, so that 20,000 files list in about the time `find` takes.
//
// Names and folders are compared in lower case but listed as they are: on
// a case-sensitive file system a lower-cased path would name no file. Each
// folder lists in name order, as the classic system's folders did.
class CacheListing
{
public:
    static constexpr int MaxFolders = 200; // the root and 199 sub-folders
    static constexpr int MaxFiles = 20000;

    struct Result
    {
        QStringList files;           // full paths, in listing order
        int subFolders = 0;          // D: the sub-folders taken, 0 without CollectSubs
        int foldersWithHits = 0;     // S: folders with a listed file, root included
        bool stoppedByError = false; // a folder could not be read: the list ends there
    };

    // folder ends in "/". pattern is FilePattern ("*" for every file; "?"
    // stands for one character, or none at the end of the extension);
    // filter is the lower-case text that a lower-cased file name must hold.
    static Result list(const QString& folder, bool collectSubs, const QString& pattern,
                       const QString& filter);

    // The report of the window's title for a listing.
    static QString report(const Result& result);

    // Whether a file name (as its bytes) fits "*." + pattern, as the
    // directory query of the classic runtime matches it: without regard to
    // case, "*" fitting every name, and trailing "?" fitting no character too.
    static bool nameFits(const QByteArray& name, const QByteArray& pattern);
};
