#pragma once

#include "navigator/NavigatorHost.h"
#include "navigator/NavigatorWindows.h"

#include <QStringList>
#include <functional>

struct SharedState;

// The Navigator's window and the other windows in one: keeps its window
// place in memory and writes down every call, in order, as a short text
// ("navigate <url>", "stop", ...).
class RecordingHost : public NavigatorHost, public NavigatorWindows
{
public:
    explicit RecordingHost(SharedState& state) : m_state(state) {}

    QRect screen{0, 0, 15360, 11520}; // 1024 by 768 pixels
    QRect window{0, 0, 6240, 3750};   // about the main window's size
    QStringList calls;
    // Windows this host has; showWindow of others returns false.
    QList<ProgramWindow> available;
    // Plays the note dialog while it is shown, if set.
    std::function<void()> noteDialog;

    QStringList navigated() const;

    QRect screenTwips() const override { return screen; }
    QRect windowTwips() const override { return window; }
    void moveWindowTwips(int left, int top) override;
    void setWindowOnTop(bool onTop) override;
    void ShowBrowserOne() override;
    void browserNavigate(const QString& url) override { calls << "navigate " + url; }
    void browserStop() override { calls << "stop"; }
    void browserGoBack() override { calls << "back"; }
    void toggleBrowserOneOnTop() override;
    QString browserTitle() const override { return QString(); }
    bool hasWindow(ProgramWindow window) const override { return available.contains(window); }
    bool showWindow(ProgramWindow window) override;
    void unloadWindow(ProgramWindow window) override;
    void showNoteDialog() override;
    void endProgram() override { calls << "end"; }

    static QString nameOf(ProgramWindow window);

private:
    SharedState& m_state;
};
