#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The lines of the link export files, as bytes: Windows-1252 where a
// character fits, each line ended by CR LF.
namespace ExportLines {

// One saved link of Browser One, its address composed.
struct Row
{
    QString comment;
    QString address;
    QString date;
};

// The comma-delimited line of a Browser One row (withDate) or of a Browser
// Two row (address = the stored link, no date).
QByteArray textLine(const Row& row, bool withDate);

// The page's header, up to the opening of its table.
QByteArray pageHeader();
// The lines of one row; the date cell only withDate.
QByteArray pageRow(const Row& row, bool withDate);
// The heading row ahead of the Japan links.
QByteArray japanHeading();
QByteArray pageFooter();

} // namespace ExportLines
