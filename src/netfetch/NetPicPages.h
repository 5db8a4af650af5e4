#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// The picture pages of NetPic: image tags that point at the remote files,
// fifty to a page, at most 300 pictures, written beside the list they come
// from; and the log of the servers the pages were made for.
class NetPicPages
{
public:
    static constexpr int PerPage = 50;
    static constexpr int MaxPictures = 300;

    // base ends in "/"; fullUrls: lines that begin with "http://" are whole
    // addresses. pump runs at each line. Returns the pages written, the first
    // first; empty when the list cannot be opened.
    static QStringList write(const QString& listFile, const QString& base, bool fullUrls,
                             const std::function<void()>& pump = {});

    static QStringList header();
    static QStringList footer();
    // The lines that stand on the first page only, after its header.
    static QStringList firstPageLines();
    static QString pictureLine(const QString& url, const QString& line);

    // Appends base to the log unless a line of it holds base already,
    // compared without case.
    static void logServer(const QString& logFile, const QString& base);
};
