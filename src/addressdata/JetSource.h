#pragma once

#include "SourceDatabase.h"

#include <QByteArray>
#include <memory>

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

private:
    struct Handle; // mdbtools' handle of the open file
    std::unique_ptr<Handle> m_handle;
};
