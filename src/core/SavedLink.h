#pragma once

#include <QString>
#include <QVector>

// One saved link: a row of gastrSavedLinks and a record of UsaSaved or
// JapanSaved. Columns 1 to 5 of the row are the five fields in order.
struct SavedLink
{
    QString neighborhood; // 1
    QString suburb;       // 2
    QString house;        // 3
    QString comment;      // 4
    QString date;         // 5: "Saved on: Date = ... Time = ..."

    QString column(int c) const;
};
