#pragma once

#include <QString>
#include <QStringList>

// Generated HTML pages for the cache actions' benchmark, made in a folder
// of the benchmark's own: text, links, tags, now and then a "mailto:" link
// or a plain address, and the marker word in every other page.
namespace CacheActionCorpus {

extern const char* const Marker;

// count pages of about bytesEach bytes; returns their paths in name order.
QStringList make(const QString& folder, int count, int bytesEach);

} // namespace CacheActionCorpus
