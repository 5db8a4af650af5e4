#pragma once

#include <QChar>
#include <QString>

class SettingsStore;
struct AppContext;

// Small file and path services that many windows call. Paths use "/".

// The wished path if nothing exists there, else the first free one with
// 1, 2, ... put between its base and its extension. The extension starts at
// the first "." of the whole path, so a dot in a folder name splits early:
// "/a/my.dir/page.htm" becomes "/a/my1.dir/page.htm".
QString UniqueFileName(const QString& path);

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

// True when the whole file can be read; false for a folder, a missing or an
// unreadable file.
bool FileReadable(const QString& path);
