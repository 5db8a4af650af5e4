#include "CatalogueData.h"

int CatalogueData::find(const QString& name) const
{
    for (int i = 1; i <= gintNeighborhoodCount; ++i) {
        if (gastrCatalogue[i - 1][0] == name)
            return i;
    }
    return 0;
}
