#pragma once

#include "addressdata/TextDatabase.h"

#include <QString>
#include <QStringList>
#include <QVector>

// The file of Browser Two's stored word lists, "WbtDB.db" in the data
// folder, with "BckWbtDB.db" as its backup: one table per list, named as
// the user typed it, with the single text field "List", one word a row.
class WordListDb
{
public:
    static constexpr const char* MainFile = "WbtDB.db";
    static constexpr const char* BackupFile = "BckWbtDB.db";
    static constexpr const char* Field = "List";

    // dataPath, the data folder with its trailing separator, is read at
    // each use: the program's entry sets it after the windows are made.
    explicit WordListDb(const QString& dataPath);

    QString mainPath() const { return m_dataPath + QLatin1String(MainFile); }
    QString backupPath() const { return m_dataPath + QLatin1String(BackupFile); }

    // Opens the main file, or restores it from the backup when it is gone
    // or damaged; a damaged main file is kept aside under a new name. False
    // when neither opens.
    bool open();
    bool isOpen() const { return m_db.isOpen(); }
    void release() { m_db.close(); }

    // Makes a new file with one list and writes the backup from it. A
    // damaged file in the way is kept aside. Throws DbError.
    void create(const QString& name, const QVector<QString>& sites);

    // The stored lists in the order they were made. Throws DbError.
    QStringList listNames() const;
    // Engine tables aside, a table named "MS..." is never taken for a list.
    static bool isListName(const QString& table);
    // Every word of a list in stored order. Throws DbError.
    QStringList words(const QString& name) const;
    // A new list of the non-empty entries from 1 on. Throws DbError.
    void addList(const QString& name, const QVector<QString>& sites);
    void dropList(const QString& name);

private:
    void setAside(const QString& damaged) const;
    bool opens(const QString& path) const;

    const QString& m_dataPath;
    TextDatabase m_db;
};
