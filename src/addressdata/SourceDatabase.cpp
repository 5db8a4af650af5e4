#include "SourceDatabase.h"

#include "JetSource.h"
#include "SqliteSource.h"
#include "TextDatabase.h"

#include <QFile>

namespace {

QByteArray head(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DbError(("Cannot read " + path + ": " + file.errorString()).toStdString());
    return file.read(32);
}

} // namespace

std::unique_ptr<SourceDatabase> SourceDatabase::open(const QString& path)
{
    const QByteArray start = head(path);
    if (start.startsWith(QByteArray("SQLite format 3\0", 16)))
        return std::make_unique<SqliteSource>(path);
    if (JetSource::looksLikeJet(start))
        return std::make_unique<JetSource>(path);
    throw DbError(("Not a database this program reads: " + path).toStdString());
}
