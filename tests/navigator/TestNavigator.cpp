#include "NavigatorRig.h"
#include "core/VbRuntime.h"

#include <QDir>
#include <QtTest>
#include <sys/stat.h>

class TestNavigator : public QObject
{
    Q_OBJECT

private slots:
    void emptySettingsGiveTheDefaults()
    {
        NavigatorRig r;
        r.start();
        const SharedState& st = r.t.state;
        QVERIFY(st.gblnClosePopUps && st.gblnShowNextButton && st.gblnAssignRTC &&
                st.gblnFullPages);
        QVERIFY(!st.gblnOnTopSynch && !st.gblnUsaRNS && !st.gblnJapanRNS &&
                !st.gblnEliminatePopUps && !st.gblnOSLOC);
        QCOMPARE(st.gintGlobalTimer, qint16(10000));
        QCOMPARE(st.glngAutoLimit, 0);
        QCOMPARE(r.nav.wander().tmrAN.interval(), 10000);
        QCOMPARE(r.nav.wander().tmrRB.interval(), 10000);
        QCOMPARE(st.gstrSiteLabel, QString("geocities.com/"));
    }

    void storedAddressAndHnpsFallback()
    {
        NavigatorRig r;
        r.t.state.gstrAppName = "Vorlan 1.0";
        r.t.ctx.SaveSetting("Startup", "Neigh", "SunsetStrip");
        r.t.ctx.SaveSetting("Startup", "Subrb", "Vine");
        r.t.ctx.SaveSetting("Startup", "HNPS", "4321");
        r.start();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SunsetStrip/Vine/4321/"));
        r.t.ctx.SaveSetting("Startup", "House Number", "2001");
        r.nav.LoadMainSettings();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SunsetStrip/Vine/2001/"));
    }

    void flagsAreOnlyEverRaised()
    {
        NavigatorRig r;
        r.t.ctx.SaveSetting("Startup", "FullPages", "0");
        r.t.ctx.SaveSetting("Startup", "OSLOC", "1");
        r.t.state.gblnFullPages = true;
        r.start();
        QVERIFY(r.t.state.gblnFullPages);
        QVERIFY(r.t.state.gblnOSLOC);
    }

