#pragma once

#include <QString>
#include <QStringList>

// The missing-page test of Browser Two: a title is a host's "nothing here"
// page when it equals one of the bad titles exactly, case included. A bad
// title that is an address ("http://...") stands for the untitled page of
// that host, whose title is its own address: it matches the address
// followed by the word tried.
bool IsBadTitle(const QStringList& badTitles, const QString& word, const QString& title);
