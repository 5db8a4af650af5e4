// "--help" and "--version" of the real program, from a shell without a
// screen: the platform is set to one that does not exist, so the process
// would fail if it made its application object.
#include "ChildRun.h"
#include "core/ShellOptions.h"

#include <QtTest>

namespace {
ChildRun runVorlan(const QStringList& arguments)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("DISPLAY");
    env.remove("WAYLAND_DISPLAY");
    env.insert("QT_QPA_PLATFORM", "no-such-platform");
    return ChildRun::of(QStringLiteral(VORLAN_EXECUTABLE), arguments, env);
}
} // namespace

class TestShellOptions : public QObject
{
    Q_OBJECT

private slots:
    void helpPrintsTheUsageAndEnds()
    {
        const ChildRun run = runVorlan({"--help"});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QByteArray());
        QVERIFY(run.out.startsWith("Usage: vorlan [ADDRESS | /? | --help | --version]\n"));
        for (const char* option : {"/?", "--help", "--version", "http://", "mailto:"})
            QVERIFY2(run.out.contains(option), option);
        QVERIFY(run.out.contains("~/.config/Vorlan/Vorlan 1.0.ini"));
        QVERIFY(run.out.contains("vorlan(1)"));
    }

    void versionPrintsTheNameAndVersionAndEnds()
    {
        const ChildRun run = runVorlan({"--version"});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, QByteArray("Vorlan 1.0\n"));
    }

    // Like "/?", the options count only alone; "/?" and every other line
    // go to the entry's own command-line rule.
    void onlyTheOptionsAloneAreAnswered()
    {
        QVERIFY(!ShellOptions::answer({"--help"}).isNull());
        QVERIFY(!ShellOptions::answer({"--version"}).isNull());
        for (const QStringList& line :
             {QStringList{}, QStringList{"/?"}, QStringList{"--help", "http://a.b/"},
              QStringList{"http://a.b/", "--version"}, QStringList{"--HELP"}, QStringList{"-h"}})
            QVERIFY2(ShellOptions::answer(line).isNull(), qPrintable(line.join(' ')));
    }
};

QTEST_GUILESS_MAIN(TestShellOptions)

#include "TestShellOptions.moc"
