#include "FileFaults.h"
#include "TestContext.h"
#include "core/SettingsKeys.h"
#include "publishing/LinkExport.h"

#include <QDir>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

namespace {

const QStringList PageHeader{
    "<HTML>",
    "<HEAD>",
    "<TITLE>Vorlan Html Link Export</TITLE>",
    "<META Name = \"Description\" Content = \"Vorlan Link Export\">",
    "<META Name = \"Keywords\" Content = \"Links,Vorlan,GeoCities\">",
    "<META Name = \"Rating\" Content = \"General\">",
    "<style TYPE=\"text/css\">",
    "<!--",
    "A{text-decoration: none;} A:link{color: #5900DF;} A:visited{color: #FFA000;} A:hover{ "
    "color:#FF0000; text-decoration: underline }",
    "-->",
    "</style>",
    "</HEAD>",
    "<BODY>",
    "<table border=\"1\" bordercolor=\"#000000\" cellspacing=\"0\" cellpadding=\"2\">"};
const QStringList PageFooter{"</table>", "</BODY>", "</HTML>"};
const QStringList JapanHeading{"<TR>", "<TD><B>GeoCities Japan Links</B></TD>",
                               "<TD>* * * * *</TD>", "</TR>"};

QString pad(const QString& text)
{
    return text.leftJustified(60, ' ');
}

// A test's database and the dialog's rules on it, with what the dialog
// asked of the other windows.
struct Rig
{
    TestContext t;
    QStringList opened;
    int unloads = 0;
    std::unique_ptr<LinkExport> rules;

    QString out; // the output folder, the database's folder apart

    Rig()
    {
        t.createAndOpenDatabase();
        out = t.folders.root() + "/out/";
        QDir().mkpath(out);
        t.ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, out);
    }

    // Rows as given; a null text is stored as NULL.
    void insert(const QString& table, const QStringList& fields, const QStringList& values)
    {
        QStringList marks;
        for (int i = 0; i < fields.size(); ++i)
            marks << "?";
        QSqlQuery q(t.db.handle());
        q.prepare(QString("INSERT INTO %1 (%2) VALUES (%3)")
                      .arg(table, fields.join(','), marks.join(',')));
        for (const QString& v : values)
            q.addBindValue(v.isNull() ? QVariant() : QVariant(v));
        QVERIFY2(q.exec(), qPrintable(q.lastError().text()));
    }
    void saved(const QString& table, const QStringList& values)
    {
        insert(table, {"neighborhood", "suburb", "house", "comment", "date"}, values);
    }
    void wbt(const QString& link, const QString& comment)
    {
        insert("wbtlinks", {"link", "comment"}, {link, comment});
    }

    // Opens the dialog afresh, picks an option and presses Export.
    // loadPage: 1 ticks the page's loading, 0 clears it, -1 leaves it.
    void exportAs(int option, int loadPage = 0)
    {
        rules = std::make_unique<LinkExport>(
            t.ctx,
            LinkExport::Links{[this](const QString& p) { opened << p; }, [this] { ++unloads; }});
        if (option >= 0)
            rules->optExport[option].click();
        if (loadPage >= 0 && bool(loadPage) != rules->chkLoadInIE.isChecked()) {
            rules->chkLoadInIE.setChecked(loadPage == 1);
            rules->chkLoadInIE.click();
        }
        rules->cmdExport.click();
    }

    QStringList lines(const QString& name) const
    {
        QByteArray bytes = fileBytes(out + name);
        if (!bytes.endsWith("\r\n"))
            return {"<no CR LF at the end>"};
        bytes.chop(2);
        QStringList out;
        for (const QByteArray& line : bytes.split('\n')) {
            if (!line.endsWith('\r') && line != bytes.mid(bytes.lastIndexOf('\n') + 1))
                return {"<a line without CR>"};
            out << QString::fromLatin1(line.endsWith('\r') ? line.chopped(1) : line);
        }
        return out;
    }
    QStringList files() const { return QDir(out).entryList(QDir::Files); }
};

void compareLines(const QStringList& actual, const QStringList& expected)
{
    for (int i = 0; i < qMin(actual.size(), expected.size()); ++i)
        QVERIFY2(
            actual[i] == expected[i],
            qPrintable(
                QString("line %1:\n  got  %2\n  want %3").arg(i + 1).arg(actual[i], expected[i])));
    QCOMPARE(actual.size(), expected.size());
}

} // namespace

