#include "NavigatorRig.h"
#include "navigator/PageSources.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {
const QString Usa = QStringLiteral("http://www.geocities.com/SoHo/Lofts/1234/");
const QString Japan = QStringLiteral("http://www.geocities.co.jp/Hollywood-Kouen/1234/");

PageSources with(PageSource source)
{
    PageSources s;
    s.source = source;
    return s;
}
} // namespace

class TestPageSources : public QObject
{
    Q_OBJECT

private slots:
    void everySourceRewritesBothSites()
    {
        PageSources original;
        for (const QString& url : {Usa, Japan})
            QCOMPARE(original.rewrite(url).target, url);

        PageSources archive = with(PageSource::InternetArchive);
        QCOMPARE(archive.rewrite(Usa).target, "https://web.archive.org/web/2009if_/" + Usa);
        QCOMPARE(archive.rewrite(Japan).target, "https://web.archive.org/web/2019if_/" + Japan);
        QCOMPARE(archive.rewrite(Usa).label, QString("Archive 2009"));
        QVERIFY(archive.setYear(false, 1999));
        QCOMPARE(archive.rewrite(Usa).target, "https://web.archive.org/web/1999if_/" + Usa);

        PageSources gallery = with(PageSource::Gallery);
        QCOMPARE(gallery.rewrite(Usa).target,
                 QString("http://geocities.restorativland.org/SoHo/Lofts/1234/"));
        PageSources oo = with(PageSource::OoCities);
        QCOMPARE(oo.rewrite(Usa).target, QString("http://www.oocities.org/soho/lofts/1234/"));
        PageSources server = with(PageSource::LocalMirror);
        server.localMirror = "http://127.0.0.1:8080/rescue/";
        QCOMPARE(server.rewrite(Usa).target,
                 QString("http://127.0.0.1:8080/rescue/www.geocities.com/SoHo/Lofts/1234/"));

        // Japan is on none of the mirrors: the archive serves it and says so.
        for (PageSources* s : {&gallery, &oo, &server}) {
            const PageOpening japan = s->rewrite(Japan);
            QCOMPARE(japan.target, "https://web.archive.org/web/2019if_/" + Japan);
            QVERIFY2(japan.label.startsWith("Archive 2019, not on "), qPrintable(japan.label));
            QCOMPARE(japan.original, Japan);
        }
    }

    void onlyServiceAddressesAreRewritten()
    {
        PageSources archive = with(PageSource::InternetArchive);
        for (const QString& other :
             {QString("http://www.altavista.com"), QString("http://www.http://geocities.com/x/"),
              QDir::currentPath() + "/page.htm",
              QString("http://www.geocities.com.evil.org/SoHo/")}) {
            const PageOpening page = archive.rewrite(other);
            QCOMPARE(page.target, other);
            QVERIFY(page.original.isEmpty());
        }
        QVERIFY(PageSources::isServiceAddress("HTTPS://GeoCities.com/Paris/1000/"));
        QCOMPARE(archive.rewrite("http://www.geocities.com").target,
                 QString("https://web.archive.org/web/2009if_/http://www.geocities.com"));
        QVERIFY(!archive.setYear(false, 2010));
        QVERIFY(!archive.setYear(true, 1995));
        QVERIFY(archive.setYear(true, 2019));
    }

    void theWayBackGivesTheOriginalAndShortName()
    {
        PageSources archive = with(PageSource::InternetArchive);
        // The archive redirects to the capture's full time, with one slash.
        const QString redirected =
            "https://web.archive.org/web/20091027061512if_/http:/www.geocities.com/SoHo/1234/";
        QCOMPARE(archive.shown(redirected),
                 QString("http://www.geocities.com/SoHo/1234/  [Archive 2009]"));
        QCOMPARE(archive.shown("https://web.archive.org/web/2009/http://example.org/"),
                 QString("https://web.archive.org/web/2009/http://example.org/"));

        PageSources oo = with(PageSource::OoCities);
        const PageOpening opened = oo.rewrite(Usa);
        QCOMPARE(oo.originalOf(opened.target).original, Usa); // case kept from the opening
        QCOMPARE(oo.shown("http://www.oocities.org/paris/1000/"),
                 QString("http://www.geocities.com/paris/1000/  [OoCities]"));
        const PageOpening japan = oo.rewrite(Japan);
        QCOMPARE(oo.shown(japan.target), Japan + "  [Archive 2019, not on OoCities]");

        // With the original addresses nothing is shown differently.
        PageSources original;
        QCOMPARE(original.shown(redirected), redirected);

        QCOMPARE(PageSources::withoutLabel(Usa + "  [Gallery]"), Usa);
        QCOMPARE(PageSources::withoutLabel("yahoo.com  [x]"), QString("yahoo.com  [x]"));
    }

