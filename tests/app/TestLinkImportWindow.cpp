// The link import on real widgets: the Navigator's menu entry, the saved
// links list that shows the new links at once, and the wait notice.
#include "WindowsRig.h"
#include "cache/frmWait.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QtTest>

class TestLinkImportWindow : public QObject
{
    Q_OBJECT

private slots:
    void importLinksFillsTheSavedLinksList()
    {
        WindowsRig r;
        TestContext& t = r.t;
        frmGeoCities* w = r.main;
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w));

        const QString path = t.folders.root() + "/geolinks.ini";
        QVERIFY(putFile(path, "\"SoHo\",\"Lofts\",\"10\",\"01\",\"Art\",\"Saved on: A\"\r\n"
                              "\"Area51\",\"\",\"99\",\"99\",\"Aliens\",\"Saved on: B\"\r\n"));
        t.prompts.answerPath(path);

        QAction* entry = w->findChild<QAction*>("mnuImportLinks");
        QVERIFY(entry && entry->isEnabled());
        entry->trigger();
        auto* list = w->findChild<QComboBox*>("cmbSavedLinks");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->itemText(1), QString("Aliens"));
        QCOMPARE(t.prompts.messages(), QStringList{"2 records successfully added \r"});
    }

    void theWaitNoticeStandsUntilUnloaded()
    {
        SharedState state;
        {
            frmWait wait(state);
            QCOMPARE(wait.lblWait->text(), QString("Loading...."));
            wait.lblWait->setText("Importing...");
            wait.Load();
            QVERIFY(state.gblnStartUpShown);
            QVERIFY(wait.isVisible());
            QVERIFY(QApplication::topLevelWidgets().contains(&wait));
            QVERIFY(wait.lblWait->width() >= wait.lblWait->sizeHint().width());
        }
        QVERIFY(!state.gblnStartUpShown);
    }
};

QTEST_MAIN(TestLinkImportWindow)
#include "TestLinkImportWindow.moc"
