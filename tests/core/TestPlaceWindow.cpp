#include "core/PlaceWindow.h"
#include "core/SharedState.h"

#include <QScreen>
#include <QWidget>
#include <QtTest>

class TestPlaceWindow : public QObject
{
    Q_OBJECT

    static QRect screenArea() { return QGuiApplication::primaryScreen()->availableGeometry(); }

private slots:
    void movesAndSizesInPixels()
    {
        SharedState state;
        QWidget w;
        w.resize(50, 50);
        PlaceWindow(&w, state, "1500", "750", "4500", "7500", false, 0);
        QCOMPARE(w.pos(), QPoint(100, 50));
        QCOMPARE(w.size(), QSize(500, 300));

        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCOMPARE(w.pos(), QPoint(100, 50));
        QCOMPARE(w.size(), QSize(500, 300));
    }

    void aWindowWiderThanTheScreenGetsTheScreensWidth()
    {
        SharedState state;
        QWidget w;
        PlaceWindow(&w, state, "3000", "0", "4500", "999999", false, 0);
        QCOMPARE(w.pos().x(), 0);
        QCOMPARE(w.width(), screenArea().width());
    }

    void keepSizeOnlyMoves()
    {
        SharedState state;
        QWidget w;
        w.resize(123, 234);
        PlaceWindow(&w, state, "300", "150", "4500", "7500", true, 0);
        QCOMPARE(w.pos(), QPoint(20, 10));
        QCOMPARE(w.size(), QSize(123, 234));
    }

    void besideTheTreeTheWindowIsRestored()
    {
        SharedState state;
        state.gblnTreeShown = true;
        QWidget w;
        w.setWindowState(Qt::WindowMaximized);
        PlaceWindow(&w, state, "0", "0", "4500", "7500", false, 3000);
        QCOMPARE(w.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowStates());
        QCOMPARE(w.pos(), QPoint(200, 0));
        QCOMPARE(w.size(), QSize(500, 300));
    }
};

QTEST_MAIN(TestPlaceWindow)
#include "TestPlaceWindow.moc"
