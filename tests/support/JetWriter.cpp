#include "JetWriter.h"

#include <QFile>
#include <QtEndian>
#include <array>

namespace {

constexpr int PageSize = JetWriter::PageSize;
constexpr int DataHeader = 14; // type, flag, free space, owner, unknown, row count
constexpr int MapSize = 64;    // a usage map row: type, first page, bitmap

void put16(QByteArray& b, int at, int v)
{
    qToLittleEndian<quint16>(quint16(v), b.data() + at);
}

void put32(QByteArray& b, int at, quint32 v)
{
    qToLittleEndian<quint32>(v, b.data() + at);
}

QByteArray ucs2(const QString& text)
{
    QByteArray bytes;
    for (QChar c : text) {
        bytes.append(char(c.unicode() & 0xff));
        bytes.append(char(c.unicode() >> 8));
    }
    return bytes;
}

// The header from 0x18 is stored masked with the RC4 stream of a fixed key.
void maskHeader(QByteArray& page)
{
    const std::array<quint8, 4> key = {0xc7, 0xda, 0x39, 0x6b};
    std::array<quint8, 256> s{};
    for (int i = 0; i < 256; ++i)
        s[i] = quint8(i);
    for (int i = 0, j = 0; i < 256; ++i) {
        j = (j + s[i] + key[i % 4]) & 0xff;
        std::swap(s[i], s[j]);
    }
    for (int n = 0, i = 0, j = 0; n < 128; ++n) {
        i = (i + 1) & 0xff;
        j = (j + s[i]) & 0xff;
        std::swap(s[i], s[j]);
        page[0x18 + n] = char(quint8(page[0x18 + n]) ^ s[(s[i] + s[j]) & 0xff]);
    }
}

QByteArray headerPage(quint32 pageKey)
{
    QByteArray page(PageSize, '\0');
    page[1] = 0x01;
    page.replace(4, 15, "Standard Jet DB");
    page[0x14] = 0x01; // Jet 4
    put16(page, 0x3c, 1252);
    put16(page, 0x6e, 0x409);
    put32(page, 0x3e, pageKey);
    maskHeader(page);
    return page;
}

// A row of variable columns only: count, data, then from the end backwards
// the null mask, the count of variable columns, their offsets and the end
// of the data.
QByteArray row(const QStringList& values)
{
    const int n = values.size();
    QByteArray data(2, '\0');
    put16(data, 0, n);
    QVector<int> offsets;
    QByteArray mask((n + 7) / 8, '\0');
    for (int i = 0; i < n; ++i) {
        offsets.append(data.size());
        if (!values[i].isNull()) {
            mask[i / 8] = char(mask[i / 8] | (1 << (i % 8)));
            data.append(ucs2(values[i]));
        }
    }
    QByteArray tail(2 * (n + 2), '\0');
    put16(tail, 0, data.size()); // end of the data
    for (int i = 0; i < n; ++i)
        put16(tail, 2 * (n - i), offsets[i]);
    put16(tail, 2 * (n + 1), n);
    return data + tail + mask;
}

QByteArray emptyDataPage(quint32 owner)
{
    QByteArray page(PageSize, '\0');
    page[0] = 0x01;
    page[1] = 0x01;
    put32(page, 4, owner);
    put16(page, 2, PageSize - DataHeader);
    return page;
}

// Rows fill a page from its end; the offsets grow from the header.
QVector<QByteArray> dataPages(quint32 owner, const QVector<QByteArray>& rows)
{
    QVector<QByteArray> pages;
    QByteArray page = emptyDataPage(owner);
    int count = 0;
    int top = PageSize;
    for (const QByteArray& r : rows) {
        if (top - r.size() < DataHeader + 2 * (count + 1)) {
            pages.append(page);
            page = emptyDataPage(owner);
            count = 0;
            top = PageSize;
        }
        top -= r.size();
        page.replace(top, r.size(), r);
        put16(page, DataHeader + 2 * count, top);
        ++count;
        put16(page, 12, count);
        put16(page, 2, top - DataHeader - 2 * count);
    }
    if (count > 0)
        pages.append(page);
    return pages;
}

QByteArray usageMap(int firstPage, int pageCount)
{
    QByteArray map(MapSize, '\0');
    put32(map, 1, quint32(firstPage));
    for (int i = 0; i < pageCount; ++i)
        map[5 + i / 8] = char(map[5 + i / 8] | (1 << (i % 8)));
    return map;
}

QByteArray definitionPage(const QStringList& fields, int rows, quint32 mapRow, bool system)
{
    QByteArray page(PageSize, '\0');
    page[0] = 0x02;
    page[1] = 0x01;
    put32(page, 16, quint32(rows));
    page[40] = char(system ? 0x53 : 0x4e);
    const int n = fields.size();
    put16(page, 41, n); // max columns
    put16(page, 43, n); // variable columns
    put16(page, 45, n);
    put32(page, 55, mapRow); // pages used
    put32(page, 59, mapRow); // pages with free space
    int at = 63;
    for (int i = 0; i < n; ++i, at += 25) {
        page[at] = 0x0a; // text
        put16(page, at + 5, i);
        put16(page, at + 7, i);
        put16(page, at + 9, i);
        put16(page, at + 11, 0x409); // general sort order
        page[at + 15] = 0x02;        // may be null
        put16(page, at + 23, 510);   // 255 characters
    }
    for (const QString& field : fields) {
        const QByteArray name = ucs2(field);
        put16(page, at, name.size());
        page.replace(at + 2, name.size(), name);
        at += 2 + name.size();
    }
    put16(page, at, 0xffff);
    at += 2;
    put32(page, 8, quint32(at - 8));
    put16(page, 2, PageSize - at - 8);
    return page;
}

} // namespace

