#pragma once

#include "BrowserControl.h"

#include <QWebEngineHistoryItem>
#include <optional>

class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineView;
class WebPage;

// The browser control on the web engine. A navigation that reaches its
// target gives NavigateComplete2 at once, whether or not its page ever
// finishes. Load progress p gives ProgressChange(p, 100), at most 99 until
// the load has ended, pictures and all; the end of a load gives one
// ProgressChange with both equal, then ProgressChange(0, 0); a title that
// arrives after the end gives one more ProgressChange(0, 0). A page's wish
// for a new window is NewWindow2; refused, the page gets no window.
class WebBrowserControl : public BrowserControl
{
    Q_OBJECT
public:
    // The view shows a page of the given profile.
    WebBrowserControl(QWebEngineView* view, QWebEngineProfile* profile);

    QWebEngineView* view() const { return m_view; }
    WebPage* page() const { return m_page; }

    // Makes the window for a page that asked for one; returns its page.
    std::function<QWebEnginePage*()> openWindow;

    void Navigate(const QString& url) override;
    void Stop() override;
    void GoBack() override;
    QString LocationURL() const override;
    QString LocationName() const override;
    void SaveAs(const QString& path) override;
    void PageText(std::function<void(const QString&)> done) override;

    // The address a text stands for: a local file or a URL.
    static QUrl UrlOf(const QString& text);

private:
    // The history entry that the last navigation reached: the current one,
    // which the engine stamps with the time whenever a navigation reaches
    // it, a return to an earlier entry or a reload included. None before
    // the first arrival.
    std::optional<QWebEngineHistoryItem> lastArrival() const;
    // Sends NavigateComplete2 for a navigation that has reached its target
    // since the last one sent.
    void noteArrival();

    QWebEngineView* m_view;
    WebPage* m_page;
    bool m_finished = false;
    qint64 m_arrivedAt = -1; // the stamp of the last arrival sent
};
