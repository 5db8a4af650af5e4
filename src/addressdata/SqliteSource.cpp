#include "SqliteSource.h"

#include <QSqlQuery>

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

QStringList SqliteSource::tableNames()
{
    return m_db.tableNames();
}

QVector<SourceField> SqliteSource::fieldsOf(const QString& table)
{
    QSqlQuery query(m_db.handle());
    query.prepare(QStringLiteral("SELECT name, upper(type) FROM pragma_table_info(?)"));
    query.addBindValue(table);
    QVector<SourceField> fields;
    if (query.exec()) {
        // SQLite gives text affinity to the declared types that name TEXT,
        // CHAR or CLOB; CLOB stands for a long text, as a Memo field does.
        while (query.next()) {
            const QString type = query.value(1).toString();
            fields.append({query.value(0).toString(), type.contains(QLatin1String("TEXT")) ||
                                                          type.contains(QLatin1String("CHAR"))});
        }
    }
    if (fields.isEmpty())
        throw DbError(("No table " + table).toStdString());
    return fields;
}
