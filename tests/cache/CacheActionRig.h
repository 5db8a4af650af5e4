#pragma once

#include "TestContext.h"
#include "cache/CacheActionHost.h"
#include "cache/CacheActionRunner.h"
#include "cache/CacheState.h"

#include <QDir>
#include <functional>

// The cache window as an action sees it: records every call, and throws
// for a percent above 100 as the progress window does.
struct RecordingCacheHost : CacheActionHost
{
    CacheState* state = nullptr;
    QVector<int> selection;
    QStringList calls;
    QVector<int> percents;
    QStringList pages;
    int listings = 0;
    std::function<void()> onPump;

    int listCount() const override
    {
        return int(state->FoundFiles.size()) - (state->FoundFiles.value(0).isEmpty() ? 1 : 0);
    }
    QVector<int> selectedRows() const override { return selection; }
    void SaveCacheSettings() override { calls << "SaveCacheSettings"; }
    void clearActionOptions() override { calls << "clearActionOptions"; }
    void setControlsEnabled(bool on) override { calls << (on ? "controls on" : "controls off"); }
    void setTitle(const QString& title) override { calls << "title " + title; }
    void Increm(int percent) override
    {
        percents << percent;
        if (percent > 100)
            throw CacheProgressOverflow();
    }
    void ResetCount() override { calls << "ResetCount"; }
    void unloadProgress() override { calls << "unloadProgress"; }
    void unloadWait() override { calls << "unloadWait"; }
    void pumpEvents() override
    {
        if (onPump)
            onPump();
    }
    void ListCacheFiles() override
    {
        calls << "ListCacheFiles";
        ++listings;
    }
    void showGraphicsPages(const QStringList& shown) override
    {
        calls << "showGraphicsPages";
        pages = shown;
    }
};

// A listed folder and an output folder in the test's own temporary folder,
// the cache window's state, and a runner on them.
struct CacheActionRig
{
    TestContext t;
    CacheState state;
    RecordingCacheHost host;
    CacheActionRunner runner{t.ctx, state, host};
    QString listed = t.folders.root() + "/cache/";

    CacheActionRig()
    {
        state.OutDir = t.folders.root() + "/out/";
        QDir().mkpath(listed);
        QDir().mkpath(state.OutDir);
        host.state = &state;
    }
    // Writes the files (name, bytes) into the listed folder and lists them.
    void list(const QVector<QPair<QString, QByteArray>>& files)
    {
        state.FoundFiles.clear();
        for (const auto& file : files) {
            putFile(listed + file.first, file.second);
            state.FoundFiles << listed + file.first;
        }
    }
    void run(int action)
    {
        state.SelectedAction = qint16(action);
        runner.RunCacheAction();
    }
    QString out() const { return state.OutDir; }
    // The names in the output folder, sorted.
    QStringList outputs() const
    {
        return QDir(state.OutDir).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QByteArray output(const QString& name) const { return fileBytes(state.OutDir + name); }
    // The run gave the window back: controls on, not busy, finished last.
    bool finished() const
    {
        return !state.Busy && host.calls.lastIndexOf("title I'm Finished!") >
                                  host.calls.lastIndexOf("controls off");
    }
};
