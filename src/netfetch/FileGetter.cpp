#include "FileGetter.h"

#include "FileGetterHost.h"
#include "PageText.h"
#include "UrlList.h"
#include "browserone/BrowserControl.h"
#include "browserone/BrowserOne.h"
#include "core/AppContext.h"
#include "core/BuildFilter.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"
#include "core/SingleByteText.h"
#include "navigator/MainWindowCalls.h"
#include "navigator/NavigatorControls.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QSaveFile>
#include <QTimer>

namespace {
// A name that stays inside folder: not empty, no dots alone, no separator.
bool staysInside(const QString& folder, const QString& path)
{
    const QFileInfo info(path);
    const QString name = info.fileName();
    return !name.isEmpty() && name.count(QLatin1Char('.')) != name.size() &&
           QDir::cleanPath(info.absolutePath()) == QDir::cleanPath(QDir(folder).absolutePath());
}

bool isTextFile(const QString& url)
{
    const QString end = url.right(3).toLower();
    return end == QLatin1String("txt") || end == QLatin1String("htm");
}

// Answers of up to this many bytes are taken for a server's error page.
constexpr qint64 ErrorPageBytes = 500;
} // namespace

FileGetter::FileGetter(AppContext& ctx, MainWindowCalls& main, FileGetterHost& host,
                       BrowserControl& InetWB)
    : m_ctx(ctx), m_main(main), m_host(host), m_browser(InetWB)
{
    form.setText(QStringLiteral("Get files"));
    connect(&m_browser, &BrowserControl::ProgressChange, this, &FileGetter::progressChange);
    connect(&m_browser, &BrowserControl::NewWindow2, this, [](bool* cancel) { *cancel = true; });
}

FileGetter::~FileGetter() = default;

void FileGetter::Load()
{
    NavigatorControls& c = m_main.controls();
    if (c.mnuAutoNav.isChecked())
        m_main.frmGeoCitiesCalls(GeoCitiesCall::AutoNav);
    if (c.mnuRandNav.isChecked())
        m_main.frmGeoCitiesCalls(GeoCitiesCall::RandNav);
}

void FileGetter::Unload()
{
    m_fetches.clear();
    m_browser.Stop();
    StopFlag = true;
    ViewerMode = false;
    // A closed window takes no list any more: the next one may start.
    GetterBusy = false;
    if (m_wait)
        m_wait->quit();
}

HttpFetch::Limits FileGetter::limits() const
{
    HttpFetch::Limits limits;
    auto read = [this](const char* key, qint64 def) {
        bool ok = false;
        const qint64 value =
            m_ctx.GetSetting(Sect::Startup, key, QString::number(def)).toLongLong(&ok);
        return ok && value > 0 ? value : def;
    };
    limits.stallMs = int(read(Key::GetterStallMs, limits.stallMs));
    limits.maxBytes = read(Key::GetterMaxBytes, limits.maxBytes);
    return limits;
}

int FileGetter::parallel() const
{
    bool ok = false;
    const int value = m_ctx.GetSetting(Sect::Startup, Key::GetterParallel, "8").toInt(&ok);
    return ok ? qBound(1, value, 64) : 8;
}

void FileGetter::frmInetgetCalls(InetgetCall code, const QString& url)
{
    if (code == InetgetCall::Viewer) {
        ViewerMode = true;
        m_browser.Navigate(url);
        m_host.showGetter();
    } else if (code == InetgetCall::GetList && !GetterBusy) {
        GetterBusy = true;
        GetFileList();
    }
}

void FileGetter::GetFileList()
{
    StopFlag = false;
    const QString path =
        BuildFilter(m_ctx, OutputDirectory(m_ctx), QString(), QStringLiteral("txt"), QString(),
                    QStringLiteral("File with URL list!"));
    if (path.isEmpty()) {
        m_host.unloadGetter();
        return;
    }
    ListFile = path;
    TargetDir = PathBeforeLast(ListFile, QLatin1Char('/'));
    m_host.showGetter();
    FetchList();
}

void FileGetter::FetchList()
{
    if (!FileReadable(ListFile)) {
        m_ctx.MsgBox(QStringLiteral("Incorrect file type!"));
        GetterBusy = false;
        StopFlag = true;
        m_host.unloadGetter();
        return;
    }
    const UrlList list = UrlList::read(ListFile);
    FileMode = list.fileMode;
    if (FileMode)
        fetchFiles(list.urls);
    else
        fetchPages(list.urls);
    GetterBusy = false;
    if (!ViewerMode && !StopFlag)
        m_host.unloadGetter();
}

void FileGetter::showRound(const QString& url, int i, int count)
{
    lblInetFiles.setText(url + QStringLiteral(", %1 of %2").arg(i).arg(count));
    QCoreApplication::processEvents();
}

