#include "WbtServerTables.h"

#include "WbtBuiltIns.h"
#include "addressdata/TextDatabase.h"
#include "core/SharedState.h"

namespace {

QStringList readSeeded(TextDatabase& db, const SharedState& state, int table,
                       const QStringList& builtIns, int limit)
{
    const QString name = state.gastrTables[table][0];
    const QString field = state.gastrTables[table][1];
    if (db.recordCount(name) == 0) {
        QVector<QStringList> rows;
        for (const QString& value : builtIns)
            rows.append({value});
        db.append(name, {field}, rows);
    }
    QStringList values;
    for (const TextRecord& record : db.readAll(name, {field})) {
        if (values.size() == limit)
            break;
        values.append(NullToEmpty(record.fields.value(0)));
    }
    return values;
}

} // namespace

namespace WbtServerTables {

QStringList readServers(TextDatabase& db, const SharedState& state)
{
    return readSeeded(db, state, Tbl::WbtBaseUrl, WbtBuiltInServers(), MaxServers);
}

QStringList readBadTitles(TextDatabase& db, const SharedState& state)
{
    return readSeeded(db, state, Tbl::WbtBadTitles, WbtBuiltInBadTitles(), MaxBadTitles);
}

} // namespace WbtServerTables
