#pragma once

#include <QString>

// Which texts of a word source become words of Browser Two, and how.
class WordRule
{
public:
    // A source is read until its counter of kept words reaches this, so
    // one word fewer is kept.
    static constexpr int StopCount = 9999;

    // An item of a text file: trimmed, kept when 1 to 16 characters long,
    // in lower case. The empty text when it is dropped.
    static QString fromTextFile(const QString& item);
    // A value of a database field: kept, untrimmed and in lower case, when
    // 3 to 20 characters long. Blanks inside pass. Empty when dropped.
    static QString fromDatabase(const QString& value);
};