class TestLinkExport : public QObject
{
    Q_OBJECT

private slots:
    // Both passes as text: commas out of the comment, padding to 60, a
    // NULL suburb keeping the one before, "-" in Japan, a long comment whole.
    void browserOneAsText()
    {
        Rig r;
        const QString longComment(64, 'x');
        r.saved("UsaSaved", {"SoHo", "Lofts", "1234", "Art, music, more", "01/02/1999"});
        r.saved("UsaSaved", {"Area51", QString(), "77", longComment, ""});
        r.saved("UsaSaved", {"Heartland", "", "8", "farm", "3/3/2000"});
        r.saved("JapanSaved", {"Tokyo", "Ginza", "1500", "shop", "4/4/2001"});
        r.exportAs(0);
        QCOMPARE(r.files(), QStringList{"WBO_Links.Csv"});
        compareLines(
            r.lines("WBO_Links.Csv"),
            {pad("Art  music  more") + "," + pad("http://www.geocities.com/SoHo/Lofts/1234/") +
                 ",01/02/1999",
             longComment + "," + pad("http://www.geocities.com/Area51/Lofts/77/") + ",",
             pad("farm") + "," + pad("http://www.geocities.com/Heartland/8/") + ",3/3/2000",
             pad("shop") + "," + pad("http://www.geocities.co.jp/Tokyo/Ginza-1500/") +
                 ",4/4/2001"});
        QCOMPARE(r.unloads, 1);
        QVERIFY(r.opened.isEmpty());
        QVERIFY(r.t.prompts.messages().isEmpty());

        r.exportAs(0); // a second export writes beside the first
        QCOMPARE(r.files(), (QStringList{"WBO_Links.Csv", "WBO_Links1.Csv"}));
        QCOMPARE(fileBytes(r.out + "WBO_Links1.Csv"), fileBytes(r.out + "WBO_Links.Csv"));
    }

    // The page: header, rows, the Japan heading, "No date available", the
    // footer; it opens in the browser when asked, and the choice is kept.
    void browserOneAsPage()
    {
        Rig r;
        r.saved("UsaSaved", {"SoHo", "Lofts", "1234", "Art, music", ""});
        r.saved("JapanSaved", {"Tokyo", "", "1500", "shop", "4/4/2001"});
        r.exportAs(1, 1);
        const QString path = r.out + "WBO_Links.Htm";
        QCOMPARE(r.opened, QStringList{path});
        QCOMPARE(r.t.ctx.GetSetting(Sect::Startup, Key::LoadExportInIE), QString("1"));
        compareLines(r.lines("WBO_Links.Htm"),
                     PageHeader +
                         QStringList{"<TR>",
                                     "<TD><A HREF=\"http://www.geocities.com/SoHo/Lofts/1234/\">"
                                     "Art, music</A></TD>",
                                     "<TD>No date available</TD>", "</TR>"} +
                         JapanHeading +
                         QStringList{"<TR>",
                                     "<TD><A HREF=\"http://www.geocities.co.jp/Tokyo-1500/\">"
                                     "shop</A></TD>",
                                     "<TD>4/4/2001</TD>", "</TR>"} +
                         PageFooter);

        // The check box shows only for the page formats and is read at Load.
        r.exportAs(-1, -1);
        QVERIFY(r.rules->chkLoadInIE.isChecked());
        QVERIFY(!r.rules->chkLoadInIE.isVisible());
        r.rules->optExport[3].click();
        QVERIFY(r.rules->chkLoadInIE.isVisible());
        r.rules->optExport[2].click();
        QVERIFY(!r.rules->chkLoadInIE.isVisible());
        QVERIFY(!r.rules->optExport[3].isChecked());
    }

    // A filled USA table and an empty Japan one: the USA count carries over
    // and the Japan section repeats the last USA row under the Japan address.
    void japanPassAfterFilledUsa()
    {
        Rig r;
        r.saved("UsaSaved", {"SoHo", "Lofts", "1", "first", "d1"});
        r.saved("UsaSaved", {"Area51", "Vault", "2", "second", "d2"});
        r.exportAs(1);
        QVERIFY(r.opened.isEmpty());
        const QStringList japanRow{
            "<TR>", "<TD><A HREF=\"http://www.geocities.co.jp/Area51/Vault-2/\">second</A></TD>",
            "<TD>d2</TD>", "</TR>"};
        compareLines(r.lines("WBO_Links.Htm"),
                     PageHeader +
                         QStringList{"<TR>",
                                     "<TD><A HREF=\"http://www.geocities.com/SoHo/Lofts/1/\">"
                                     "first</A></TD>",
                                     "<TD>d1</TD>", "</TR>"} +
                         QStringList{"<TR>",
                                     "<TD><A HREF=\"http://www.geocities.com/Area51/Vault/2/\">"
                                     "second</A></TD>",
                                     "<TD>d2</TD>", "</TR>"} +
                         JapanHeading + japanRow + japanRow + PageFooter);
    }

