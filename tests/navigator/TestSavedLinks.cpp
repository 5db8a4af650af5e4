#include "NavigatorRig.h"
#include "navigator/LinkNote.h"
#include "navigator/SavedLinks.h"

#include <QSqlQuery>
#include <QtTest>

namespace {
const QDateTime SaveTime(QDate(2001, 7, 4), QTime(21, 15, 32));

QString savedOn(const QDateTime& when)
{
    return "Saved on: Date = " + QLocale::system().toString(when.date(), QLocale::ShortFormat) +
           " Time = ";
}

// The Navigator with its saved links, saving through the note dialog's rules.
struct SavedRig : NavigatorRig
{
    SavedLinks& links = nav.savedLinks();
    QString pageTitle;
    int titleReads = 0;

    SavedRig()
    {
        links.clock = [] { return SaveTime; };
        start();
    }

    void at(const QString& neighborhood, const QString& suburb, const QString& prefix,
            const QString& suffix)
    {
        pickNeighborhood(neighborhood);
        if (!suburb.isEmpty())
            pickSuburb(suburb);
        pickDigits(prefix, suffix);
    }

    // Presses Save; the note dialog, if it comes, is answered with note
    // (or left with what it starts with when note is null).
    void save(const QString& note = QString())
    {
        host.noteDialog = [this, note] {
            LinkNote dialog(t.ctx, links);
            dialog.Load([this] {
                ++titleReads;
                return pageTitle;
            });
            if (!note.isNull())
                dialog.txtComment.setText(note);
            dialog.OkClick();
            dialog.Unload();
        };
        c.cmdSavedLinks0.click();
    }

    void choose(int index) { c.cmbSavedLinks.userSelect(index); }

    QVector<QStringList> table(int index = Tbl::UsaSaved) const
    {
        QVector<QStringList> rows;
        for (const TextRecord& r : t.db.readAll(t.state.gastrTables[index][0]))
            rows << r.fields;
        return rows;
    }

    void seed(int count, int index = Tbl::UsaSaved)
    {
        QVector<QStringList> rows;
        for (int i = 0; i < count; ++i)
            rows << QStringList{"Area51", "", QString::number(1000 + i % 9000), "seeded", ""};
        t.db.append(t.state.gastrTables[index][0], FieldNames(t.state.gastrTables, index), rows);
    }

    void sql(const QString& statement)
    {
        QSqlQuery query(t.db.handle());
        QVERIFY2(query.exec(statement), qPrintable(statement));
    }

    int notesShown() const { return host.calls.count("show note"); }
};
} // namespace

