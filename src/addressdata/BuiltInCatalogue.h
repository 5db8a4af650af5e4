#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct SharedState;

// One Neighborhood of the catalogue that the program carries for each site:
// its name (part of every address), its line of description and its Suburbs
// in the order a list shows them.
struct BuiltInNeighborhood
{
    QString name;
    QString description;
    QStringList suburbs;
};

namespace BuiltInCatalogue {
// The Neighborhoods of a site in seed order: index i - 1 is Neighborhood i.
const QVector<BuiltInNeighborhood>& usa();
const QVector<BuiltInNeighborhood>& japan();
const QVector<BuiltInNeighborhood>& site(bool japan);
} // namespace BuiltInCatalogue

// Fills the catalogue arrays with the built-in data of the region that
// gblnJapan names. The database is not touched.
void SeedCatalogue(SharedState& state);
