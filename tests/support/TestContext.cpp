#include "TestContext.h"

#include "addressdata/MainDatabase.h"
#include "core/Version.h"

#include <QUuid>

TestContext::TestContext() : db(QUuid::createUuid().toString())
{
    state.gstrAppName = Version::AppName();
    BuildTableNames(state.gastrTables);
}

void TestContext::useDataFolder()
{
    state.gstrDataPath = folders.appPath();
    state.gstrGeoData = state.gstrDataPath + QStringLiteral("GeoData.db");
    state.gstrGeoBckUp = state.gstrDataPath + QStringLiteral("GeoBckUp.db");
}

void TestContext::createAndOpenDatabase()
{
    useDataFolder();
    CreateMainDatabase(state);
    db.open(state.gstrGeoData);
}
