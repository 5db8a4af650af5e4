#include "CacheActionRig.h"
#include "EngineEnvironment.h"
#include "EngineScript.h"

#include <QApplication>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

namespace {

const QByteArray Header =
    "<HTML>\r\n<HEAD>\r\n<TITLE>Vorlan's Cache Graphics Browse File</TITLE>\r\n"
    "<META Name = \"Description\" Content = \"Vorlan's Cache Graphics Browse File\">\r\n"
    "<META Name = \"Keywords\" Content = \"Vorlan,graphics,browse\">\r\n"
    "<META Name = \"Rating\" Content = \"General\">\r\n<style TYPE=\"text/css\">\r\n<!--\r\n"
    "A{text-decoration: none;} A:link{color: #5900DF;} A:visited{color: #FFA000;} "
    "A:hover{ color:#FF0000; text-decoration: underline }\r\n-->\r\n</style>\r\n</HEAD>\r\n"
    "<BODY><CENTER><H3>Click the right arrow for the next file!</H3></CENTER><P>\r\n"
    "<BODY><CENTER><H4>Click picture to get actual size</H4></CENTER><P>\r\n"
    "<BODY><CENTER>Selecting Jpg or Gif in IECache loads only that type</CENTER><P>\r\n"
    "<table align=\"center\" border=\"1\" bordercolor=\"#000000\" cellspacing=\"0\" "
    "cellpadding=\"2\">\r\n";

QByteArray cell(const QByteArray& path, const QByteArray& alt)
{
    return "<td align=\"center\"><a href=\"" + path + "\"><img src=\"" + path +
           "\" width=\"100\" height=\"100\" alt=\"" + alt + "\"></a></td>\r\n";
}

QByteArray emptyCell()
{
    return cell("", "No Picture to display!");
}

// Lists count pictures (and one text file among them) and runs "Brws Pics ".
void runPictures(CacheActionRig& r, int count)
{
    QVector<QPair<QString, QByteArray>> files;
    for (int i = 0; i < count; ++i) {
        files.append({QString("p%1.%2").arg(i).arg(i % 2 ? "GIF" : "jpg"), QByteArray("img")});
        if (i == 1)
            files.append({QString("notes.txt"), QByteArray("text")});
    }
    r.list(files);
    r.run(5);
}

// A page that keeps the script errors it reports.
class ErrorRecordingPage : public QWebEnginePage
{
public:
    QStringList errors;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                  int line, const QString&) override
    {
        if (level == ErrorMessageLevel)
            errors << QString("%1: %2").arg(line).arg(message);
    }
};

} // namespace

class TestGraphicsPages : public QObject
{
    Q_OBJECT

private slots:
    // Index 0 takes no part and the text file is left out: five listed
    // pictures make one full row and one with three empty cells.
    void fivePictures()
    {
        CacheActionRig r;
        putFile(r.out() + "CacheGraphics.htm", "old page");
        runPictures(r, 6);
        const QString page = r.out() + "CacheGraphics.htm";
        QCOMPARE(r.host.pages, QStringList{page});
        QByteArray expected = Header + "<tr>\r\n";
        for (int i = 1; i <= 4; ++i) {
            const QByteArray path =
                (r.listed + QString("p%1.%2").arg(i).arg(i % 2 ? "GIF" : "jpg")).toUtf8();
            expected += cell(path, path);
        }
        const QByteArray last = (r.listed + "p5.GIF").toUtf8();
        expected += "</tr>\r\n<tr>\r\n" + cell(last, last) + emptyCell() + emptyCell() +
                    emptyCell() + "</tr>\r\n</table></BODY></HTML>\r\n";
        QCOMPARE(fileBytes(page), expected);
        QCOMPARE(r.state.FoundFiles, QStringList{QString()});
        // The window closes through the host; the run leaves no progress.
        QCOMPARE(r.host.calls.mid(r.host.calls.size() - 3),
                 QStringList({"ResetCount", "unloadProgress", "showGraphicsPages"}));
        QCOMPARE(r.host.listings, 0);
    }

