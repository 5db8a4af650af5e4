#include "core/SharedState.h"
#include "core/frmStartUp.h"

#include <QtTest>

// The splash window on the offscreen screen.
class TestStartUpWindow : public QObject
{
    Q_OBJECT

private slots:
    void theTextsShowAsTheProgramWritesThem()
    {
        SharedState state;
        frmStartUp splash(state);
        // Leading blanks stay; the carriage returns behind are line breaks.
        QCOMPARE(splash.lblStartUp[0]->text(), QString("   Vorlan Version 1.00\n\n"));
        QCOMPARE(splash.lblStartUp[1]->text().left(1), QString("\n"));

        splash.show();
        QVERIFY(QTest::qWaitForWindowExposed(&splash));
        QVERIFY(state.gblnStartUpShown);
        QLabel* status = splash.lblStartUp[3];
        for (const QString text : {"    Creating Database...", "    Loading Data..."}) {
            splash.setLabel(3, text);
            QCOMPARE(status->text(), text);
            // The window keeps its size: the line must still fit in it.
            QVERIFY(status->width() >= status->sizeHint().width());
            QVERIFY(status->height() >= status->sizeHint().height());
        }
    }
};

QTEST_MAIN(TestStartUpWindow)
#include "TestStartUpWindow.moc"
