#include "PageSources.h"

#include "core/AppContext.h"
#include "core/SettingsKeys.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace {
const QString UsaHost = QStringLiteral("www.geocities.com");
const QString UsaRoot = QStringLiteral("http://www.geocities.com");
constexpr int RememberedOpenings = 256;

QString withoutSlash(QString base)
{
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return base;
}

// The entry of folder whose name matches name without regard to case.
QString entryIn(const QDir& folder, const QString& name)
{
    if (QFileInfo::exists(folder.filePath(name)))
        return name;
    const QStringList entries = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return QString();
}

// The file of the rescue's tree for a path: names matched without regard to
// case, and a house's index page for a folder. Empty when it is not there.
QString findInMirror(const QString& root, const QString& path)
{
    QDir dir(root);
    const QString host = entryIn(dir, UsaHost);
    if (host.isEmpty() || !dir.cd(host))
        return QString();
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (int i = 0; i < parts.size(); ++i) {
        const QString entry = entryIn(dir, parts[i]);
        if (entry.isEmpty())
            return QString();
        const QFileInfo info(dir.filePath(entry));
        if (info.isFile())
            return i + 1 == parts.size() ? info.absoluteFilePath() : QString();
        dir.cd(entry);
    }
    for (const char* index : {"index.html", "index.htm"}) {
        const QString entry = entryIn(dir, QLatin1String(index));
        if (!entry.isEmpty() && QFileInfo(dir.filePath(entry)).isFile())
            return QFileInfo(dir.filePath(entry)).absoluteFilePath();
    }
    return QString();
}
} // namespace

void PageSources::load(const AppContext& ctx)
{
    const int stored = ctx.GetSetting(Sect::AdvOpt, Key::PageSource, "0").toInt();
    source = stored >= 0 && stored <= static_cast<int>(PageSource::LocalMirror)
                 ? static_cast<PageSource>(stored)
                 : PageSource::Original;
    if (!setYear(false, ctx.GetSetting(Sect::AdvOpt, Key::ArchiveYearUSA).toInt()))
        usaYear = LastUsaYear;
    if (!setYear(true, ctx.GetSetting(Sect::AdvOpt, Key::ArchiveYearJapan).toInt()))
        japanYear = LastJapanYear;
    localMirror = ctx.GetSetting(Sect::AdvOpt, Key::LocalMirror, "");
    walkCaptured = ctx.GetSetting(Sect::AdvOpt, Key::WalkCaptured, "1") != QLatin1String("0");
    if (source == PageSource::LocalMirror && localMirror.isEmpty())
        source = PageSource::Original;
}

void PageSources::save(AppContext& ctx) const
{
    ctx.SaveSetting(Sect::AdvOpt, Key::PageSource, QString::number(static_cast<int>(source)));
    ctx.SaveSetting(Sect::AdvOpt, Key::ArchiveYearUSA, QString::number(usaYear));
    ctx.SaveSetting(Sect::AdvOpt, Key::ArchiveYearJapan, QString::number(japanYear));
    ctx.SaveSetting(Sect::AdvOpt, Key::LocalMirror, localMirror);
    ctx.SaveSetting(Sect::AdvOpt, Key::WalkCaptured,
                    walkCaptured ? QStringLiteral("1") : QStringLiteral("0"));
}

bool PageSources::setYear(bool japan, int year)
{
    if (year < FirstYear || year > lastYear(japan))
        return false;
    (japan ? japanYear : usaYear) = year;
    return true;
}

bool PageSources::isWebAddress(const QString& text)
{
    const QUrl url(text);
    return (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) &&
           !url.host().isEmpty();
}

bool PageSources::isServiceAddress(const QString& url, bool* japan, QString* path)
{
    if (!isWebAddress(url))
        return false;
    const QUrl parsed(url);
    const QString host = parsed.host().toLower();
    const bool usa =
        host == QLatin1String("www.geocities.com") || host == QLatin1String("geocities.com");
    const bool jp =
        host == QLatin1String("www.geocities.co.jp") || host == QLatin1String("geocities.co.jp");
    if (!usa && !jp)
        return false;
    if (japan)
        *japan = jp;
    if (path) {
        // The text after the host as typed, so that its case stays.
        const int start = url.indexOf(QLatin1Char('/'), url.indexOf(QLatin1String("//")) + 2);
        *path = start < 0 ? QStringLiteral("/") : url.mid(start);
    }
    return true;
}

QString PageSources::archived(const QString& original, int year) const
{
    return withoutSlash(archiveBase) + QStringLiteral("/web/") + QString::number(year) +
           QStringLiteral("if_/") + original;
}

QString PageSources::mirrored(const QString& path) const
{
    switch (source) {
    case PageSource::Gallery:
        return withoutSlash(galleryBase) + path;
    case PageSource::OoCities:
        return withoutSlash(ooCitiesBase) + path.toLower();
    case PageSource::LocalMirror:
        if (isWebAddress(localMirror))
            return withoutSlash(localMirror) + QLatin1Char('/') + UsaHost + path;
        return findInMirror(localMirror, path);
    default:
        return QString();
    }
}

