#include "WordListRig.h"
#include "browsertwo/WordListDb.h"

#include <QFile>
#include <QtTest>

// The stored word lists: names as the user types them, the limits, the
// duplicate test, and the backup that brings a lost file back.
class TestWordListDb : public QObject
{
    Q_OBJECT

    static QString main(WordListRig& r) { return r.lists->database().mainPath(); }
    static QString backup(WordListRig& r) { return r.lists->database().backupPath(); }

private slots:
    void namesThatLookLikeSqlAreJustNames()
    {
        WordListRig r;
        QVERIFY(!r.lists->OpenWordListDb());
        r.setSites({"alpha", "", "beta", "gamma"});
        r.dialogs.names = QStringList{"select"};
        QVERIFY(r.lists->CreateWordListDb());
        QVERIFY(QFile::exists(main(r)) && QFile::exists(backup(r)));
        QCOMPARE(modeOf(main(r)), 0600u);

        const QStringList odd{"a\"b", "x; drop table select", "b`c", "Abort"};
        for (const QString& name : odd) {
            r.setSites({name, "two", "three"});
            r.dialogs.names = QStringList{name};
            QVERIFY2(r.lists->AddWordList(), qPrintable(name));
        }
        QCOMPARE(r.lists->FillListNames(), QStringList({"select"}) + odd);

        // The empty entry was not stored.
        QVERIFY(r.lists->LoadWordList("select"));
        QCOMPARE(r.sites(), QStringList({"alpha", "beta", "gamma"}));
        QCOMPARE(r.host.calls.last(), QString("Pseudo 3"));
        QVERIFY(r.lists->LoadWordList("x; drop table select"));
        QCOMPARE(r.sites(), QStringList({"x; drop table select", "two", "three"}));

        QVERIFY(r.lists->DeleteWordList("a\"b"));
        QVERIFY(!r.lists->DeleteWordList("a\"b"));
        QVERIFY(!r.lists->LoadWordList("a\"b"));
        QCOMPARE(r.t.state.gstrSites, QVector<QString>({""}));
        QCOMPARE(r.lists->FillListNames(),
                 QStringList({"select", "x; drop table select", "b`c", "Abort"}));
    }

    void tablesNamedMsAreNoListsAndCancelStoresNothing()
    {
        WordListRig r;
        r.setSites({"one"});
        QVERIFY(!r.lists->CreateWordListDb()); // closed without a name
        QVERIFY(!QFile::exists(main(r)));
        r.dialogs.names = QStringList{"first"};
        QVERIFY(r.lists->CreateWordListDb());
        r.dialogs.names = QStringList{"MSlist"};
        QVERIFY(r.lists->AddWordList());
        r.dialogs.names = QStringList{"Msother"};
        QVERIFY(r.lists->AddWordList());
        QCOMPARE(r.lists->FillListNames(), QStringList({"first", "Msother"}));
        // A name in use, whatever its case, is an error with its notice.
        r.dialogs.names = QStringList{"FIRST"};
        QVERIFY(!r.lists->AddWordList());
        QVERIFY(r.t.prompts.messages().last().startsWith("An error has occured!"));
    }

    void theCountStopsAtTheTwentyFirstList()
    {
        WordListRig r;
        r.setSites({"x"});
        r.dialogs.names = QStringList{"list1"};
        QVERIFY(r.lists->CreateWordListDb());
        for (int i = 2; i <= 21; ++i) {
            r.dialogs.names = QStringList{"list" + QString::number(i)};
            QVERIFY2(r.lists->AddWordList(), qPrintable(QString::number(i)));
        }
        r.dialogs.names = QStringList{"list22"};
        QVERIFY(!r.lists->AddWordList());
        QCOMPARE(r.t.prompts.shown.last().text, QString("Maximum (20) number of lists Reached!"));
        QCOMPARE(r.t.prompts.shown.last().title, QString("Terminating"));
        QCOMPARE(r.t.prompts.shown.last().style, int(PromptService::Information));
        QCOMPARE(r.lists->FillListNames().size(), 21);
        QCOMPARE(r.dialogs.names, QStringList({"list22"})); // never asked
    }

    void matchesAddUpAcrossListsUpToTheHundredth()
    {
        WordListRig r;
        r.setSites(numberedWords(101));
        r.dialogs.names = QStringList{"long"};
        QVERIFY(r.lists->CreateWordListDb());
        r.dialogs.names = QStringList{"again"};
        QVERIFY(!r.lists->AddWordList());
        QCOMPARE(r.t.prompts.messages().last(),
                 QString("This list already exists in the database!"));

        // 100 words: the last one takes no part, so only 99 can match.
        WordListRig s;
        s.setSites(numberedWords(100));
        s.dialogs.names = QStringList{"one", "two", "three"};
        QVERIFY(s.lists->CreateWordListDb());
        QVERIFY(s.lists->AddWordList());
        QVERIFY(!s.lists->AddWordList());
        QCOMPARE(s.lists->FillListNames(), QStringList({"one", "two"}));

        // Matches count only at equal places.
        s.setSites(QStringList{"other"} + numberedWords(150));
        s.dialogs.names = QStringList{"shifted"};
        QVERIFY(s.lists->AddWordList());
    }

    void loadingStopsBeforeTheNineThousandNineHundredNinetyNinthWord()
    {
        WordListRig r;
        r.setSites(numberedWords(10000));
        r.dialogs.names = QStringList{"big"};
        QVERIFY(r.lists->CreateWordListDb());
        QVERIFY(r.lists->LoadWordList("big"));
        QCOMPARE(r.t.state.gstrSites.size(), 9999);
        QCOMPARE(r.t.state.gstrSites.last(), QString("w9997"));
        QCOMPARE(r.host.calls.last(), QString("Pseudo 9999"));
    }

    void aLostOrDamagedFileComesBackFromTheBackup()
    {
        WordListRig r;
        r.setSites({"kept"});
        r.dialogs.names = QStringList{"original"};
        QVERIFY(r.lists->CreateWordListDb());
        r.setSites({"later"});
        r.dialogs.names = QStringList{"added"};
        QVERIFY(r.lists->AddWordList());
        r.lists->release();

        QVERIFY(QFile::remove(main(r)));
        QVERIFY(r.lists->OpenWordListDb());
        QCOMPARE(r.lists->FillListNames(), QStringList({"original"}));
        QVERIFY(r.t.prompts.shown.isEmpty());
        r.lists->release();

        // A damaged file is kept aside, not overwritten.
        const QByteArray garbage(8192, 'z');
        QVERIFY(putFile(main(r), garbage));
        QVERIFY(r.lists->OpenWordListDb());
        QVERIFY(r.lists->LoadWordList("original"));
        QCOMPARE(r.sites(), QStringList({"kept"}));
        QCOMPARE(fileBytes(r.t.folders.appPath() + "WbtDB-damaged.db"), garbage);
        r.lists->release();

        // Both damaged: nothing opens, and creating anew keeps the old file.
        QVERIFY(putFile(main(r), garbage));
        QVERIFY(putFile(backup(r), garbage));
        QVERIFY(!r.lists->OpenWordListDb());
        QCOMPARE(r.lists->FillListNames(), QStringList());
        QVERIFY(!r.lists->AddWordList());
        r.dialogs.names = QStringList{"fresh"};
        QVERIFY(r.lists->CreateWordListDb());
        QCOMPARE(r.lists->FillListNames(), QStringList({"fresh"}));
        QCOMPARE(fileBytes(r.t.folders.appPath() + "WbtDB-damaged1.db"), garbage);
    }
};

QTEST_MAIN(TestWordListDb)
#include "TestWordListDb.moc"
