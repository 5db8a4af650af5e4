#include "UrlList.h"

#include "core/FileServices.h"
#include "core/SingleByteText.h"

#include <QFile>

namespace {
bool knownExtension(const QString& name)
{
    static const QStringList table = {"lzh", "bmp", "tif", "jpg", "gif", "zip",
                                      "txt", "doc", "exe", "mid", "wav", "htm"};
    return table.contains(name.right(3).toLower());
}

// A name whose extension after its first "." is three long.
bool setsFileMode(const QString& name)
{
    const int dot = name.indexOf(QLatin1Char('.'));
    return dot >= 0 && name.size() - dot - 1 == 3;
}
} // namespace

bool UrlList::countsAsFile(const QString& name)
{
    return knownExtension(name) && name.size() > 4;
}

UrlList UrlList::read(const QString& path)
{
    QFile file(path);
    QStringList lines;
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd() && lines.size() <= 4 * MaxUrls)
            lines << SingleByteText::decode(file.readLine());
    }
    return parse(lines);
}

UrlList UrlList::parse(const QStringList& lines)
{
    UrlList list;
    QString folder;
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        if (line.isEmpty())
            continue;
        QString pending = line;
        bool isFile = false;
        // Once a list holds a page, it stays a list of pages.
        const bool examine = list.urls.isEmpty() || list.fileMode;
        if (examine && line.contains(QLatin1Char('/'))) {
            folder = PathBeforeLast(line, QLatin1Char('/'));
            const QString name = NameAfterLast(line, QLatin1Char('/'));
            list.fileMode = list.fileMode || setsFileMode(name);
            isFile = countsAsFile(name);
        } else if (examine && !list.urls.isEmpty()) {
            pending = folder + line;
            list.fileMode = list.fileMode || setsFileMode(line);
            isFile = countsAsFile(line);
        }
        if (list.fileMode && !isFile)
            continue;
        if (list.urls.size() + 1 == MaxUrls + 1)
            break;
        list.urls << pending;
    }
    return list;
}
