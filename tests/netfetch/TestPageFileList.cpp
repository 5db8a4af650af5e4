#include "ScriptedBrowser.h"
#include "TestContext.h"
#include "netfetch/PageFileList.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {
// A browser whose page text is set apart from its title.
class TextBrowser : public ScriptedBrowser
{
public:
    QString text;
    void PageText(std::function<void(const QString&)> done) override { done(text); }
};

struct ListRig
{
    TestContext t;
    TextBrowser browser;
    QString source;
    QStringList clipboard;
    PageFileList list{t.ctx, PageFileList::Links{[this](int which) -> BrowserControl* {
                                                     return which == 1 ? &browser : nullptr;
                                                 },
                                                 [this](const QString&) { return source; },
                                                 [this](const QString& text) { clipboard << text; },
                                                 {}}};
    ListRig()
    {
        QDir().mkpath(t.ctx.appPath);
        browser.url = "http://site.test/pics/page.html";
        browser.title = "My pictures";
    }
    QString output() const { return t.ctx.appPath + "FileList.txt"; }
    QByteArray written() const
    {
        QFile f(output());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<none>");
    }
};
} // namespace

class TestPageFileList : public QObject
{
    Q_OBJECT

private slots:
    void theJpgLinksOfASource()
    {
        QStringList links;
        QVERIFY(PageFileList::jpgLinks(
            "<A HREF=\"one.JPG\">x</a> <a href=\"http://o.test/two.jpg\"><img src=\"t.jpg\"></a>"
            "<a href=\"three.gif\">g</a><a href = \"%7Eme/four.jpg\">y</a>"
            "<a href=\"page.html\"><IMG SRC=\"five.jpg\"></a>",
            "http://site.test/pics/", links));
        QCOMPARE(links, QStringList({"http://site.test/pics/one.JPG", "http://o.test/two.jpg",
                                     "~me/four.jpg"}));
        QString many;
        for (int i = 0; i < 1002; ++i)
            many += QString("<a href=\"p%1.jpg\">p</a>\n").arg(i);
        links.clear();
        QVERIFY(!PageFileList::jpgLinks(many, "b/", links));
    }

    void theNamesOfADirectoryIndex()
    {
        const QString text =
            "Index of /pics\n\n Parent Directory\n one.jpg      12-Jan-2000 10:00  20k\n"
            "two.gif\nthree.jpeg\nx.y\nsub dir.txt\nab.c\n";
        QCOMPARE(PageFileList::indexNames(text, "http://s/pics/"),
                 QStringList({"http://s/pics/one.jpg", "http://s/pics/two.gif"}));
    }

    void aPagesListIsSaved()
    {
        ListRig r;
        r.source = "<a href=\"a.jpg\">a</a><a href=\"b.jpg\">b</a>";
        r.list.GetFileListMenu(2);
        QCOMPARE(r.written(),
                 QByteArray("http://site.test/pics/a.jpg\r\nhttp://site.test/pics/b.jpg\r\n"));
        QCOMPARE(r.t.prompts.messages(), QStringList{"File list saved in: \r\r" + r.output()});
        QVERIFY(!r.t.state.GettingFileList);
        // The next list takes a new name; a page without pictures leaves none.
        r.source = "<a href=\"a.gif\">";
        r.list.GetPageFileList(1);
        QCOMPARE(r.t.prompts.messages().last(), QString("No links to jpg files found!"));
        QVERIFY(!QFile::exists(r.t.ctx.appPath + "FileList1.txt"));
    }

    void guardsAndFailures()
    {
        ListRig r;
        r.t.state.GettingFileList = true;
        r.list.GetPageFileList(1);
        QCOMPARE(r.t.prompts.messages(), QStringList{"Still getting the last list!"});
        QVERIFY(r.t.state.GettingFileList); // left to the run that holds it
        r.t.state.GettingFileList = false;
        r.t.prompts.clear();
        r.t.probe.up = false;
        r.list.GetPageFileList(1);
        QCOMPARE(r.t.prompts.messages(), QStringList{"No internet connection!"});
        QVERIFY(!r.t.state.GettingFileList);
        r.list.GetFileListMenu(3); // Browser Two is not open
        r.list.GetFileListMenu(7);
        QCOMPARE(r.t.prompts.messages().size(), 1);
    }

    // A title with "index" in it makes the page a directory listing.
    void anIndexPageIsReadFromItsText()
    {
        ListRig r;
        r.t.probe.up = false; // not needed for an index
        r.browser.title = "Index of /pics";
        r.browser.text = "Name  Last modified\nphoto.jpg   01-Jan-2001 00:00  3k\nreadme\n";
        r.list.GetPageFileList(1);
        QCOMPARE(r.written(), QByteArray("http://site.test/pics/photo.jpg\r\n"));
        QCOMPARE(r.clipboard, QStringList{r.browser.text});
        r.browser.text = "nothing here";
        r.list.GetPageFileList(1);
        QCOMPARE(r.t.prompts.messages().last(), QString("No file names found!"));
        QVERIFY(!QFile::exists(r.t.ctx.appPath + "FileList1.txt"));
    }
};

QTEST_GUILESS_MAIN(TestPageFileList)
#include "TestPageFileList.moc"
