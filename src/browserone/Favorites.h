#pragma once

#include <QString>

// The program's favourites: a bookmarks file in the Netscape bookmark form
// that other browsers import, kept in the data folder.
namespace Favorites {
inline constexpr const char* FileName = "bookmarks.html";
// Adds a link at the end of the file, making the file when it is missing.
// False when the file cannot be written.
bool AddFavorite(const QString& file, const QString& url, const QString& title);
} // namespace Favorites
