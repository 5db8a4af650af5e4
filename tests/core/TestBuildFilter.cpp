#include "ScriptedPrompts.h"
#include "TestFolders.h"
#include "core/BuildFilter.h"

#include <QDir>
#include <QtTest>

class TestBuildFilter : public QObject
{
    Q_OBJECT
    QTemporaryDir dir;
    QString outDir;

private slots:
    void initTestCase()
    {
        QVERIFY(dir.isValid());
        outDir = dir.path() + "/out/";
        QVERIFY(QDir().mkpath(outDir));
    }

    void filtersAndSelection_data()
    {
        QTest::addColumn<QString>("ext1");
        QTest::addColumn<QString>("ext2");
        QTest::addColumn<QStringList>("filters");
        QTest::addColumn<int>("selected");
        QTest::newRow("text and access")
            << "txt"
            << "mdb"
            << QStringList{"All Files (*.*)", "Text files (*.txt)", "Access database files (*.mdb)"}
            << 1;
        QTest::newRow("case is ignored, kept in the pattern")
            << "TXT"
            << "Mdb"
            << QStringList{"All Files (*.*)", "Text files (*.TXT)", "Access database files (*.Mdb)"}
            << 1;
        QTest::newRow("other type")
            << "htm"
            << "" << QStringList{"All Files (*.*)", "Other types (*.htm)"} << 1;
        QTest::newRow("none") << ""
                              << "" << QStringList{"All Files (*.*)"} << 0;
        QTest::newRow("only the second")
            << ""
            << "mdb" << QStringList{"All Files (*.*)", "Access database files (*.mdb)"} << 0;
    }
    void filtersAndSelection()
    {
        QFETCH(QString, ext1);
        QFETCH(QString, ext2);
        QFETCH(QStringList, filters);
        QFETCH(int, selected);
        ScriptedPrompts prompts;
        BuildFilter(prompts, outDir, dir.path(), ext1, ext2);
        QCOMPARE(prompts.shown.size(), 1);
        QCOMPARE(prompts.shown[0].kind, QString("openFile"));
        QCOMPARE(prompts.shown[0].filters, filters);
        QCOMPARE(prompts.shown[0].selectedFilter, selected);
    }

    void startFolder()
    {
        ScriptedPrompts prompts;
        BuildFilter(prompts, outDir, dir.path() + "/", "txt", "");
        BuildFilter(prompts, outDir, dir.path() + "/missing", "txt", "");
        BuildFilter(prompts, outDir, "", "txt", "");
        BuildFilter(prompts, "/", "", "txt", "");
        QCOMPARE(prompts.shown.size(), 4);
        QCOMPARE(prompts.shown[0].start, dir.path());
        QCOMPARE(prompts.shown[1].start, dir.path() + "/out");
        QCOMPARE(prompts.shown[2].start, dir.path() + "/out");
        QCOMPARE(prompts.shown[3].start, QString("/"));
    }

    void theResultIsAnExistingFileOrEmpty()
    {
        const QString words = dir.path() + "/words.txt";
        QVERIFY(putFile(words));
        ScriptedPrompts prompts;
        prompts.answerPath(words);
        QCOMPARE(BuildFilter(prompts, outDir, dir.path(), "txt", "mdb"), words);

        prompts.answerPath(dir.path() + "/gone.txt");
        QCOMPARE(BuildFilter(prompts, outDir, dir.path(), "txt", "mdb"), QString(""));

        prompts.answerPath(dir.path());
        QCOMPARE(BuildFilter(prompts, outDir, dir.path(), "txt", "mdb"), QString(""));

        // Cancelled: nothing queued.
        const QString cancelled = BuildFilter(prompts, outDir, dir.path(), "txt", "mdb");
        QVERIFY(cancelled.isEmpty() && !cancelled.isNull());
        QCOMPARE(prompts.unanswered, 1);
    }

    void classicFiltersAsDialogEntries()
    {
        QCOMPARE(FileDialogFilters("All Files (*.*)|*.*|Pictures|*.gif;*.jpg|Pages|*.htm|"),
                 (QStringList{"All Files (*.*)", "Pictures (*.gif *.jpg)", "Pages (*.htm)"}));
        QCOMPARE(FileDialogFilters("Text (*.txt)|*.txt"), QStringList{"Text (*.txt)"});
        QVERIFY(FileDialogFilters("").isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestBuildFilter)
#include "TestBuildFilter.moc"
