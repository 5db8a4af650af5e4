#pragma once

#include "CaptureIndex.h"
#include "CdxFetcher.h"
#include "core/Controls.h"

#include <QDate>
#include <QObject>
#include <functional>
#include <memory>

struct AppContext;
class PageSources;

// Walking only what survives: with the Internet Archive chosen, Next,
// Prev, AutoNav and RandNav move among the house numbers the archive
// captured. A block without an index is stepped as usual while its index
// is filled in the background.
class CapturedWalk : public QObject
{
    Q_OBJECT
public:
    CapturedWalk(AppContext& ctx, PageSources& sources);
    ~CapturedWalk() override;

    Control mnuWalkCaptured{QStringLiteral("mnuWalkCaptured")};
    Control mnuRefreshCaptures{QStringLiteral("mnuRefreshCaptures")};
    // The filling in the background: its text, shown while it runs.
    Control prgCaptures{QStringLiteral("prgCaptures")};
    Control cmdStopCaptures{QStringLiteral("cmdStopCaptures")};

    // The block on show, as CaptureIndex names it; the Navigator sets it.
    std::function<QString()> currentBlock;
    std::function<QDate()> today;

    CdxFetcher& fetcher() { return m_fetcher; }
    CaptureIndex& index();

    // The archive is chosen and the walk keeps to its captures.
    bool active() const;
    void showChoice();

    // The captured number after house in the direction (+1 or -1), or 0
    // when the block has no index yet (it is asked for) or none captured.
    int step(const QString& block, int house, int direction);
    // The captured number of the block that four drawn digits choose, or 0.
    int draw(const QString& block, const QString& digits);
    // Whether the walk keeps to captures and the block's index holds none.
    bool holdsNothing(const QString& block);

    void WalkCapturedClick();
    void RefreshClick();

private:
    // The block's index, asked for when missing or older than 30 days.
    const CaptureIndex::Block* indexed(const QString& block);
    void stored(const QString& block, const QVector<int>& houses);
    void showProgress(const QString& block, int addresses);

    AppContext& m_ctx;
    PageSources& m_sources;
    CdxFetcher m_fetcher;
    std::unique_ptr<CaptureIndex> m_index;
};
