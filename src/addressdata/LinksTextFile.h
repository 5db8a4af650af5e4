#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// "geolinks.ini" and "geojapan.ini" of early versions: one saved link after
// the other as quoted fields, six to a link (Neighborhood, Suburb, the two
// halves of the house number, comment, date text) or, in the old layout,
// five without the date.
class LinksTextFile
{
public:
    // Larger files are no links file of the old program, which kept 1001
    // links at most; they are refused before they are read.
    static constexpr qint64 MaxBytes = 32 * 1024 * 1024;

    // Reads the file as six-field records, and failing that as five-field
    // ones. The fields are read one after the other, line ends counting as
    // separators, so a layout fits when the count of fields is a multiple
    // of its size. Each record comes out as the five fields of a saved link:
    // Neighborhood, Suburb, House (prefix + suffix), Comment, Date (empty in
    // the old layout). False when neither layout fits or the file cannot be
    // read; oldLayout tells which one fitted.
    static bool read(const QString& path, QVector<QStringList>& records, bool& oldLayout);

private:
    static QVector<QStringList> records(const QStringList& fields, int perRecord);
};
