#pragma once

#include <QString>
#include <QVector>
#include <array>

// The catalogue of the current region in memory: row n - 1 is Neighborhood
// n, column 0 its name, columns 1 to 75 its Suburbs; the counts and
// descriptions are indexed from 1 (index 0 is unused).
struct CatalogueData
{
    static constexpr int Rows = 100;
    static constexpr int Columns = 76;
    static constexpr int MaxNeighborhoods = 99;
    static constexpr int SeedMaxSuburbs = 74;

    std::array<std::array<QString, Columns>, Rows> gastrCatalogue;
    QVector<qint16> gaintSuburbCount;  // 1 .. gintNeighborhoodCount
    QVector<QString> gastrDescription; // 1 .. gintNeighborhoodCount
    qint16 gintNeighborhoodCount = 0;
    qint16 gintMaxSuburbs = 0;

    QString name(int neighborhood) const { return gastrCatalogue[neighborhood - 1][0]; }
    QString suburb(int neighborhood, int s) const { return gastrCatalogue[neighborhood - 1][s]; }
    // 1-based index of the first Neighborhood of that exact name, 0 if none.
    int find(const QString& name) const;
};
