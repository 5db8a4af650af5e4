#include "NavigatorRig.h"
#include "core/SettingsKeys.h"
#include "core/SingleByteText.h"
#include "netfetch/NetPic.h"
#include "netfetch/NetPicHost.h"
#include "netfetch/NetPicPages.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {
struct RecordingNetPicHost : NetPicHost
{
    QStringList paged;
    int unloads = 0;
    void CommunicatWithNetPic(const QStringList& pages) override { paged = pages; }
    void unloadNetPics() override { ++unloads; }
    void pumpEvents() override {}
};

QStringList linesOf(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {"<missing " + path + ">"};
    const QByteArray bytes = f.readAll();
    if (!bytes.isEmpty() && !bytes.endsWith("\r\n"))
        return {"<no CR LF at the end>"};
    QStringList lines = SingleByteText::decode(bytes).split("\r\n");
    lines.removeLast();
    return lines;
}

void writeLines(const QString& path, const QStringList& lines)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    for (const QString& line : lines)
        f.write(line.toLatin1() + "\r\n");
}

struct NetPicRig : NavigatorRig
{
    RecordingNetPicHost window;
    std::unique_ptr<NetPic> pic;

    NetPicRig()
    {
        start();
        QDir().mkpath(t.ctx.appPath);
        host.calls.clear();
        pic = std::make_unique<NetPic>(t.ctx, nav, window);
        pic->Load();
    }
    QStringList messages() const { return t.prompts.messages(); }
    void autoFill(const QString& url)
    {
        pic->txtAutoFill.setText(url);
        pic->cmdNPAutoDrop.click();
    }
    void numbers(const QString& start, const QString& end, bool uniform = false)
    {
        pic->txtUrl.setText("http://pics.example.com/a");
        pic->txtSNum.setText(start);
        pic->txtENum.setText(end);
        pic->chkUniform.setChecked(uniform);
    }
    // The picture addresses of a page, in order.
    static QStringList pictures(const QString& page)
    {
        QStringList found;
        for (const QString& line : linesOf(page))
            if (line.startsWith("<CENTER><A HREF="))
                found << line.section('"', 1, 1);
        return found;
    }
};
} // namespace

