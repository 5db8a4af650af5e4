#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The single-byte text of the files the program reads and writes:
// Windows-1252, and CR LF line ends where it writes lines.
namespace SingleByteText {

QString decode(const QByteArray& bytes);
// A character that Windows-1252 lacks becomes "?".
QByteArray encode(const QString& text);
// Each text encoded and followed by CR LF.
QByteArray lines(const QStringList& texts);

} // namespace SingleByteText
