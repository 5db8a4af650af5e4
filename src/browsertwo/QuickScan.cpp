#include "QuickScan.h"

#include "TitleTest.h"

#include <QNetworkReply>
#include <QNetworkRequest>

QuickScan::QuickScan(QObject* parent) : QObject(parent)
{
    m_pace.setSingleShot(true);
    connect(&m_pace, &QTimer::timeout, this, &QuickScan::pump);
}

QuickScan::~QuickScan()
{
    m_running = false;
    for (QNetworkReply* reply : m_requests.keys()) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void QuickScan::start(const QVector<Item>& items, const QStringList& badTitles,
                      const Options& options)
{
    stop();
    m_items = items;
    m_badTitles = badTitles;
    m_options = options;
    m_options.inFlight = std::max(options.inFlight, 1);
    const size_t managers =
        size_t((m_options.inFlight + ConnectionsPerManager - 1) / ConnectionsPerManager);
    while (m_managers.size() < managers)
        m_managers.push_back(std::make_unique<QNetworkAccessManager>());
    m_results = QVector<Result>(items.size(), Result::Pending);
    m_next = m_done = m_found = m_failed = 0;
    m_lastStart = -1;
    m_clock.start();
    m_running = true;
    emit progress(0, 0, 0, total());
    if (items.isEmpty())
        end(false);
    else
        pump();
}

void QuickScan::stop()
{
    if (!m_running)
        return;
    m_running = false;
    m_pace.stop();
    const QList<QNetworkReply*> open = m_requests.keys();
    m_requests.clear();
    for (QNetworkReply* reply : open) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
    emit finished(survivors(), true);
}

// Starts requests while there is room, and, under a cap, no sooner than
// its interval after the last start.
void QuickScan::pump()
{
    const qint64 interval =
        m_options.perSecond > 0 ? qint64(1000.0 / m_options.perSecond) : qint64(0);
    while (m_running && m_next < m_items.size() && m_requests.size() < m_options.inFlight) {
        if (interval > 0 && m_lastStart >= 0) {
            const qint64 wait = m_lastStart + interval - m_clock.elapsed();
            if (wait > 0) {
                if (!m_pace.isActive())
                    m_pace.start(int(wait));
                return;
            }
        }
        m_lastStart = m_clock.elapsed();
        launch(m_next++);
    }
}

void QuickScan::launch(int index)
{
    QNetworkRequest request(QUrl(m_items.at(index).address));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(20);
    request.setTransferTimeout(m_options.timeoutMs);
    const size_t managers =
        size_t((m_options.inFlight + ConnectionsPerManager - 1) / ConnectionsPerManager);
    QNetworkReply* reply = m_managers[size_t(index) % managers]->get(request);
    Request& open = m_requests[reply];
    open.index = index;
    // A host that trickles bytes forever is ended by the whole request's time.
    open.deadline = new QTimer(reply);
    open.deadline->setSingleShot(true);
    connect(open.deadline, &QTimer::timeout, reply, &QNetworkReply::abort);
    open.deadline->start(m_options.timeoutMs);
    connect(reply, &QNetworkReply::readyRead, this, [this, reply] { readHead(reply); });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { complete(reply); });
}

// The title stands in the head: reading stops once it is complete or the
// first 64 KiB are in.
void QuickScan::readHead(QNetworkReply* reply)
{
    auto it = m_requests.find(reply);
    if (it == m_requests.end())
        return;
    QByteArray& head = it->head;
    head += reply->read(HeadBytes - head.size());
    if (head.size() >= HeadBytes || head.contains("</title") || head.contains("</TITLE") ||
        head.contains("</Title"))
        complete(reply);
}

void QuickScan::complete(QNetworkReply* reply)
{
    auto it = m_requests.find(reply);
    if (it == m_requests.end())
        return;
    Request request = *it;
    m_requests.erase(it);
    reply->disconnect(this);
    // Cut short here, the head read is all it takes; ended by itself, the
    // reply failed if it broke off below the level of an HTTP answer (no
    // connection, garbage, the deadline).
    const bool cut = reply->isRunning();
    const QNetworkReply::NetworkError error = reply->error();
    const bool broke = error != QNetworkReply::NoError && (error < 200 || error >= 400);
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (cut && status < 400) {
        reply->abort();
        reply->deleteLater();
    } else if (cut) {
        // An error answer is let run out (they are short): cutting one short
        // trips the network layer, which reports its error a second time.
        connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    } else {
        reply->deleteLater();
    }
    if (!cut && broke)
        settle(request.index, Result::Failed);
    else
        judge(reply, request);
    pump();
}

void QuickScan::judge(QNetworkReply* reply, Request& request)
{
    // Only an answer with a status was a page; anything else failed.
    if (!reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid()) {
        settle(request.index, Result::Failed);
        return;
    }
    if (request.head.size() < HeadBytes && reply->isOpen())
        request.head += reply->read(HeadBytes - request.head.size());
    QString title = TitleOfHtml(request.head);
    if (title.isEmpty())
        title = reply->url().toString();
    const bool missing = IsBadTitle(m_badTitles, m_items.at(request.index).word, title);
    settle(request.index, missing ? Result::Missing : Result::Found);
}

void QuickScan::settle(int index, Result result)
{
    m_results[index] = result;
    ++m_done;
    if (result == Result::Found)
        ++m_found;
    else if (result == Result::Failed)
        ++m_failed;
    emit progress(m_done, m_found, m_failed, total());
    if (m_done == m_items.size())
        end(false);
}

void QuickScan::end(bool stopped)
{
    m_running = false;
    m_pace.stop();
    emit finished(survivors(), stopped);
}

QStringList QuickScan::survivors() const
{
    QStringList words;
    for (int i = 0; i < m_results.size(); ++i) {
        if (m_results.at(i) == Result::Found)
            words.append(m_items.at(i).word);
    }
    return words;
}
