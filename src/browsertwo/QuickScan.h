#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QNetworkAccessManager>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>
#include <memory>
#include <vector>

class QNetworkReply;

// Requests the walker's addresses outside the browser, many at a time, and
// keeps the words whose page passes the walker's missing-page test: the
// title, read from the first 64 KiB of the answer after its redirects, or
// the final address where the page has none. A request that fails (no
// answer, garbage, no end in time) costs only itself and counts as failed.
// Everything runs in the event loop; stop() ends the scan at once.
class QuickScan : public QObject
{
    Q_OBJECT
public:
    static constexpr int HeadBytes = 64 * 1024;

    struct Options
    {
        int inFlight = 16;
        double perSecond = 0;  // at most this many requests a second; 0: no cap
        int timeoutMs = 15000; // per request, from its start to its end
    };
    struct Item
    {
        QString word;
        QString address;
    };

    explicit QuickScan(QObject* parent = nullptr);
    ~QuickScan() override;

    void start(const QVector<Item>& items, const QStringList& badTitles, const Options& options);
    void stop();
    bool isRunning() const { return m_running; }

    int total() const { return m_items.size(); }
    int done() const { return m_done; }
    int found() const { return m_found; }
    int failed() const { return m_failed; }

signals:
    void progress(int done, int found, int failed, int total);
    // The words that passed, in the order given; stopped if stop() ended it.
    void finished(const QStringList& words, bool stopped);

private:
    enum class Result
    {
        Pending,
        Missing,
        Found,
        Failed
    };
    struct Request
    {
        int index = 0;
        QByteArray head;
        QTimer* deadline = nullptr;
    };

    void pump();
    void launch(int index);
    void readHead(QNetworkReply* reply);
    void complete(QNetworkReply* reply);
    void judge(QNetworkReply* reply, Request& request);
    void settle(int index, Result result);
    void end(bool stopped);
    QStringList survivors() const;

    // A manager serves its connections from one network thread of its own
    // (and at most six to a host): requests spread over managers of two
    // connections each go out about half again as fast as over one.
    static constexpr int ConnectionsPerManager = 2;
    std::vector<std::unique_ptr<QNetworkAccessManager>> m_managers;
    QVector<Item> m_items;
    QStringList m_badTitles;
    Options m_options;
    QVector<Result> m_results;
    QHash<QNetworkReply*, Request> m_requests;
    QTimer m_pace;
    QElapsedTimer m_clock;
    qint64 m_lastStart = -1;
    int m_next = 0;
    int m_done = 0;
    int m_found = 0;
    int m_failed = 0;
    bool m_running = false;
};
