#pragma once

class TextDatabase;
struct SwsTable;

// The servers with suburbs in the main database: "SWS_Servers" (field
// "SWS_Url") and "SWS_Subs" ("SWS_UrlIndx", the 1-based position of the
// server's row as digits, and "SWS_Sub"). The link is by position only.
namespace Sws {
inline constexpr const char* ServersTable = "SWS_Servers";
inline constexpr const char* UrlField = "SWS_Url";
inline constexpr const char* SubsTable = "SWS_Subs";
inline constexpr const char* IndexField = "SWS_UrlIndx";
inline constexpr const char* SubField = "SWS_Sub";
} // namespace Sws

// Fills table from the two tables, creating and seeding them when
// "SWS_Servers" is missing. An existing empty table loads nothing and is
// not seeded. False on a database fault or more than ten servers; table may
// then be partly filled. Suburb rows whose ordinal names no server, and
// suburbs past the 55th of a server, are left out.
bool ReadServersWithSuburbs(TextDatabase& db, SwsTable& table);
// Creates both tables with the three built-in servers and their suburbs,
// in one transaction. False on any fault.
bool CreateSwsTables(TextDatabase& db);
