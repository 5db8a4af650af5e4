#pragma once

#include <QString>

// The main database's files as the entry procedure handles them: checked,
// made from nothing, and opened as gdbMain for the life of the program.
class MainDataFiles
{
public:
    virtual ~MainDataFiles() = default;

    // True when the file opens and holds every table of the table of names
    // with its fields.
    virtual bool Verify(const QString& path) = 0;
    // Makes gstrGeoData from nothing and seeds it. Throws on any failure.
    virtual void Create() = 0;
    // Opens gstrGeoData as gdbMain. Throws when it cannot.
    virtual void Open() = 0;
    virtual void Close() = 0;
};