    // Nothing to export leaves no file, and the dialog closes all the same;
    // with no format chosen it stays.
    void nothingToExport()
    {
        Rig r;
        r.exportAs(-1);
        QCOMPARE(r.t.prompts.messages(), QStringList{"You must select an Export format!"});
        QCOMPARE(r.unloads, 0);

        r.saved("JapanSaved", {"Tokyo", "", "1500", "shop", ""});
        for (int option = 0; option < 4; ++option) {
            r.t.prompts.clear();
            r.exportAs(option, 1);
            QCOMPARE(r.t.prompts.messages(), QStringList{"Nothing to Export!"});
            QVERIFY(r.rules->strPath().isEmpty());
        }
        QCOMPARE(r.unloads, 4);
        QVERIFY(r.opened.isEmpty());
        QVERIFY(r.files().isEmpty());
    }

    // Browser Two's links: comment and link only, no padding of the link,
    // no date cell.
    void browserTwo()
    {
        Rig r;
        r.wbt("http://example.org/a", "An, example");
        r.wbt("http://example.org/b", QString(64, 'y'));
        r.exportAs(2);
        compareLines(r.lines("WBT_Links.Csv"), {pad("An  example") + ",http://example.org/a",
                                                QString(64, 'y') + ",http://example.org/b"});
        r.exportAs(3);
        compareLines(r.lines("WBT_Links.Htm"),
                     PageHeader +
                         QStringList{"<TR>",
                                     "<TD><A HREF=\"http://example.org/a\">An, example</A></TD>",
                                     "</TR>", "<TR>",
                                     "<TD><A HREF=\"http://example.org/b\">" + QString(64, 'y') +
                                         "</A></TD>",
                                     "</TR>"} +
                         PageFooter);
    }

    // Saved texts with markup, quotes, commas, line breaks and characters
    // outside Windows-1252 keep one record a line and the page's markup whole.
    void hostileTexts()
    {
        Rig r;
        r.wbt("http://example.org/?q=a,b&x=\"<i>\"",
              "<script>alert(1)</script>\r\nline\"2\" \u20ac \u65e5");
        r.exportAs(2);
        const QByteArray csv = fileBytes(r.out + "WBT_Links.Csv");
        QCOMPARE(csv.count("\r\n"), 1);
        QCOMPARE(csv.count('\n'), 1);
        QCOMPARE(csv.count(','), 1);
        QVERIFY(csv.contains(" \x80 ?")); // the euro sign in one byte
        QVERIFY(csv.contains("http://example.org/?q=a%2Cb&x=\"<i>\""));

        r.exportAs(3);
        const QStringList page = r.lines("WBT_Links.Htm");
        QCOMPARE(page.size(), PageHeader.size() + 3 + PageFooter.size());
        QCOMPARE(page[PageHeader.size() + 1],
                 QString("<TD><A HREF=\"http://example.org/?q=a,b&amp;x=&quot;&lt;i&gt;&quot;\">"
                         "&lt;script&gt;alert(1)&lt;/script&gt; line&quot;2&quot; ") +
                     QChar(0x80) + " &#26085;</A></TD>");
    }

    // A folder that is missing or refuses files, or a write that fails
    // half-way: a message naming the file and no file left.
    void unwritableFolder()
    {
        Rig r;
        r.saved("UsaSaved", {"SoHo", "", "1", "c", "d"});
        r.t.ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, r.t.folders.root() + "/x/");
        r.t.ctx.appPath = r.t.folders.root() + "/gone/";
        r.exportAs(0);
        QCOMPARE(r.t.prompts.messages().size(), 1);
        QVERIFY(r.t.prompts.messages()[0].startsWith("The links could not be exported to " +
                                                     r.t.ctx.appPath + "WBO_Links.Csv."));
        QVERIFY(!QFileInfo::exists(r.t.ctx.appPath));
        QCOMPARE(r.unloads, 1);

        const QString locked = r.t.folders.root() + "/locked/";
        QDir().mkpath(locked);
        r.t.ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, locked);
        {
            ReadOnlyFolder readOnly(locked);
            if (readOnly.refusesFiles()) {
                r.t.prompts.clear();
                r.exportAs(1);
                QCOMPARE(r.t.prompts.messages().size(), 1);
                QVERIFY(r.t.prompts.messages()[0].contains(locked + "WBO_Links.Htm"));
                QVERIFY(r.opened.isEmpty());
            }
        }
        QVERIFY(QDir(locked).isEmpty());

        r.t.prompts.clear();
        {
            FileSizeLimit limit(200);
            r.exportAs(1, 1);
        }
        QCOMPARE(r.t.prompts.messages().size(), 1);
        QVERIFY(r.t.prompts.messages()[0].contains(locked + "WBO_Links.Htm"));
        QVERIFY(r.opened.isEmpty());
        QVERIFY(QDir(locked).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestLinkExport)
#include "TestLinkExport.moc"
