#include "HttpFetch.h"

#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTemporaryFile>
#include <QTimer>

QString HttpFetch::stateText(int state)
{
    static const char* const texts[] = {
        "No Response ToGet", "Finding Host",  "Host Found",   "Connecting",
        "Connected",         "Requesting",    "Request Sent", "Receiving Response",
        "Response Received", "Disconnecting", "Disconnected", "ERROR",
        "Response Completed"};
    return state >= 0 && state <= 12 ? QString::fromLatin1(texts[state]) : QString();
}

HttpFetch::HttpFetch(QNetworkAccessManager& network, const QString& url, const Limits& limits,
                     const QString& folder, QObject* parent)
    : QObject(parent), m_network(network), m_url(url), m_limits(limits), m_folder(folder)
{
}

HttpFetch::~HttpFetch()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
    }
}

void HttpFetch::start()
{
    emit stateChanged(Connecting);
    const QUrl url = QUrl::fromUserInput(m_url);
    if (!url.isValid() ||
        (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))) {
        QTimer::singleShot(0, this, [this] { end(false); });
        return;
    }
    // The stall counts from the request's sending: a request that waits
    // for a free connection is not stalled.
    m_stall.setSingleShot(true);
    m_stall.setInterval(m_limits.stallMs);
    connect(&m_stall, &QTimer::timeout, this, [this] { end(false); });
    if (!m_folder.isEmpty()) {
        m_file = std::make_unique<QTemporaryFile>(m_folder + QStringLiteral("/.vorlan-get-XXXXXX"));
        if (!m_file->open()) {
            QTimer::singleShot(0, this, [this] { end(false); });
            return;
        }
    }
    send();
    QTimer::singleShot(m_limits.totalMs, this, [this] { end(false); });
}

void HttpFetch::send()
{
    QNetworkRequest request(QUrl::fromUserInput(m_url));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(m_limits.maxRedirects);
    emit stateChanged(Requesting);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::requestSent, this, [this] {
        m_stall.start();
        emit stateChanged(RequestSent);
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpFetch::receive);
    connect(m_reply, &QNetworkReply::finished, this, [this] {
        receive();
        // A status of the server (404, 500) still brings its page, as before;
        // a failed connection, a reset or a redirect loop brings nothing.
        const QNetworkReply::NetworkError error = m_reply->error();
        const bool answered =
            m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
        // A kept-alive connection that the server had closed meanwhile
        // fails before any answer: the request goes once more.
        if (error == QNetworkReply::RemoteHostClosedError && !answered && m_size == 0 &&
            !m_retried) {
            m_retried = true;
            m_reply->disconnect(this);
            m_reply->deleteLater();
            send();
            return;
        }
        end(error == QNetworkReply::NoError ||
            (answered && error >= QNetworkReply::ContentAccessDenied &&
             error != QNetworkReply::ProtocolFailure));
    });
}

void HttpFetch::receive()
{
    if (m_done || !m_reply || !m_reply->isOpen())
        return;
    if (m_stall.isActive())
        m_stall.start();
    if (!m_receiving) {
        m_receiving = true;
        emit stateChanged(ReceivingResponse);
    }
    const QByteArray chunk = m_reply->readAll();
    m_size += chunk.size();
    if (m_size > m_limits.maxBytes)
        return end(false);
    if (m_file) {
        if (m_file->write(chunk) != chunk.size())
            return end(false);
    } else {
        m_body += chunk;
    }
}

void HttpFetch::cancel()
{
    end(false);
}

void HttpFetch::end(bool ok)
{
    if (m_done)
        return;
    m_done = true;
    m_ok = ok;
    m_stall.stop();
    if (m_reply) {
        QNetworkReply* reply = m_reply;
        m_reply = nullptr;
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
    if (!ok) {
        m_body.clear();
        m_size = 0;
        m_file.reset();
    } else if (m_file) {
        m_file->flush();
    }
    emit stateChanged(ok ? ResponseReceived : Error);
    if (ok)
        emit stateChanged(ResponseCompleted);
    emit finished();
}

bool HttpFetch::keepAs(const QString& path)
{
    if (!m_file || !m_ok)
        return false;
    m_file->close();
    if (!m_file->rename(path))
        return false;
    m_file->setAutoRemove(false);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                    QFile::ReadOther);
    return true;
}
