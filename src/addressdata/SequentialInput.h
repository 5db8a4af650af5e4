#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The fields of a file that a sequential write made: texts in double quotes
// or bare, separated by commas and line ends alike, as a sequential read
// takes them one after the other. A quoted field runs to the next quote, so
// a quote cannot stand inside one; anything between its closing quote and
// the next separator is dropped. Bare fields lose their outer blanks; lines
// of blanks only hold no field.
class SequentialInput
{
public:
    // Reads every field of the bytes, which are UTF-8 or else Windows-1252.
    // False, with fields undefined, for bytes that are no such text: a NUL
    // byte, or a quote left open at the end.
    static bool readFields(const QByteArray& bytes, QStringList& fields);

    static QString decode(const QByteArray& bytes);
};
