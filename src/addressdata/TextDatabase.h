#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>
#include <stdexcept>

// A failed database operation; the message carries the engine's text.
class DbError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// One record of a table: its fields in the table's order, with a null
// QString for a NULL field, and the rowid that orders and addresses it.
struct TextRecord
{
    qint64 rowid = 0;
    QStringList fields;
};

// A single SQLite file of named tables whose fields are all text of at most
// 255 characters, without keys; records come back in insertion order.
// Every write of several records is one transaction.
class TextDatabase
{
public:
    static constexpr int MaxFieldLength = 255;

    // connection: a name unique within the process.
    explicit TextDatabase(const QString& connection);
    // A connection name that no other caller has been given, for a
    // database that lives for one procedure.
    static QString uniqueConnectionName(const QString& prefix);
    ~TextDatabase();
    TextDatabase(const TextDatabase&) = delete;
    TextDatabase& operator=(const TextDatabase&) = delete;

    // Opens an existing file or, with create set, makes a new one, readable
    // and writable by its owner only. Throws DbError when the file cannot be
    // opened or is not a database, which includes an empty file and one with
    // damaged pages; texts over the length limit do not make it damaged.
    void open(const QString& path, bool create = false);
    // Opens an existing file for reading only, as a source that must stay
    // as it is; the same faults throw.
    void openReadOnly(const QString& path);
    void close();
    bool isOpen() const;
    QString path() const { return m_path; }

    void createTable(const QString& table, const QStringList& fields);
    bool hasTable(const QString& table) const;
    // The names of the tables in the order they were made, the engine's own
    // (sqlite_...) left out.
    QStringList tableNames() const;
    // Takes the table out of the file, with its records; a missing table
    // is a fault.
    void dropTable(const QString& table);
    // Reads the whole table; throws DbError on any fault of file or table.
    // With fields given, only those, by name and in that order; a table that
    // lacks one of them is a fault.
    QVector<TextRecord> readAll(const QString& table, const QStringList& fields = {}) const;
    // The records whose keyField holds key, in insertion order.
    QVector<TextRecord> readWhere(const QString& table, const QStringList& fields,
                                  const QString& keyField, const QString& key) const;
    int recordCount(const QString& table) const;
    // Reads every record of the table inside the engine, the given fields
    // by name, without handing them out: the check of a table. Throws
    // DbError when the table, a field or a page of it is missing or damaged.
    void scan(const QString& table, const QStringList& fields) const;
    // Appends records in one transaction; all or none are stored. A null
    // text is stored as the empty text.
    void append(const QString& table, const QStringList& fields, const QVector<QStringList>& rows);
    // Runs several writes as one: if work throws, none of them is stored
    // and the error is passed on. Writes may nest.
    void runInTransaction(const std::function<void()>& work);
    void remove(const QString& table, qint64 rowid);
    void removeAll(const QString& table);
    // Sets one field of one record; a text over the length limit throws.
    void update(const QString& table, qint64 rowid, const QString& field, const QString& value);
    void removeWhere(const QString& table, const QString& keyField, const QString& key);

    QSqlDatabase handle() const;

private:
    void openFile(const QString& path, bool create, const QString& options);
    void checkReadable() const;
    QVector<TextRecord> readRecords(const QString& table, const QStringList& fields,
                                    const QString& keyField, const QString& key) const;
    void requireOpen() const;
    void execute(const QString& sql, const QVariantList& values = {}) const;
    void rollbackSavepoint() const;

    QString m_connection;
    QString m_path;
    bool m_owner = false; // this object added the connection
};

// A null field read as text: the empty text for NULL, else the text.
inline QString NullToEmpty(const QString& value)
{
    return value.isNull() ? QString("") : value;
}

// The fields of the records alone, NULL read as the empty text.
inline QVector<QStringList> FieldTexts(const QVector<TextRecord>& records)
{
    QVector<QStringList> rows;
    rows.reserve(records.size());
    for (const TextRecord& record : records) {
        QStringList row;
        for (const QString& value : record.fields)
            row.append(NullToEmpty(value));
        rows.append(row);
    }
    return rows;
}
