#include "LocalWebServer.h"

#include <QTcpSocket>
#include <QTimer>
#include <utility>

LocalWebServer::LocalWebServer(Handler handler, QObject* parent)
    : QTcpServer(parent), m_handler(std::move(handler))
{
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QObject::destroyed, this, [this, socket] {
                m_pending.remove(socket);
                m_stalled.removeAll(socket);
            });
        }
    });
}

bool LocalWebServer::start()
{
    return listen(QHostAddress::LocalHost, 0);
}

QString LocalWebServer::proxyAddress() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(serverPort());
}

QByteArray LocalWebServer::page(const QString& title, const QString& body)
{
    return QStringLiteral("<html><head><title>%1</title></head><body>%2</body></html>")
        .arg(title, body.isEmpty() ? title : body)
        .toUtf8();
}

void LocalWebServer::releaseStalled()
{
    const QList<QTcpSocket*> held = std::exchange(m_stalled, {});
    for (QTcpSocket* socket : held)
        socket->disconnectFromHost();
}

void LocalWebServer::serve(QTcpSocket* socket)
{
    QByteArray& buffer = m_pending[socket];
    buffer += socket->readAll();
    const int end = buffer.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QList<QByteArray> requestLine = buffer.left(buffer.indexOf("\r\n")).split(' ');
    buffer.remove(0, end + 4);
    if (requestLine.size() < 2)
        return socket->close();
    QString url = QString::fromLatin1(requestLine.at(1));
    if (url.startsWith(QLatin1Char('/')))
        url = QStringLiteral("http://127.0.0.1") + url;
    if (!url.endsWith(QLatin1String("/favicon.ico")))
        requested << url;
    const Reply reply =
        url.endsWith(QLatin1String("/favicon.ico")) ? Reply{{}, 404} : m_handler(url);
    if (reply.delayMs > 0)
        QTimer::singleShot(reply.delayMs, socket, [this, socket, reply] { answer(socket, reply); });
    else
        answer(socket, reply);
}

void LocalWebServer::answer(QTcpSocket* socket, const Reply& reply)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) +
                      (reply.status == 200 ? " OK" : " Not Found") +
                      "\r\nContent-Type: text/html; charset=utf-8\r\nCache-Control: no-store\r\n" +
                      reply.headers;
    if (reply.stall) {
        socket->write(head + "Content-Length: 100000\r\n\r\n" + reply.body.left(200));
        m_stalled << socket;
        return; // held open: the page never completes
    }
    socket->write(head + "Content-Length: " + QByteArray::number(reply.body.size()) +
                  "\r\nConnection: close\r\n\r\n" + reply.body);
    socket->disconnectFromHost();
}
