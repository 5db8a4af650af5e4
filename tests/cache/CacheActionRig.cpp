#include "CacheActionRig.h"

#include <QDir>

int RecordingCacheHost::listCount() const
{
    return int(state->FoundFiles.size()) - (state->FoundFiles.value(0).isEmpty() ? 1 : 0);
}

void RecordingCacheHost::setControlsEnabled(bool enabled)
{
    calls << (enabled ? "controls on" : "controls off");
}

void RecordingCacheHost::Increm(int percent)
{
    percents << percent;
    if (percent > 100)
        throw CacheProgressOverflow();
}

void RecordingCacheHost::pumpEvents()
{
    if (onPump)
        onPump();
}

void RecordingCacheHost::ListCacheFiles()
{
    calls << "ListCacheFiles";
    ++listings;
}

void RecordingCacheHost::showGraphicsPages(const QStringList& shown)
{
    calls << "showGraphicsPages";
    pages = shown;
}

CacheActionRig::CacheActionRig()
{
    listed = t.folders.root() + "/cache/";
    state.OutDir = t.folders.root() + "/out/";
    QDir().mkpath(listed);
    QDir().mkpath(state.OutDir);
    host.state = &state;
}

void CacheActionRig::list(const QVector<QPair<QString, QByteArray>>& files)
{
    state.FoundFiles.clear();
    for (const auto& file : files) {
        putFile(listed + file.first, file.second);
        state.FoundFiles << listed + file.first;
    }
}

void CacheActionRig::run(int action)
{
    state.SelectedAction = qint16(action);
    runner.RunCacheAction();
}

QStringList CacheActionRig::outputs() const
{
    QStringList names = QDir(state.OutDir).entryList(QDir::Files | QDir::Hidden);
    names.sort();
    return names;
}

QByteArray CacheActionRig::output(const QString& name) const
{
    return fileBytes(state.OutDir + name);
}

bool CacheActionRig::finished() const
{
    return !state.Busy && host.calls.contains("controls on") &&
           host.calls.lastIndexOf("title I'm Finished!") > host.calls.lastIndexOf("controls off");
}
