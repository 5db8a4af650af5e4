#include "TestFolders.h"

#include <QDir>
#include <QFile>

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
