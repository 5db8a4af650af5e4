#pragma once

#include <QString>
#include <QVector>

// Reads the words of a text file: items separated by commas and line ends,
// a double-quoted item keeping its commas, each kept by WordRule. The file
// is read piece by piece and only as far as the words go, so a huge file
// costs no more memory than a small one.
class TextWordFile
{
public:
    // Appends the words to sites and returns the count of kept words as the
    // counter stands at the end (WordRule::StopCount when it stopped there).
    // On failure the words read so far stay, and error holds what went
    // wrong: the file cannot be read, or holds NUL bytes and so is no text.
    static int read(const QString& path, QVector<QString>& sites, QString& error);
};
