// Creating and seeding a new main database, and reading a region's
// catalogue from it: median and worst of several rounds.
#include "TestContext.h"
#include "addressdata/CatalogueLoader.h"
#include "addressdata/MainDatabase.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int rounds = 20;
    QVector<double> create, load;
    for (int i = 0; i < rounds; ++i) {
        TestContext t;
        t.useDataFolder();
        QElapsedTimer clock;
        clock.start();
        CreateMainDatabase(t.state);
        create << clock.nsecsElapsed() / 1e6;
        t.db.open(t.state.gstrGeoData);
        clock.restart();
        ReadCatalogue(t.ctx, t.db);
        load << clock.nsecsElapsed() / 1e6;
        t.db.close();
    }
    std::sort(create.begin(), create.end());
    std::sort(load.begin(), load.end());
    std::printf("database (%d rounds)\n", rounds);
    std::printf("  create and seed GeoData.db  median %6.1f ms, worst %6.1f ms\n",
                create[rounds / 2], create.last());
    std::printf("  read the USA catalogue      median %6.1f ms, worst %6.1f ms\n", load[rounds / 2],
                load.last());
    return 0;
}
