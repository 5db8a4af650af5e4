#include "Favorites.h"

#include <QDateTime>
#include <QFile>
#include <QSaveFile>

namespace {
const char* const Head =
    "<!DOCTYPE NETSCAPE-Bookmark-file-1>\r\n"
    "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\r\n"
    "<TITLE>Bookmarks</TITLE>\r\n"
    "<H1>Bookmarks</H1>\r\n"
    "<DL><p>\r\n";
const char* const Tail = "</DL><p>\r\n";
} // namespace

namespace Favorites {

bool AddFavorite(const QString& file, const QString& url, const QString& title)
{
    QByteArray text;
    QFile existing(file);
    if (existing.open(QIODevice::ReadOnly))
        text = existing.readAll();
    const int end = text.lastIndexOf(Tail);
    if (end < 0)
        text = Head;
    else
        text.truncate(end);
    const QString name = title.isEmpty() ? url : title;
    text += QStringLiteral("    <DT><A HREF=\"%1\" ADD_DATE=\"%2\">%3</A>\r\n")
                .arg(url.toHtmlEscaped())
                .arg(QDateTime::currentSecsSinceEpoch())
                .arg(name.toHtmlEscaped())
                .toUtf8();
    text += Tail;
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    out.write(text);
    return out.commit();
}

} // namespace Favorites
