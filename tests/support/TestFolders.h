#pragma once

#include <QByteArray>
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

// The bytes of a file, empty when it cannot be read.
QByteArray fileBytes(const QString& path);
// Writes a whole file, its folder made first; false when it cannot.
bool putFile(const QString& path, const QByteArray& bytes = QByteArray());
// The permission bits of a file, 0 when it is not there.
unsigned modeOf(const QString& path);
