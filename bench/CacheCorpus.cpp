#include "CacheCorpus.h"

#include <QDir>
#include <QFile>

namespace CacheCorpus {

QByteArray page(int number, int bytes)
{
    QByteArray text = "<html>\r\n<head><title>Page " + QByteArray::number(number) +
                      "</title></head>\r\n<body>\r\n";
    int line = 0;
    while (text.size() < bytes) {
        text += "<p>Line " + QByteArray::number(line) + " of page " + QByteArray::number(number) +
                ": <a href=\"http://www.geocities.com/Area51/" + QByteArray::number(1000 + line) +
                "/\">a neighbour</a>&nbsp;write to user" + QByteArray::number(line) +
                "@example.com</p>\r\n";
        ++line;
    }
    text.truncate(bytes - 16);
    return text + "\r\n</body></html>";
}

namespace {
bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int fillFolder(const QString& folder, const Shape& shape, int& number)
{
    QDir().mkpath(folder);
    int pages = 0;
    for (int i = 0; i < shape.pagesPerFolder; ++i, ++number)
        pages += writeFile(QStringLiteral("%1/page%2.htm").arg(folder).arg(number),
                           page(number, shape.pageBytes));
    const QByteArray picture(512, '\xff');
    for (int i = 0; i < shape.picturesPerFolder; ++i)
        writeFile(QStringLiteral("%1/pic%2.gif").arg(folder).arg(i), picture);
    return pages;
}
} // namespace

int make(const QString& root, const Shape& shape)
{
    int number = 0;
    int pages = fillFolder(root, shape, number);
    for (int f = 0; f < shape.folders; ++f)
        pages += fillFolder(QStringLiteral("%1/SUB%2").arg(root).arg(f, 3, 10, QChar('0')), shape,
                            number);
    return pages;
}

} // namespace CacheCorpus
