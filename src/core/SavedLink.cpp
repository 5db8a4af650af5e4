#include "SavedLink.h"

QString SavedLink::column(int c) const
{
    switch (c) {
    case 1:
        return neighborhood;
    case 2:
        return suburb;
    case 3:
        return house;
    case 4:
        return comment;
    case 5:
        return date;
    default:
        return QString("");
    }
}
