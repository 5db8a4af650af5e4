#include "TestFolders.h"
#include "core/HelpPages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

namespace {

QStringList linksIn(const QString& html)
{
    QStringList links;
    static const QRegularExpression attribute(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
    auto found = attribute.globalMatch(html);
    while (found.hasNext())
        links << found.next().captured(1);
    return links;
}

} // namespace

class TestHelpPages : public QObject
{
    Q_OBJECT

private slots:
    void theContentsAreBuiltIntoTheProgram()
    {
        const QUrl index = HelpPages::indexUrl();
        QCOMPARE(index, QUrl(QStringLiteral("qrc:/help/index.html")));
        QVERIFY(fileBytes(QLatin1Char(':') + index.path()).contains("<title>"));
    }

    void extractionWritesEveryPageAndEveryLinkLeadsToOne()
    {
        QTemporaryDir tmp;
        const QString folder = tmp.filePath(QStringLiteral("not/yet/there"));
        const QString index = HelpPages::extractTo(folder);
        QCOMPARE(index, QDir(folder).filePath(QStringLiteral("index.html")));

        const QStringList pages = QDir(folder).entryList(QDir::Files);
        QVERIFY(pages.size() > 3);
        const QStringList fromIndex = linksIn(fileBytes(index));
        for (const QString& page : pages) {
            QCOMPARE(fileBytes(QDir(folder).filePath(page)), fileBytes(":/help/" + page));
            if (page != QLatin1String("index.html"))
                QVERIFY2(fromIndex.contains(page), qPrintable(page + " is not in the contents"));
            // Every link stays inside the help: no outside page, picture or style.
            for (const QString& link : linksIn(fileBytes(QDir(folder).filePath(page)))) {
                const QString target = link.section(QLatin1Char('#'), 0, 0);
                QVERIFY2(!target.contains(QLatin1Char(':')), qPrintable(page + ": " + link));
                QVERIFY2(target.isEmpty() || QFile::exists(QDir(folder).filePath(target)),
                         qPrintable(page + ": " + link));
            }
        }
    }

    void extractingAgainReplacesOldCopies()
    {
        QTemporaryDir tmp;
        const QString index = HelpPages::extractTo(tmp.path());
        QVERIFY(!index.isEmpty());
        QVERIFY(putFile(index, "old"));
        QCOMPARE(HelpPages::extractTo(tmp.path()), index);
        QCOMPARE(fileBytes(index), fileBytes(QStringLiteral(":/help/index.html")));
    }

    void theFolderIsTheUsersAlone()
    {
        QTemporaryDir tmp;
        const QString folder = tmp.filePath(QStringLiteral("help"));
        QVERIFY(!HelpPages::extractTo(folder).isEmpty());
        QCOMPARE(QFileInfo(folder).permissions() & 0x0077, QFile::Permissions());

        // One that others may write to is closed to them before it is used.
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
        QVERIFY(!HelpPages::extractTo(folder).isEmpty());
        QCOMPARE(QFileInfo(folder).permissions() & 0x0077, QFile::Permissions());
    }

    void aPlantedFolderIsNotUsed()
    {
        QTemporaryDir tmp;
        const QString elsewhere = tmp.filePath(QStringLiteral("elsewhere"));
        QVERIFY(QDir().mkpath(elsewhere));
        const QString link = tmp.filePath(QStringLiteral("help"));
        QVERIFY(QFile::link(elsewhere, link));
        QVERIFY(HelpPages::extractTo(link).isEmpty());
        QVERIFY(QDir(elsewhere).isEmpty());

        if (::geteuid() != 0)
            QSKIP("a folder of another user needs root to be made");
        const QString theirs = tmp.filePath(QStringLiteral("theirs"));
        QVERIFY(QDir().mkpath(theirs));
        QCOMPARE(::chown(QFile::encodeName(theirs).constData(), 65534, 65534), 0);
        QVERIFY(HelpPages::extractTo(theirs).isEmpty());
        QVERIFY(QDir(theirs).isEmpty());
    }

    void aFolderThatCannotBeMadeGivesNoPath()
    {
        QTemporaryDir tmp;
        const QString file = tmp.filePath(QStringLiteral("plain"));
        QVERIFY(putFile(file));
        QVERIFY(HelpPages::extractTo(file + QStringLiteral("/help")).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHelpPages)
#include "TestHelpPages.moc"
