#include "CacheActionCorpus.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

const char* const CacheActionCorpus::Marker = "ReplaceMe";

namespace {

const char* const Words[] = {"geocities",    "homepage", "welcome", "guestbook", "under",
                             "construction", "links",    "friends", "music",     "pictures",
                             "neighborhood", "visitor",  "counter", "email",     "webring"};

QByteArray paragraph(QRandomGenerator& random)
{
    QByteArray text = "<p class=\"body\">";
    const int words = random.bounded(20, 60);
    for (int i = 0; i < words; ++i) {
        text += Words[random.bounded(int(std::size(Words)))];
        text += ' ';
    }
    switch (random.bounded(12)) {
    case 0:
        text += "<a href=\"mailto:user" + QByteArray::number(random.bounded(1000)) +
                "@example.com?subject=hi\">write me</a> ";
        break;
    case 1:
        text += "write to fan" + QByteArray::number(random.bounded(1000)) + "@site.net today ";
        break;
    default:
        text += "<a href=\"http://www.geocities.com/SoHo/" +
                QByteArray::number(random.bounded(10000)) + "/\">next</a> ";
    }
    return text + "</p>\r\n";
}

} // namespace

QStringList CacheActionCorpus::make(const QString& folder, int count, int bytesEach)
{
    QDir().mkpath(folder);
    QRandomGenerator random(7);
    QStringList paths;
    for (int n = 0; n < count; ++n) {
        QByteArray page =
            "<html><head><title>Page " + QByteArray::number(n) + "</title></head><body>\r\n";
        if (n % 2 == 0)
            page += "<h1>" + QByteArray(Marker) + "</h1>\r\n";
        while (page.size() < bytesEach)
            page += paragraph(random);
        page += "</body></html>\r\n";
        const QString path = folder + QString("/page%1.htm").arg(n, 5, 10, QChar('0'));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(page);
        paths << path;
    }
    return paths;
}
