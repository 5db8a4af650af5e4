#pragma once

#include <QString>
#include <QTemporaryDir>

// Private config, data, cache and runtime folders for one test: the XDG
// variables point into a temporary folder, so nothing touches the user's.
// Make one before anything asks QStandardPaths.
class TestFolders
{
public:
    TestFolders();

    QString root() const { return m_dir.path(); }
    QString config() const { return root() + QStringLiteral("/config"); }
    QString data() const { return root() + QStringLiteral("/data"); }
    // A stand-in for the program's own folder, with a trailing separator.
    QString appPath() const { return root() + QStringLiteral("/app/"); }

private:
    QTemporaryDir m_dir;
};
