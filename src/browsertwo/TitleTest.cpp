#include "TitleTest.h"

bool IsBadTitle(const QStringList& badTitles, const QString& word, const QString& title)
{
    for (const QString& entry : badTitles) {
        const bool address = entry.left(7).toLower() == QLatin1String("http://");
        if ((address ? entry + word : entry) == title)
            return true;
    }
    return false;
}
