#pragma once

#include <QStringList>

// A list of URLs as the file getter reads it: its first lines decide
// whether it holds files (each with a name and a known extension, fetched
// one by one) or pages (loaded in the browser). Lines are trimmed; empty
// ones are passed over.
struct UrlList
{
    static constexpr int MaxUrls = 14999;

    QStringList urls;
    bool fileMode = false;

    static UrlList read(const QString& path);
    static UrlList parse(const QStringList& lines);
    // A name of a file that marks a list of files.
    static bool countsAsFile(const QString& name);
};
