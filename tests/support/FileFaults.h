#pragma once

#include <QString>
#include <sys/resource.h>

// Files of this process may grow to a number of bytes only, as on a disk
// that is nearly full: a write beyond fails with "File too large" instead of
// ending the process. The former limit returns at the end of the scope.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
};

// A folder in which no file can be made, renamed or deleted for the scope:
// by its mode, and where the mode does not bind (the tests run as root) by
// the file system's immutable flag. refusesFiles() tells whether it worked.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(const QString& path);
    ~ReadOnlyFolder();
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

    bool refusesFiles() const;

private:
    bool setImmutable(bool on) const;

    QString m_path;
    bool m_immutable = false;
};
