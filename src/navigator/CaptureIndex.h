#pragma once

#include <QBitArray>
#include <QDate>
#include <QHash>
#include <QString>
#include <QVector>

class TextDatabase;

// The house numbers of one block (a Neighborhood or a Neighborhood with a
// Suburb) that the Internet Archive holds a page of, and the day the
// archive was asked. Kept in a table of the main database: one record for
// each pair of first digits, its hundred numbers as a row of "0" and "1".
class CaptureIndex
{
public:
    static constexpr int FirstHouse = 1000;
    static constexpr int LastHouse = 9999;
    static constexpr int RefreshDays = 30;
    static constexpr const char* Table = "ArchiveCaptures";

    struct Block
    {
        QBitArray captured{LastHouse + 1};
        QVector<int> houses; // the captured numbers, ascending
        QDate fetched;
    };

    explicit CaptureIndex(TextDatabase& db);

    // The key of a block: site label and path, as "geocities.com/SoHo/Lofts".
    static QString blockKey(const QString& siteLabel, const QString& neighborhood,
                            const QString& suburb, bool japan);

    // The block's index, or nullptr while it has none.
    const Block* find(const QString& key);
    bool isStale(const QString& key, const QDate& today);
    // Replaces the block's index by the numbers given.
    void store(const QString& key, const QVector<int>& houses, const QDate& fetched);

    // The next captured number after house in the direction (+1 or -1),
    // wrapping around; 0 when none is captured.
    static int step(const QVector<int>& houses, int house, int direction);

private:
    void ensureTable();
    Block read(const QString& key);

    TextDatabase& m_db;
    QHash<QString, Block> m_blocks; // read or stored this session
    QHash<QString, bool> m_missing; // asked for and not in the table
    bool m_tableReady = false;
};
