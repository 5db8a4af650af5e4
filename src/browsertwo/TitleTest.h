#pragma once

#include <QString>
#include <QStringList>

// The missing-page test of Browser Two: a title is a host's "nothing here"
// page when it equals one of the bad titles exactly, case included. A bad
// title that is an address ("http://...") stands for the untitled page of
// that host, whose title is its own address: it matches the address
// followed by the word tried.
bool IsBadTitle(const QStringList& badTitles, const QString& word, const QString& title);

// The title of a page as a browser shows it, from the start of its HTML:
// the text of the first title element, entities decoded and white space
// collapsed; empty when there is none. UTF-8 where the bytes are valid
// UTF-8, otherwise Windows-1252.
QString TitleOfHtml(const QByteArray& html);
