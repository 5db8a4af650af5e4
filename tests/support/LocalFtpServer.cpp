#include "LocalFtpServer.h"

namespace {

// argv: home, user, password. Prints the port.
const char* const Script = R"(
import sys
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.servers import FTPServer
from pyftpdlib.handlers import FTPHandler
home, user, password = sys.argv[1:4]
handler = FTPHandler
authorizer = DummyAuthorizer()
authorizer.add_user(user, password, home, perm='elradfmwMT')
handler.authorizer = authorizer
handler.auth_failed_timeout = 0
server = FTPServer(('127.0.0.1', 0), handler)
print(server.socket.getsockname()[1], flush=True)
server.serve_forever()
)";

} // namespace

LocalFtpServer::LocalFtpServer(const QString& home, const QString& user, const QString& password)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral("/usr/bin/python3"),
                    {QStringLiteral("-c"), QString::fromLatin1(Script), home, user, password});
    if (!m_process.waitForStarted(30000)) {
        m_failure = m_process.errorString();
        return;
    }
    while (!m_process.canReadLine() && m_process.waitForReadyRead(30000)) {
    }
    m_port = m_process.readLine().trimmed().toInt();
    if (m_port == 0)
        m_failure = QStringLiteral("pyftpdlib gave no port");
}

LocalFtpServer::~LocalFtpServer()
{
    m_process.kill();
    m_process.waitForFinished(10000);
}
