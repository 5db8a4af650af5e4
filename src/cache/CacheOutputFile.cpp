#include "CacheOutputFile.h"

#include "CacheFailure.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr qsizetype BlockBytes = 1 << 20;
}

CacheOutputFile::~CacheOutputFile()
{
    close();
}

int CacheOutputFile::open(const QString& path, Mode mode)
{
    close();
    int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    if (mode == New)
        flags |= O_EXCL;
    flags |= mode == Append ? O_APPEND : O_TRUNC;
    m_fd = ::open(QFile::encodeName(path).constData(), flags, 0644);
    m_error = 0;
    return m_fd < 0 ? CacheFailure::fromErrno(errno) : 0;
}

int CacheOutputFile::print(const QByteArray& text)
{
    if (m_fd < 0)
        return CacheFailure::BadFileNumber;
    if (m_error)
        return CacheFailure::fromErrno(m_error);
    m_buffer += text;
    m_buffer += "\r\n";
    return m_buffer.size() >= BlockBytes ? flush() : 0;
}

int CacheOutputFile::flush()
{
    const char* at = m_buffer.constData();
    qsizetype left = m_buffer.size();
    while (left > 0 && !m_error) {
        const ssize_t done = ::write(m_fd, at, size_t(left));
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            m_error = done < 0 ? errno : ENOSPC;
        else {
            at += done;
            left -= done;
        }
    }
    m_buffer.clear();
    return m_error ? CacheFailure::fromErrno(m_error) : 0;
}

int CacheOutputFile::close()
{
    if (m_fd < 0)
        return 0;
    const int failure = m_error ? 0 : flush();
    ::close(m_fd);
    m_fd = -1;
    m_buffer.clear();
    return failure;
}
