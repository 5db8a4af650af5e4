#pragma once

#include <QString>

// gstrSWS: the servers with suburbs in memory. Rows 1 to 10, columns 0 to
// 55: column 0 a server's base address, columns 1 to 55 its suburbs packed
// from 1, the remaining cells empty. Row 0 is unused.
struct SwsTable
{
    static constexpr int MaxServers = 10;
    static constexpr int MaxSuburbs = 55;

    QString cell[MaxServers + 1][MaxSuburbs + 1];

    QString& at(int row, int column) { return cell[row][column]; }
    const QString& at(int row, int column) const { return cell[row][column]; }
    // Redimensioned: every cell empty.
    void clear() { *this = SwsTable(); }
};