class TestNetPic : public QObject
{
    Q_OBJECT

private slots:
    void autoReadsTheNumbering_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("ext");
        QTest::addColumn<QString>("start");
        QTest::addColumn<bool>("uniform");
        QTest::addColumn<bool>("left");
        QTest::newRow("padded on the right") << "http://x.com/pics/S007.jpg"
                                             << "http://x.com/pics/"
                                             << "S"
                                             << "jpg"
                                             << "001" << true << false;
        QTest::newRow("on the left, jpeg") << "HTTP://x.com/a/12abc.JPEG"
                                           << "HTTP://x.com/a/"
                                           << "abc"
                                           << "JPG"
                                           << "1" << false << true;
        QTest::newRow("digits at both ends, cut to four") << "http://x.com/a/0123456.gif"
                                                          << "http://x.com/a/"
                                                          << ""
                                                          << "gif"
                                                          << "0001" << true << false;
        QTest::newRow("letters inside the number") << "http://x.com/a/1b2.gif"
                                                   << "http://x.com/a/"
                                                   << ""
                                                   << "gif"
                                                   << "1" << false << false;
    }
    void autoReadsTheNumbering()
    {
        QFETCH(QString, url);
        NetPicRig r;
        r.autoFill(url);
        QVERIFY2(r.messages().isEmpty(), qPrintable(r.messages().join('|')));
        QTEST(r.pic->txtUrl.text(), "base");
        QTEST(r.pic->txtPref.text(), "prefix");
        QTEST(r.pic->txtSuf.text(), "ext");
        QTEST(r.pic->txtSNum.text(), "start");
        QTEST(r.pic->chkUniform.isChecked(), "uniform");
        QTEST(r.pic->chkNumberOnLeft.isChecked(), "left");
        QCOMPARE(r.pic->txtAutoFill.text(), QString());
        QCOMPARE(r.pic->txtENum.text(), QString("100"));
    }

    void autoRefusesWhatItCannotRead()
    {
        NetPicRig r;
        const QList<QPair<QString, QString>> cases = {
            {"ftp://x.com/a/S1.jpg", "This is not a valid Url!"},
            {"http://x.com/a/", "This is not a valid Url!"},
            {"http://x.com/a/S001", "Requires full Url, with picture name!"},
            {"http://x.com/a/picture.jpg", "This picture file has no numbering!"},
            {"http://x.com/a/S1.tiff",
             "Unrecognized file name extension!\r\rtiff\r\rIn: http://x.com/a/S1.tiff\r"}};
        for (const auto& [url, text] : cases) {
            r.t.prompts.clear();
            r.autoFill(url);
            QCOMPARE(r.messages(), QStringList{text});
        }
        QCOMPARE(r.pic->txtUrl.text(), QString()); // nothing was taken
        r.t.prompts.clear();
        r.autoFill("   ");
        QCOMPARE(r.t.prompts.shown.value(0).title, QString("No Url!"));
        QVERIFY(r.messages().value(0).startsWith("Paste the Full Url, with a picture\r"));
    }

    void autoWantsAutoInfile()
    {
        NetPicRig r;
        r.pic->chkNPAutoInFile.setChecked(false);
        r.pic->chkNPAutoInFile.click();
        QVERIFY(!r.pic->txtSNum.isEnabled() && r.pic->txtSNum.text().isEmpty());
        r.autoFill("http://x.com/a/S1.jpg");
        QCOMPARE(r.messages(), QStringList{"This function is for Auto Infile only!"});
        QVERIFY(!r.pic->cmdNPAutoDrop.isEnabled());
    }

    void startChecksInOrder()
    {
        NetPicRig r;
        const QList<std::tuple<QString, QString, QString, QString>> cases = {
            {"", "", "", "Must have file name extension!"},
            {"jpg", "", "", "Must have End number!"},
            {"jpg", "", "5", "Must have Start number!"},
            {"jpg", "5", "5", "Start# must be smaller than End#!"},
            {"jpg", "9", "10", ""}};
        for (const auto& [ext, start, end, text] : cases) {
            r.t.prompts.clear();
            r.pic->txtUrl.setText("");
            r.pic->txtSuf.setText(ext);
            r.pic->txtSNum.setText(start);
            r.pic->txtENum.setText(end);
            r.pic->cmdStart.click();
            QCOMPARE(r.messages().value(0),
                     text.isEmpty() ? "Must provide Url of pictures!" : text);
        }
        r.t.probe.up = false;
        r.t.prompts.clear();
        r.pic->cmdStart.click();
        QCOMPARE(r.messages(), QStringList{"No internet connection!"});
    }

    void numberedListStopsAt298Names()
    {
        NetPicRig r;
        r.numbers("1", "400");
        r.pic->txtPref.setText("S");
        r.pic->cmdStart.click();
        QVERIFY(r.messages().isEmpty());
        const QStringList pages = r.window.paged;
        QCOMPARE(pages.size(), 6);
        QStringList all;
        for (const QString& page : pages)
            all += NetPicRig::pictures(page);
        QCOMPARE(all.size(), 298);
        QCOMPARE(all.first(), QString("http://pics.example.com/a/S1.jpg"));
        QCOMPARE(all.last(), QString("http://pics.example.com/a/S298.jpg"));
        // The generated list is gone, the first page opened, the window unloaded.
        QVERIFY(!QFile::exists(r.pic->tempListPath()));
        QCOMPARE(r.host.navigated(), QStringList{pages.first()});
        QCOMPARE(r.window.unloads, 1);
        QCOMPARE(pages.first(), r.t.ctx.appPath + "N_P_Temp.htm");
        QCOMPARE(pages[1], r.t.ctx.appPath + "N_P_Temp_1.htm");
    }

    void uniformWidthComesFromTheTextsTyped()
    {
        for (const auto& [start, end, first, last] :
             QList<std::tuple<QString, QString, QString, QString>>{{"001", "12", "001", "012"},
                                                                   {"1", "100", "001", "050"}}) {
            NetPicRig r;
            r.numbers(start, end, true);
            r.pic->txtPref.setText("p");
            r.pic->chkNumberOnLeft.setChecked(true);
            r.pic->cmdStart.click();
            const QStringList pics = NetPicRig::pictures(r.window.paged.first());
            QCOMPARE(pics.first(), "http://pics.example.com/a/" + first + "p.jpg");
            QCOMPARE(pics.value(49, pics.last()).section('/', -1).left(3), last.left(3));
        }
    }

    void aPageIsWrittenLineByLine()
    {
        NetPicRig r;
        const QString list = r.t.folders.root() + "/pics.txt";
        writeLines(list, {"readme.txt", " a.GIF ", "http://other.org/b.jpg"});
        const QStringList pages = NetPicPages::write(list, "http://s.org/p/", true);
        QCOMPARE(pages, QStringList{r.t.folders.root() + "/pics.htm"});
        const QStringList expected =
            QStringList{"<HTML>",
                        "<HEAD>",
                        "<TITLE>NetPic</TITLE>",
                        "<META Name = \"Description\" Content = \"Vorlan's NetPic Picture Html\">",
                        "<META Name = \"Keywords\" Content = "
                        "\"Pictures,Vorlan,http://www.example.org/vorlan/\">",
                        "<META Name = \"Rating\" Content = \"General\">",
                        "<style TYPE=\"text/css\">",
                        "<!--",
                        "A{text-decoration: none;} A:link{color: #5900DF;} A:visited{color: "
                        "#FFA000;} A:hover{ color:#FF0000; text-decoration: underline }",
                        "-->",
                        "</style>",
                        "</HEAD>",
                        "<BODY>",
                        "<CENTER><P><STRONG><BIG>Fifty pictures loaded per page.<BR>",
                        "If more than fifty pictures were given<BR>",
                        "click the arrow to view the next page.</STRONG></BIG></P></CENTER>",
                        "<CENTER><A HREF=\"http://s.org/p/a.GIF\"><IMG "
                        "SRC=\"http://s.org/p/a.GIF\"><BR>a.GIF</A></CENTER>",
                        "<CENTER><A HREF=\"http://other.org/b.jpg\"><IMG "
                        "SRC=\"http://other.org/b.jpg\"><BR>http://other.org/b.jpg</A></CENTER>",
                        "</BODY>",
                        "</HTML>"};
        QCOMPARE(linesOf(pages.first()), expected);
        // The first page's name is never taken twice.
        QCOMPARE(NetPicPages::write(list, "http://s.org/p/", true).first(),
                 r.t.folders.root() + "/pics1.htm");
    }

    void pagesOfFiftyAndTheirNames()
    {
        NetPicRig r;
        const QString list = r.t.folders.root() + "/l.txt";
        QStringList names;
        for (int i = 1; i <= 51; ++i)
            names << QString("p%1.jpg").arg(i);
        writeLines(list, names.mid(0, 50));
        QStringList pages = NetPicPages::write(list, "http://s/", false);
        QCOMPARE(pages.size(), 1);
        QCOMPARE(linesOf(pages[0]).mid(linesOf(pages[0]).size() - 2), NetPicPages::footer());
        QCOMPARE(linesOf(pages[0]).count("</HTML>"), 1);
        writeLines(list, names);
        pages = NetPicPages::write(list, "http://s/", false);
        QCOMPARE(pages,
                 QStringList({r.t.folders.root() + "/l1.htm", r.t.folders.root() + "/l1_1.htm"}));
        QCOMPARE(linesOf(pages[1]),
                 NetPicPages::header() +
                     QStringList{NetPicPages::pictureLine("http://s/p51.jpg", "p51.jpg")} +
                     NetPicPages::footer());
        writeLines(list, {"nothing.txt"});
        pages = NetPicPages::write(list, "http://s/", false);
        QCOMPARE(linesOf(pages[0]), NetPicPages::footer());
    }

    void aListOfWholeAddressesNeedsNoBase()
    {
        NetPicRig r;
        const QString list = r.t.folders.root() + "/whole.txt";
        writeLines(list, {"http://a.org/x/1.jpg", "2.jpg"});
        r.pic->chkNPAutoInFile.setChecked(false);
        r.pic->chkNPAutoInFile.click();
        r.pic->txtUrl.setText("");
        r.pic->txtInFilePath.setText(list);
        r.pic->cmdStart.click();
        QVERIFY(r.messages().isEmpty());
        QCOMPARE(NetPicRig::pictures(r.window.paged.first()),
                 QStringList({"http://a.org/x/1.jpg", "/2.jpg"}));
        QVERIFY(QFile::exists(list)); // a given list is kept

        NetPicRig s;
        writeLines(list, {"1.jpg", "http://a.org/x/2.jpg"});
        s.pic->chkNPAutoInFile.setChecked(false);
        s.pic->chkNPAutoInFile.click();
        s.pic->txtUrl.setText("");
        s.pic->txtInFilePath.setText(list);
        s.pic->cmdStart.click();
        QCOMPARE(s.messages(), QStringList{"Must provide Url of pictures!"});
        QVERIFY(s.window.paged.isEmpty());
    }

    void aMissingListAsksForAnother()
    {
        NetPicRig r;
        r.pic->chkNPAutoInFile.setChecked(false);
        r.pic->chkNPAutoInFile.click();
        r.pic->txtInFilePath.setText(r.t.folders.root() + "/none.txt");
        r.pic->cmdStart.click();
        QCOMPARE(r.messages(), QStringList{"File doesn't exist!"});
        QCOMPARE(r.t.prompts.shown.last().kind, QString("openFile"));
        QCOMPARE(r.t.prompts.shown.last().title, QString("File with picture file list!"));
        QCOMPARE(r.pic->txtInFilePath.text(), QString());
    }

    void theServerLogGrowsOncePerServer()
    {
        NetPicRig r;
        const QStringList bases = {"http://pics.example.com/a", "HTTP://PICS.example.com/A/",
                                   "http://other.example.com/"};
        for (const QString& url : bases) {
            r.numbers("1", "3");
            r.pic->txtUrl.setText(url);
            r.pic->cmdStart.click();
        }
        QCOMPARE(r.window.paged.size(), 1);
        QCOMPARE(linesOf(r.pic->logPath()),
                 QStringList({"http://pics.example.com/a/", "http://other.example.com/"}));
        r.pic->chkNPLog.setChecked(false);
        r.pic->txtUrl.setText("http://third.example.com/");
        r.pic->cmdStart.click();
        QCOMPARE(linesOf(r.pic->logPath()).size(), 2);
    }

    void settingsComeBack()
    {
        NetPicRig r;
        r.numbers("01", "20", true);
        r.pic->txtSuf.setText("gif");
        r.pic->txtPref.setText(" pre ");
        r.pic->Unload();
        NetPic again(r.t.ctx, r.nav, r.window);
        again.Load();
        QCOMPARE(again.txtUrl.text(), QString("http://pics.example.com/a"));
        QCOMPARE(again.txtSNum.text(), QString("01"));
        QCOMPARE(again.txtPref.text(), QString("pre"));
        QCOMPARE(again.txtSuf.text(), QString("gif"));
        QVERIFY(again.chkUniform.isChecked());
        QCOMPARE(again.txtInFilePath.text(), r.t.ctx.appPath + "N_P_Temp.tmp");
    }

    void smallBehaviours()
    {
        NetPicRig r;
        QVERIFY(NetPic::numberKeyAccepted('7') && NetPic::numberKeyAccepted(8));
        QVERIFY(!NetPic::numberKeyAccepted('a') && !NetPic::numberKeyAccepted('-'));
        QVERIFY(NetPic::prefixKeyAccepted('x') && !NetPic::prefixKeyAccepted(8));
        r.pic->txtSuf.setText("Jpg");
        r.pic->Label2.click();
        QCOMPARE(r.pic->txtSuf.text(), QString("JPG"));
        r.pic->Label2.click();
        QCOMPARE(r.pic->txtSuf.text(), QString("jpg"));
        r.pic->cmdHelp.click();
        QCOMPARE(r.t.prompts.shown.last().title, QString("Quick help!"));
        QCOMPARE(r.messages().last().count('\r'), 17);
    }
};

QTEST_GUILESS_MAIN(TestNetPic)
#include "TestNetPic.moc"