QString PageSources::sourceName() const
{
    switch (source) {
    case PageSource::Gallery:
        return QStringLiteral("Gallery");
    case PageSource::OoCities:
        return QStringLiteral("OoCities");
    case PageSource::LocalMirror:
        return QStringLiteral("Local mirror");
    default:
        return QStringLiteral("Archive");
    }
}

PageOpening PageSources::rewrite(const QString& url)
{
    bool japan = false;
    QString path;
    if (!active() || !isServiceAddress(url, &japan, &path))
        return {url, QString(), QString()};
    PageOpening opening{QString(), url, sourceName()};
    // The mirrors hold the USA site only: Japan, and a page a local mirror
    // lacks, come from the archive.
    if (source != PageSource::InternetArchive && !japan)
        opening.target = mirrored(path);
    if (opening.target.isEmpty()) {
        opening.target = archived(url, year(japan));
        opening.label = QStringLiteral("Archive ") + QString::number(year(japan));
        if (source != PageSource::InternetArchive)
            opening.label += QStringLiteral(", not on ") + sourceName();
    }
    if (m_opened.size() >= RememberedOpenings)
        m_opened.clear();
    m_opened.insert(opening.target, url);
    return opening;
}

PageOpening PageSources::fromArchive(const QString& location) const
{
    const QString base = withoutSlash(archiveBase).section(QStringLiteral("://"), 1);
    static const QRegularExpression form(QStringLiteral("^https?://([^/]+(?:/[^/]+)*?)/web/"
                                                        "(\\d{4})\\d*[a-z_]*/(.+)$"));
    const QRegularExpressionMatch m = form.match(location);
    if (!m.hasMatch() || m.captured(1).compare(base, Qt::CaseInsensitive) != 0)
        return {};
    QString original = m.captured(3);
    // The archive writes "http:/" with one slash in some of its addresses.
    original.replace(QRegularExpression(QStringLiteral("^(https?):/(?!/)")),
                     QStringLiteral("\\1://"));
    if (!isServiceAddress(original))
        return {};
    QString label = QStringLiteral("Archive ") + m.captured(2);
    if (source != PageSource::InternetArchive)
        label += QStringLiteral(", not on ") + sourceName();
    return {location, original, label};
}

PageOpening PageSources::fromBase(const QString& location, const QString& base, bool lowered) const
{
    const QString prefix = withoutSlash(base) + QLatin1Char('/');
    if (!location.startsWith(prefix, lowered ? Qt::CaseInsensitive : Qt::CaseSensitive))
        return {};
    return {location, UsaRoot + location.mid(prefix.size() - 1), sourceName()};
}

PageOpening PageSources::fromMirrorFolder(const QString& location) const
{
    const QUrl url(location);
    if (!url.isLocalFile() && !QFileInfo(location).isAbsolute())
        return {};
    const QString file = url.isLocalFile() ? url.toLocalFile() : location;
    const QString tree = QDir(localMirror).absolutePath() + QLatin1Char('/');
    if (!file.startsWith(tree))
        return {};
    QString rest = file.mid(tree.size());
    const int slash = rest.indexOf(QLatin1Char('/'));
    if (slash < 0 || rest.left(slash).compare(UsaHost, Qt::CaseInsensitive) != 0)
        return {};
    rest = rest.mid(slash);
    rest.remove(QRegularExpression(QStringLiteral("index\\.html?$"),
                                   QRegularExpression::CaseInsensitiveOption));
    return {location, UsaRoot + rest, sourceName()};
}

PageOpening PageSources::originalOf(const QString& location) const
{
    if (!active() || location.isEmpty())
        return {};
    PageOpening found = fromArchive(location);
    if (found.original.isEmpty()) {
        if (source == PageSource::Gallery)
            found = fromBase(location, galleryBase, false);
        else if (source == PageSource::OoCities)
            found = fromBase(location, ooCitiesBase, true);
        else if (source == PageSource::LocalMirror && isWebAddress(localMirror))
            found =
                fromBase(location, withoutSlash(localMirror) + QLatin1Char('/') + UsaHost, true);
        else if (source == PageSource::LocalMirror)
            found = fromMirrorFolder(location);
    }
    const QUrl url(location);
    const auto opened = m_opened.constFind(url.isLocalFile() ? url.toLocalFile() : location);
    if (!found.original.isEmpty() && opened != m_opened.constEnd())
        found.original = opened.value();
    return found;
}

QString PageSources::shown(const QString& location) const
{
    const PageOpening page = originalOf(location);
    if (page.original.isEmpty())
        return location;
    return page.original + QStringLiteral("  [") + page.label + QLatin1Char(']');
}

QString PageSources::withoutLabel(const QString& text)
{
    static const QRegularExpression label(QStringLiteral("^(\\S+)  \\[[^\\]]*\\]$"));
    const QRegularExpressionMatch m = label.match(text);
    return m.hasMatch() && isServiceAddress(m.captured(1)) ? m.captured(1) : text;
}
