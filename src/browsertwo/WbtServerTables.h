#pragma once

#include <QStringList>

class TextDatabase;
struct SharedState;

// The walker's two tables of the main database, "wbtBaseUrl" and
// "wbtBadTitles". An empty table is filled with the built-in rows before it
// is read, so the built-in rows cannot be deleted for good. Throw DbError.
namespace WbtServerTables {
inline constexpr int MaxServers = 100;
inline constexpr int MaxBadTitles = 200;

// The first 100 base addresses, in order.
QStringList readServers(TextDatabase& db, const SharedState& state);
// The first 200 titles of a missing page, in order.
QStringList readBadTitles(TextDatabase& db, const SharedState& state);
} // namespace WbtServerTables
