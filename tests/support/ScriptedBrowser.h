#pragma once

#include "browserone/BrowserControl.h"
#include "browserone/BrowserOneHost.h"

#include <QStringList>

// A browser control whose page a test sets and whose events it sends.
class ScriptedBrowser : public BrowserControl
{
    Q_OBJECT
public:
    QString url;
    QString title;
    QStringList navigated;
    int stops = 0;
    int backs = 0;

    void Navigate(const QString& target) override { navigated << target; }
    void Stop() override { ++stops; }
    void GoBack() override { ++backs; }
    QString LocationURL() const override { return url; }
    QString LocationName() const override { return title; }
    void SaveAs(const QString&) override {}
    void PageText(std::function<void(const QString&)> done) override { done(title); }

    void progress(int p, int max) { emit ProgressChange(p, max); }
    // A page that loads to its end: progress, completion, and the final (0, 0).
    void load(const QString& pageUrl, const QString& pageTitle);
    bool askNewWindow();
};

// Browser One's window, written down.
class RecordingBrowserHost : public BrowserOneHost
{
public:
    QStringList calls;
    QRect place{1000, 2000, 6000, 4000};
    QList<Wander::Mode> colours;
    QList<int> closedAfter;

    void placeWindow(const QString& left, const QString& top, const QString& height,
                     const QString& width) override;
    QRect screenTwips() const override { return {0, 0, 15360, 11520}; }
    QRect windowTwips() const override { return place; }
    void setWindowOnTop(bool onTop) override { calls << (onTop ? "ontop" : "notontop"); }
    void showWalkColours(Wander::Mode mode) override { colours << mode; }
    void closeWindowsAfter(int keep) override { closedAfter << keep; }
    void unloadLinksPanel() override { calls << "unload links"; }
};
