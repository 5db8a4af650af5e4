#pragma once

#include <QString>

// A browser cache made up for the cache manager's benches: pages and
// pictures spread over a root folder and one level of sub-folders, as a
// real cache keeps them. Made in a folder the bench owns.
namespace CacheCorpus {

struct Shape
{
    int folders = 100;        // sub-folders; the root holds a share too
    int pagesPerFolder = 200; // "*.htm" files in each folder, root included
    int picturesPerFolder = 50;
    int pageBytes = 2048; // size of each page
};

// Writes the corpus under root (which must exist) and returns the number
// of pages written.
int make(const QString& root, const Shape& shape);

// The bytes of one page: markup with text, links and an address or two,
// so that text actions have something to work on.
QByteArray page(int number, int bytes);

} // namespace CacheCorpus
