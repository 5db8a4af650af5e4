#pragma once

#include <QString>

struct AppContext;
class PromptService;
class TextDatabase;

// Reads the catalogue of the region that gblnJapan names from the
// Neighborhoods and Suburbs tables of db into the catalogue arrays, each
// field by its name in gastrTables, so further columns do no harm; the
// names stay in column 0 of the rows for the caller's lists. At most 99
// Neighborhoods and 73 Suburbs a Neighborhood are taken, each with a
// warning; Suburbs whose NeighborhoodIndex names no loaded Neighborhood are
// skipped. Rows are not blanked first: readers go by the counts. Throws
// DbError when a table or one of its fields cannot be read, or the
// Neighborhoods table is empty.
void ReadCatalogue(AppContext& ctx, TextDatabase& db);

// The warning that a Neighborhood's Suburb list is full.
void WarnMaxSuburbs(PromptService& prompts, const QString& name);
