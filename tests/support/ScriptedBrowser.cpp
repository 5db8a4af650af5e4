#include "ScriptedBrowser.h"

void ScriptedBrowser::load(const QString& pageUrl, const QString& pageTitle)
{
    url = pageUrl;
    emit ProgressChange(0, 100);
    emit ProgressChange(60, 100);
    title = pageTitle;
    emit NavigateComplete2(pageUrl);
    emit ProgressChange(100, 100);
    emit ProgressChange(0, 0);
}

bool ScriptedBrowser::askNewWindow()
{
    bool cancel = false;
    emit NewWindow2(&cancel);
    return !cancel;
}

void RecordingBrowserHost::placeWindow(const QString& left, const QString& top,
                                       const QString& height, const QString& width)
{
    calls << QStringLiteral("place %1 %2 %3 %4").arg(left, top, height, width);
}
