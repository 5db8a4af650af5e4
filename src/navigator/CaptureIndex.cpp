#include "CaptureIndex.h"

#include "addressdata/TextDatabase.h"

#include <algorithm>

namespace {
const QStringList Fields = {QStringLiteral("Block"), QStringLiteral("Prefix"),
                            QStringLiteral("Houses"), QStringLiteral("Fetched")};
constexpr int PerPrefix = 100;
} // namespace

CaptureIndex::CaptureIndex(TextDatabase& db) : m_db(db) {}

QString CaptureIndex::blockKey(const QString& siteLabel, const QString& neighborhood,
                               const QString& suburb, bool japan)
{
    QString label = siteLabel;
    while (label.endsWith(QLatin1Char('/')))
        label.chop(1);
    QString key = label + QLatin1Char('/') + neighborhood;
    if (!suburb.isEmpty())
        key += (japan ? QLatin1Char('-') : QLatin1Char('/')) + suburb;
    return key;
}

void CaptureIndex::ensureTable()
{
    if (m_tableReady)
        return;
    if (!m_db.hasTable(QLatin1String(Table)))
        m_db.createTable(QLatin1String(Table), Fields);
    m_tableReady = true;
}

CaptureIndex::Block CaptureIndex::read(const QString& key)
{
    ensureTable();
    Block block;
    const auto records = m_db.readWhere(QLatin1String(Table), Fields, Fields[0], key);
    for (const TextRecord& record : records) {
        const int prefix = record.fields.value(1).toInt();
        const QString marks = record.fields.value(2);
        block.fetched = QDate::fromString(record.fields.value(3), Qt::ISODate);
        for (int i = 0; i < marks.size() && i < PerPrefix; ++i) {
            const int house = prefix * PerPrefix + i;
            if (marks[i] == QLatin1Char('1') && house >= FirstHouse && house <= LastHouse)
                block.captured.setBit(house);
        }
    }
    for (int house = FirstHouse; house <= LastHouse; ++house) {
        if (block.captured.testBit(house))
            block.houses.append(house);
    }
    return block;
}

const CaptureIndex::Block* CaptureIndex::find(const QString& key)
{
    auto it = m_blocks.find(key);
    if (it == m_blocks.end()) {
        if (m_missing.contains(key))
            return nullptr;
        Block block = read(key);
        if (!block.fetched.isValid()) {
            m_missing.insert(key, true);
            return nullptr;
        }
        it = m_blocks.insert(key, block);
    }
    return &it.value();
}

bool CaptureIndex::isStale(const QString& key, const QDate& today)
{
    const Block* block = find(key);
    return !block || block->fetched.daysTo(today) >= RefreshDays;
}

void CaptureIndex::store(const QString& key, const QVector<int>& houses, const QDate& fetched)
{
    ensureTable();
    Block block;
    block.fetched = fetched;
    for (int house : houses) {
        if (house >= FirstHouse && house <= LastHouse)
            block.captured.setBit(house);
    }
    QVector<QStringList> rows;
    const QString day = fetched.toString(Qt::ISODate);
    for (int prefix = FirstHouse / PerPrefix; prefix <= LastHouse / PerPrefix; ++prefix) {
        QString marks(PerPrefix, QLatin1Char('0'));
        for (int i = 0; i < PerPrefix; ++i) {
            if (block.captured.testBit(prefix * PerPrefix + i)) {
                marks[i] = QLatin1Char('1');
                block.houses.append(prefix * PerPrefix + i);
            }
        }
        rows.append({key, QString::number(prefix), marks, day});
    }
    // The old index goes only if the new one is stored whole.
    m_db.runInTransaction([&] {
        m_db.removeWhere(QLatin1String(Table), Fields[0], key);
        m_db.append(QLatin1String(Table), Fields, rows);
    });
    m_blocks.insert(key, block);
    m_missing.remove(key);
}

int CaptureIndex::step(const QVector<int>& houses, int house, int direction)
{
    if (houses.isEmpty())
        return 0;
    if (direction > 0) {
        const auto next = std::upper_bound(houses.cbegin(), houses.cend(), house);
        return next == houses.cend() ? houses.first() : *next;
    }
    const auto next = std::lower_bound(houses.cbegin(), houses.cend(), house);
    return next == houses.cbegin() ? houses.last() : *(next - 1);
}