void FileGetter::waitHere(QEventLoop& loop)
{
    m_wait = &loop;
    loop.exec();
    m_wait = nullptr;
}

void FileGetter::fetchFiles(const QStringList& urls)
{
    const int count = urls.size();
    const HttpFetch::Limits lim = limits();
    const int ahead = parallel();
    m_states.fill(0, count);
    m_fetches.clear();
    m_fetches.resize(count);
    int next = 0;
    for (int i = 0; i < count && !StopFlag; ++i) {
        m_inHand = i;
        showRound(urls[i], i + 1, count);
        // Later files are fetched meanwhile; they are written in turn.
        for (; next < count && next < i + ahead && !StopFlag; ++next)
            startFetch(next, urls[next], lim);
        if (StopFlag)
            break;
        if (m_states[i])
            form.setText(HttpFetch::stateText(m_states[i]));
        HttpFetch* fetch = m_fetches[i].get();
        if (!fetch->isDone()) {
            QEventLoop loop;
            connect(fetch, &HttpFetch::finished, &loop, &QEventLoop::quit);
            waitHere(loop);
        }
        if (StopFlag)
            break;
        keepFile(*fetch, urls[i]);
        m_fetches[i].reset();
    }
    m_fetches.clear();
}

// The title shows the states of the file in hand only.
void FileGetter::startFetch(int n, const QString& url, const HttpFetch::Limits& lim)
{
    auto fetch = std::make_unique<HttpFetch>(m_network, url, lim, TargetDir);
    connect(fetch.get(), &HttpFetch::stateChanged, this, [this, n](int state) {
        m_states[n] = state;
        if (n == m_inHand)
            form.setText(HttpFetch::stateText(state));
    });
    fetch->start();
    m_fetches[n] = std::move(fetch);
}

void FileGetter::keepFile(HttpFetch& fetch, const QString& url)
{
    const qint64 least = isTextFile(url) ? 1 : ErrorPageBytes + 1;
    if (!fetch.ok() || fetch.size() < least)
        return;
    const QString dest = UniqueFileName(TargetDir + NameAfterLast(url, QLatin1Char('/')));
    if (staysInside(TargetDir, dest))
        fetch.keepAs(dest);
}

void FileGetter::fetchPages(const QStringList& urls)
{
    bool ok = false;
    m_pageWaitLeft =
        m_ctx.GetSetting(Sect::Startup, Key::GetterPageWaitMs, "180000").toLongLong(&ok);
    if (!ok || m_pageWaitLeft <= 0)
        m_pageWaitLeft = 180000;
    for (int i = 0; i < urls.size() && !StopFlag; ++i) {
        showRound(urls[i], i + 1, urls.size());
        PageDone = false;
        m_browser.Navigate(urls[i]);
        waitForPage();
        if (StopFlag)
            break;
        if (!PageDone)
            m_browser.Stop();
        PageDone = false;
        const QString text = PageTextOf(m_browser, &m_wait);
        if (StopFlag)
            break;
        savePageText(text);
    }
}

// The wait is shared by all pages of the list: it is not renewed.
void FileGetter::waitForPage()
{
    if (PageDone || m_pageWaitLeft <= 0)
        return;
    QEventLoop loop;
    QElapsedTimer waited;
    waited.start();
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(&m_browser, &BrowserControl::ProgressChange, &loop, [this, &loop] {
        if (PageDone)
            loop.quit();
    });
    limit.start(int(qMin<qint64>(m_pageWaitLeft, INT_MAX)));
    waitHere(loop);
    m_pageWaitLeft -= waited.elapsed();
}

void FileGetter::savePageText(const QString& text)
{
    m_host.copyToClipboard(text);
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    lines.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    QSaveFile file(UniqueFileName(TargetDir + QStringLiteral("Page.txt")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(SingleByteText::encode(lines));
        file.commit();
    }
}

void FileGetter::progressChange(int progress, int progressMax)
{
    if (progressMax < 1)
        PageDone = true;
    const QString text = BrowserOne::ProgressTextFor(progress, progressMax);
    form.setText(m_browser.LocationURL() + QStringLiteral("     [") + text + QLatin1Char(']'));
}

QString FileGetter::InvisibleInetUsage(const QString& url)
{
    HttpFetch::Limits lim = limits();
    lim.maxBytes = qMin<qint64>(lim.maxBytes, 64LL << 20);
    HttpFetch fetch(m_network, url, lim);
    QEventLoop loop;
    connect(&fetch, &HttpFetch::finished, &loop, &QEventLoop::quit);
    fetch.start();
    if (!fetch.isDone())
        loop.exec();
    return fetch.ok() ? SingleByteText::decode(fetch.body()) : QString();
}
