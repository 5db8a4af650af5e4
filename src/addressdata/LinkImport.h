#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class LinkImportHost;
class SourceDatabase;
struct AppContext;

// The import of the saved links of older installations into the main
// database (DatabaseAction 3): the text files "geolinks.ini" and
// "geojapan.ini", or the database files "geodata.mdb" and "geobckup.mdb"
// (and this program's own "geodata.db" and "geobckup.db"). Records already
// there are skipped; nothing that was there before is changed. A failure
// ends the import and keeps what was added up to the failing record.
class LinkImport
{
public:
    struct Counts
    {
        int linksAdded = 0;
        int linksSkipped = 0;
        int titlesAdded = 0;
        int baseUrlsAdded = 0;
        int wbtLinksAdded = 0;
    };

    LinkImport(AppContext& ctx, LinkImportHost& host);

    // Asks for files until a usable one is chosen or the dialog is
    // cancelled, then imports it. One import runs at a time: a second call
    // while one runs does nothing.
    void run();

    const Counts& counts() const { return m_counts; }

    // The lines of the report of a database import.
    static QStringList ResultLines(const Counts& counts);
    // The notice of a text import: empty when nothing was added or skipped.
    static QString TextNotice(const Counts& counts);

private:
    enum class Outcome
    {
        Again, // back to the dialog
        Done
    };
    Outcome take(const QString& path);
    Outcome takeText(const QString& path, const QString& name);
    Outcome takeDatabase(const QString& path, const QString& name);
    void importText(int table, const QVector<QStringList>& records);
    void importDatabase(const QVector<QVector<QStringList>>& tables);
    void importTables(const QVector<QVector<QStringList>>& tables);
    // Adds the records that are no repeats to the table, counting them in
    // added and the repeats in skipped. Throws on the first record that
    // cannot be stored, with those before it kept.
    void merge(int table, const QVector<QStringList>& records, int compared, int& added,
               int* skipped);
    QVector<QVector<QStringList>> readSource(SourceDatabase& source) const;
    QStringList stored(int table, const QStringList& record) const;
    void abort();

    AppContext& m_ctx;
    LinkImportHost& m_host;
    Counts m_counts;
};
