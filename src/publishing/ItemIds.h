#pragma once

#include <QRandomGenerator>
#include <QString>
#include <functional>

// The six-digit ids the page builder puts behind the names of its items and
// routines. The time's digits seed each draw; the former state is mixed in,
// so that ids drawn within one second differ. Collisions are not looked for.
class ItemIds
{
public:
    // timeText: the clock's time as text; the seed is its digits.
    explicit ItemIds(std::function<QString()> timeText = {});

    QString NewItemId();

    // The id a drawn number gives as text, or the empty text when the number
    // gives none (too few digits, or a leading zero) and another is drawn.
    static QString idFromNumber(const QString& number);

private:
    std::function<QString()> m_timeText;
    QRandomGenerator m_random;
};
