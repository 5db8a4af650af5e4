#pragma once

#include <QString>
#include <QStringList>
#include <functional>

struct AppContext;
class BrowserControl;

// modInternet: a "FileList.txt" of the picture links of the page that a
// browser window shows, or of the file names of a server's directory
// index, as input for the file getter and NetPic.
class PageFileList
{
public:
    struct Links
    {
        // The browser of Browser One (1) or Browser Two (2), null while closed.
        std::function<BrowserControl*(int)> browser;
        // The page's source, fetched without the browser.
        std::function<QString(const QString&)> InvisibleInetUsage;
        std::function<void(const QString&)> copyToClipboard;
        // Unloads the getter if it was loaded but not shown.
        std::function<void()> unloadHiddenGetter;
    };

    PageFileList(AppContext& ctx, Links links);

    // Code 2: Browser One's page; code 3: Browser Two's; others do nothing.
    void GetFileListMenu(int menuCode);
    void GetPageFileList(int browser);

    // The ".jpg" links of a page's source, each made whole with base where
    // it has no "/"; false beyond 1000 links.
    static bool jpgLinks(const QString& source, const QString& base, QStringList& links);
    // The file names of a directory index's text, each after base.
    static QStringList indexNames(const QString& text, const QString& base);

private:
    void scanPage(BrowserControl& browser, const QString& base, const QString& output);
    void scanIndex(BrowserControl& browser, const QString& base, const QString& output);
    // Writes the lines to output with the notice, or says none were found.
    void save(const QString& output, const QStringList& lines, const char* none);

    AppContext& m_ctx;
    Links m_links;
};
