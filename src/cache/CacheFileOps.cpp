#include "CacheFileOps.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray nativePath(const QString& path)
{
    return QFile::encodeName(path);
}

// Reads what is left of fd into bytes from offset on; false with errno set.
bool readRest(int fd, QByteArray& bytes, qsizetype offset)
{
    for (;;) {
        if (offset == bytes.size())
            bytes.resize(bytes.size() + qMax<qsizetype>(bytes.size() / 2, 1 << 16));
        const ssize_t got = ::read(fd, bytes.data() + offset, size_t(bytes.size() - offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            break;
        offset += got;
    }
    bytes.resize(offset);
    return true;
}

bool copyBytes(int from, int to)
{
    for (;;) {
        const ssize_t done = ::copy_file_range(from, nullptr, to, nullptr, 1 << 30, 0);
        if (done == 0)
            return true;
        if (done > 0)
            continue;
        if (errno == EINTR)
            continue;
        if (errno != EXDEV && errno != ENOSYS && errno != EINVAL && errno != EOPNOTSUPP)
            return false;
        break; // the file system cannot do it; copy through a buffer
    }
    QByteArray block(1 << 20, Qt::Uninitialized);
    for (;;) {
        const ssize_t got = ::read(from, block.data(), size_t(block.size()));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return got == 0;
        for (ssize_t at = 0; at < got;) {
            const ssize_t put = ::write(to, block.constData() + at, size_t(got - at));
            if (put < 0 && errno == EINTR)
                continue;
            if (put <= 0) {
                if (put == 0)
                    errno = ENOSPC;
                return false;
            }
            at += put;
        }
    }
}

} // namespace

int CacheFileOps::readWhole(const QString& path, QByteArray& bytes)
{
    bytes.clear();
    const int fd = ::open(nativePath(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    struct stat info
    {
    };
    int error = 0;
    if (::fstat(fd, &info) != 0)
        error = errno;
    else if (S_ISDIR(info.st_mode))
        error = EISDIR;
    else {
        bytes.resize(qsizetype(info.st_size) + 1);
        if (!readRest(fd, bytes, 0))
            error = errno;
    }
    ::close(fd);
    if (error)
        bytes.clear();
    return error;
}

int CacheFileOps::copyFile(const QString& from, const QString& to)
{
    const int source = ::open(nativePath(from).constData(), O_RDONLY | O_CLOEXEC);
    if (source < 0)
        return errno;
    struct stat info
    {
    };
    if (::fstat(source, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(source);
        return EISDIR;
    }
    const QByteArray target = nativePath(to);
    const int copy = ::open(target.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (copy < 0) {
        const int error = errno;
        ::close(source);
        return error;
    }
    int error = copyBytes(source, copy) ? 0 : errno;
    if (::close(copy) != 0 && !error)
        error = errno;
    ::close(source);
    if (error)
        ::unlink(target.constData());
    return error;
}

int CacheFileOps::renameNoReplace(const QString& from, const QString& to)
{
    const QByteArray a = nativePath(from);
    const QByteArray b = nativePath(to);
    if (::renameat2(AT_FDCWD, a.constData(), AT_FDCWD, b.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system without the no-replace flag: look first, then rename.
    struct stat info
    {
    };
    if (::lstat(b.constData(), &info) == 0)
        return EEXIST;
    return ::rename(a.constData(), b.constData()) == 0 ? 0 : errno;
}
