#include "RecordingHost.h"

#include "core/SharedState.h"

QStringList RecordingHost::navigated() const
{
    QStringList urls;
    for (const QString& call : calls) {
        if (call.startsWith("navigate "))
            urls << call.mid(9);
    }
    return urls;
}

void RecordingHost::moveWindowTwips(int left, int top)
{
    window.moveTo(left, top);
    calls << QStringLiteral("move %1 %2").arg(left).arg(top);
}

void RecordingHost::setWindowOnTop(bool onTop)
{
    calls << (onTop ? "ontop" : "notontop");
}

void RecordingHost::ShowBrowserOne()
{
    m_state.gblnWBOneLoaded = true;
    calls << "show BrowserOne";
}

void RecordingHost::toggleBrowserOneOnTop()
{
    m_state.gblnWBOneOnTop = !m_state.gblnWBOneOnTop;
    calls << "toggle BrowserOne ontop";
}

void RecordingHost::showNoteDialog()
{
    calls << "show note";
    if (noteDialog)
        noteDialog();
}

bool RecordingHost::showWindow(ProgramWindow window)
{
    calls << "show " + nameOf(window);
    if (window == ProgramWindow::GeoTree && available.contains(window))
        m_state.gblnTreeShown = true;
    return available.contains(window);
}

void RecordingHost::unloadWindow(ProgramWindow window)
{
    calls << "unload " + nameOf(window);
    if (window == ProgramWindow::BrowserOne)
        m_state.gblnWBOneLoaded = false;
}

QString RecordingHost::nameOf(ProgramWindow window)
{
    switch (window) {
    case ProgramWindow::BrowserOne:
        return "BrowserOne";
    case ProgramWindow::BrowserTwo:
        return "BrowserTwo";
    case ProgramWindow::Cache:
        return "Cache";
    case ProgramWindow::Export:
        return "Export";
    case ProgramWindow::GeoFtp:
        return "GeoFtp";
    case ProgramWindow::Options:
        return "Options";
    case ProgramWindow::Script:
        return "Script";
    case ProgramWindow::NetPics:
        return "NetPics";
    case ProgramWindow::Inetget:
        return "Inetget";
    case ProgramWindow::About:
        return "About";
    case ProgramWindow::GeoTree:
        return "GeoTree";
    case ProgramWindow::LinkImport:
        return "LinkImport";
    }
    return QString();
}
