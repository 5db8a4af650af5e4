#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QTemporaryFile;

// One fetch of a URL outside the browser, as the Inet control made it: the
// body whatever the status (a server's error page included), nothing on a
// failure of the connection. It ends by itself on a stall, at a size cap,
// after a total time and after a few redirects. With a folder the body goes
// into a temporary file there, else it is kept in memory.
class HttpFetch : public QObject
{
    Q_OBJECT
public:
    struct Limits
    {
        int stallMs = 30000;         // no byte for this long ends the fetch
        int totalMs = 600000;        // the whole fetch
        qint64 maxBytes = 1LL << 30; // a longer body is a failure
        int maxRedirects = 10;
    };

    // The states of the classic control, shown in the window's title.
    enum State
    {
        Connecting = 3,
        Requesting = 5,
        RequestSent = 6,
        ReceivingResponse = 7,
        ResponseReceived = 8,
        Error = 11,
        ResponseCompleted = 12
    };
    static QString stateText(int state);

    HttpFetch(QNetworkAccessManager& network, const QString& url, const Limits& limits,
              const QString& folder = QString(), QObject* parent = nullptr);
    ~HttpFetch() override;

    void start();
    void cancel();
    bool isDone() const { return m_done; }
    bool ok() const { return m_ok; }
    qint64 size() const { return m_size; }
    // The body kept in memory (without a folder).
    QByteArray body() const { return m_body; }
    // Moves the body's temporary file to path; false when that fails.
    bool keepAs(const QString& path);

signals:
    void stateChanged(int state);
    void finished();

private:
    void send();
    void receive();
    void end(bool ok);

    QNetworkAccessManager& m_network;
    QString m_url;
    Limits m_limits;
    QString m_folder;
    QPointer<QNetworkReply> m_reply;
    std::unique_ptr<QTemporaryFile> m_file;
    QByteArray m_body;
    qint64 m_size = 0;
    bool m_done = false;
    bool m_ok = false;
    bool m_receiving = false;
    bool m_retried = false;
    QTimer m_stall;
};
