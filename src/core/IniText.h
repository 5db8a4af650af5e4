#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

// The text of a settings file: [section] lines and key=value lines in the
// INI form that QSettings writes, with its escapes. Section and key names
// are lowered on the way in, so that a file written by hand as
// "[Startup]" and "Neigh=SoHo" reads as the program's own "startup/neigh".
// A file that is not valid UTF-8 is read as Windows-1252, the single-byte
// text of other tools; the program writes UTF-8.
namespace IniText {

// Fills map with "section/key" entries; a later line wins over an earlier
// one of the same name. False when the bytes are not such a text: NUL
// bytes, or a line that is neither a section, a key=value pair nor a
// comment.
bool read(const QByteArray& bytes, QSettings::SettingsMap& map);

// The entries of map by section, each value a text.
QByteArray write(const QSettings::SettingsMap& map);

} // namespace IniText
