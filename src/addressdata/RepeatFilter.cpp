#include "RepeatFilter.h"

RepeatFilter::RepeatFilter(const QVector<QStringList>& target, int compared)
    : m_compared(compared), m_compares(!target.isEmpty())
{
    for (const QStringList& record : target)
        m_keys.insert(key(record));
}

// The fields joined by a character that a text field of the program does
// not hold, so that ("ab", "c") and ("a", "bc") stay apart.
QString RepeatFilter::key(const QStringList& record) const
{
    return record.mid(0, m_compared).join(QChar(0));
}

bool RepeatFilter::isRepeat(const QStringList& record) const
{
    return m_compares && m_keys.contains(key(record));
}

void RepeatFilter::added(const QStringList& record)
{
    if (m_compares)
        m_keys.insert(key(record));
}
