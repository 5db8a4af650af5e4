#include "PageFileList.h"

#include "PageText.h"
#include "browserone/BrowserControl.h"
#include "core/AppContext.h"
#include "core/FileServices.h"
#include "core/SingleByteText.h"

#include <QFile>

namespace {
constexpr int MaxLinks = 1000;

bool writeLines(const QString& path, const QStringList& lines)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray bytes = SingleByteText::lines(lines);
    return file.write(bytes) == bytes.size();
}
} // namespace

PageFileList::PageFileList(AppContext& ctx, Links links) : m_ctx(ctx), m_links(std::move(links)) {}

void PageFileList::GetFileListMenu(int menuCode)
{
    if (menuCode == 2)
        GetPageFileList(1);
    else if (menuCode == 3)
        GetPageFileList(2);
}

void PageFileList::GetPageFileList(int which)
{
    SharedState& st = m_ctx.state;
    if (st.GettingFileList) {
        m_ctx.MsgBox(QStringLiteral("Still getting the last list!"));
        return;
    }
    st.GettingFileList = true;
    BrowserControl* browser = m_links.browser ? m_links.browser(which) : nullptr;
    if (!browser) {
        st.GettingFileList = false;
        return;
    }
    const QString base = PathBeforeLast(browser->LocationURL(), QLatin1Char('/'));
    const QString output = UniqueFileName(OutputDirectory(m_ctx) + QStringLiteral("FileList.txt"));
    if (browser->LocationName().toLower().contains(QLatin1String("index")))
        scanIndex(*browser, base, output);
    else
        scanPage(*browser, base, output);
    st.GettingFileList = false;
}

bool PageFileList::jpgLinks(const QString& source, const QString& base, QStringList& links)
{
    const QString lower = source.toLower();
    // Each search goes on three places after the last ">" found.
    int from = 0;
    for (;;) {
        const int open = lower.indexOf(QLatin1String("<a href"), from);
        if (open < 0)
            return true;
        if (links.size() > MaxLinks)
            return false;
        const int close = lower.indexOf(QLatin1Char('>'), open + 6);
        if (close < 0)
            return true;
        from = close + 3;
        QString tag = source.mid(open, close - open);
        const int img = tag.indexOf(QLatin1String("<img src="), 0, Qt::CaseInsensitive);
        if (img >= 0)
            tag = tag.left(img);
        const int jpg = tag.indexOf(QLatin1String(".jpg"), 0, Qt::CaseInsensitive);
        if (jpg < 0)
            continue;
        tag = tag.left(jpg + 4);
        const QString prefix = tag.contains(QLatin1Char('/')) ? QString() : base;
        const int equals = tag.indexOf(QLatin1Char('='));
        if (equals < 0)
            continue;
        QString name = tag.mid(equals + 1).trimmed();
        if (name.startsWith(QLatin1Char('"')))
            name.remove(0, 1);
        name.replace(QLatin1String("%7E"), QLatin1String("~"), Qt::CaseInsensitive);
        links << prefix + name;
    }
}

QStringList PageFileList::indexNames(const QString& text, const QString& base)
{
    QStringList names;
    for (const QString& raw : text.split(QLatin1Char('\n'))) {
        QString line = raw.trimmed();
        const int dot = line.indexOf(QLatin1Char('.'));
        QString ext = dot < 0 ? QString() : line.mid(dot + 1);
        // "name.jpg   12-Jan-2000 10:00  20k": the name ends with its extension.
        if (ext.size() > 3 && line.at(dot + 4) == QLatin1Char(' ')) {
            line = line.left(dot + 4);
            ext = ext.left(3);
        }
        if (dot >= 0 && ext.size() == 3 && line.size() >= 5 && !line.contains(QLatin1Char(' ')))
            names << base + line;
    }
    return names;
}

void PageFileList::scanPage(BrowserControl& browser, const QString& base, const QString& output)
{
    if (!m_ctx.ConnectionUp()) {
        m_ctx.MsgBox(QStringLiteral("No internet connection!"));
        return;
    }
    const QString source = m_links.InvisibleInetUsage(browser.LocationURL());
    QStringList links;
    if (!jpgLinks(source, base, links)) {
        m_ctx.MsgBox(QStringLiteral("Unknown error occurred!"));
        return;
    }
    if (m_links.unloadHiddenGetter)
        m_links.unloadHiddenGetter();
    save(output, links, "No links to jpg files found!");
}

void PageFileList::scanIndex(BrowserControl& browser, const QString& base, const QString& output)
{
    const QString text = PageTextOf(browser);
    if (m_links.copyToClipboard)
        m_links.copyToClipboard(text);
    const QStringList names = indexNames(text, base);
    save(output, names, "No file names found!");
}

void PageFileList::save(const QString& output, const QStringList& lines, const char* none)
{
    if (lines.isEmpty()) {
        m_ctx.MsgBox(QString::fromLatin1(none));
        QFile::remove(output);
    } else if (!writeLines(output, lines)) {
        m_ctx.MsgBox(QStringLiteral("There was an error!"));
    } else {
        m_ctx.MsgBox(QStringLiteral("File list saved in: ") + QStringLiteral("\r\r") + output);
    }
}
