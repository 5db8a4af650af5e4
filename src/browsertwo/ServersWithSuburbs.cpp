#include "ServersWithSuburbs.h"

#include "addressdata/TextDatabase.h"
#include "core/Endpoints.h"
#include "core/SwsTable.h"

namespace {

const QStringList AngelfireStates = {
    "ak", "al", "ar", "az", "biz", "ca", "co", "ct", "de", "fl", "ga", "hi", "ia",
    "id", "il", "in", "ks", "ky",  "la", "ma", "md", "me", "mi", "mn", "mo", "ms",
    "mt", "nc", "nd", "ne", "nh",  "nj", "nm", "nv", "ny", "oh", "ok", "or", "pa",
    "ri", "sc", "sd", "tn", "tx",  "ut", "va", "vt", "wa", "wi", "wv", "wy"};
const QStringList TerraVistaBeaches = {
    "AguaAlto",  "BaiaGatas", "Bilene",    "Copacabana", "Enseada", "FerNoronha", "Guincho",
    "IlhadoMel", "Meco",      "MeiaPraia", "Mussulo",    "Nazare",  "PortoSanto", "Ancora"};
const QStringList TerraVistaBrasilBeaches = {"Albufeira", "AreiasBrancas", "Claridade", "Ipanema",
                                             "Jenipabu",  "Magoito",       "PraiaBrava"};

QVector<QStringList> BuiltInSuburbRows()
{
    QVector<QStringList> rows;
    const QVector<QStringList> lists = {AngelfireStates, TerraVistaBeaches,
                                        TerraVistaBrasilBeaches};
    for (int server = 0; server < lists.size(); ++server)
        for (const QString& suburb : lists[server])
            rows.append({QString::number(server + 1), suburb});
    return rows;
}

} // namespace

bool CreateSwsTables(TextDatabase& db)
{
    try {
        db.runInTransaction([&db] {
            db.createTable(Sws::ServersTable, {Sws::UrlField});
            db.createTable(Sws::SubsTable, {Sws::IndexField, Sws::SubField});
            db.append(Sws::ServersTable, {Sws::UrlField},
                      {{Endpoint::AngelfireBaseUrl},
                       {Endpoint::TerraVistaBaseUrl},
                       {Endpoint::TerraVistaBrasilBaseUrl}});
            db.append(Sws::SubsTable, {Sws::IndexField, Sws::SubField}, BuiltInSuburbRows());
        });
        return true;
    } catch (const DbError&) {
        return false;
    }
}

bool ReadServersWithSuburbs(TextDatabase& db, SwsTable& table)
{
    table.clear();
    try {
        if (!db.hasTable(Sws::ServersTable) && !CreateSwsTables(db))
            return false;
        const QVector<QStringList> servers =
            FieldTexts(db.readAll(Sws::ServersTable, {Sws::UrlField}));
        if (servers.isEmpty())
            return true;
        if (servers.size() > SwsTable::MaxServers)
            return false;
        for (int i = 0; i < servers.size(); ++i)
            table.at(i + 1, 0) = servers[i].value(0);
        const QVector<QStringList> subs =
            FieldTexts(db.readAll(Sws::SubsTable, {Sws::IndexField, Sws::SubField}));
        int count[SwsTable::MaxServers + 1] = {};
        for (const QStringList& row : subs) {
            bool ok = false;
            const int server = row.value(0).trimmed().toInt(&ok);
            if (!ok || server < 1 || server > servers.size() ||
                count[server] >= SwsTable::MaxSuburbs)
                continue;
            table.at(server, ++count[server]) = row.value(1);
        }
        return true;
    } catch (const DbError&) {
        return false;
    }
}
