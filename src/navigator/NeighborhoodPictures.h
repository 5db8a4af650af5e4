#pragma once

#include <QPixmap>

// The two picture lists of the Navigator, one per site. Entries are
// numbered from 1: entry 1 is the general picture, shown for Neighborhoods
// that the user added; entry i + 1 belongs to built-in Neighborhood i of
// that site. The pictures are drawn on first use and kept.
class NeighborhoodPictures
{
public:
    // Width and height of every picture, in logical pixels.
    static constexpr int Size = 64;

    static int usaCount();
    static int japanCount();
    // An entry outside the list gives the general picture.
    static QPixmap picture(bool japan, int entry);
};
