#include "ProcessMemory.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <unistd.h>

namespace {

qint64 rssKb(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

QList<qint64> children(qint64 pid)
{
    QList<qint64> found;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task) + QStringLiteral("/children"));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& child : file.readAll().split(' ')) {
            if (!child.trimmed().isEmpty())
                found << child.trimmed().toLongLong();
        }
    }
    return found;
}

qint64 treeKb(qint64 pid)
{
    qint64 total = rssKb(pid);
    for (qint64 child : children(pid))
        total += treeKb(child);
    return total;
}

} // namespace

namespace ProcessMemory {
qint64 selfKb()
{
    return rssKb(getpid());
}
qint64 withChildrenKb()
{
    return treeKb(getpid());
}
} // namespace ProcessMemory
