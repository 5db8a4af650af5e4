#include "WordRule.h"

QString WordRule::fromTextFile(const QString& item)
{
    const QString word = item.trimmed();
    if (word.isEmpty() || word.size() > 16)
        return QString();
    return word.toLower();
}

QString WordRule::fromDatabase(const QString& value)
{
    if (value.size() <= 2 || value.size() > 20)
        return QString();
    return value.toLower();
}
