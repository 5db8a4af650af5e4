// Deleting a Neighborhood from a full catalogue: 99 Neighborhoods, the
// added ones with 74 Suburbs each, so that thousands of later Suburbs are
// renumbered in the deletion's one transaction. Median and worst of
// several rounds.
#include "TestContext.h"
#include "addressdata/MainDatabase.h"
#include "options/CatalogueEditor.h"
#include "options/OptionsHost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>

namespace {
// No other window: the deletion only.
struct NoWindows : OptionsHost
{
    void reloadCatalogue() override {}
    void browserOneNextButton() override {}
    void browserOneLimit(int) override {}
    void browserOneOnTop() override {}
    void browserTwoReloadLists() override {}
    QString browserTwoLocationName() const override { return {}; }
    PageSource pageSource() const override { return PageSource::Original; }
    void choosePageSource(PageSource) override {}
    bool AddAreas(int, int, int, int) override { return false; }
    void pumpEvents() override { QCoreApplication::processEvents(); }
};

void fillCatalogue(TextDatabase& db)
{
    QVector<QStringList> hoods, subs;
    for (int n = 42; n <= 99; ++n) {
        hoods << QStringList{QString("Added%1").arg(n), "added"};
        for (int s = 0; s < 74; ++s)
            subs << QStringList{QString::number(n), QString("Sub%1x%2").arg(n).arg(s)};
    }
    db.append("UsaNeighborhoods", {"Neighborhood", "Description"}, hoods);
    db.append("UsaSuburbs", {"NeighborhoodIndex", "Suburb"}, subs);
}
} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int rounds = 5;
    QVector<double> times;
    int renumbered = 0;
    for (int i = 0; i < rounds; ++i) {
        TestContext t;
        t.createAndOpenDatabase();
        fillCatalogue(t.db);
        renumbered = t.db.recordCount("UsaSuburbs");
        NoWindows windows;
        CatalogueEditor editor(t.ctx, windows, [](bool) {});
        editor.selectServer(false);
        editor.cmbN.userSelect(41);
        QElapsedTimer clock;
        clock.start();
        editor.RemoveNeighborhoodClick();
        times << clock.nsecsElapsed() / 1e6;
    }
    std::sort(times.begin(), times.end());
    std::printf("catalogue editing (%d rounds)\n", rounds);
    std::printf("  delete a Neighborhood of 99, %d Suburbs  median %6.1f ms, worst %6.1f ms\n",
                renumbered, times[rounds / 2], times.last());
    return 0;
}
