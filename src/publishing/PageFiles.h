#pragma once

#include <QList>
#include <QString>

// Writes the page builder's files, in Windows-1252 with CR LF as their
// texts hold them, all or none: each appears only complete, and when one
// fails the others of the same call are taken away again.
namespace PageFiles {

struct File
{
    QString path;
    QString text;
};

// The empty text, or the message that tells the user which file could not
// be written and why.
QString write(const QList<File>& files);

} // namespace PageFiles