void JetWriter::addTable(const QString& name, const QStringList& fields,
                         const QVector<QStringList>& rows)
{
    m_tables.append({name, fields, rows});
}

JetWriter::Table* JetWriter::table(const QString& name)
{
    for (Table& t : m_tables) {
        if (t.name == name)
            return &t;
    }
    return nullptr;
}

QByteArray JetWriter::build() const
{
    // The catalog first, then the tables: each owns a definition page.
    QVector<Table> all;
    Table catalog{QStringLiteral("MSysObjects"), {"Id", "Name", "Type", "Flags", "LvProp"}, {}};
    const int firstDefinition = 3;
    for (int t = 0; t < m_tables.size(); ++t) {
        catalog.rows.append({QString::number(firstDefinition + t), m_tables[t].name,
                             QStringLiteral("1"), QStringLiteral("0"), QString()});
    }
    all.append(catalog);
    all.append(m_tables);

    QVector<QByteArray> definitions, data, maps;
    int nextPage = 2 + all.size();
    for (int t = 0; t < all.size(); ++t) {
        const quint32 owner = quint32(2 + t);
        QVector<QByteArray> rows;
        for (const QStringList& r : all[t].rows)
            rows.append(row(r));
        const QVector<QByteArray> pages = dataPages(owner, rows);
        maps.append(usageMap(nextPage, pages.size()));
        data += pages;
        nextPage += pages.size();
        const quint32 mapRow = (1u << 8) | quint32(t);
        definitions.append(definitionPage(all[t].fields, all[t].rows.size(), mapRow, t == 0));
    }
    QByteArray file = headerPage(pageKey) + dataPages(0, maps).value(0, emptyDataPage(0));
    for (const QByteArray& page : definitions + data)
        file += page;
    return file;
}

bool JetWriter::write(const QString& path) const
{
    QFile file(path);
    const QByteArray bytes = build();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

JetWriter JetWriter::OldMainDatabase()
{
    JetWriter w;
    const QStringList saved{"Neighborhood", "Suburb", "House", "Comment", "Date"};
    w.addTable("UsaNeighborhoods", {"Neighborhood", "Description"});
    w.addTable("UsaSuburbs", {"NeighborhoodIndex", "Suburb"});
    w.addTable("UsaSaved", saved);
    w.addTable("UsaMisc", {"RNavNeighborhoodsUSA"});
    w.addTable("JapanNeighborhoods", {"Neighborhood", "Description"});
    w.addTable("JapanSuburbs", {"NeighborhoodIndex", "Suburb"});
    w.addTable("JapanSaved", saved);
    w.addTable("JapanMisc", {"RNavNeighborhoodsJapan"});
    w.addTable("wbtlinks", {"link", "comment"});
    w.addTable("wbtBaseUrl", {"Url", "Counter"});
    w.addTable("wbtBadTitles", {"BadTitle"});
    return w;
}
