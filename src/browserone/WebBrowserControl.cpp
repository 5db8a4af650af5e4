#include "WebBrowserControl.h"

#include "WebPage.h"

#include <QFileInfo>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineView>
#include <algorithm>

WebBrowserControl::WebBrowserControl(QWebEngineView* view, QWebEngineProfile* profile)
    : BrowserControl(view), m_view(view), m_page(new WebPage(profile, view))
{
    view->setPage(m_page);
    m_page->newWindow = [this]() -> QWebEnginePage* {
        bool cancel = false;
        emit NewWindow2(&cancel);
        if (cancel || !openWindow)
            return nullptr;
        return openWindow();
    };
    connect(m_page, &QWebEnginePage::loadStarted, this, [this] {
        m_finished = false;
        emit ProgressChange(0, 100);
    });
    // The engine reaches 100 once the document is in, while its pictures may
    // still be on their way: only the end of the load completes the page.
    connect(m_page, &QWebEnginePage::loadProgress, this, [this](int p) {
        noteArrival();
        if (!m_finished)
            emit ProgressChange(std::min(p, 99), 100);
    });
    connect(m_page, &QWebEnginePage::loadFinished, this, [this](bool) {
        noteArrival();
        m_finished = true;
        emit ProgressChange(100, 100);
        emit ProgressChange(0, 0);
    });
    connect(m_page, &QWebEnginePage::urlChanged, this, &WebBrowserControl::noteArrival);
    connect(m_page, &QWebEnginePage::titleChanged, this, [this] {
        noteArrival();
        if (m_finished)
            emit ProgressChange(0, 0);
    });
}

std::optional<QWebEngineHistoryItem> WebBrowserControl::lastArrival() const
{
    const QWebEngineHistoryItem current = m_page->history()->currentItem();
    if (!current.isValid())
        return std::nullopt;
    return current;
}

void WebBrowserControl::noteArrival()
{
    const auto arrival = lastArrival();
    if (!arrival || arrival->lastVisited().toMSecsSinceEpoch() <= m_arrivedAt)
        return;
    m_arrivedAt = arrival->lastVisited().toMSecsSinceEpoch();
    emit NavigateComplete2(arrival->url().toString());
}

QUrl WebBrowserControl::UrlOf(const QString& text)
{
    if (QFileInfo(text).isFile())
        return QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath());
    return QUrl::fromUserInput(text);
}

void WebBrowserControl::Navigate(const QString& url)
{
    m_view->load(UrlOf(url));
}

void WebBrowserControl::Stop()
{
    m_view->stop();
}

void WebBrowserControl::GoBack()
{
    m_view->back();
}

QString WebBrowserControl::LocationURL() const
{
    const QUrl url = m_page->url();
    return url.isEmpty() || url == QUrl(QStringLiteral("about:blank")) ? QString() : url.toString();
}

QString WebBrowserControl::LocationName() const
{
    // The engine shows an untitled page's address, without its scheme, in
    // place of a title; the page's history entry keeps its own title, empty.
    const auto arrival = lastArrival();
    return arrival ? arrival->title() : QString();
}

void WebBrowserControl::SaveAs(const QString& path)
{
    m_page->save(path, QWebEngineDownloadRequest::CompleteHtmlSaveFormat);
}

void WebBrowserControl::PageText(std::function<void(const QString&)> done)
{
    m_page->toPlainText([done](const QString& text) { done(text); });
}
