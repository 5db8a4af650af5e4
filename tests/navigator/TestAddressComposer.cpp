#include "NavigatorRig.h"

#include <QFile>
#include <QtTest>

class TestAddressComposer : public QObject
{
    Q_OBJECT

private slots:
    // The counts, the address and its tip are checked on the window itself.
    void startsOnTheFirstNeighborhoodAtHouse1000()
    {
        NavigatorRig r;
        r.start();
        QCOMPARE(r.c.cmbNeighborhood.text(), QString("Area51"));
        QCOMPARE(r.c.cmbSuburb.text(), QString(""));
        QCOMPARE(r.c.cmbSuburb.listCount(), 29);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Area51/1000/"));
        QCOMPARE(r.c.lblComment.text(), QString("Science fiction and fantasy"));
        QCOMPARE(r.c.picNeighborhood.entry(), 2);
        QCOMPARE(r.c.cmbHouseNumberPrefix.item(0), QString("10"));
        QCOMPARE(r.c.cmbHouseNumberSuffix.listCount(), 100);
        QCOMPARE(r.c.cmbHouseNumberSuffix.item(5), QString("05"));
    }

    void suburbSeparatorAndEmptySuburb()
    {
        NavigatorRig r;
        r.start();
        r.pickNeighborhood("SoHo");
        r.pickSuburb("Lofts");
        r.pickDigits("12", "34");
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/1234/"));
        QCOMPARE(r.c.sldrHouseNumber.value(), 1234);
        r.pickNeighborhood("Paris");
        // The Suburb of another Neighborhood is dropped; the number stays.
        QCOMPARE(r.c.cmbSuburb.text(), QString(""));
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Paris/1234/"));

        r.nav.JapanClick();
        r.pickNeighborhood("Hollywood");
        r.pickSuburb("Kouen");
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.co.jp/Hollywood-Kouen/1000/"));
    }

    void nextAndPrevWrapAroundAndOpen()
    {
        NavigatorRig r;
        r.start();
        r.pickDigits("99", "99");
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("1000"));
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Area51/1000/"));
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/1000/"));
        r.c.cmdPrevious.click();
        QCOMPARE(r.composer.HouseNumber, QString("9999"));
        QCOMPARE(r.c.cmbHouseNumberPrefix.text(), QString("99"));
        QCOMPARE(r.c.cmbHouseNumberSuffix.text(), QString("99"));
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/9999/"));
        r.c.cmdPrevious.click();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Area51/9998/"));
        // Every opening stores the address on show.
        QCOMPARE(r.t.ctx.GetSetting("Startup", "HNPS"), QString("9998"));
    }

    void sliderMovesTheNumberAndLeavesNoBlank()
    {
        NavigatorRig r;
        r.start();
        r.c.sldrHouseNumber.setValue(4321);
        QCOMPARE(r.composer.HouseNumber, QString("4321"));
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Area51/4321/"));
        r.c.cmdNext.click();
        QCOMPARE(r.composer.HouseNumber, QString("4322")); // no leading blank survives
    }

    void aNumberTheSliderRefusesChangesNothing()
    {
        NavigatorRig r;
        r.start();
        r.pickDigits("20", "00");
        const QString before = r.c.txtFullAddress.text();
        r.composer.HouseNumber = "0500";
        r.composer.ComposeAddress();
        QCOMPARE(r.c.txtFullAddress.text(), before);
        QCOMPARE(r.c.cmbHouseNumberPrefix.text(), QString("20"));
        r.composer.HouseNumber = "0";
        r.composer.ComposeAddress(); // not above 0: nothing at all
        QCOMPARE(r.c.txtFullAddress.text(), before);
    }

    void openWithoutAnAddressDoesNothing()
    {
        NavigatorRig r;
        r.t.createAndOpenDatabase();
        r.nav.Load(); // no catalogue, no number: nothing composed
        QVERIFY(r.c.txtFullAddress.text().isEmpty());
        r.c.cmdOpenSite.click();
        QVERIFY(r.host.calls.filter("navigate").isEmpty());
        QCOMPARE(r.t.ctx.GetSetting("Startup", "HNPS", "unset"), QString("unset"));
    }

    void anUnknownNeighborhoodFallsBackToTheFirst()
    {
        NavigatorRig r;
        r.start();
        r.c.cmbNeighborhood.setText("Atlantis");
        QCOMPARE(r.c.cmbNeighborhood.text(), QString("Area51"));
        QCOMPARE(r.c.cmbSuburb.listCount(), 29);
    }

    void manualChoicesEndAWalkButStepsDoNot()
    {
        NavigatorRig r;
        r.start();
        r.c.mnuAutoNav.click();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        r.c.cmdNext.click();
        r.c.cmdPrevious.click();
        QVERIFY(r.c.mnuAutoNav.isChecked());
        r.pickDigits("55", "55");
        QVERIFY(!r.c.mnuAutoNav.isChecked());
        QVERIFY(!r.nav.wander().tmrAN.isActive());

        r.c.mnuAutoNav.click();
        r.pickSuburb("Cavern");
        QVERIFY(!r.c.mnuAutoNav.isChecked());
        r.c.mnuAutoNav.click();
        r.pickNeighborhood("Athens");
        QVERIFY(!r.c.mnuAutoNav.isChecked());
    }

    void navigateTargets_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("target");
        QTest::newRow("composed") << "geocities.com/SoHo/1000/"
                                  << "http://www.geocities.com/SoHo/1000/";
        QTest::newRow("already prefixed") << "http://www.geocities.com/"
                                          << "http://www.geocities.com/";
        QTest::newRow("prefix in capitals") << "HTTP://WWW.geocities.com/"
                                            << "HTTP://WWW.geocities.com/";
        QTest::newRow("other URL forms get the prefix too") << "http://example.org/"
                                                            << "http://www.http://example.org/";
    }
    void navigateTargets()
    {
        QFETCH(QString, text);
        QFETCH(QString, target);
        NavigatorRig r;
        r.nav.NavigateSomeWhereElse(text);
        QCOMPARE(r.host.navigated(), QStringList{target});
        QVERIFY(r.host.calls.contains("show BrowserOne"));
    }

    void aLocalFileOpensAsItStands()
    {
        NavigatorRig r;
        const QString page = r.t.folders.root() + "/page.htm";
        QVERIFY(putFile(page, "<html></html>"));
        r.nav.NavigateSomeWhereElse(page);
        QCOMPARE(r.host.navigated(), QStringList{page});
    }
};

QTEST_GUILESS_MAIN(TestAddressComposer)
#include "TestAddressComposer.moc"
