#pragma once

#include "TestContext.h"
#include "cache/CacheActionHost.h"
#include "cache/CacheActionRunner.h"
#include "cache/CacheState.h"

#include <QByteArray>
#include <QStringList>
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

    int listCount() const override;
    QVector<int> selectedRows() const override { return selection; }
    void SaveCacheSettings() override { calls << "SaveCacheSettings"; }
    void clearActionOptions() override { calls << "clearActionOptions"; }
    void setControlsEnabled(bool enabled) override;
    void setTitle(const QString& title) override { calls << "title " + title; }
    void Increm(int percent) override;
    void ResetCount() override { calls << "ResetCount"; }
    void unloadProgress() override { calls << "unloadProgress"; }
    void unloadWait() override { calls << "unloadWait"; }
    void pumpEvents() override;
    void ListCacheFiles() override;
    void showGraphicsPages(const QStringList& shown) override;
};

// A listed folder and an output folder in the test's own temporary folder,
// the cache window's state, and a runner on them.
struct CacheActionRig
{
    TestContext t;
    CacheState state;
    RecordingCacheHost host;
    CacheActionRunner runner{t.ctx, state, host};
    QString listed;

    CacheActionRig();

    // Writes the files (name, bytes) into the listed folder and lists them
    // in that order.
    void list(const QVector<QPair<QString, QByteArray>>& files);
    void run(int action);
    QString out() const { return state.OutDir; }
    // The names in the output folder, sorted.
    QStringList outputs() const;
    QByteArray output(const QString& name) const;
    // True when the run gave the window back: controls on, not busy.
    bool finished() const;
};
