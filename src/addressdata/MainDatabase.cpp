#include "MainDatabase.h"
#include "addressdata/BuiltInCatalogue.h"
#include "addressdata/LinkImport.h"
#include "addressdata/LinkImportHost.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"

#include <QFileInfo>

namespace {

enum Action
{
    CreateMain = 2,
    ImportLinks = 3
};

// The seed of one region: its catalogue as SeedCatalogue left it in the
// arrays, in the region's Neighborhoods and Suburbs tables.
void seedRegion(TextDatabase& db, SharedState& state)
{
    SeedCatalogue(state);
    const CatalogueData& cat = state.catalogue;
    const int neighborhoods = state.gblnJapan ? Tbl::JapanNeighborhoods : Tbl::UsaNeighborhoods;
    const int suburbs = neighborhoods + 1;

    QVector<QStringList> names;
    QVector<QStringList> places;
    for (int i = 1; i <= cat.gintNeighborhoodCount; ++i) {
        names.append({cat.name(i), cat.gastrDescription[i]});
        // A freshly seeded row ends at its first empty text.
        for (int s = 1; s <= cat.gintMaxSuburbs && !cat.suburb(i, s).isEmpty(); ++s)
            places.append({QString::number(i), cat.suburb(i, s)});
    }
    const TableNameArray& t = state.gastrTables;
    db.append(t[neighborhoods][0], FieldNames(t, neighborhoods), names);
    db.append(t[suburbs][0], FieldNames(t, suburbs), places);
}

void createAndSeed(TextDatabase& db, SharedState& state)
{
    const TableNameArray& t = state.gastrTables;
    db.runInTransaction([&] {
        for (int index = 0; index < Tbl::MainTableCount; ++index)
            db.createTable(t[index][0], FieldNames(t, index));
        for (bool japan : {false, true}) {
            state.gblnJapan = japan;
            seedRegion(db, state);
        }
    });
}

// An import with nothing on the screen besides its dialogs.
class NoImportScreen : public LinkImportHost
{
public:
    void showWait(const QString&) override {}
    void unloadWait() override {}
    void refreshSavedLinks() override {}
};

void importLinks(AppContext& ctx, LinkImportHost* host)
{
    NoImportScreen none;
    try {
        LinkImport(ctx, host ? *host : none).run();
    } catch (const std::exception&) {
        // A settings fault, say: the import ends, the program goes on.
    }
}

} // namespace

void CreateMainDatabase(SharedState& state)
{
    if (QFileInfo::exists(state.gstrGeoData))
        throw DbError(("The main database exists already: " + state.gstrGeoData).toStdString());

    {
        TextDatabase db(TextDatabase::uniqueConnectionName(QStringLiteral("vorlan-create")));
        db.open(state.gstrGeoData, true);
        createAndSeed(db, state);
    }
    state.gblnJapan = false;
    SeedCatalogue(state);
}

void DatabaseAction(AppContext& ctx, int code, LinkImportHost* host)
{
    switch (code) {
    case CreateMain:
        CreateMainDatabase(ctx.state);
        break;
    case ImportLinks:
        importLinks(ctx, host);
        break;
    default:
        break;
    }
}

bool VerifyMainDatabase(const QString& path, const TableNameArray& tables)
{
    TextDatabase db(TextDatabase::uniqueConnectionName(QStringLiteral("vorlan-verify")));
    try {
        db.open(path);
    } catch (const DbError&) {
        return false;
    }
    bool sound = true;
    for (int index = 0; index < Tbl::MainTableCount; ++index) {
        try {
            // By name: a table without one of its fields fails here.
            db.scan(tables[index][0], FieldNames(tables, index));
        } catch (const DbError&) {
            sound = false;
        }
    }
    db.close();
    return sound;
}
