#include "TextDatabase.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

namespace {

const QString Driver = QStringLiteral("QSQLITE");

// SQLite takes a double-quoted name that matches no column for a text
// literal, so a missing field would read as its own name; a name in grave
// accents is always a name, and a missing one is an error.
QString quoted(const QString& name)
{
    QString escaped = name;
    escaped.replace(QLatin1Char('`'), QLatin1String("``"));
    return QLatin1Char('`') + escaped + QLatin1Char('`');
}

[[noreturn]] void fail(const QString& what, const QSqlError& error = QSqlError())
{
    QString message = what;
    if (error.isValid())
        message += QLatin1String(": ") + error.text();
    throw DbError(message.toStdString());
}

// The files hold the user's saved addresses and notes: a new one is the
// owner's alone from its first moment, and SQLite keeps that mode.
void createPrivateFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        fail(QStringLiteral("Cannot create ") + path + QLatin1String(": ") + file.errorString());
}

// The program never writes a NULL: an empty field is a zero-length text.
QString storable(const QString& value)
{
    return value.isNull() ? QString("") : value;
}

QString readable(const QVariant& value)
{
    if (value.isNull())
        return QString();
    return storable(value.toString());
}

} // namespace

TextDatabase::TextDatabase(const QString& connection) : m_connection(connection) {}

TextDatabase::~TextDatabase()
{
    close();
}

QString TextDatabase::uniqueConnectionName(const QString& prefix)
{
    static int counter = 0;
    return prefix + QLatin1Char('-') + QString::number(++counter);
}

void TextDatabase::open(const QString& path, bool create)
{
    openFile(path, create, QString());
}

void TextDatabase::openReadOnly(const QString& path)
{
    openFile(path, false, QStringLiteral("QSQLITE_OPEN_READONLY"));
}

void TextDatabase::openFile(const QString& path, bool create, const QString& options)
{
    close();
    const QFileInfo info(path);
    if (!create && !info.exists())
        fail(QStringLiteral("No such database file: ") + path);
    if (info.exists() && !info.isFile())
        fail(QStringLiteral("Not a file: ") + path);
    // SQLite takes an empty file for an empty database; here it is a file
    // that was never written, not a database.
    if (!create && info.size() == 0)
        fail(QStringLiteral("Empty file, not a database: ") + path);
    if (QSqlDatabase::contains(m_connection))
        fail(QStringLiteral("Connection name already in use: ") + m_connection);
    if (create && !info.exists())
        createPrivateFile(path);

    QSqlError error;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(Driver, m_connection);
        m_owner = true;
        db.setDatabaseName(path);
        db.setConnectOptions(options);
        if (!db.isValid() || !db.open())
            error = db.lastError();
    }
    if (error.isValid()) {
        close();
        fail(QStringLiteral("Cannot open ") + path, error);
    }
    m_path = path;
    try {
        checkReadable();
    } catch (const DbError&) {
        close();
        throw;
    }
}

// SQLite opens a file lazily; reading the schema and checking the pages
// finds a file that is not a database, or only part of one, now.
void TextDatabase::checkReadable() const
{
    QSqlQuery schema(handle());
    if (!schema.exec(QStringLiteral("SELECT count(*) FROM sqlite_master")) || !schema.next())
        fail(QStringLiteral("Not a database: ") + m_path, schema.lastError());

    // A text over the length limit, stored by another tool, breaks a CHECK
    // but not the file: the check of the pages leaves the constraints out.
    execute(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
    QSqlQuery check(handle());
    const bool checked = check.exec(QStringLiteral("PRAGMA quick_check")) && check.next();
    const QString verdict = checked ? check.value(0).toString() : QString();
    const QSqlError error = check.lastError();
    check.finish();
    execute(QStringLiteral("PRAGMA ignore_check_constraints = OFF"));
    if (!checked)
        fail(QStringLiteral("Cannot check ") + m_path, error);
    if (verdict != QLatin1String("ok"))
        fail(QStringLiteral("Damaged database ") + m_path + QLatin1String(": ") + verdict);
}

void TextDatabase::close()
{
    if (!m_owner)
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        if (db.isOpen())
            db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
    m_owner = false;
    m_path.clear();
}

bool TextDatabase::isOpen() const
{
    return m_owner && handle().isOpen();
}

QSqlDatabase TextDatabase::handle() const
{
    return QSqlDatabase::database(m_connection, false);
}

void TextDatabase::requireOpen() const
{
    if (!isOpen())
        fail(QStringLiteral("Database not open"));
}

void TextDatabase::execute(const QString& sql, const QVariantList& values) const
{
    requireOpen();
    QSqlQuery query(handle());
    if (!query.prepare(sql))
        fail(sql, query.lastError());
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values[i]);
    if (!query.exec())
        fail(sql, query.lastError());
}

void TextDatabase::createTable(const QString& table, const QStringList& fields)
{
    if (fields.isEmpty())
        fail(QStringLiteral("A table needs a field: ") + table);
    QStringList columns;
    for (const QString& field : fields) {
        const QString name = quoted(field);
        columns.append(
            QStringLiteral("%1 TEXT CHECK(length(%1) <= %2)").arg(name).arg(MaxFieldLength));
    }
    execute(QStringLiteral("CREATE TABLE %1 (%2)").arg(quoted(table), columns.join(", ")));
}

bool TextDatabase::hasTable(const QString& table) const
{
    requireOpen();
    QSqlQuery query(handle());
    query.prepare(QStringLiteral(
        "SELECT 1 FROM sqlite_master WHERE type = 'table' AND lower(name) = lower(?)"));
    query.addBindValue(table);
    if (!query.exec())
        fail(QStringLiteral("Cannot read the tables"), query.lastError());
    return query.next();
}

