#pragma once

#include "HttpFetch.h"
#include "core/Controls.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QVector>

struct AppContext;
class BrowserControl;
class FileGetterHost;
class MainWindowCalls;
class QEventLoop;

// The codes of frmInetgetCalls.
enum class InetgetCall
{
    Viewer = 1, // show a page in the getter's browser, and stay open
    GetList = 2 // ask for a list of URLs and fetch it
};

// The rules of frmInetget, "Get files": a list of file URLs downloaded into
// the list's folder with unique names, or a list of pages loaded one by one
// in the window's browser and their text saved; the page viewer; and the
// silent fetch of a URL's text for the rest of the program.
//
// Files are fetched several at once, but named and written strictly in the
// list's order, so that every file gets the name and content that one
// fetch after another would give.
class FileGetter : public QObject
{
    Q_OBJECT
public:
    FileGetter(AppContext& ctx, MainWindowCalls& main, FileGetterHost& host,
               BrowserControl& InetWB);
    ~FileGetter() override;

    Control form{QStringLiteral("frmInetget")};
    Control lblInetFiles{QStringLiteral("lblInetFiles")};

    QString TargetDir;
    QString ListFile;
    bool FileMode = false;
    bool PageDone = false;
    bool StopFlag = false;
    bool ViewerMode = false;
    bool GetterBusy = false;

    void Load();
    void Unload();
    void frmInetgetCalls(InetgetCall code, const QString& url = QString());
    void GetFileList();
    void FetchList();
    // The text at url, or the empty text; waits with events pumped.
    QString InvisibleInetUsage(const QString& url);

    // The limits of one fetch and how many run at once, from the settings.
    HttpFetch::Limits limits() const;
    int parallel() const;

private:
    void fetchFiles(const QStringList& urls);
    void startFetch(int n, const QString& url, const HttpFetch::Limits& lim);
    void fetchPages(const QStringList& urls);
    void waitForPage();
    void showRound(const QString& url, int i, int count);
    void keepFile(HttpFetch& fetch, const QString& url);
    void savePageText(const QString& text);
    void progressChange(int progress, int progressMax);
    // Runs a nested event loop until quit() or Unload.
    void waitHere(QEventLoop& loop);

    AppContext& m_ctx;
    MainWindowCalls& m_main;
    FileGetterHost& m_host;
    BrowserControl& m_browser;
    QNetworkAccessManager m_network;
    QPointer<QEventLoop> m_wait;
    std::vector<std::unique_ptr<HttpFetch>> m_fetches;
    QVector<int> m_states; // the last state of each fetch
    int m_inHand = 0;      // the file whose round it is
    qint64 m_pageWaitLeft = 0;
};
