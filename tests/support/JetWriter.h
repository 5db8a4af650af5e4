#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// Writes small Access (Jet 4) files for tests: tables of text fields only,
// as the old program kept its data, in the page layout that mdbtools reads.
// Page 0 is the header, page 1 holds the usage maps, page 2 the catalog
// (MSysObjects), then one definition page per table and its data pages.
// No indexes, no long values; a null text is a NULL field.
class JetWriter
{
public:
    struct Table
    {
        QString name;
        QStringList fields;
        QVector<QStringList> rows;
    };

    void addTable(const QString& name, const QStringList& fields,
                  const QVector<QStringList>& rows = {});
    QByteArray build() const;
    bool write(const QString& path) const;

    // The eleven tables of the old program's main database, empty.
    static JetWriter OldMainDatabase();
    Table* table(const QString& name);

    static constexpr int PageSize = 4096;

    // The key of the header that says the pages are encoded; the pages are
    // written plain all the same, as a reader without the right key sees them.
    quint32 pageKey = 0;

private:
    QVector<Table> m_tables;
};
