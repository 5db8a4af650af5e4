#include "CatalogueLoader.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/VbRuntime.h"

namespace {

// The Suburb that would make this count is refused, so a Neighborhood
// holds at most one less.
constexpr int SuburbLimit = 74;

QString field(const TextRecord& record, int index, const QString& table)
{
    if (index >= record.fields.size())
        throw DbError(("A record of " + table + " lacks a field").toStdString());
    return NullToEmpty(record.fields[index]);
}

// The fields come by their names in the table of names, in that order,
// wherever the table holds them.
QVector<TextRecord> readTable(AppContext& ctx, TextDatabase& db, int index)
{
    const TableNameArray& tables = ctx.state.gastrTables;
    return db.readAll(tables[index][0], FieldNames(tables, index));
}

void readNeighborhoods(AppContext& ctx, TextDatabase& db, int index)
{
    const QString table = ctx.state.gastrTables[index][0];
    const QVector<TextRecord> records = readTable(ctx, db, index);
    if (records.isEmpty())
        throw DbError(("No Neighborhoods in " + table).toStdString());

    int count = records.size();
    if (count > CatalogueData::MaxNeighborhoods) {
        ShowLines(ctx.prompts,
                  {QStringLiteral("Warning!!!\r"), QStringLiteral("Maximum Neighborhoods"),
                   QStringLiteral("(99) has been reached!"),
                   QStringLiteral("No more will be loaded!")},
                  QString(), false);
        count = CatalogueData::MaxNeighborhoods;
    }

    CatalogueData& cat = ctx.state.catalogue;
    cat.gintNeighborhoodCount = static_cast<qint16>(count);
    cat.gaintSuburbCount = QVector<qint16>(count + 1, 0);
    cat.gastrDescription = QVector<QString>(count + 1);
    for (int i = 1; i <= count; ++i) {
        cat.gastrCatalogue[i - 1][0] = field(records[i - 1], 0, table);
        cat.gastrDescription[i] = field(records[i - 1], 1, table);
    }
}

// The 1-based Neighborhood that a NeighborhoodIndex text names, 0 if none.
int neighborhoodOf(const QString& index, int count)
{
    const double value = Vb::Val(index);
    for (int i = 1; i <= count; ++i) {
        if (value == i)
            return i;
    }
    return 0;
}

void readSuburbs(AppContext& ctx, TextDatabase& db, int index)
{
    const QString table = ctx.state.gastrTables[index][0];
    CatalogueData& cat = ctx.state.catalogue;
    for (const TextRecord& record : readTable(ctx, db, index)) {
        const int i = neighborhoodOf(field(record, 0, table), cat.gintNeighborhoodCount);
        if (i == 0)
            continue;
        qint16& count = cat.gaintSuburbCount[i];
        if (count + 1 == SuburbLimit) {
            WarnMaxSuburbs(ctx.prompts, cat.name(i));
            continue;
        }
        ++count;
        cat.gastrCatalogue[i - 1][count] = field(record, 1, table);
        if (count > cat.gintMaxSuburbs)
            cat.gintMaxSuburbs = count;
    }
}

} // namespace

void ReadCatalogue(AppContext& ctx, TextDatabase& db)
{
    const int neighborhoods = ctx.state.gblnJapan ? Tbl::JapanNeighborhoods : Tbl::UsaNeighborhoods;
    readNeighborhoods(ctx, db, neighborhoods);
    readSuburbs(ctx, db, neighborhoods + 1);
}

void WarnMaxSuburbs(PromptService& prompts, const QString& name)
{
    ShowLines(prompts,
              {QStringLiteral("Warning!!!\r"), QStringLiteral("Maximum suburbs For:"), name,
               QStringLiteral("has been reached! "), QStringLiteral("No more will be loaded!")},
              QString(), false);
}
