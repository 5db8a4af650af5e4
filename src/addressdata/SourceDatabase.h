#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <memory>

// A field of a source table; text marks the engine's short text type (a
// Jet Text field, a SQLite column declared TEXT or CHAR).
struct SourceField
{
    QString name;
    bool text = false;
};

// A database file of an older installation, read only: an Access (Jet) file
// of the old program or a SQLite file of this one, told apart by content.
class SourceDatabase
{
public:
    virtual ~SourceDatabase() = default;

    // Opens the file by what it holds, whatever its name. Throws DbError
    // for a file that is neither kind, or cannot be opened.
    static std::unique_ptr<SourceDatabase> open(const QString& path);

    // Every record of the table in stored order, the named fields in the
    // given order, NULL as the empty text. Throws DbError when the table or
    // one of the fields is missing, or a page cannot be read.
    virtual QVector<QStringList> readAll(const QString& table, const QStringList& fields) = 0;

    // Every table of the file, the engine's own included, in the file's order.
    virtual QStringList tableNames() = 0;
    // The fields of a table in their order; throws DbError for no such table.
    virtual QVector<SourceField> fieldsOf(const QString& table) = 0;
};
