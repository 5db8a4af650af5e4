#include "TestFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

TestFolders::TestFolders()
{
    const char* vars[][2] = {{"XDG_CONFIG_HOME", "config"},
                             {"XDG_DATA_HOME", "data"},
                             {"XDG_CACHE_HOME", "cache"},
                             {"XDG_RUNTIME_DIR", "runtime"}};
    for (const auto& v : vars) {
        const QString path = root() + QLatin1Char('/') + QLatin1String(v[1]);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(v[0], path.toLocal8Bit());
    }
    QDir().mkpath(appPath());
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool putFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

unsigned modeOf(const QString& path)
{
    struct stat st;
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode & 0777 : 0;
}
