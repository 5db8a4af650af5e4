#include "FtpUpload.h"

#include <QFile>
#include <QUrl>
#include <curl/curl.h>
#include <mutex>

namespace {

void initialiseOnce()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

size_t readFile(char* buffer, size_t size, size_t count, void* file)
{
    const qint64 got = static_cast<QFile*>(file)->read(buffer, qint64(size * count));
    return got < 0 ? CURL_READFUNC_ABORT : size_t(got);
}

} // namespace

FtpUpload::FtpUpload(FtpTarget target) : m_target(std::move(target))
{
    initialiseOnce();
    m_curl = curl_easy_init();
}

FtpUpload::~FtpUpload()
{
    if (m_curl)
        curl_easy_cleanup(static_cast<CURL*>(m_curl));
}

bool FtpUpload::put(const QString& localPath, const QString& remoteName, bool ascii)
{
    auto* curl = static_cast<CURL*>(m_curl);
    QFile file(localPath);
    if (!curl || !file.open(QIODevice::ReadOnly))
        return false;
    // The login's folder is the target: a relative name, percent-encoded.
    const QByteArray url = "ftp://" + QUrl::toAce(m_target.host) +
                           (m_target.port > 0 ? ":" + QByteArray::number(m_target.port) : "") +
                           "/" + QUrl::toPercentEncoding(remoteName);
    const QByteArray user = m_target.userId.toUtf8();
    const QByteArray password = m_target.password.toUtf8();
    curl_easy_setopt(curl, CURLOPT_URL, url.constData());
    curl_easy_setopt(curl, CURLOPT_USERNAME, user.constData());
    curl_easy_setopt(curl, CURLOPT_PASSWORD, password.constData());
    curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl, CURLOPT_READFUNCTION, readFile);
    curl_easy_setopt(curl, CURLOPT_READDATA, &file);
    curl_easy_setopt(curl, CURLOPT_INFILESIZE_LARGE, curl_off_t(file.size()));
    curl_easy_setopt(curl, CURLOPT_TRANSFERTEXT, ascii ? 1L : 0L);
    curl_easy_setopt(curl, CURLOPT_USE_SSL, long(CURLUSESSL_TRY));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, long(m_target.connectSeconds));
    curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT, long(m_target.responseSeconds));
    // A transfer that stalls is given up like a silent server.
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, long(m_target.responseSeconds));
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    const CURLcode result = curl_easy_perform(curl);
    curl_easy_setopt(curl, CURLOPT_READDATA, nullptr);
    return result == CURLE_OK;
}

bool FtpUpload::splitHost(const QString& text, QString* host, int* port)
{
    const QString trimmed = text.trimmed();
    const int colon = trimmed.lastIndexOf(QLatin1Char(':'));
    *host = trimmed;
    *port = 0;
    if (colon < 0 || trimmed.indexOf(QLatin1Char(':')) != colon)
        return !trimmed.isEmpty();
    bool number = false;
    const int value = trimmed.mid(colon + 1).toInt(&number);
    if (!number || value <= 0 || value > 65535)
        return false;
    *host = trimmed.left(colon);
    *port = value;
    return !host->isEmpty();
}
