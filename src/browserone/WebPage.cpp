#include "WebPage.h"

#include <QFileInfo>
#include <QTimer>

QWebEnginePage* WebPage::createWindow(WebWindowType)
{
    return newWindow ? newWindow() : nullptr;
}

// A page's own link to a gone host of the service is sent to where the
// page came from, the same way the program's own openings are.
bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame)
{
    if (!isMainFrame || type != NavigationTypeLinkClicked || !linkTarget)
        return true;
    const QString target = linkTarget(url.toString());
    if (target.isEmpty() || target == url.toString())
        return true;
    const QUrl instead = QFileInfo(target).isFile() ? QUrl::fromLocalFile(target) : QUrl(target);
    QTimer::singleShot(0, this, [this, instead] { load(instead); });
    return false;
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
