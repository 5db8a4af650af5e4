// The program as installed: "cmake --install" into a temporary prefix, then
// the desktop's own validators on the desktop entry, the AppStream metadata
// and the manual page, and the icon's sizes.
#include "ChildRun.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const QString AppId = QStringLiteral(VORLAN_APP_ID);

ChildRun run(const QString& program, const QStringList& arguments)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("LC_ALL", "C.UTF-8");
    env.insert("MANWIDTH", "80");
    return ChildRun::of(program, arguments, env);
}
} // namespace

class TestInstalledFiles : public QObject
{
    Q_OBJECT

    QTemporaryDir m_prefix;
    QString path(const QString& relative) const { return m_prefix.filePath(relative); }

private slots:
    void initTestCase()
    {
        QVERIFY(m_prefix.isValid());
        const ChildRun install = run(QStringLiteral(CMAKE_COMMAND),
                                     {"--install", VORLAN_BUILD_DIR, "--prefix", m_prefix.path()});
        QVERIFY2(install.exitCode == 0, install.err.constData());
    }

    void theProgramAnswersFromItsInstalledPlace()
    {
        const ChildRun version = run(path("bin/vorlan"), {"--version"});
        QCOMPARE(version.exitCode, 0);
        QCOMPARE(version.out, QByteArray("Vorlan 1.0\n"));
    }

    void theDesktopEntryIsValidAndOffersToOpenWebAddresses()
    {
        const QString entry = path("share/applications/" + AppId + ".desktop");
        const ChildRun check = run("desktop-file-validate", {entry});
        QVERIFY2(check.exitCode == 0 && check.out.isEmpty(), check.out + check.err);
        // Read as lines: QSettings takes the ";" of a list for a comment.
        QFile file(entry);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = file.readAll().split('\n');
        QVERIFY(lines.contains("Exec=vorlan %u"));
        QVERIFY(lines.contains("Icon=" + AppId.toUtf8()));
        QVERIFY(lines.contains("MimeType=x-scheme-handler/http;x-scheme-handler/https;"));
        // Listed as able, never made the default: no mimeapps.list is installed.
        QVERIFY(QDir(path("share/applications")).entryList({"*.list"}).isEmpty());
    }

    void theAppStreamMetadataIsValidAndNamesTheEntry()
    {
        const QString metainfo = path("share/metainfo/" + AppId + ".metainfo.xml");
        const ChildRun check = run("appstreamcli", {"validate", "--no-net", metainfo});
        QVERIFY2(check.exitCode == 0, check.out + check.err);
        QFile file(metainfo);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.contains("<id>" + AppId.toUtf8() + "</id>"));
        QVERIFY(text.contains(">" + AppId.toUtf8() + ".desktop</launchable>"));
        QVERIFY(text.contains("<release version=\"1.0\""));
    }

    void theManualPageRendersWithoutWarnings()
    {
        const ChildRun man = run("man", {"--warnings", "-l", path("share/man/man1/vorlan.1")});
        QVERIFY2(man.exitCode == 0, man.err.constData());
        QCOMPARE(man.err, QByteArray());
        for (const char* part : {"SYNOPSIS", "OPTIONS", "FILES", "ENVIRONMENT", "--version",
                                 "Vorlan 1.0.ini", "GeoData.db", "XDG_DATA_HOME"})
            QVERIFY2(man.out.contains(part), part);
    }

    void theIconComesAsSvgAndInEachPixelSize()
    {
        const QString hicolor = path("share/icons/hicolor/");
        QVERIFY(QFileInfo(hicolor + "scalable/apps/" + AppId + ".svg").isFile());
        const QStringList sizes = QDir(hicolor).entryList({"*x*"}, QDir::Dirs);
        QCOMPARE(sizes, QStringList({"128x128", "16x16", "22x22", "24x24", "256x256", "32x32",
                                     "48x48", "64x64"}));
        for (const QString& size : sizes) {
            const QImage png(hicolor + size + "/apps/" + AppId + ".png");
            const int side = size.section('x', 0, 0).toInt();
            QCOMPARE(png.size(), QSize(side, side));
            // Drawn, not blank: the frame's corner is see-through, the middle is not.
            QCOMPARE(qAlpha(png.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(png.pixel(side / 2, side / 2)), 255);
        }
    }

    void theHelpPagesAreInTheDocumentationFolder()
    {
        for (const char* page : {"index.html", "commandline.html", "help.css"})
            QVERIFY2(QFileInfo(path("share/doc/vorlan/") + page).isFile(), page);
    }
};

QTEST_GUILESS_MAIN(TestInstalledFiles)

#include "TestInstalledFiles.moc"
