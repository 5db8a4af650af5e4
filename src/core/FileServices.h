#pragma once

#include <QChar>
#include <QString>

class SettingsStore;
struct AppContext;

// Small file and path services that many windows call. Paths use "/".

// The wished path if nothing exists there, else the first free one with
// 1, 2, ... put between its base and its extension. The extension starts at
// the first "." of the file name, so "/a/my.dir/page.tar.gz" becomes
// "/a/my.dir/page1.tar.gz": the data folder itself has a dot in its path.
QString UniqueFileName(const QString& path);

// Copies from over to: the copy is made under a new name in to's folder,
// readable by its owner only, and renamed over to once it is complete, so
// that to is never missing or half written. Returns the empty text, or what
// failed in the system's words ("No space left on device"); on failure to
// is as it was and no new file is left behind.
QString ReplaceByCopy(const QString& from, const QString& to);

// The text up to and including the last separator; empty if there is none.
QString PathBeforeLast(const QString& text, QChar separator);

// The text behind the last separator; empty if there is none.
QString NameAfterLast(const QString& text, QChar separator);

// The folder that generated files are written to: CacheManager /
// DefaultOutPutDir when that exists, else the program's folder with a
// trailing separator.
QString OutputDirectory(const AppContext& ctx);
QString OutputDirectory(const SettingsStore& settings, const QString& appName,
                        const QString& appPath);

// True when the whole file reads as text; false for a folder, a missing or an
// unreadable file, and for one holding an end-of-file byte (Ctrl+Z).
bool FileReadable(const QString& path);
