#include "NetPicPages.h"

#include "core/Endpoints.h"
#include "core/FileServices.h"
#include "core/PageHead.h"
#include "core/SingleByteText.h"

#include <QFile>
#include <QTextStream>

namespace {
const QChar Quote(QLatin1Char('"'));

QString quoted(const QString& text)
{
    return Quote + text + Quote;
}

// A page file written as single-byte text with CR LF line ends.
class PageFile
{
public:
    bool open(const QString& path)
    {
        m_file.close();
        m_file.setFileName(path);
        return m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    }
    void write(const QStringList& lines) { m_file.write(SingleByteText::lines(lines)); }

private:
    QFile m_file;
};

// The path cut before the first "." of its file name.
QString beforeFirstDot(const QString& path)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    const int dot = path.indexOf(QLatin1Char('.'), slash + 1);
    return dot < 0 ? path : path.left(dot);
}

bool isPicture(const QString& line)
{
    const QString end = line.right(3).toLower();
    return end == QLatin1String("jpg") || end == QLatin1String("gif");
}
} // namespace

QStringList NetPicPages::header()
{
    return PageHeadLines(QStringLiteral("NetPic"), QStringLiteral("Vorlan's NetPic Picture Html"),
                         QStringLiteral("Pictures,Vorlan,") +
                             QLatin1String(Endpoint::ProductHomeUrl));
}

QStringList NetPicPages::footer()
{
    return {QStringLiteral("</BODY>"), QStringLiteral("</HTML>")};
}

QStringList NetPicPages::firstPageLines()
{
    return {QStringLiteral("<CENTER><P><STRONG><BIG>Fifty pictures loaded per page.<BR>"),
            QStringLiteral("If more than fifty pictures were given<BR>"),
            QStringLiteral("click the arrow to view the next page.</STRONG></BIG></P></CENTER>")};
}

QString NetPicPages::pictureLine(const QString& url, const QString& line)
{
    return QStringLiteral("<CENTER><A HREF=") + quoted(url) + QStringLiteral("><IMG SRC=") +
           quoted(url) + QStringLiteral("><BR>") + line + QStringLiteral("</A></CENTER>");
}

QStringList NetPicPages::write(const QString& listFile, const QString& base, bool fullUrls,
                               const std::function<void()>& pump)
{
    QFile list(listFile);
    if (!list.open(QIODevice::ReadOnly))
        return {};
    const QString first = UniqueFileName(beforeFirstDot(listFile) + QStringLiteral(".htm"));
    const QString stem = beforeFirstDot(first);
    QStringList pages{first};
    PageFile page;
    page.open(first);
    bool complete = false;
    int count = 0;
    while (!list.atEnd()) {
        const QString line = SingleByteText::decode(list.readLine()).trimmed();
        if (pump)
            pump();
        if (!isPicture(line))
            continue;
        if (++count == MaxPictures + 1)
            break;
        const bool whole = fullUrls && line.left(7).toLower() == QLatin1String("http://");
        if (count == 1)
            page.write(header() + firstPageLines());
        page.write({pictureLine(whole ? line : base + line, line)});
        complete = false;
        if (count % PerPage == 0) {
            page.write(footer());
            complete = true;
            if (!list.atEnd()) {
                pages << stem + QStringLiteral("_%1.htm").arg(pages.size());
                page.open(pages.last());
                page.write(header());
                complete = false;
            }
        }
    }
    if (!complete)
        page.write(footer());
    return pages;
}

void NetPicPages::logServer(const QString& logFile, const QString& base)
{
    QFile log(logFile);
    if (log.open(QIODevice::ReadOnly)) {
        const QString wanted = base.toLower();
        while (!log.atEnd()) {
            if (SingleByteText::decode(log.readLine()).toLower().contains(wanted))
                return;
        }
        log.close();
    }
    if (log.open(QIODevice::WriteOnly | QIODevice::Append))
        log.write(SingleByteText::lines({base}));
}
