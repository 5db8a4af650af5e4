#pragma once

#include <QWebEnginePage>
#include <functional>

// The program's web page: the one place that decides on new windows. A page
// that asks for one is answered by newWindow, which refuses it (null) or
// hands back the page of a window made for it.
class WebPage : public QWebEnginePage
{
    Q_OBJECT
public:
    using QWebEnginePage::QWebEnginePage;

    std::function<QWebEnginePage*()> newWindow;
    // The address a clicked link is to open instead, as text: a URL or a
    // local file. The link's own address, or none set, lets it through.
    std::function<QString(const QString&)> linkTarget;

protected:
    QWebEnginePage* createWindow(WebWindowType type) override;
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    // Script dialogs would stop a walk until someone answers them.
    void javaScriptAlert(const QUrl& securityOrigin, const QString& msg) override;
    bool javaScriptConfirm(const QUrl& securityOrigin, const QString& msg) override;
    bool javaScriptPrompt(const QUrl& securityOrigin, const QString& msg,
                          const QString& defaultValue, QString* result) override;
};
