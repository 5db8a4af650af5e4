#include "WbtQuickScan.h"

#include "BrowserTwo.h"
#include "core/AppContext.h"
#include "core/SettingsKeys.h"
#include "core/VbRuntime.h"

WbtQuickScan::WbtQuickScan(AppContext& ctx, BrowserTwo& walker) : m_ctx(ctx), m_walker(walker)
{
    cmdQuickScan.setText(QString::fromLatin1(Caption));
    lblQuickScan.setVisible(false);
    connect(&cmdQuickScan, &Control::clicked, this, &WbtQuickScan::QuickScanClick);
    connect(&m_scan, &QuickScan::progress, this, &WbtQuickScan::showProgress);
    connect(&m_scan, &QuickScan::finished, this, &WbtQuickScan::offer);
}

QuickScan::Options WbtQuickScan::options() const
{
    QuickScan::Options o;
    const auto number = [this](const char* key, const char* fallback) {
        return Vb::Val(m_ctx.GetSetting(Sect::WebBrwsrTwo, key, fallback));
    };
    o.inFlight = std::max(int(number(Key::QuickScanInFlight, "16")), 1);
    o.perSecond = std::max(number(Key::QuickScanPerSecond, "0"), 0.0);
    o.timeoutMs = std::max(int(number(Key::QuickScanTimeout, "15000")), 100);
    return o;
}

void WbtQuickScan::QuickScanClick()
{
    if (m_scan.isRunning()) {
        m_scan.stop();
        return;
    }
    QVector<QuickScan::Item> items;
    for (const QString& word : m_walker.wordsAhead())
        items.append({word, m_walker.addressOf(word)});
    if (items.isEmpty()) {
        m_ctx.MsgBox(QStringLiteral("There are no words to scan!"));
        return;
    }
    cmdQuickScan.setText(QString::fromLatin1(StopCaption));
    lblQuickScan.setVisible(true);
    m_scan.start(items, m_walker.BadTitles, options());
}

void WbtQuickScan::showProgress(int done, int found, int failed, int total)
{
    lblQuickScan.setText(QStringLiteral("%1 of %2 done, %3 found, %4 failed")
                             .arg(done)
                             .arg(total)
                             .arg(found)
                             .arg(failed));
    emit progressChanged(done, total);
}

void WbtQuickScan::offer(const QStringList& words, bool stopped)
{
    cmdQuickScan.setText(QString::fromLatin1(Caption));
    const QString how = stopped ? QStringLiteral("Quick scan stopped: ") : QStringLiteral("");
    if (words.isEmpty()) {
        m_ctx.MsgBox(how + QStringLiteral("no page was found."), PromptService::Information,
                     QString::fromLatin1(Caption));
        return;
    }
    const QString question =
        how + QStringLiteral("%1 pages found. Walk them now?").arg(words.size());
    if (m_ctx.MsgBox(question, PromptService::YesNo | PromptService::Question,
                     QString::fromLatin1(Caption)) == PromptService::Yes)
        m_walker.offerWords(words);
}
