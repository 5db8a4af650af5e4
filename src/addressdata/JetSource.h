#pragma once

#include "SourceDatabase.h"

#include <QByteArray>
#include <memory>

struct S_MdbTableDef; // mdbtools' table definition

// An Access (Jet 3 or 4) file of the old program, read through mdbtools.
class JetSource : public SourceDatabase
{
public:
    // Whether the first bytes are those of a Jet file.
    static bool looksLikeJet(const QByteArray& head);

    // Throws DbError when mdbtools cannot open the file or read its catalog,
    // or the file is cut short of a whole page.
    explicit JetSource(const QString& path);
    ~JetSource() override;
    JetSource(const JetSource&) = delete;
    JetSource& operator=(const JetSource&) = delete;

    QVector<QStringList> readAll(const QString& table, const QStringList& fields) override;
    QStringList tableNames() override;
    QVector<SourceField> fieldsOf(const QString& table) override;

private:
    using TableDef = std::unique_ptr<S_MdbTableDef, void (*)(S_MdbTableDef*)>;
    // The table with its columns read; throws DbError when it is missing.
    TableDef openTable(const QString& table);

    struct Handle; // mdbtools' handle of the open file
    std::unique_ptr<Handle> m_handle;
};
