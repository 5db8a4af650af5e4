#pragma once

#include "core/TableNames.h"

#include <QString>

class LinkImportHost;
struct AppContext;
struct SharedState;

// Makes gstrGeoData from nothing: the eleven tables of gastrTables, seeded
// with the built-in catalogue of the USA, then Japan, in one transaction.
// Afterwards gblnJapan is clear and the arrays hold the USA catalogue, as
// at a fresh start. Throws DbError when the file exists already or when
// anything fails; a half-made file may then stay behind.
void CreateMainDatabase(SharedState& state);

// The main database's actions by code: 2 creates the file, 3 imports saved
// links of older installations; other codes do nothing. A failure of the
// creation is passed on, since its caller ends in the settings error route;
// the failures of other actions stop here. The import shows its wait notice
// and refreshes the saved links through host; without one it shows neither.
void DatabaseAction(AppContext& ctx, int code, LinkImportHost* host = nullptr);

// Opens the file and reads each of tables 0 to 10 whole, by its field
// names. Every table is tried even when one fails; false when the file
// cannot be opened or lacks a table or one of its fields. Texts over the
// length limit do not count against it.
bool VerifyMainDatabase(const QString& path, const TableNameArray& tables);
