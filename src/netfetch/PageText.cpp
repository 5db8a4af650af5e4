#include "PageText.h"

#include "browserone/BrowserControl.h"

#include <QEventLoop>

QString PageTextOf(BrowserControl& browser, QPointer<QEventLoop>* running)
{
    QString text;
    bool got = false;
    QEventLoop loop;
    browser.PageText([&text, &got, &loop](const QString& t) {
        text = t;
        got = true;
        loop.quit();
    });
    if (!got) {
        if (running)
            *running = &loop;
        loop.exec();
        if (running)
            *running = nullptr;
    }
    return text;
}
