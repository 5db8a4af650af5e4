#include "FileFaults.h"

#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

FileSizeLimit::FileSizeLimit(rlim_t bytes)
{
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = m_before;
    limit.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, SIG_DFL);
}

ReadOnlyFolder::ReadOnlyFolder(const QString& path) : m_path(path)
{
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ExeOwner);
    if (!refusesFiles())
        m_immutable = setImmutable(true);
}

ReadOnlyFolder::~ReadOnlyFolder()
{
    if (m_immutable)
        setImmutable(false);
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool ReadOnlyFolder::refusesFiles() const
{
    QFile probe(m_path + QStringLiteral("/.probe"));
    if (!probe.open(QIODevice::WriteOnly))
        return true;
    probe.remove();
    return false;
}

bool ReadOnlyFolder::setImmutable(bool on) const
{
    const int fd = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY);
    if (fd < 0)
        return false;
    int flags = 0;
    bool done = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    if (done) {
        flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
        done = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    }
    ::close(fd);
    return done;
}
