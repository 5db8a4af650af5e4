#include "CdxFetcher.h"

#include "CaptureIndex.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cstring>

namespace {
bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// The house number that an archived address names within the block
// ("geocities.com/soho/lofts/", lower case), or 0.
int houseIn(const char* line, const char* end, const QByteArray& block)
{
    const char* p = line;
    const char* scheme = static_cast<const char*>(memmem(p, end - p, "://", 3));
    if (scheme)
        p = scheme + 3;
    if (end - p > 4 && qstrnicmp(p, "www.", 4) == 0)
        p += 4;
    // The host, then an optional ":80", then the block's path.
    const int host = block.indexOf('/');
    if (end - p < block.size() + 4 || qstrnicmp(p, block.constData(), host) != 0)
        return 0;
    p += host;
    if (end - p > 3 && std::memcmp(p, ":80", 3) == 0)
        p += 3;
    const int rest = block.size() - host;
    if (end - p < rest + 4 || qstrnicmp(p, block.constData() + host, rest) != 0)
        return 0;
    p += rest;
    if (!isDigit(p[0]) || !isDigit(p[1]) || !isDigit(p[2]) || !isDigit(p[3]))
        return 0;
    if (p + 4 < end && p[4] != '/')
        return 0;
    const int house = (p[0] - '0') * 1000 + (p[1] - '0') * 100 + (p[2] - '0') * 10 + (p[3] - '0');
    return house >= CaptureIndex::FirstHouse ? house : 0;
}

// Retry-After in seconds, or as an HTTP date; -1 when absent or unreadable.
int retryAfterMs(const QByteArray& value)
{
    bool number = false;
    const int seconds = value.trimmed().toInt(&number);
    if (number)
        return std::max(seconds, 0) * 1000;
    const QDateTime when =
        QDateTime::fromString(QString::fromLatin1(value.trimmed()), Qt::RFC2822Date);
    if (!when.isValid())
        return -1;
    return static_cast<int>(
        std::clamp<qint64>(QDateTime::currentDateTimeUtc().msecsTo(when), 0, 24 * 3600 * 1000));
}
} // namespace

CdxFetcher::CdxFetcher(QObject* parent) : QObject(parent)
{
    wait = [this](int ms, std::function<void()> then) {
        QTimer::singleShot(ms, this, std::move(then));
    };
    now = [] {
        static QElapsedTimer clock;
        if (!clock.isValid())
            clock.start();
        return clock.elapsed();
    };
}

QString CdxFetcher::queryUrl(const QString& base, const QString& block, int pageSize,
                             const QString& resumeKey)
{
    QString url = base;
    while (url.endsWith(QLatin1Char('/')))
        url.chop(1);
    url += QStringLiteral("/cdx/search/cdx?url=") +
           QString::fromLatin1(QUrl::toPercentEncoding(block + QLatin1Char('/'), "/")) +
           QStringLiteral("&matchType=prefix&collapse=urlkey&fl=original"
                          "&filter=statuscode:200&showResumeKey=true&limit=") +
           QString::number(pageSize);
    if (!resumeKey.isEmpty())
        url +=
            QStringLiteral("&resumeKey=") + QString::fromLatin1(QUrl::toPercentEncoding(resumeKey));
    return url;
}

QByteArray CdxFetcher::parsePage(const QByteArray& body, const QString& block, QBitArray& houses,
                                 int* addresses)
{
    const QByteArray key = block.toLower().toUtf8() + '/';
    const char* p = body.constData();
    const char* end = p + body.size();
    int count = 0;
    while (p < end) {
        const char* eol = static_cast<const char*>(std::memchr(p, '\n', end - p));
        const char* lineEnd = eol ? eol : end;
        const char* trimmed = lineEnd > p && lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
        // An empty line parts the addresses from the resume key.
        if (trimmed == p) {
            if (addresses)
                *addresses += count;
            return eol ? QByteArray(eol + 1, end - eol - 1).trimmed() : QByteArray();
        }
        ++count;
        const int house = houseIn(p, trimmed, key);
        if (house > 0 && house < houses.size())
            houses.setBit(house);
        p = eol ? eol + 1 : end;
    }
    if (addresses)
        *addresses += count;
    return QByteArray();
}

void CdxFetcher::fetch(const QString& block)
{
    if (block == m_block || m_queue.contains(block))
        return;
    m_queue.append(block);
    if (!busy())
        startNext();
}

void CdxFetcher::stop()
{
    ++m_generation;
    m_queue.clear();
    m_block.clear();
    if (m_reply) {
        m_reply->abort();
        m_reply->deleteLater();
    }
    emit idle();
}

void CdxFetcher::startNext()
{
    if (m_queue.isEmpty()) {
        m_block.clear();
        emit idle();
        return;
    }
    m_block = m_queue.takeFirst();
    m_resumeKey.clear();
    m_houses = QBitArray(CaptureIndex::LastHouse + 1);
    m_addresses = 0;
    schedule(0);
}

// No request leaves sooner than the interval after the one before.
void CdxFetcher::schedule(int delayMs)
{
    if (m_lastRequest >= 0)
        delayMs = std::max<qint64>(delayMs, m_lastRequest + minIntervalMs - now());
    const int generation = m_generation;
    auto go = [this, generation] {
        if (generation == m_generation)
            send();
    };
    if (delayMs > 0)
        wait(delayMs, go);
    else
        go();
}

void CdxFetcher::send()
{
    m_lastRequest = now();
    QNetworkRequest request(
        QUrl(queryUrl(cdxBase, m_block, pageSize, QString::fromLatin1(m_resumeKey))));
    request.setTransferTimeout(timeoutMs);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Vorlan"));
    m_reply = m_net.get(request);
    const int generation = m_generation;
    QNetworkReply* reply = m_reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, generation] {
        reply->deleteLater();
        if (generation == m_generation)
            received(reply);
    });
}

void CdxFetcher::received(QNetworkReply* reply)
{
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status == 429 || status == 503) {
        backOff(reply);
        return;
    }
    if (reply->error() != QNetworkReply::NoError || status != 200) {
        fail(reply->errorString());
        return;
    }
    m_backOff = 0;
    m_resumeKey = parsePage(reply->readAll(), m_block, m_houses, &m_addresses);
    emit progress(m_block, m_addresses);
    if (!m_resumeKey.isEmpty()) {
        schedule(0);
        return;
    }
    QVector<int> houses;
    for (int house = CaptureIndex::FirstHouse; house < m_houses.size(); ++house) {
        if (m_houses.testBit(house))
            houses.append(house);
    }
    const QString block = m_block;
    m_block.clear();
    emit finished(block, houses);
    startNext();
}

void CdxFetcher::backOff(QNetworkReply* reply)
{
    int delay = retryAfterMs(reply->rawHeader("Retry-After"));
    if (delay < 0) {
        m_backOff = m_backOff == 0 ? firstBackOffMs : std::min(m_backOff * 2, maxBackOffMs);
        delay = m_backOff;
    }
    schedule(delay);
}

void CdxFetcher::fail(const QString& message)
{
    const QString block = m_block;
    m_block.clear();
    emit failed(block, message);
    startNext();
}
