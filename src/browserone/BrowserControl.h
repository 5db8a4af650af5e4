#pragma once

#include <QObject>
#include <QString>
#include <functional>

// The browser control as the windows use it: navigation, the page's address
// and title, saving and the page's text, and three events. The real one
// wraps the web engine (WebBrowserControl); tests script one.
//
// Events: ProgressChange(p, 100) while a page loads; at the end of a load
// one with both equal once the title is known, then ProgressChange(0, 0).
// NewWindow2 asks whether the page may open a window (set *cancel to
// refuse). NavigateComplete2 tells that a navigation reached its target.
class BrowserControl : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    virtual void Navigate(const QString& url) = 0;
    virtual void Stop() = 0;
    virtual void GoBack() = 0;
    virtual QString LocationURL() const = 0;
    virtual QString LocationName() const = 0;
    // Saves the page, with what it needs, to path.
    virtual void SaveAs(const QString& path) = 0;
    // The page's whole text, handed to done when it is ready.
    virtual void PageText(std::function<void(const QString&)> done) = 0;

signals:
    void ProgressChange(int progress, int progressMax);
    void NewWindow2(bool* cancel);
    void NavigateComplete2(const QString& url);
};
