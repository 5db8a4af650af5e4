#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

// The repeat rule of an import into one table: a new record is a repeat
// when a record of the target equals it exactly in the compared fields.
// Records added during the pass count as part of the target; but when the
// target was empty at the start, nothing is compared at all.
class RepeatFilter
{
public:
    // target: the records of the table at the start of the pass, their
    // compared fields first; compared: how many fields count.
    RepeatFilter(const QVector<QStringList>& target, int compared);

    bool isRepeat(const QStringList& record) const;
    void added(const QStringList& record);

private:
    QString key(const QStringList& record) const;

    int m_compared;
    bool m_compares;
    QSet<QString> m_keys;
};
