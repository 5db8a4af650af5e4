#pragma once

#include "QuickScan.h"
#include "core/Controls.h"

#include <QObject>

struct AppContext;
class BrowserTwo;

// "Quick scan" of Browser Two: requests every address the walk would visit
// from the current word on, beside the browser, and offers the words whose
// page is no missing page as the list that Next and auto mode walk next.
// Settings of section "WebBrwsrTwo": "QuickScanInFlight" (default 16),
// "QuickScanPerSecond" (default 0, no cap), "QuickScanTimeout" (ms, 15000).
class WbtQuickScan : public QObject
{
    Q_OBJECT
public:
    static constexpr const char* Caption = "Quick scan";
    static constexpr const char* StopCaption = "Stop scan";

    WbtQuickScan(AppContext& ctx, BrowserTwo& walker);

    // The button of the list row and the line beside it.
    Control cmdQuickScan{QStringLiteral("cmdQuickScan")};
    Control lblQuickScan{QStringLiteral("lblQuickScan")};

    QuickScan& scan() { return m_scan; }

    // Starts a scan, or stops the one running.
    void QuickScanClick();

signals:
    // Words done of total, for the progress bar.
    void progressChanged(int done, int total);

private:
    QuickScan::Options options() const;
    void showProgress(int done, int found, int failed, int total);
    void offer(const QStringList& words, bool stopped);

    AppContext& m_ctx;
    BrowserTwo& m_walker;
    QuickScan m_scan;
};