class TestSavedLinks : public QObject
{
    Q_OBJECT

private slots:
    void saveChooseReturnAndDelete()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("Lofts page");
        QCOMPARE(r.table(), (QVector<QStringList>{{"SoHo", "Lofts", "1234", "Lofts page",
                                                   savedOn(SaveTime) + "9:15PM"}}));
        r.at("Tokyo", "Ginza", "77", "01");
        r.save("Ginza");
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"Lofts page", "Ginza"}));
        QCOMPARE(r.links.lstLinks.items(), r.c.cmbSavedLinks.items());

        r.at("SoHo", "Lofts", "56", "78");
        const QString comment = r.c.lblComment.text();
        r.choose(0);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/1234/"));
        QCOMPARE(r.c.lblComment.text(), savedOn(SaveTime) + "9:15PM");
        QCOMPARE(r.c.cmdSavedLinks0.text(), QString("Return"));
        QVERIFY(r.c.cmdSavedLinks1.isVisible());
        r.choose(1);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Tokyo/Ginza/7701/"));
        QVERIFY(r.host.navigated().isEmpty());

        // Return goes back to where the first choice started.
        r.c.cmdSavedLinks0.click();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/5678/"));
        QCOMPARE(r.c.lblComment.text(), comment);
        QCOMPARE(r.c.cmdSavedLinks0.text(), QString("Save"));
        QVERIFY(!r.c.cmdSavedLinks1.isVisible());
        QVERIFY(r.c.cmbSavedLinks.text().isEmpty());
        // A link on the same street: only the house number comes back.
        r.choose(0);
        r.c.cmdSavedLinks0.click();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/5678/"));
        QCOMPARE(r.notesShown(), 2);

        r.choose(0);
        r.c.cmdSavedLinks1.click();
        QCOMPARE(r.table().size(), 1);
        QCOMPARE(r.table()[0][3], QString("Ginza"));
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"Ginza"}));
        QCOMPARE(r.links.lstLinks.items(), QStringList({"Ginza"}));
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/5678/"));
        QVERIFY(!r.links.SavedViewActive && !r.c.cmdSavedLinks1.isVisible());
    }

    void regionsStayApartAndSurviveARestart()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("usa");
        r.nav.JapanClick();
        QVERIFY(r.c.cmbSavedLinks.items().isEmpty());
        // An empty table leaves the arrays as they were.
        QCOMPARE(r.t.state.gastrSavedLinks.size(), 1);
        QCOMPARE(r.t.state.gastrSavedLinks[0].comment, QString("usa"));
        r.at("HeartLand", "Suzuran", "22", "22");
        r.save("japan");
        QCOMPARE(r.table(Tbl::JapanSaved)[0].mid(0, 4),
                 QStringList({"HeartLand", "Suzuran", "2222", "japan"}));
        QCOMPARE(r.table(Tbl::UsaSaved).size(), 1);
        r.choose(0);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.co.jp/HeartLand-Suzuran/2222/"));
        r.nav.JapanClick();
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"usa"}));

        r.t.db.close();
        r.t.db.open(r.t.state.gstrGeoData);
        r.t.state.gastrSavedLinks.clear();
        RecordingHost host(r.t.state);
        Navigator again(r.t.ctx, host, host);
        again.Load();
        again.LoadCatalogue();
        QCOMPARE(again.controls().cmbSavedLinks.items(), QStringList({"usa"}));
        again.controls().cmbSavedLinks.userSelect(0);
        QCOMPARE(again.controls().txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/1234/"));
    }

    void aSavedAddressIsRefusedOnceTwoLinksExist()
    {
        SavedRig r;
        QCOMPARE(r.links.panelCaption.text(), QString("0 Saved Links"));
        r.at("SoHo", "Lofts", "12", "34");
        r.save("one");
        QCOMPARE(r.links.panelCaption.text(), QString("0 Saved Links"));
        // With one link the test is skipped: it can be saved twice.
        r.save("twice");
        QCOMPARE(r.table().size(), 2);
        QCOMPARE(r.links.panelCaption.text(), QString("1 Saved Links"));
        QVERIFY(r.t.prompts.shown.isEmpty());

        r.save("thrice");
        QCOMPARE(r.table().size(), 2);
        QCOMPARE(r.notesShown(), 2);
        QCOMPARE(r.t.prompts.shown.size(), 1);
        QCOMPARE(r.t.prompts.shown[0].title, QString("Already Saved!"));
        QCOMPARE(r.t.prompts.shown[0].text, "This Site is already Saved!!!\r\rDate:\r" +
                                                savedOn(SaveTime) + "9:15PM\rComment:\rone\r");
        // The house number counts, the note does not.
        r.pickDigits("12", "35");
        r.save("next door");
        QCOMPARE(r.table().size(), 3);
    }

    void badNotes()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("   ");
        QVERIFY(r.table().isEmpty());
        QVERIFY(r.t.prompts.shown.isEmpty());
        QVERIFY(!r.t.state.gblnNoteOpen);

        r.save("line one\r\nline two\nthree\r");
        QCOMPARE(r.table().last()[3], QString("line one  line two three "));

        r.pickDigits("20", "00");
        r.save(QString(300, 'x'));
        QCOMPARE(r.table().last()[3], QString(255, 'x'));
        // A character of two code units at the cut is not halved.
        r.pickDigits("20", "01");
        r.save(QString(254, 'y') + QString::fromUtf8("\xF0\x9F\x98\x80") + "z");
        QCOMPARE(r.table().last()[3], QString(254, 'y'));

        r.pickDigits("20", "02");
        r.t.state.gblnWBOneLoaded = true;
        r.t.state.gblnUseSiteTitles = true;
        r.pageTitle = "<b>\"Joe's\" Page</b> & co; DROP TABLE UsaSaved; --";
        r.save();
        QCOMPARE(r.table().last()[3], r.pageTitle);
        QCOMPARE(r.c.cmbSavedLinks.items().last(), r.pageTitle);
    }

    void theNoteStartsWithTheTitleOrTheDefault()
    {
        SavedRig r;
        SharedState& st = r.t.state;
        st.gstrDefaultNote = "This is a CooL Site!";
        st.gblnUseSiteTitles = true;
        r.pageTitle = QString(150, 't');
        LinkNote note(r.t.ctx, r.links);
        auto title = [&r] {
            ++r.titleReads;
            return r.pageTitle;
        };

        note.Load(title); // Browser One is not open
        QCOMPARE(note.txtComment.text(), st.gstrDefaultNote);
        QCOMPARE(r.titleReads, 0);
        st.gblnWBOneLoaded = true;
        r.t.probe.up = false;
        note.Load(title);
        QCOMPARE(r.titleReads, 0);
        r.t.probe.up = true;
        note.Load(title);
        QCOMPARE(note.txtComment.text(), QString(100, 't'));
        st.gblnUseSiteTitles = false;
        note.Load(title);
        QCOMPARE(note.txtComment.text(), st.gstrDefaultNote);
        QCOMPARE(note.form.text(), QString("Enter a note!"));

        // While a note is open Save does nothing.
        QVERIFY(st.gblnNoteOpen);
        r.c.cmdSavedLinks0.click();
        QCOMPARE(r.notesShown(), 0);
        note.Unload();
        QVERIFY(!st.gblnNoteOpen);
        QCOMPARE(LinkNote::InitialNote("", true, "default"), QString("default"));
    }

    void timeText_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("one digit hour") << QTime(21, 15, 32) << "9:15PM";
        QTest::newRow("two digit hour") << QTime(12, 15, 32) << "12:15PM";
        QTest::newRow("morning") << QTime(9, 5, 7) << "9:05AM";
        QTest::newRow("midnight") << QTime(0, 15, 0) << "12:15AM";
    }
    void timeText()
    {
        QFETCH(QTime, time);
        QFETCH(QString, text);
        const QDateTime when(QDate(1999, 12, 31), time);
        QCOMPARE(SavedLinks::SavedOnText(when), savedOn(when) + text);
        QCOMPARE(SavedLinks::TimeText(QLocale::c().toString(time, "h:mm:ss AP")), text);
    }

    void theLimitIsTestedAtExactly1001()
    {
        SavedRig r;
        r.seed(1000);
        r.at("SoHo", "Lofts", "12", "34");
        r.save("the last one");
        QCOMPARE(r.t.db.recordCount("UsaSaved"), 1001);
        QVERIFY(r.t.prompts.shown.isEmpty());

        r.pickDigits("12", "35");
        r.save("one too many");
        QCOMPARE(r.t.prompts.messages(),
                 QStringList({"Maximum number of Links (1,000) already saved!"}));
        QCOMPARE(r.t.db.recordCount("UsaSaved"), 1001);
        QCOMPARE(r.c.cmbSavedLinks.listCount(), 1001);

        // A table gone past the limit by another route is not stopped.
        r.seed(1);
        r.save("beyond");
        QCOMPARE(r.t.db.recordCount("UsaSaved"), 1003);
    }

    void theTableChangedBehindTheProgramsBack()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("lofts");
        r.at("Tokyo", "Ginza", "77", "01");
        r.save("ginza");
        r.choose(0);
        // The record on show is deleted by another program: Delete finds
        // nothing, changes nothing, and shows the table as it is.
        r.sql("DELETE FROM UsaSaved WHERE Comment = 'lofts'");
        r.sql(
            "INSERT INTO UsaSaved (Neighborhood, House, Comment) VALUES ('Paris', '2000', 'raw')");
        r.c.cmdSavedLinks1.click();
        QCOMPARE(r.table().size(), 2);
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"ginza", "raw"}));
        QVERIFY(!r.links.SavedViewActive);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Tokyo/Ginza/7701/"));

        // Fields left empty by the other program read as empty texts.
        const QString comment = r.c.lblComment.text();
        r.choose(1);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Paris/2000/"));
        QCOMPARE(r.c.lblComment.text(), QString("Romance, poetry, the arts"));
        r.c.cmdSavedLinks1.click();
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"ginza"}));
        QVERIFY(r.c.lblComment.text() == comment);

        // A table dropped: nothing works, nothing crashes.
        r.sql("DROP TABLE UsaSaved");
        r.choose(0);
        r.c.cmdSavedLinks1.click();
        QVERIFY(r.c.cmbSavedLinks.items().isEmpty());
        r.at("SoHo", "Lofts", "99", "99");
        r.save("nowhere");
        QVERIFY(!r.t.db.hasTable("UsaSaved"));
    }

    void aFailingSaveLeavesTheTableAsItWas()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("one");
        r.pickDigits("12", "35");
        r.save("two");
        const QVector<QStringList> before = r.table();
        r.sql("CREATE TRIGGER refuse BEFORE INSERT ON UsaSaved BEGIN SELECT RAISE(ABORT, 'no'); "
              "END");
        r.pickDigits("12", "36");
        r.save("three");
        QCOMPARE(r.table(), before);
        QCOMPARE(r.c.cmbSavedLinks.items(), QStringList({"one", "two"}));

        r.sql("DROP TRIGGER refuse");
        r.t.db.close();
        r.save("closed");
        r.t.db.open(r.t.state.gstrGeoData);
        QCOMPARE(r.table(), before);
        QVERIFY(r.t.prompts.shown.isEmpty());
    }

    void choosingStopsWalksAndOpensWithTheOption()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("lofts");
        r.nav.AutoNavClick();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        r.host.calls.clear();
        r.choose(0);
        QVERIFY(!r.c.mnuAutoNav.isChecked());
        QVERIFY(r.host.navigated().isEmpty());

        r.c.cmdSavedLinks0.click();
        r.t.state.gblnOSLOC = true;
        r.choose(0);
        QCOMPARE(r.host.navigated(), QStringList({"http://www.geocities.com/SoHo/Lofts/1234/"}));
    }

    void onTopIsReleasedForTheNote()
    {
        SavedRig r;
        r.nav.OnTopClick();
        r.t.state.gblnWBOneOnTop = true;
        r.host.calls.clear();
        r.save("on top");
        QVERIFY(!r.t.state.gblnMainOnTop && !r.c.mnuOnTop.isChecked());
        QCOMPARE(r.host.calls.mid(0, 3),
                 QStringList({"notontop", "toggle BrowserOne ontop", "show note"}));
    }

    void aTextSetByCodeThatNoNoteHoldsLeavesTheView()
    {
        SavedRig r;
        r.at("SoHo", "Lofts", "12", "34");
        r.save("Lofts page");
        r.choose(0);
        r.c.cmbSavedLinks.setText("Lofts");
        QVERIFY(r.links.SavedViewActive);
        r.c.cmbSavedLinks.setText("Paris");
        QVERIFY(!r.links.SavedViewActive);
        QCOMPARE(r.c.cmdSavedLinks0.text(), QString("Save"));
    }
};

QTEST_GUILESS_MAIN(TestSavedLinks)
#include "TestSavedLinks.moc"
