#pragma once

#include <QStringList>

class CacheActionHost;
class CacheOutputFile;
class PromptService;
struct CacheState;

// The picture pages of "Brws Pics ": thumbnails of the listed GIF and JPEG
// files where they lie, 19 rows of four on the first page and 20 on each
// later one, written to "CacheGraphics.htm", "CacheGraphics1.htm", ... in
// the output folder, overwriting what stands there.

// Builds the pages from FoundFiles (whose entries that are no picture are
// empty), empties FoundFiles and hands the pages to the host, which shows
// the first and closes the cache window. Returns false, with a message,
// when there are fewer than four pictures.
bool BuildGraphicsPages(CacheState& state, PromptService& prompts, CacheActionHost& host);

// The head of a page, up to the opening of its table.
void WriteGraphicsHeader(CacheOutputFile& page);
