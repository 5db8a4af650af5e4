#include "core/ConnectionProbe.h"

#include <QtTest>

class TestConnectionProbe : public QObject
{
    Q_OBJECT

private slots:
    void routedInterfacesFromTheRouteTables()
    {
        const QString v4 =
            "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
            "eth0\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n"
            "eth0\t000200C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
            "wlan0\t0000A8C0\t00000000\t0001\t0\t0\t600\t00FFFFFF\t0\t0\t0\n"
            "lo\t0000007F\t00000000\t0001\t0\t0\t0\t000000FF\t0\t0\t0\n";
        const QString v6 =
            "fe800000000000000000000000000000 40 00000000000000000000000000000000 00 "
            "00000000000000000000000000000000 00000100 00000002 00000000 00000001     eth0\n"
            "00000000000000000000000000000001 80 00000000000000000000000000000000 00 "
            "00000000000000000000000000000000 00000000 00000002 00000000 80200001       lo\n"
            "20010db8000000000000000000000000 40 00000000000000000000000000000000 00 "
            "00000000000000000000000000000000 00000100 00000001 00000000 00000001   tun0\n";
        QCOMPARE(SystemConnectionProbe::routedInterfaces(v4, v6),
                 (QStringList{"eth0", "wlan0", "tun0"}));
    }

    void aHeaderOnlyOrMissingTableNamesNothing()
    {
        const QString header = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\n";
        QVERIFY(SystemConnectionProbe::routedInterfaces(header, "").isEmpty());
        QVERIFY(SystemConnectionProbe::routedInterfaces("", "").isEmpty());
        // Only loopback, link-local and multicast routes: no connection.
        const QString v6 = "00000000000000000000000000000001 80 0 00 0 00000000 00000002 "
                           "00000000 80200001 lo\n"
                           "fe800000000000000000000000000000 40 0 00 0 00000100 00000002 "
                           "00000000 00000001 eth1\n"
                           "ff000000000000000000000000000000 08 0 00 0 00000100 00000004 "
                           "00000000 00000001 eth1\n";
        QVERIFY(
            SystemConnectionProbe::routedInterfaces(header + "lo\t0000007F\t0\n", v6).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestConnectionProbe)
#include "TestConnectionProbe.moc"