QStringList TextDatabase::tableNames() const
{
    requireOpen();
    QSqlQuery query(handle());
    if (!query.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND "
                                   "name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid")))
        fail(QStringLiteral("Cannot read the tables"), query.lastError());
    QStringList names;
    while (query.next())
        names.append(query.value(0).toString());
    return names;
}

void TextDatabase::dropTable(const QString& table)
{
    execute(QStringLiteral("DROP TABLE %1").arg(quoted(table)));
}

QVector<TextRecord> TextDatabase::readAll(const QString& table, const QStringList& fields) const
{
    return readRecords(table, fields, QString(), QString());
}

QVector<TextRecord> TextDatabase::readWhere(const QString& table, const QStringList& fields,
                                            const QString& keyField, const QString& key) const
{
    return readRecords(table, fields, keyField, key);
}

void TextDatabase::removeWhere(const QString& table, const QString& keyField, const QString& key)
{
    execute(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(quoted(table), quoted(keyField)),
            {key});
}

QVector<TextRecord> TextDatabase::readRecords(const QString& table, const QStringList& fields,
                                              const QString& keyField, const QString& key) const
{
    requireOpen();
    QStringList named;
    for (const QString& field : fields)
        named.append(quoted(field));
    const QString selected = named.isEmpty() ? QStringLiteral("*") : named.join(", ");
    const QString where =
        keyField.isEmpty() ? QString() : QStringLiteral(" WHERE %1 = ?").arg(quoted(keyField));
    QSqlQuery query(handle());
    query.setForwardOnly(true);
    if (!query.prepare(QStringLiteral("SELECT rowid, %1 FROM %2%3 ORDER BY rowid")
                           .arg(selected, quoted(table), where)))
        fail(QStringLiteral("Cannot read ") + table, query.lastError());
    if (!keyField.isEmpty())
        query.bindValue(0, key);
    if (!query.exec())
        fail(QStringLiteral("Cannot read ") + table, query.lastError());
    const int columns = query.record().count();
    QVector<TextRecord> records;
    while (query.next()) {
        TextRecord record;
        record.rowid = query.value(0).toLongLong();
        for (int c = 1; c < columns; ++c)
            record.fields.append(readable(query.value(c)));
        records.append(record);
    }
    if (query.lastError().isValid())
        fail(QStringLiteral("Cannot read ") + table, query.lastError());
    return records;
}

int TextDatabase::recordCount(const QString& table) const
{
    requireOpen();
    QSqlQuery query(handle());
    if (!query.exec(QStringLiteral("SELECT count(*) FROM %1").arg(quoted(table))) || !query.next())
        fail(QStringLiteral("Cannot count ") + table, query.lastError());
    return query.value(0).toInt();
}

void TextDatabase::scan(const QString& table, const QStringList& fields) const
{
    requireOpen();
    QStringList counted;
    for (const QString& field : fields)
        counted.append(QStringLiteral("count(%1)").arg(quoted(field)));
    if (counted.isEmpty())
        counted.append(QStringLiteral("count(*)"));
    QSqlQuery query(handle());
    if (!query.exec(QStringLiteral("SELECT %1 FROM %2").arg(counted.join(", "), quoted(table))) ||
        !query.next())
        fail(QStringLiteral("Cannot read ") + table, query.lastError());
}

void TextDatabase::append(const QString& table, const QStringList& fields,
                          const QVector<QStringList>& rows)
{
    requireOpen();
    if (fields.isEmpty())
        fail(QStringLiteral("No fields to store in ") + table);
    for (const QStringList& row : rows) {
        if (row.size() != fields.size())
            fail(QStringLiteral("A record of %1 needs %2 values").arg(table).arg(fields.size()));
    }
    if (rows.isEmpty())
        return;

    QStringList columns, marks;
    for (const QString& field : fields) {
        columns.append(quoted(field));
        marks.append(QStringLiteral("?"));
    }
    const QString sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                            .arg(quoted(table), columns.join(", "), marks.join(", "));
    runInTransaction([&] {
        QSqlQuery query(handle());
        if (!query.prepare(sql))
            fail(QStringLiteral("Cannot store in ") + table, query.lastError());
        for (const QStringList& row : rows) {
            for (int c = 0; c < row.size(); ++c)
                query.bindValue(c, storable(row[c]));
            if (!query.exec())
                fail(QStringLiteral("Cannot store in ") + table, query.lastError());
        }
    });
}

// A savepoint begins a transaction of its own when none is open, and nests
// inside one that is.
void TextDatabase::runInTransaction(const std::function<void()>& work)
{
    execute(QStringLiteral("SAVEPOINT vorlan_write"));
    try {
        work();
        execute(QStringLiteral("RELEASE vorlan_write"));
    } catch (...) {
        rollbackSavepoint();
        throw;
    }
}

void TextDatabase::rollbackSavepoint() const
{
    QSqlQuery query(handle());
    query.exec(QStringLiteral("ROLLBACK TO vorlan_write"));
    query.exec(QStringLiteral("RELEASE vorlan_write"));
}

void TextDatabase::remove(const QString& table, qint64 rowid)
{
    execute(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(quoted(table)), {rowid});
}

void TextDatabase::removeAll(const QString& table)
{
    execute(QStringLiteral("DELETE FROM %1").arg(quoted(table)));
}

void TextDatabase::update(const QString& table, qint64 rowid, const QString& field,
                          const QString& value)
{
    execute(
        QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(quoted(table), quoted(field)),
        {value, rowid});
}
