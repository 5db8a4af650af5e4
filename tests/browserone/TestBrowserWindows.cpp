#include "TestFolders.h"
#include "browserone/BrowserWindowList.h"
#include "browserone/Favorites.h"

#include <QFile>
#include <QtTest>

class TestBrowserWindows : public QObject
{
    Q_OBJECT

private slots:
    void theProgramsOwnWindowsComeFirst()
    {
        BrowserWindowList list;
        QObject one, popUp, two, second;
        QStringList closed;
        list.addOwn(&one, [&] { closed << "one"; });
        list.addPopUp(&popUp, [&] { closed << "popUp"; });
        list.addOwn(&two, [&] { closed << "two"; });
        list.addPopUp(&second, [&] { closed << "second"; });
        QCOMPARE(list.count(), 4);
        QCOMPARE(list.at(0), &one);
        QCOMPARE(list.at(1), &two); // made later, listed before the pop-ups
        QCOMPARE(list.at(2), &popUp);
        list.quit(2);
        QCOMPARE(closed, QStringList{"popUp"});
        QCOMPARE(list.count(), 3);
        QCOMPARE(list.at(2), &second);
        list.quit(7); // nothing there: nothing happens
        QCOMPARE(closed.size(), 1);
    }

    void aWindowThatIsGoneLeavesTheList()
    {
        BrowserWindowList list;
        QObject one;
        auto* popUp = new QObject;
        list.addOwn(&one, {});
        list.addPopUp(popUp, {});
        delete popUp;
        QCOMPARE(list.count(), 1);
        QCOMPARE(list.at(1), nullptr);
    }

    void favoritesGoToABookmarksFileOtherBrowsersRead()
    {
        TestFolders f;
        const QString file = f.data() + "/bookmarks.html";
        QVERIFY(
            Favorites::AddFavorite(file, "http://www.geocities.com/SoHo/1000/", "Art & <Poetry>"));
        QVERIFY(Favorites::AddFavorite(file, "http://www.geocities.com/Paris/2000/", ""));
        const QString text = QString::fromUtf8(fileBytes(file));
        QVERIFY(text.startsWith("<!DOCTYPE NETSCAPE-Bookmark-file-1>"));
        QCOMPARE(text.count("<DT><A HREF="), 2);
        QVERIFY(text.contains("HREF=\"http://www.geocities.com/SoHo/1000/\""));
        QVERIFY(text.contains(">Art &amp; &lt;Poetry&gt;</A>"));
        // An untitled page is named by its address; the list stays closed.
        QVERIFY(text.contains(">http://www.geocities.com/Paris/2000/</A>"));
        QVERIFY(text.trimmed().endsWith("</DL><p>"));
        QVERIFY(text.indexOf("SoHo") < text.indexOf("Paris"));
        QVERIFY(!Favorites::AddFavorite(f.data() + "/no/such/folder/b.html", "u", "t"));
    }
};

QTEST_GUILESS_MAIN(TestBrowserWindows)
#include "TestBrowserWindows.moc"
