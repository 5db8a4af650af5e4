#include "SqliteSource.h"

SqliteSource::SqliteSource(const QString& path)
    : m_db(TextDatabase::uniqueConnectionName(QStringLiteral("vorlan-import")))
{
    m_db.openReadOnly(path);
}

QVector<QStringList> SqliteSource::readAll(const QString& table, const QStringList& fields)
{
    // The table by its exact name: an empty list of fields would read
    // whatever columns another program's table has.
    if (fields.isEmpty() || !m_db.hasTable(table))
        throw DbError(("No table " + table).toStdString());
    return FieldTexts(m_db.readAll(table, fields));
}
