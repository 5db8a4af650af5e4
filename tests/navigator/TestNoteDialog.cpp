#include "NavigatorRig.h"
#include "WidgetChecks.h"
#include "navigator/frmWBONote.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

// The note window on the offscreen screen: what it shows and what its
// buttons store.
class TestNoteDialog : public QObject
{
    Q_OBJECT

private slots:
    void okStoresTheNoteAsTheBoxHoldsItAndCancelStoresNothing()
    {
        NavigatorRig r;
        r.start();
        r.t.state.gstrDefaultNote = QString(300, 'n');
        auto noTitle = [] { return QString(); };
        {
            frmWBONote note(r.t.ctx, r.nav.savedLinks(), noTitle);
            QCOMPARE(note.windowTitle(), QString("Enter a note!"));
            QVERIFY(note.isModal());
            QVERIFY(r.t.state.gblnNoteOpen);
            auto* ok = note.findChild<QPushButton*>("Command1");
            auto* cancel = note.findChild<QPushButton*>("Command2");
            QVERIFY(ok && cancel);
            QCOMPARE(ok->text(), QString("&Ok"));
            QCOMPARE(cancel->text(), QString("Cancel"));
            QLineEdit* box = note.findChild<QLineEdit*>("txtComment");
            QCOMPARE(box, note.txtComment());
            QCOMPARE(box->text(), QString(255, 'n'));
            QCOMPARE(WidgetChecks::unnamedControls(&note), QStringList());
            QTest::mouseClick(cancel, Qt::LeftButton);
            QVERIFY(!r.t.state.gblnNoteOpen);
        }
        QCOMPARE(r.t.db.recordCount("UsaSaved"), 0);

        frmWBONote note(r.t.ctx, r.nav.savedLinks(), noTitle);
        note.show();
        note.txtComment()->clear();
        QTest::keyClicks(note.txtComment(), "A fine page");
        QTest::mouseClick(note.findChild<QPushButton*>("Command1"), Qt::LeftButton);
        QVERIFY(!note.isVisible());
        QVERIFY(!r.t.state.gblnNoteOpen);
        QCOMPARE(r.nav.controls().cmbSavedLinks.items(), QStringList({"A fine page"}));
    }
};

QTEST_MAIN(TestNoteDialog)
#include "TestNoteDialog.moc"
