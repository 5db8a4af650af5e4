#include "core/WindowPlace.h"

#include <QtTest>

// A 1024 by 768 pixel screen.
static constexpr int ScreenW = 15360;
static constexpr int ScreenH = 11520;
static constexpr int TreeW = 3000;

class TestWindowPlace : public QObject
{
    Q_OBJECT

    static void addColumns()
    {
        QTest::addColumn<QStringList>("stored"); // left, top, height, width
        QTest::addColumn<QList<int>>("expected");
    }

    static void checkFit(bool treeShown)
    {
        QFETCH(QStringList, stored);
        QFETCH(QList<int>, expected);
        const WindowPlace p = WindowPlace::fit(stored[0], stored[1], stored[2], stored[3], false,
                                               ScreenW, ScreenH, treeShown, TreeW);
        QCOMPARE((QList<int>{p.left, p.top, p.height, p.width}), expected);
        QVERIFY(p.resize);
    }

private slots:
    void withoutTree_data()
    {
        addColumns();
        QTest::newRow("all empty is the smallest window at the corner")
            << QStringList{"", "", "", ""} << QList<int>{0, 0, 3300, 5000};
        QTest::newRow("inside the screen stays")
            << QStringList{"1200", "900", "6000", "8000"} << QList<int>{1200, 900, 6000, 8000};
        QTest::newRow("wider than the screen goes to the left edge")
            << QStringList{"3000", "100", "4000", "20000"} << QList<int>{0, 100, 4000, ScreenW};
        QTest::newRow("taller than the screen leaves room for the task bar")
            << QStringList{"100", "5000", "12000", "6000"}
            << QList<int>{100, 0, ScreenH - 450, 6000};
        QTest::newRow("negative left and top")
            << QStringList{"-500", "-20", "4000", "6000"} << QList<int>{0, 0, 4000, 6000};
        QTest::newRow("off the bottom and the right")
            << QStringList{"14000", "10000", "4000", "6000"}
            << QList<int>{ScreenW - 6000, ScreenH - 4000 - 450, 4000, 6000};
        QTest::newRow("just fitting at the bottom right stays")
            << QStringList{"9360", "7520", "4000", "6000"} << QList<int>{9360, 7520, 4000, 6000};
        // The top is made non-negative before the bottom rule, which may
        // push it above the screen again.
        QTest::newRow("nearly screen high, moved up past the edge")
            << QStringList{"0", "500", "11400", "6000"}
            << QList<int>{0, ScreenH - 11400 - 450, 11400, 6000};
    }
    void withoutTree() { checkFit(false); }

    void besideTree_data()
    {
        addColumns();
        // No width minimum beside the tree.
        QTest::newRow("all empty keeps right of the tree")
            << QStringList{"", "", "", ""} << QList<int>{TreeW, 0, 3300, 0};
        QTest::newRow("wider than the room beside the tree")
            << QStringList{"500", "0", "4000", "14000"}
            << QList<int>{TreeW, 0, 4000, ScreenW - TreeW};
        // Beside the tree nothing keeps the window from the right edge.
        QTest::newRow("off the right stays off")
            << QStringList{"14000", "0", "4000", "8000"} << QList<int>{14000, 0, 4000, 8000};
        QTest::newRow("taller than the screen") << QStringList{"4000", "300", "20000", "6000"}
                                                << QList<int>{4000, 0, ScreenH - 450, 6000};
        QTest::newRow("off the bottom") << QStringList{"4000", "10000", "4000", "6000"}
                                        << QList<int>{4000, ScreenH - 4000 - 450, 4000, 6000};
        QTest::newRow("negative top, low height")
            << QStringList{"4000", "-100", "1000", "6000"} << QList<int>{4000, 0, 3300, 6000};
    }
    void besideTree() { checkFit(true); }

    void storedTextsAreReadForTheirNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("top");
        QTest::newRow("blanks") << " 4 50 " << 450;
        QTest::newRow("fraction rounds") << "1500.6" << 1501;
        QTest::newRow("trailing garbage") << "700px" << 700;
        QTest::newRow("no number") << "abc" << 0;
        QTest::newRow("huge is the bottom rule's") << "1e30" << ScreenH - 3300 - 450;
    }
    void storedTextsAreReadForTheirNumber()
    {
        QFETCH(QString, text);
        QFETCH(int, top);
        QCOMPARE(WindowPlace::fit("0", text, "", "", false, ScreenW, ScreenH, false, 0).top, top);
    }

    void keepSizeStillPlacesByTheStoredSize()
    {
        const WindowPlace p =
            WindowPlace::fit("14000", "0", "4000", "6000", true, ScreenW, ScreenH, false, 0);
        QVERIFY(!p.resize);
        QCOMPARE(p.left, ScreenW - 6000);
    }

    void twipsAndPixels()
    {
        QCOMPARE(pixelsToTwips(3), 45);
        QCOMPARE(twipsToPixels(7), 0);
        QCOMPARE(twipsToPixels(8), 1);
        QCOMPARE(twipsToPixels(-8), -1);
        QCOMPARE(twipsToPixels(3300), 220);
        for (int px : {-40, 0, 1, 333, 1024})
            QCOMPARE(twipsToPixels(pixelsToTwips(px)), px);
    }
};

QTEST_APPLESS_MAIN(TestWindowPlace)
#include "TestWindowPlace.moc"