    void numericKeysFailAtTheirReader()
    {
        NavigatorRig r;
        r.start();
        r.t.ctx.SaveSetting("Startup", "GlobalTimer", "32768");
        QVERIFY_THROWS_EXCEPTION(VbError, r.nav.LoadMainSettings());
        r.t.ctx.SaveSetting("Startup", "GlobalTimer", "32767");
        r.nav.LoadMainSettings();
        QCOMPARE(r.t.state.gintGlobalTimer, qint16(32767));
        r.t.ctx.SaveSetting("Startup", "gblnAutoLimit", "soon");
        QVERIFY_THROWS_EXCEPTION(VbError, r.nav.LoadMainSettings());
        // Pressed by another window, the failure stays inside the call.
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::LoadMainSettings);
    }

    void saveWritesTheAddressFlagsAndPlace()
    {
        NavigatorRig r;
        r.start();
        r.pickNeighborhood("Tokyo");
        r.pickSuburb("Ginza");
        r.pickDigits("77", "01");
        r.host.window.moveTo(1500, 3000);
        r.t.state.gblnOSLOC = true;
        r.nav.SaveMainSettings();
        const AppContext& ctx = r.t.ctx;
        QCOMPARE(ctx.GetSetting("Startup", "Neigh"), QString("Tokyo"));
        QCOMPARE(ctx.GetSetting("Startup", "Subrb"), QString("Ginza"));
        QCOMPARE(ctx.GetSetting("Startup", "HNPS"), QString("7701"));
        QCOMPARE(ctx.GetSetting("Startup", "OSLOC"), QString("1"));
        QCOMPARE(ctx.GetSetting("Startup", "PopUps"), QString("1"));
        QCOMPARE(ctx.GetSetting("Startup", "GlobalTimer"), QString("10000"));
        QCOMPARE(ctx.GetSetting("AdvOpt", "gblnOnTopSynch", "x"), QString(""));
        QCOMPARE(ctx.GetSetting("VorlanMain", "MF_T"), QString("3000"));
        QCOMPARE(ctx.GetSetting("VorlanMain", "MF_L"), QString("1500"));
        // The save never writes the region's own house number.
        QCOMPARE(ctx.GetSetting("Startup", "House Number", "unset"), QString("unset"));

        r.composer.HouseNumber = "999";
        r.nav.SaveMainSettings();
        QCOMPARE(ctx.GetSetting("Startup", "HNPS"), QString("1000"));
        QCOMPARE(r.composer.HouseNumber, QString("1000"));
    }

    void regionsKeepTheirAddressesApart()
    {
        NavigatorRig r;
        r.start();
        r.pickNeighborhood("SoHo");
        r.pickSuburb("Lofts");
        r.pickDigits("12", "34");

        r.nav.JapanClick();
        QVERIFY(r.t.state.gblnJapan);
        QCOMPARE(r.c.cmbNeighborhood.text(), QString("Milkyway"));
        QCOMPARE(r.t.state.gstrSiteLabel, QString("geocities.co.jp/"));
        r.pickNeighborhood("HeartLand");
        r.pickSuburb("Suzuran");
        r.pickDigits("22", "22");

        r.nav.JapanClick();
        QVERIFY(!r.t.state.gblnJapan);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/SoHo/Lofts/1234/"));
        QCOMPARE(r.c.cmbNeighborhood.listCount(), 41);

        r.nav.JapanClick();
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.co.jp/HeartLand-Suzuran/2222/"));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "Japan House Number"), QString("2222"));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "House Number"), QString("1234"));
    }

    void theLoadClampKeepsTheWindowOnScreen_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QPoint>("place");
        const QSize usual(6240, 3750);
        QTest::newRow("stored place") << "3000"
                                      << "1500" << usual << QPoint(3000, 1500);
        QTest::newRow("negative") << "-900"
                                  << "-15" << usual << QPoint(0, 0);
        QTest::newRow("off right and bottom")
            << "99999"
            << "99999" << usual << QPoint(15360 - 6240, 11520 - 3750);
        QTest::newRow("one twip over") << "9121"
                                       << "7771" << usual << QPoint(9120, 7770);
        QTest::newRow("larger than the screen") << "500"
                                                << "500" << QSize(20000, 12000) << QPoint(0, 0);
    }
    void theLoadClampKeepsTheWindowOnScreen()
    {
        QFETCH(QString, left);
        QFETCH(QString, top);
        QFETCH(QSize, window);
        QFETCH(QPoint, place);
        NavigatorRig r;
        r.host.window.setSize(window);
        r.t.ctx.SaveSetting("VorlanMain", "MF_L", left);
        r.t.ctx.SaveSetting("VorlanMain", "MF_T", top);
        r.nav.Load();
        QCOMPARE(r.host.window.topLeft(), place);
    }

    void withoutAStoredPlaceTheWindowIsCentred()
    {
        NavigatorRig r;
        r.nav.Load();
        QCOMPARE(r.host.window.topLeft(), QPoint((15360 - 6240) / 2, (11520 - 3750) / 2));
    }

    void onTopFollowsTheBrowserOnlyWhenSynchronised()
    {
        NavigatorRig r;
        r.start();
        r.t.state.gblnWBOneLoaded = true;
        r.c.mnuOnTop.click();
        QVERIFY(r.t.state.gblnMainOnTop);
        QVERIFY(r.c.mnuOnTop.isChecked());
        QVERIFY(!r.t.state.gblnWBOneOnTop);
        r.c.mnuOnTop.click();
        QVERIFY(!r.t.state.gblnMainOnTop);

        r.t.state.gblnOnTopSynch = true;
        r.c.mnuOnTop.click();
        QVERIFY(r.t.state.gblnWBOneOnTop);
        r.c.mnuOnTop.click();
        QVERIFY(!r.t.state.gblnWBOneOnTop);
        QCOMPARE(r.host.calls.filter("ontop").size(), 6);
    }

    void windowsOpenWithoutAnythingOnTop()
    {
        NavigatorRig r;
        r.start();
        r.host.available << ProgramWindow::Export;
        r.c.mnuOnTop.click();
        r.t.state.gblnWBOneOnTop = true;
        r.nav.ShowProgramWindow(ProgramWindow::Export);
        QVERIFY(!r.t.state.gblnMainOnTop && !r.c.mnuOnTop.isChecked());
        QVERIFY(!r.t.state.gblnWBOneOnTop);
        QCOMPARE(r.host.calls.last(), QString("show Export"));
    }

    void networkActionsNeedAConnection()
    {
        NavigatorRig r;
        r.start();
        r.t.probe.up = false;
        r.c.picNeighborhood.click();
        r.nav.InetGetClick();
        r.c.mnuAutoNav.click();
        r.c.mnuRandNav.click();
        QCOMPARE(r.t.prompts.messages(), QStringList(4, "No internet connection!"));
        QVERIFY(!r.c.mnuAutoNav.isChecked() && !r.c.mnuRandNav.isChecked());
        QVERIFY(r.host.navigated().isEmpty());
        r.t.probe.up = true;
        r.pickNeighborhood("Paris");
        r.c.picNeighborhood.click();
        QCOMPARE(r.host.navigated(), QStringList{"http://www.geocities.com/Paris/"});
    }

    void plainNavigationMenus()
    {
        NavigatorRig r;
        r.start();
        r.t.probe.up = false; // these have no connection test
        r.nav.GeoCitiesClick();
        r.nav.GeoSearchClick();
        r.nav.GeoChatClick();
        r.t.ctx.SaveSetting("AdvOpt", "ChatURL", "chat.example.org/room");
        r.nav.GeoChatClick();
        QCOMPARE(
            r.host.navigated(),
            (QStringList{"http://www.geocities.com/",
                         "http://www.geocities.com/cgi-bin/search/geosearch",
                         "http://www.geocities.com/chat/", "http://www.chat.example.org/room"}));
    }

    void callsPressTheButtonsAndIgnoreTheRest()
    {
        NavigatorRig r;
        r.start();
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::Next);
        QCOMPARE(r.c.txtFullAddress.text(), QString("geocities.com/Area51/1001/"));
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::OnTop);
        QVERIFY(r.t.state.gblnMainOnTop);
        const QStringList before = r.host.calls;
        // A code outside the table does nothing.
        r.nav.frmGeoCitiesCalls(static_cast<GeoCitiesCall>(0));
        r.nav.frmGeoCitiesCalls(static_cast<GeoCitiesCall>(19));
        QCOMPARE(r.host.calls, before);
        r.nav.frmGeoCitiesCalls(GeoCitiesCall::ShowBrowserOne);
        QCOMPARE(r.host.calls.last(), QString("show BrowserOne"));
    }

    void unloadSavesClosesInOrderAndEnds()
    {
        NavigatorRig r;
        r.start();
        r.pickNeighborhood("Nashville");
        r.t.state.gblnWBOneLoaded = true;
        r.host.calls.clear();
        r.c.cmdQuite.click();
        QCOMPARE(r.host.calls, (QStringList{"unload Inetget", "unload GeoFtp", "stop",
                                            "unload BrowserOne", "end"}));
        QCOMPARE(r.t.ctx.GetSetting("Startup", "Neigh"), QString("Nashville"));
        QVERIFY(!r.t.db.isOpen());
    }

    void aStoreThatFailsWhileRunningStopsNeitherTheSwitchNorTheShutdown_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::newRow("garbage") << "garbage";
        QTest::newRow("fifo") << "fifo";
        QTest::newRow("folder") << "folder";
    }
    void aStoreThatFailsWhileRunningStopsNeitherTheSwitchNorTheShutdown()
    {
        QFETCH(QString, damage);
        NavigatorRig r;
        r.start();
        r.t.state.gblnWBOneLoaded = true;
        r.nav.SaveMainSettings();
        const QString file = r.t.settings.filePath(r.t.state.gstrAppName);
        QVERIFY(QFile::remove(file));
        if (damage == "garbage") {
            QVERIFY(putFile(file, QByteArray("\x00\x01junk", 6)));
        } else if (damage == "fifo") {
            QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
        } else {
            QVERIFY(QDir().mkpath(file));
        }

        r.nav.JapanClick();
        QVERIFY(r.t.state.gblnJapan);
        QCOMPARE(r.c.cmbNeighborhood.listCount(), 14);

        r.host.calls.clear();
        r.c.cmdQuite.click();
        QCOMPARE(r.host.calls, (QStringList{"unload Inetget", "unload GeoFtp", "stop",
                                            "unload BrowserOne", "end"}));
        QVERIFY(!r.t.db.isOpen());
    }
};

QTEST_GUILESS_MAIN(TestNavigator)
#include "TestNavigator.moc"