    void rowsAndPages_data()
    {
        QTest::addColumn<int>("listed");
        QTest::addColumn<QVector<int>>("rowsPerPage");
        QTest::addColumn<int>("emptyCells");
        QTest::newRow("six: a wholly empty row") << 7 << QVector<int>{3} << 6;
        QTest::newRow("eight: rounded to even") << 9 << QVector<int>{2} << 0;
        QTest::newRow("ten: 2.5 rounds to 2, one more row") << 11 << QVector<int>{3} << 2;
        QTest::newRow("76 fill the first page") << 77 << QVector<int>{19} << 0;
        QTest::newRow("80: the 20th row opens page two") << 81 << QVector<int>{19, 1} << 0;
        QTest::newRow("200: three pages") << 201 << QVector<int>{19, 20, 11} << 0;
    }
    void rowsAndPages()
    {
        QFETCH(int, listed);
        QFETCH(QVector<int>, rowsPerPage);
        QFETCH(int, emptyCells);
        CacheActionRig r;
        runPictures(r, listed);
        QCOMPARE(r.host.pages.size(), rowsPerPage.size());
        int empty = 0;
        for (int n = 0; n < rowsPerPage.size(); ++n) {
            const QString name = n ? QString("CacheGraphics%1.htm").arg(n) : "CacheGraphics.htm";
            QCOMPARE(r.host.pages[n], r.out() + name);
            const QByteArray page = fileBytes(r.host.pages[n]);
            QVERIFY(page.startsWith(Header));
            QVERIFY(page.endsWith("</tr>\r\n</table></BODY></HTML>\r\n"));
            QCOMPARE(int(page.count("<tr>")), rowsPerPage[n]);
            empty += int(page.count(emptyCell()));
        }
        QCOMPARE(empty, emptyCells);
    }

    // Four listed pictures leave three once index 0 is passed over; with a
    // selection of four the same, and the window stays and is given back.
    void fewerThanFour()
    {
        CacheActionRig r;
        runPictures(r, 4);
        QCOMPARE(r.t.prompts.messages(),
                 QStringList{"Must be at least four pictures to use this function!"});
        QVERIFY(r.host.pages.isEmpty());
        QVERIFY(r.finished());
        QCOMPARE(r.host.listings, 1);

        CacheActionRig chosen;
        chosen.host.selection = {0, 1, 3, 4};
        runPictures(chosen, 6);
        QCOMPARE(chosen.t.prompts.messages().size(), 1);
        QVERIFY(chosen.host.pages.isEmpty());
    }

    // The pages the engine is handed load without a script error and show
    // their rows, pictures and empty cells; names with blanks, brackets and
    // quotes reach the engine whole.
    void pagesLoadInTheEngine()
    {
        CacheActionRig r;
        r.list({{"skip.jpg", ""},
                {"one two.jpg", ""},
                {"b [1].gif", ""},
                {"say \"hi\".jpg", ""},
                {"d.gif", ""},
                {"e.jpg", ""}});
        r.run(5);
        QCOMPARE(r.host.pages.size(), 1);

        // The page outlives the view that shows it, which does not own it.
        ErrorRecordingPage recording;
        QWebEngineView view;
        ErrorRecordingPage* page = &recording;
        view.setPage(page);
        QSignalSpy loaded(page, &QWebEnginePage::loadFinished);
        view.load(QUrl::fromLocalFile(r.host.pages[0]));
        QTRY_COMPARE_WITH_TIMEOUT(loaded.size(), 1, 40000);
        QVERIFY(loaded[0][0].toBool());
        QCOMPARE(page->title(), QString("Vorlan's Cache Graphics Browse File"));
        QCOMPARE(evaluateScript(page, "[document.querySelectorAll('tr').length,"
                                      " document.images.length,"
                                      " decodeURIComponent(document.images[2].src),"
                                      " document.images[7].alt].join('|')"),
                 QString("2|8|file://" + r.listed + "say \"hi\".jpg|No Picture to display!"));
        QCOMPARE(page->errors, QStringList());
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestGraphicsPages test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestGraphicsPages.moc"
