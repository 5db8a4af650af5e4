#pragma once

#include <QHash>
#include <QString>

struct AppContext;

// Where the pages of the service are opened from. The service is gone; its
// pages survive in the Internet Archive and in mirrors. With Original every
// address is opened as composed and nothing else changes.
enum class PageSource
{
    Original = 0,
    InternetArchive = 1,
    Gallery = 2,
    OoCities = 3,
    LocalMirror = 4
};

// One opening of an address: what the browser is sent to, and, for a
// rewritten service address, the address as composed and the source's
// short name for the caption.
struct PageOpening
{
    QString target;
    QString original; // empty when the address was not rewritten
    QString label;
};

// The choice of source and the one rewrite that every opening of a service
// address goes through, with its way back from an archived or mirrored
// address to the original one. Addresses of other hosts pass unchanged.
class PageSources
{
public:
    static constexpr int FirstYear = 1996;
    static constexpr int LastUsaYear = 2009;
    static constexpr int LastJapanYear = 2019;

    PageSource source = PageSource::Original;
    int usaYear = LastUsaYear;
    int japanYear = LastJapanYear;
    // A folder holding the 2009 rescue's tree, or the address of a web
    // server that serves the same tree.
    QString localMirror;
    // AutoNav and RandNav skip house numbers the archive never captured.
    bool walkCaptured = true;

    // The base addresses of the sources; tests point them at a local server.
    QString archiveBase = QStringLiteral("https://web.archive.org");
    QString galleryBase = QStringLiteral("http://geocities.restorativland.org");
    QString ooCitiesBase = QStringLiteral("http://www.oocities.org");

    void load(const AppContext& ctx);
    void save(AppContext& ctx) const;

    bool active() const { return source != PageSource::Original; }
    static int lastYear(bool japan) { return japan ? LastJapanYear : LastUsaYear; }
    int year(bool japan) const { return japan ? japanYear : usaYear; }
    // Sets the year of a site; false for a year the site did not live in.
    bool setYear(bool japan, int year);

    // The address the browser is to open for an address.
    PageOpening rewrite(const QString& url);
    // The original address and short name behind an address the browser
    // shows; empty while it is none of the sources' addresses.
    PageOpening originalOf(const QString& location) const;
    // The caption's form of an address: the original one with the short
    // name in brackets, or the address itself.
    QString shown(const QString& location) const;
    // An address bar's text back to the address it stands for.
    static QString withoutLabel(const QString& text);

    // Whether text is an http or https address with a host.
    static bool isWebAddress(const QString& text);
    // Whether url is an address of the service; japan tells the site.
    static bool isServiceAddress(const QString& url, bool* japan = nullptr,
                                 QString* path = nullptr);

private:
    QString archived(const QString& original, int year) const;
    QString mirrored(const QString& path) const;
    QString sourceName() const;
    PageOpening fromArchive(const QString& location) const;
    PageOpening fromBase(const QString& location, const QString& base, bool lowered) const;
    PageOpening fromMirrorFolder(const QString& location) const;

    // Recent openings, target to original: brings back the case that a
    // lower-case mirror drops.
    QHash<QString, QString> m_opened;
};
