#pragma once

#include <QString>

// Where files are published, and how long a silent server is waited for.
struct FtpTarget
{
    QString host;
    int port = 0; // 0: the service's own port
    QString userId;
    QString password;
    int connectSeconds = 20;
    int responseSeconds = 30; // also the longest stall of a transfer
};

// Files sent to one FTP server over one login, each under a bare name in the
// folder where the login arrives. Passive mode; TLS when the server offers
// it. put() blocks until the file has gone or failed.
class FtpUpload
{
public:
    explicit FtpUpload(FtpTarget target);
    ~FtpUpload();
    FtpUpload(const FtpUpload&) = delete;
    FtpUpload& operator=(const FtpUpload&) = delete;

    // ascii: the server is told the file is text (TYPE A), else binary.
    // False when the file could not be read or the server refused it.
    bool put(const QString& localPath, const QString& remoteName, bool ascii);

    // "host" or "host:port" as typed; false when the port is not a number.
    static bool splitHost(const QString& text, QString* host, int* port);

private:
    FtpTarget m_target;
    void* m_curl = nullptr;
};
