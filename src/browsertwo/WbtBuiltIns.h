#pragma once

#include <QStringList>

// The rows Browser Two writes into an empty server or title table.

// The five plain servers in the walker's order. The options dialog seeds an
// empty table in an order of its own.
QStringList WbtBuiltInServers();
// The twelve titles of a missing page, two of them server addresses.
QStringList WbtBuiltInBadTitles();
