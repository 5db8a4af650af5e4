#pragma once

#include <QByteArray>
#include <QString>

// The file system calls of the cache actions, each answering with the
// errno of its failure or 0, so that the action's error rule can sort it.
namespace CacheFileOps {

// The whole file, read in large blocks up to its end, also when it grew
// since it was listed.
int readWhole(const QString& path, QByteArray& bytes);

// A new file at to with from's bytes; to must not exist yet. A copy that
// fails half way is removed, as it is the action's own file.
int copyFile(const QString& from, const QString& to);

// Renames without ever replacing a file that stands at to.
int renameNoReplace(const QString& from, const QString& to);

} // namespace CacheFileOps
