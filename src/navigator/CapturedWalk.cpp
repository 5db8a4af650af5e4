#include "CapturedWalk.h"

#include "PageSources.h"
#include "core/AppContext.h"

#include <exception>

CapturedWalk::CapturedWalk(AppContext& ctx, PageSources& sources)
    : today([] { return QDate::currentDate(); }), m_ctx(ctx), m_sources(sources)
{
    mnuWalkCaptured.setText(QStringLiteral("Walk only captured pages"));
    mnuRefreshCaptures.setText(QStringLiteral("Refresh capture index"));
    cmdStopCaptures.setText(QStringLiteral("Stop"));
    prgCaptures.setVisible(false);
    cmdStopCaptures.setVisible(false);
    connect(&mnuWalkCaptured, &Control::clicked, this, &CapturedWalk::WalkCapturedClick);
    connect(&mnuRefreshCaptures, &Control::clicked, this, &CapturedWalk::RefreshClick);
    connect(&cmdStopCaptures, &Control::clicked, &m_fetcher, &CdxFetcher::stop);
    connect(&m_fetcher, &CdxFetcher::progress, this, &CapturedWalk::showProgress);
    connect(&m_fetcher, &CdxFetcher::finished, this, &CapturedWalk::stored);
    connect(&m_fetcher, &CdxFetcher::failed, this,
            [this](const QString& block, const QString& why) {
                prgCaptures.setToolTip(QStringLiteral("The index of ") + block +
                                       QStringLiteral(" could not be read: ") + why);
            });
    connect(&m_fetcher, &CdxFetcher::idle, this, [this] {
        prgCaptures.setVisible(false);
        cmdStopCaptures.setVisible(false);
    });
    showChoice();
}

CapturedWalk::~CapturedWalk() = default;

CaptureIndex& CapturedWalk::index()
{
    if (!m_index)
        m_index = std::make_unique<CaptureIndex>(m_ctx.gdbMain);
    return *m_index;
}

bool CapturedWalk::active() const
{
    return m_sources.source == PageSource::InternetArchive && m_sources.walkCaptured;
}

void CapturedWalk::showChoice()
{
    const bool archive = m_sources.source == PageSource::InternetArchive;
    mnuWalkCaptured.setChecked(m_sources.walkCaptured);
    mnuWalkCaptured.setEnabled(archive);
    mnuRefreshCaptures.setEnabled(archive);
}

void CapturedWalk::WalkCapturedClick()
{
    m_sources.walkCaptured = !m_sources.walkCaptured;
    try {
        m_sources.save(m_ctx);
    } catch (const std::exception&) {
    }
    showChoice();
}

void CapturedWalk::RefreshClick()
{
    if (currentBlock)
        m_fetcher.fetch(currentBlock());
    if (m_fetcher.busy())
        showProgress(m_fetcher.current(), 0);
}

const CaptureIndex::Block* CapturedWalk::indexed(const QString& block)
{
    const CaptureIndex::Block* found = nullptr;
    try {
        found = index().find(block);
        if (!found || index().isStale(block, today()))
            m_fetcher.fetch(block);
    } catch (const std::exception&) {
        return nullptr; // a table that cannot be read: step as usual
    }
    if (m_fetcher.busy())
        showProgress(m_fetcher.current(), 0);
    return found;
}

int CapturedWalk::step(const QString& block, int house, int direction)
{
    if (!active())
        return 0;
    const CaptureIndex::Block* found = indexed(block);
    return found ? CaptureIndex::step(found->houses, house, direction) : 0;
}

int CapturedWalk::draw(const QString& block, const QString& digits)
{
    if (!active())
        return 0;
    const CaptureIndex::Block* found = indexed(block);
    if (!found || found->houses.isEmpty())
        return 0;
    return found->houses.at(digits.toInt() % found->houses.size());
}

bool CapturedWalk::holdsNothing(const QString& block)
{
    if (!active())
        return false;
    const CaptureIndex::Block* found = indexed(block);
    return found && found->houses.isEmpty();
}

void CapturedWalk::stored(const QString& block, const QVector<int>& houses)
{
    try {
        index().store(block, houses, today());
    } catch (const std::exception& e) {
        prgCaptures.setToolTip(QString::fromUtf8(e.what()));
    }
}

void CapturedWalk::showProgress(const QString& block, int addresses)
{
    prgCaptures.setText(QStringLiteral("Indexing %1: %2 addresses").arg(block).arg(addresses));
    prgCaptures.setVisible(true);
    cmdStopCaptures.setVisible(true);
}
