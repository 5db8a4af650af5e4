#pragma once

#include <QHash>
#include <QStringList>
#include <QTcpServer>
#include <functional>

class QTcpSocket;

// A small HTTP server on 127.0.0.1 for tests. It also serves as the browser
// engine's proxy, so that requests for any host name (the service's among
// them) arrive here with their full address and nothing leaves the machine.
class LocalWebServer : public QTcpServer
{
    Q_OBJECT
public:
    struct Reply
    {
        QByteArray body;
        int status = 200;
        // A page that never ends: the head and part of the body are sent and
        // the connection is held open.
        bool stall = false;
        int delayMs = 0;
        QByteArray headers = QByteArray(); // further header lines, each ending in CR LF
    };
    // Answers a request for the full address url.
    using Handler = std::function<Reply(const QString& url)>;

    explicit LocalWebServer(Handler handler, QObject* parent = nullptr);

    bool start();
    QString proxyAddress() const;
    // Every address requested, in order (the engine's own favicon requests left out).
    QStringList requested;

    // A page with a title and a body.
    static QByteArray page(const QString& title, const QString& body = QString());
    // Closes every held-open answer short of its length, so that it fails.
    void releaseStalled();

private:
    void serve(QTcpSocket* socket);
    void answer(QTcpSocket* socket, const Reply& reply);

    Handler m_handler;
    QHash<QTcpSocket*, QByteArray> m_pending;
    QList<QTcpSocket*> m_stalled;
};
