#pragma once

#include <QProcess>
#include <QString>

// An FTP server on 127.0.0.1 for one test: pyftpdlib run by Debian's python,
// one user whose login arrives in home.
class LocalFtpServer
{
public:
    LocalFtpServer(const QString& home, const QString& user, const QString& password);
    ~LocalFtpServer();
    LocalFtpServer(const LocalFtpServer&) = delete;
    LocalFtpServer& operator=(const LocalFtpServer&) = delete;

    // 0 when the server did not start.
    int port() const { return m_port; }
    QString failure() const { return m_failure; }

private:
    QProcess m_process;
    int m_port = 0;
    QString m_failure;
};
