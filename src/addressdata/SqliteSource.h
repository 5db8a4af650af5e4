#pragma once

#include "SourceDatabase.h"
#include "TextDatabase.h"

// A main database of this program as a source, opened for reading only.
class SqliteSource : public SourceDatabase
{
public:
    // Throws DbError when the file is no sound SQLite database.
    explicit SqliteSource(const QString& path);

    QVector<QStringList> readAll(const QString& table, const QStringList& fields) override;
    QStringList tableNames() override;
    QVector<SourceField> fieldsOf(const QString& table) override;

private:
    TextDatabase m_db;
};
