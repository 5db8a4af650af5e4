#include "JetSource.h"

#include "TextDatabase.h"

#include <QFile>
#include <mdbtools.h>

namespace {

// Jet 3 pages are 2 KB, those of Jet 4 and later 4 KB; the version byte
// stands at 0x14 of the first page.
constexpr int VersionAt = 0x14;

[[noreturn]] void fail(const QString& what)
{
    throw DbError(what.toStdString());
}

qint64 pageSize(const QByteArray& head)
{
    return head.size() > VersionAt && head.at(VersionAt) == 0 ? 2048 : 4096;
}

} // namespace

struct JetSource::Handle
{
    MdbHandle* mdb = nullptr;
    ~Handle()
    {
        if (mdb)
            mdb_close(mdb);
    }
};

bool JetSource::looksLikeJet(const QByteArray& head)
{
    const QByteArray name = head.mid(4, 15);
    return head.startsWith(QByteArray("\0\1\0\0", 4)) &&
           (name == "Standard Jet DB" || name == "Standard ACE DB");
}

JetSource::JetSource(const QString& path) : m_handle(std::make_unique<Handle>())
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(QStringLiteral("Cannot read ") + path + QLatin1String(": ") + file.errorString());
    const QByteArray head = file.read(32);
    // mdbtools reads past the end of a cut file as zeros; a file of whole
    // pages is the least that a sound one is.
    const qint64 page = pageSize(head);
    if (!looksLikeJet(head) || file.size() < 3 * page || file.size() % page != 0)
        fail(QStringLiteral("Not a whole Access file: ") + path);
    file.close();
    m_handle->mdb = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    if (!m_handle->mdb)
        fail(QStringLiteral("mdbtools cannot open ") + path);
    if (!mdb_read_catalog(m_handle->mdb, MDB_TABLE))
        fail(QStringLiteral("No catalog in ") + path);
}

JetSource::~JetSource() = default;

JetSource::TableDef JetSource::openTable(const QString& table)
{
    QByteArray name = table.toUtf8();
    MdbTableDef* def = mdb_read_table_by_name(m_handle->mdb, name.data(), MDB_TABLE);
    if (!def)
        fail(QStringLiteral("No table ") + table);
    TableDef owned(def, &mdb_free_tabledef);
    if (!mdb_read_columns(def))
        fail(QStringLiteral("No columns in ") + table);
    return owned;
}

QStringList JetSource::tableNames()
{
    // The catalog read at the opening holds the system tables as tables too.
    QStringList names;
    GPtrArray* catalog = m_handle->mdb->catalog;
    for (guint i = 0; catalog && i < catalog->len; ++i) {
        const auto* entry = static_cast<const MdbCatalogEntry*>(g_ptr_array_index(catalog, i));
        if (entry->object_type == MDB_TABLE)
            names.append(QString::fromUtf8(entry->object_name));
    }
    return names;
}

QVector<SourceField> JetSource::fieldsOf(const QString& table)
{
    const TableDef def = openTable(table);
    QVector<SourceField> fields;
    for (guint i = 0; i < def->columns->len; ++i) {
        const auto* column = static_cast<const MdbColumn*>(g_ptr_array_index(def->columns, i));
        fields.append({QString::fromUtf8(column->name), column->col_type == MDB_TEXT});
    }
    return fields;
}

QVector<QStringList> JetSource::readAll(const QString& table, const QStringList& fields)
{
    const TableDef owned = openTable(table);
    MdbTableDef* def = owned.get();

    const size_t bindSize = m_handle->mdb->bind_size;
    QVector<QByteArray> values(fields.size(), QByteArray(int(bindSize) + 1, '\0'));
    QVector<int> lengths(fields.size(), 0);
    for (int i = 0; i < fields.size(); ++i) {
        QByteArray field = fields[i].toUtf8();
        if (mdb_bind_column_by_name(def, field.data(), values[i].data(), &lengths[i]) < 0)
            fail(QStringLiteral("No field %1 in %2").arg(fields[i], table));
    }
    mdb_rewind_table(def);
    QVector<QStringList> rows;
    while (mdb_fetch_row(def)) {
        QStringList row;
        // A NULL field binds no text: its length is 0.
        for (int i = 0; i < fields.size(); ++i)
            row.append(QString::fromUtf8(values[i].constData(), lengths[i]));
        rows.append(row);
    }
    // A page lost at the end of a cut file reads as an empty one: the count
    // that the table's definition keeps tells.
    if (rows.size() != int(def->num_rows))
        fail(QStringLiteral("Records missing from ") + table);
    return rows;
}
