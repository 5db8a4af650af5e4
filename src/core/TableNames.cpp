#include "TableNames.h"

#include <QStringList>

void BuildTableNames(TableNameArray& tables)
{
    for (auto& row : tables)
        row.fill(QString(""));

    const auto set = [&tables](int index, const QStringList& names) {
        for (int c = 0; c < names.size(); ++c)
            tables[index][c] = names[c];
    };
    set(Tbl::UsaNeighborhoods, {"UsaNeighborhoods", "Neighborhood", "Description"});
    set(Tbl::UsaSuburbs, {"UsaSuburbs", "NeighborhoodIndex", "Suburb"});
    set(Tbl::UsaSaved, {"UsaSaved", "Neighborhood", "Suburb", "House", "Comment", "Date"});
    set(Tbl::UsaMisc, {"UsaMisc", "RNavNeighborhoodsUSA"});
    set(Tbl::JapanNeighborhoods, {"JapanNeighborhoods", "Neighborhood", "Description"});
    set(Tbl::JapanSuburbs, {"JapanSuburbs", "NeighborhoodIndex", "Suburb"});
    set(Tbl::JapanSaved, {"JapanSaved", "Neighborhood", "Suburb", "House", "Comment", "Date"});
    set(Tbl::JapanMisc, {"JapanMisc", "RNavNeighborhoodsJapan"});
    set(Tbl::WbtLinks, {"wbtlinks", "link", "comment"});
    set(Tbl::WbtBaseUrl, {"wbtBaseUrl", "Url", "Counter"});
    set(Tbl::WbtBadTitles, {"wbtBadTitles", "BadTitle"});
}

QStringList FieldNames(const TableNameArray& tables, int index)
{
    QStringList fields;
    for (int c = 1; c <= 5 && !tables[index][c].isEmpty(); ++c)
        fields.append(tables[index][c]);
    return fields;
}
