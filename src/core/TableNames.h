#pragma once

#include <QString>
#include <QStringList>
#include <array>

// gastrTables: every table and field name of the main database. Row =
// table index, column 0 the table name, columns 1 to 5 the field names, an
// empty text ending the row. Row 11 and column 6 are unused.
namespace Tbl {
enum Index
{
    UsaNeighborhoods = 0,
    UsaSuburbs = 1,
    UsaSaved = 2,
    UsaMisc = 3,
    JapanNeighborhoods = 4,
    JapanSuburbs = 5,
    JapanSaved = 6,
    JapanMisc = 7,
    WbtLinks = 8,
    WbtBaseUrl = 9,
    WbtBadTitles = 10,
    JapanOffset = 4, // the Japan table of a USA index
    MainTableCount = 11
};
} // namespace Tbl

using TableNameArray = std::array<std::array<QString, 7>, 12>;

// Fills the table with the names of the main database.
void BuildTableNames(TableNameArray& tables);

// The field names of one row, up to the first empty text.
QStringList FieldNames(const TableNameArray& tables, int index);
