#include "LinkImport.h"

#include "LinkImportHost.h"
#include "LinksTextFile.h"
#include "RepeatFilter.h"
#include "SourceDatabase.h"
#include "TextDatabase.h"
#include "core/AppContext.h"
#include "core/BuildFilter.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"

#include <QCoreApplication>
#include <QFile>

namespace {

const QString DialogTitle = QStringLiteral("Select Saved Links file!");
const QString NotSupported = QStringLiteral("The file type is not supported!");
const QString WrongFormat = QStringLiteral("This links file is not the correct format!");
const QString NotVorlan = QStringLiteral("Not a Vorlan database file, or it is corrupt!");
const QString WillAbort = QStringLiteral("Import will abort!");
const QString Importing = QStringLiteral("Importing...");

const QStringList TextNames = {QStringLiteral("geolinks.ini"), QStringLiteral("geojapan.ini")};
const QStringList AccessNames = {QStringLiteral("geodata.mdb"), QStringLiteral("geobckup.mdb")};
// This program's own files, read as the old ones are.
const QStringList OwnNames = {QStringLiteral("geodata.db"), QStringLiteral("geobckup.db")};

// The windows stay live while an import runs: a second one must not start.
bool running = false;

// Makes the file writable for its owner, as the old program cleared the
// attributes of a read-only copy; a file that refuses keeps its mode.
void clearAttributes(const QString& path)
{
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner);
}

} // namespace

LinkImport::LinkImport(AppContext& ctx, LinkImportHost& host) : m_ctx(ctx), m_host(host) {}

void LinkImport::run()
{
    if (running)
        return;
    running = true;
    try {
        for (;;) {
            const QString start = m_ctx.GetSetting(Sect::Startup, Key::ImportPath, QString(""));
            const QString path = BuildFilter(m_ctx, start, QString(), QStringLiteral("ini"),
                                             QStringLiteral("mdb"), DialogTitle);
            if (path.isEmpty() || take(path) == Outcome::Done)
                break;
        }
    } catch (...) {
        running = false;
        throw;
    }
    running = false;
}

// The names are compared lowered; the file is opened as given, since names
// differ by case on this system.
LinkImport::Outcome LinkImport::take(const QString& path)
{
    const QString name = NameAfterLast(path.toLower(), QLatin1Char('/'));
    const QString folder = PathBeforeLast(path, QLatin1Char('/'));
    m_ctx.SaveSetting(Sect::Startup, Key::ImportPath, folder.left(folder.size() - 1));
    if (!name.contains(QLatin1Char('.')))
        return Outcome::Again;
    clearAttributes(path);
    const QString type = name.right(3);
    if (type == QLatin1String("ini"))
        return takeText(path, name);
    if (type == QLatin1String("mdb") || name.endsWith(QLatin1String(".db")))
        return takeDatabase(path, name);
    m_ctx.MsgBox(NotSupported);
    return Outcome::Again;
}

LinkImport::Outcome LinkImport::takeText(const QString& path, const QString& name)
{
    if (!TextNames.contains(name)) {
        m_ctx.MsgBox(QStringLiteral("The old links files are ") + TextNames.join(" or "));
        return Outcome::Again;
    }
    QVector<QStringList> records;
    bool oldLayout = false;
    if (!LinksTextFile::read(path, records, oldLayout)) {
        m_ctx.MsgBox(WrongFormat);
        return Outcome::Again;
    }
    importText(name == TextNames.at(0) ? Tbl::UsaSaved : Tbl::JapanSaved, records);
    return Outcome::Done;
}

LinkImport::Outcome LinkImport::takeDatabase(const QString& path, const QString& name)
{
    const QStringList& names = name.endsWith(QLatin1String(".db")) ? OwnNames : AccessNames;
    if (!names.contains(name)) {
        m_ctx.MsgBox(QStringLiteral("Supported databases are ") + names.join(" or "));
        return Outcome::Again;
    }
    QVector<QVector<QStringList>> tables;
    try {
        // The source is closed at the end of this block, whatever happens.
        const std::unique_ptr<SourceDatabase> source = SourceDatabase::open(path);
        tables = readSource(*source);
    } catch (const std::exception&) {
        m_ctx.MsgBox(NotVorlan);
        return Outcome::Done;
    }
    importDatabase(tables);
    return Outcome::Done;
}

