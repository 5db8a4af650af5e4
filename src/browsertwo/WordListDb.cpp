#include "WordListDb.h"

#include "core/FileServices.h"

#include <QFile>
#include <QFileInfo>

namespace {

// A copy from a disk may come read-only; the program makes its own files
// writable again before it uses them.
void makeWritable(const QString& path)
{
    QFile file(path);
    if (file.exists())
        file.setPermissions(file.permissions() | QFile::WriteOwner | QFile::ReadOwner);
}

} // namespace

WordListDb::WordListDb(const QString& dataPath)
    : m_dataPath(dataPath), m_db(TextDatabase::uniqueConnectionName(QStringLiteral("vorlan-wbt")))
{
}

bool WordListDb::isListName(const QString& table)
{
    return !table.startsWith(QLatin1String("MS"));
}

bool WordListDb::opens(const QString& path) const
{
    TextDatabase probe(TextDatabase::uniqueConnectionName(QStringLiteral("vorlan-wbt-probe")));
    try {
        probe.open(path);
        return true;
    } catch (const DbError&) {
        return false;
    }
}

void WordListDb::setAside(const QString& damaged) const
{
    if (!QFileInfo::exists(damaged))
        return;
    const QString keep = UniqueFileName(m_dataPath + QStringLiteral("WbtDB-damaged.db"));
    if (!QFile::rename(damaged, keep))
        QFile::remove(damaged);
}

bool WordListDb::open()
{
    m_db.close();
    makeWritable(mainPath());
    makeWritable(backupPath());
    if (QFileInfo::exists(mainPath()) && opens(mainPath())) {
        m_db.open(mainPath());
        return true;
    }
    if (!QFileInfo::exists(backupPath()) || !opens(backupPath()))
        return false;
    setAside(mainPath());
    if (!ReplaceByCopy(backupPath(), mainPath()).isEmpty())
        return false;
    try {
        m_db.open(mainPath());
        return true;
    } catch (const DbError&) {
        return false;
    }
}

void WordListDb::create(const QString& name, const QVector<QString>& sites)
{
    m_db.close();
    setAside(mainPath());
    m_db.open(mainPath(), true);
    addList(name, sites);
    m_db.close();
    // The backup is written here only: it holds the file as it was made.
    QFile::remove(backupPath());
    const QString failed = ReplaceByCopy(mainPath(), backupPath());
    if (!failed.isEmpty())
        throw DbError(failed.toStdString());
    m_db.open(mainPath());
}

QStringList WordListDb::listNames() const
{
    QStringList names;
    for (const QString& table : m_db.tableNames()) {
        if (isListName(table))
            names.append(table);
    }
    return names;
}

QStringList WordListDb::words(const QString& name) const
{
    QStringList list;
    for (const TextRecord& record : m_db.readAll(name, {QLatin1String(Field)}))
        list.append(record.fields.value(0));
    return list;
}

void WordListDb::addList(const QString& name, const QVector<QString>& sites)
{
    m_db.createTable(name, {QLatin1String(Field)});
    QVector<QStringList> rows;
    for (int i = 1; i < sites.size(); ++i) {
        if (!sites[i].isEmpty())
            rows.append({sites[i]});
    }
    m_db.append(name, {QLatin1String(Field)}, rows);
}

void WordListDb::dropList(const QString& name)
{
    m_db.dropTable(name);
}
