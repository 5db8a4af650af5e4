#include "WebPage.h"

QWebEnginePage* WebPage::createWindow(WebWindowType)
{
    return newWindow ? newWindow() : nullptr;
}

void WebPage::javaScriptAlert(const QUrl&, const QString&) {}

bool WebPage::javaScriptConfirm(const QUrl&, const QString&)
{
    return false;
}

bool WebPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*)
{
    return false;
}
