#pragma once

#include <QString>
#include <QStringList>

// The opening lines of the pages the program writes (NetPic pages, the link
// export): the head with its title, description, keywords and rating, the
// links' style, and the opening of the body.
QStringList PageHeadLines(const QString& title, const QString& description,
                          const QString& keywords);
