#pragma once

#include <QBitArray>
#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>

class QNetworkReply;

// Asks the Internet Archive's CDX index which house numbers of a block it
// holds a page of, one block after the other, page by page with the
// index's resume key. It keeps to the archive's rate limit: one request at
// most every 2.5 s, and on 429 or 503 a pause for as long as Retry-After
// says, or doubling from 10 s.
class CdxFetcher : public QObject
{
    Q_OBJECT
public:
    explicit CdxFetcher(QObject* parent = nullptr);

    QString cdxBase = QStringLiteral("https://web.archive.org");
    int minIntervalMs = 2500;
    int firstBackOffMs = 10000;
    int maxBackOffMs = 15 * 60 * 1000;
    int pageSize = 10000;
    int timeoutMs = 60000;
    // Runs then after ms milliseconds; a single-shot timer by default.
    std::function<void(int ms, std::function<void()> then)> wait;
    // Milliseconds of a steady clock.
    std::function<qint64()> now;

    // Queues a block ("geocities.com/SoHo/Lofts"); one that is queued or
    // being fetched already is not added again.
    void fetch(const QString& block);
    // Ends the fetch under way and empties the queue.
    void stop();
    bool busy() const { return !m_block.isEmpty(); }
    QString current() const { return m_block; }

    // The index's address for a page of a block.
    static QString queryUrl(const QString& base, const QString& block, int pageSize,
                            const QString& resumeKey);
    // Marks the house numbers of the block that the page's addresses name
    // and returns the resume key of the next page, empty after the last.
    static QByteArray parsePage(const QByteArray& body, const QString& block, QBitArray& houses,
                                int* addresses = nullptr);

signals:
    void progress(const QString& block, int addresses);
    void finished(const QString& block, const QVector<int>& houses);
    void failed(const QString& block, const QString& message);
    // The queue is empty and nothing is under way.
    void idle();

private:
    void startNext();
    void schedule(int delayMs);
    void send();
    void received(QNetworkReply* reply);
    void backOff(QNetworkReply* reply);
    void fail(const QString& message);

    QNetworkAccessManager m_net;
    QStringList m_queue;
    QString m_block;
    QByteArray m_resumeKey;
    QBitArray m_houses;
    int m_addresses = 0;
    qint64 m_lastRequest = -1;
    int m_backOff = 0;
    int m_generation = 0; // a stop leaves waits of the run before idle
    QPointer<QNetworkReply> m_reply;
};