    void aLocalMirrorFolderMatchesNamesWithoutCase()
    {
        QTemporaryDir dir;
        const QString root = dir.path();
        for (const char* page :
             {"soho/lofts/1234/index.htm", "Paris/1000/Index.HTML", "Paris/1000/photos.html"})
            QVERIFY(
                putFile(root + "/www.geocities.com/" + page, "<html><title>kept</title></html>"));
        PageSources s = with(PageSource::LocalMirror);
        s.localMirror = root;

        const PageOpening lofts = s.rewrite(Usa);
        QCOMPARE(lofts.target, root + "/www.geocities.com/soho/lofts/1234/index.htm");
        QCOMPARE(lofts.label, QString("Local mirror"));
        QCOMPARE(s.rewrite("http://www.geocities.com/PARIS/1000/").target,
                 root + "/www.geocities.com/Paris/1000/Index.HTML");
        QCOMPARE(s.rewrite("http://www.geocities.com/Paris/1000/photos.html").target,
                 root + "/www.geocities.com/Paris/1000/photos.html");
        // The browser shows the file as an address; it leads back.
        QCOMPARE(s.originalOf(QUrl::fromLocalFile(lofts.target).toString()).original, Usa);
        QCOMPARE(s.originalOf(QUrl::fromLocalFile(root + "/www.geocities.com/Paris/1000/"
                                                         "photos.html")
                                  .toString())
                     .original,
                 QString("http://www.geocities.com/Paris/1000/photos.html"));

        // A page the copy lacks comes from the archive.
        const PageOpening missing = s.rewrite("http://www.geocities.com/Paris/2000/");
        QCOMPARE(
            missing.target,
            QString("https://web.archive.org/web/2009if_/http://www.geocities.com/Paris/2000/"));
        QCOMPARE(missing.label, QString("Archive 2009, not on Local mirror"));
    }

    void theChoiceIsKeptInTheSettings()
    {
        TestContext t;
        t.state.gstrAppName = "Vorlan 1.0";
        PageSources s;
        s.load(t.ctx);
        QCOMPARE(s.source, PageSource::Original);
        QCOMPARE(s.year(false), 2009);
        QCOMPARE(s.year(true), 2019);
        QVERIFY(s.walkCaptured);

        s.source = PageSource::OoCities;
        s.setYear(true, 2001);
        s.walkCaptured = false;
        s.save(t.ctx);
        PageSources back;
        back.load(t.ctx);
        QCOMPARE(back.source, PageSource::OoCities);
        QCOMPARE(back.year(true), 2001);
        QVERIFY(!back.walkCaptured);

        // Values that cannot be meant fall back to the defaults.
        t.ctx.SaveSetting("AdvOpt", "PageSource", "9");
        t.ctx.SaveSetting("AdvOpt", "ArchiveYearUSA", "1990");
        back.load(t.ctx);
        QCOMPARE(back.source, PageSource::Original);
        QCOMPARE(back.year(false), 2009);
    }

    void theMenuChoosesAsksAndRefusesBadInput()
    {
        NavigatorRig r;
        r.start();
        ArchiveMenu& menu = r.nav.archiveMenu();
        QVERIFY(menu.mnuPagesOriginal.isChecked());
        menu.mnuPagesGallery.click();
        QVERIFY(menu.mnuPagesGallery.isChecked() && !menu.mnuPagesOriginal.isChecked());
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "PageSource"), QString("2"));

        r.t.prompts.answerText("2011");
        menu.mnuArchiveYear.click();
        QCOMPARE(r.t.prompts.messages(), QStringList{"Please enter a year from 1996 to 2009."});
        QVERIFY(menu.mnuPagesGallery.isChecked());
        r.t.prompts.answerText(" 2003 ");
        menu.mnuArchiveYear.click();
        QVERIFY(menu.mnuPagesArchive.isChecked());
        QCOMPARE(r.nav.pageSources().year(false), 2003);
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "ArchiveYearUSA"), QString("2003"));

        r.t.prompts.answerText(r.t.folders.root() + "/nowhere");
        menu.mnuPagesMirror.click();
        QVERIFY(menu.mnuPagesArchive.isChecked());
        QCOMPARE(r.t.prompts.messages().size(), 2);
        r.t.prompts.answerText(r.t.folders.root());
        menu.mnuPagesMirror.click();
        QVERIFY(menu.mnuPagesMirror.isChecked());
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "LocalMirror"), r.t.folders.root());

        // Read back at the next start.
        NavigatorRig again;
        again.t.state.gstrAppName = "Vorlan 1.0";
        again.t.ctx.SaveSetting("AdvOpt", "PageSource", "3");
        again.start();
        QVERIFY(again.nav.archiveMenu().mnuPagesOoCities.isChecked());
    }

    void everyOpeningGoesThroughTheRewrite()
    {
        NavigatorRig r;
        r.t.probe.up = true;
        r.start();
        r.pickNeighborhood("SoHo");
        r.pickSuburb("Lofts");
        r.pickDigits("12", "34");
        r.c.cmdOpenSite.click();
        r.nav.NavigateSomeWhereElse("altavista.com");
        QStringList before = r.host.navigated();
        QCOMPARE(before, (QStringList{Usa, "http://www.altavista.com"}));

        r.nav.capturedWalk().fetcher().cdxBase = "http://127.0.0.1:9"; // nothing leaves
        r.nav.archiveMenu().mnuPagesArchive.click();
        r.host.calls.clear();
        r.c.cmdOpenSite.click();
        r.c.cmdNext.click();
        r.c.picNeighborhood.click();
        r.nav.NavigateSomeWhereElse("altavista.com");
        QCOMPARE(r.host.navigated(),
                 (QStringList{"https://web.archive.org/web/2009if_/" + Usa,
                              "https://web.archive.org/web/2009if_/"
                              "http://www.geocities.com/SoHo/Lofts/1235/",
                              "https://web.archive.org/web/2009if_/http://www.geocities.com/SoHo/",
                              "http://www.altavista.com"}));

        // Back to the original addresses: exactly as before.
        r.nav.archiveMenu().mnuPagesOriginal.click();
        r.host.calls.clear();
        r.c.cmdPrevious.click();
        r.nav.NavigateSomeWhereElse("altavista.com");
        QCOMPARE(r.host.navigated(), before);
    }
};

QTEST_GUILESS_MAIN(TestPageSources)
#include "TestPageSources.moc"