// Every table of the main database must be there, by name and fields, as
// at the verification of a start.
QVector<QVector<QStringList>> LinkImport::readSource(SourceDatabase& source) const
{
    QVector<QVector<QStringList>> tables(Tbl::MainTableCount);
    const TableNameArray& t = m_ctx.state.gastrTables;
    for (int index = 0; index < Tbl::MainTableCount; ++index)
        tables[index] = source.readAll(t[index][0], FieldNames(t, index));
    return tables;
}

// A record as the import stores it: every field, but of wbtBaseUrl only
// Url, so that Counter of a new record stays empty.
QStringList LinkImport::stored(int table, const QStringList& record) const
{
    QStringList row = record.mid(0, table == Tbl::WbtBaseUrl ? 1 : record.size());
    const int size = FieldNames(m_ctx.state.gastrTables, table).size();
    while (row.size() < size)
        row.append(QString(""));
    return row;
}

void LinkImport::importText(int table, const QVector<QStringList>& records)
{
    try {
        merge(table, records, 4, m_counts.linksAdded, &m_counts.linksSkipped);
    } catch (const std::exception&) {
        if (m_counts.linksAdded > 0)
            m_host.refreshSavedLinks();
        abort();
        return;
    }
    if (m_counts.linksAdded > 0)
        m_host.refreshSavedLinks();
    m_ctx.MsgBox(TextNotice(m_counts));
}

void LinkImport::importDatabase(const QVector<QVector<QStringList>>& tables)
{
    m_host.showWait(Importing);
    bool failed = false;
    try {
        importTables(tables);
    } catch (const std::exception&) {
        failed = true;
    }
    m_host.unloadWait();
    m_host.refreshSavedLinks();
    if (failed)
        abort();
    else
        ShowLines(m_ctx.prompts, ResultLines(m_counts), QStringLiteral("Results of Import!"),
                  false);
}

void LinkImport::importTables(const QVector<QVector<QStringList>>& tables)
{
    Counts& c = m_counts;
    for (int saved : {Tbl::JapanSaved, Tbl::UsaSaved})
        merge(saved, tables[saved], 4, c.linksAdded, &c.linksSkipped);
    merge(Tbl::WbtLinks, tables[Tbl::WbtLinks], 2, c.wbtLinksAdded, nullptr);
    merge(Tbl::WbtBaseUrl, tables[Tbl::WbtBaseUrl], 1, c.baseUrlsAdded, nullptr);
    merge(Tbl::WbtBadTitles, tables[Tbl::WbtBadTitles], 1, c.titlesAdded, nullptr);
}

void LinkImport::merge(int table, const QVector<QStringList>& records, int compared, int& added,
                       int* skipped)
{
    TextDatabase& db = m_ctx.gdbMain;
    const QString name = m_ctx.state.gastrTables[table][0];
    const QStringList fields = FieldNames(m_ctx.state.gastrTables, table);
    RepeatFilter repeats(FieldTexts(db.readAll(name, fields)), compared);
    std::exception_ptr failure;
    // One transaction for speed; a record that fails is rolled back alone,
    // and those before it are stored with the rest.
    db.runInTransaction([&] {
        for (const QStringList& record : records) {
            if (repeats.isRepeat(record)) {
                if (skipped)
                    ++*skipped;
                continue;
            }
            try {
                db.append(name, fields, {stored(table, record)});
            } catch (const std::exception&) {
                failure = std::current_exception();
                return;
            }
            repeats.added(record);
            if (++added % 256 == 0)
                QCoreApplication::processEvents();
        }
    });
    if (failure)
        std::rethrow_exception(failure);
}

void LinkImport::abort()
{
    m_ctx.MsgBox(WillAbort);
}

QStringList LinkImport::ResultLines(const Counts& c)
{
    return {QString::number(c.linksAdded) + QStringLiteral(" WBOne saved links added!"),
            QString::number(c.linksSkipped) + QStringLiteral(" Existing saved links skipped!"),
            QString::number(c.titlesAdded) + QStringLiteral(" WBTwo titles to skip added!"),
            QString::number(c.baseUrlsAdded) + QStringLiteral(" WBTwo server base Urls added!"),
            QString::number(c.wbtLinksAdded) + QStringLiteral(" WBTwo saved links added!")};
}

QString LinkImport::TextNotice(const Counts& c)
{
    QString text("");
    if (c.linksAdded > 0)
        text += QString::number(c.linksAdded) + QStringLiteral(" records successfully added \r");
    if (c.linksSkipped > 0)
        text += QString::number(c.linksSkipped) + QStringLiteral(" repeating records skipped!\r");
    return text;
}
