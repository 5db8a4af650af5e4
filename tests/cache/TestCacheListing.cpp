#include "TestFolders.h"
#include "cache/CacheListing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// Makes count empty files name0000.ext ... in folder.
void makeFiles(const QString& folder, int count, const QString& stem, const QString& ext)
{
    QDir().mkpath(folder);
    for (int i = 0; i < count; ++i) {
        QFile f(QStringLiteral("%1/%2%3.%4").arg(folder, stem).arg(i, 5, 10, QChar('0')).arg(ext));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
}

// Reads folders as an ordinary user would: as root, permissions bind only
// under another effective user id.
class AsOtherUser
{
public:
    AsOtherUser() : m_root(::geteuid() == 0)
    {
        if (m_root && ::seteuid(65534) != 0)
            m_root = false;
    }
    ~AsOtherUser()
    {
        if (m_root && ::seteuid(0) != 0)
            qFatal("cannot return to root");
    }

private:
    bool m_root;
};
} // namespace

class TestCacheListing : public QObject
{
    Q_OBJECT

private slots:
    void patterns_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("fits");
        QTest::newRow("case blind") << "Page.HTM"
                                    << "htm" << true;
        QTest::newRow("longer ext") << "page.html"
                                    << "htm" << false;
        QTest::newRow("last dot") << "a.b.htm"
                                  << "htm" << true;
        QTest::newRow("all") << "noext"
                             << "*" << true;
        QTest::newRow("no ext") << "noext"
                                << "htm" << false;
        QTest::newRow("widened one") << "a.h"
                                     << "h??" << true;
        QTest::newRow("widened two") << "a.ht"
                                     << "h??" << true;
        QTest::newRow("widened three") << "a.htm"
                                       << "h??" << true;
        QTest::newRow("widened four") << "a.html"
                                      << "h??" << false;
        QTest::newRow("one letter exact") << "a.ht"
                                          << "h" << false;
        QTest::newRow("bracket literal") << "a.[x"
                                         << "[x" << true;
        QTest::newRow("dot file") << ".htm"
                                  << "htm" << true;
    }
    void patterns()
    {
        QFETCH(QString, name);
        QFETCH(QString, pattern);
        QFETCH(bool, fits);
        QCOMPARE(CacheListing::nameFits(name.toUtf8(), pattern.toUtf8()), fits);
    }

    // The 20,000-file limit cuts a folder in the middle; the report still
    // counts the folders with hits.
    void fileLimit()
    {
        TestFolders f;
        const QString root = f.root() + "/cache/";
        makeFiles(root, 15000, "a", "htm");
        makeFiles(root + "sub", 6000, "b", "htm");
        const auto found = CacheListing::list(root, true, "htm", QString());
        QCOMPARE(found.files.size(), CacheListing::MaxFiles);
        QCOMPARE(found.files.last(), root + "sub/b04999.htm");
        QCOMPARE(CacheListing::report(found), QString("I Found 20000 Files in 2 Subs!"));
        const auto flat = CacheListing::list(root, false, "htm", QString());
        QCOMPARE(CacheListing::report(flat), QString("I Found 15000 Files."));
    }

    // The root and the first 199 sub-folders, one level deep only.
    void folderLimitAndDepth()
    {
        TestFolders f;
        const QString root = f.root() + "/cache/";
        for (int i = 0; i < 205; ++i)
            QVERIFY(putFile(root + QStringLiteral("s%1/x.gif").arg(i, 3, 10, QChar('0'))));
        QVERIFY(putFile(root + "s000/deeper/y.gif"));
        QVERIFY(putFile(root + "top.gif"));
        const auto found = CacheListing::list(root, true, "gif", QString());
        QCOMPARE(found.subFolders, 199);
        QCOMPARE(found.files.size(), 200);
        QCOMPARE(found.files.first(), root + "top.gif");
        QCOMPARE(found.files.last(), root + "s198/x.gif");
        QVERIFY(!found.files.contains(root + "s000/deeper/y.gif"));
        QCOMPARE(CacheListing::report(found), QString("I Found 200 Files in 200 Subs!"));
    }

    // The filter looks at the name only, as plain text, without case.
    void nameFilter()
    {
        TestFolders f;
        const QString root = f.root() + "/logo/";
        for (const char* name : {"logo.gif", "Big LOGO.gif", "other.gif", "lo*go.gif"})
            QVERIFY(putFile(root + name));
        QVERIFY(putFile(root + "sub/plain.gif"));
        auto found = CacheListing::list(root, true, "gif", "logo");
        QCOMPARE(found.files, QStringList({root + "Big LOGO.gif", root + "logo.gif"}));
        found = CacheListing::list(root, true, "gif", "lo*go");
        QCOMPARE(found.files, QStringList({root + "lo*go.gif"}));
    }

    // Odd names list as paths that open; links are followed one level,
    // loops and broken links are passed over.
    void oddNamesAndLinks()
    {
        TestFolders f;
        const QString root = f.root() + "/odd/";
        const QStringList names = {"with space.htm", "br[ack]et.htm", "qu\"ote's.htm",
                                   ".hidden.htm"};
        for (const QString& name : names)
            QVERIFY(putFile(root + name, "x"));
        QVERIFY(putFile(root + "real/inner.htm", "y"));
        QVERIFY(QFile::link(root + "with space.htm", root + "link.htm"));
        QVERIFY(QFile::link(root + "real", root + "linkdir"));
        QVERIFY(QFile::link(root + "loop.htm", root + "loop.htm"));
        QVERIFY(QFile::link(root + "gone", root + "broken.htm"));
        QVERIFY(QFile::link("..", root + "real/up"));
        const QByteArray latin = QFile::encodeName(root) + "caf\xe9.htm";
        QVERIFY(::close(::creat(latin.constData(), 0600)) == 0);

        const auto found = CacheListing::list(root, true, "htm", QString());
        QCOMPARE(found.files.size(), 8);
        for (const QString& name : names + QStringList{"link.htm"})
            QVERIFY2(found.files.contains(root + name), qPrintable(name));
        QVERIFY(found.files.contains(root + "real/inner.htm"));
        QVERIFY(found.files.contains(root + "linkdir/inner.htm"));
        for (const QString& path : found.files) {
            if (!path.contains(QChar::ReplacementCharacter))
                QVERIFY2(QFileInfo(path).isFile(), qPrintable(path));
        }
        QVERIFY(!found.stoppedByError);
    }

    // A folder that cannot be read ends the listing there; a folder that is
    // gone lists nothing, in the short form.
    void unreadableAndVanished()
    {
        TestFolders f;
        const QString root = f.root() + "/faults/";
        QVERIFY(putFile(root + "a.txt"));
        QVERIFY(putFile(root + "b_locked/in.txt"));
        QVERIFY(putFile(root + "c_open/in.txt"));
        for (const QString& path : {f.root(), root, root + "c_open"})
            ::chmod(QFile::encodeName(path).constData(), 0755);
        ::chmod(QFile::encodeName(root + "b_locked").constData(), 0);
        CacheListing::Result found;
        {
            AsOtherUser user;
            found = CacheListing::list(root, true, "txt", QString());
        }
        QVERIFY(found.stoppedByError);
        QCOMPARE(found.files, QStringList({root + "a.txt"}));
        ::chmod(QFile::encodeName(root + "b_locked").constData(), 0700);

        QVERIFY(QDir(root).removeRecursively());
        const auto gone = CacheListing::list(root, true, "txt", QString());
        QVERIFY(gone.files.isEmpty());
        QCOMPARE(CacheListing::report(gone), QString("I Found 0 Files."));
    }
};

QTEST_GUILESS_MAIN(TestCacheListing)
#include "TestCacheListing.moc"
