#include "JetWriter.h"
#include "WidgetChecks.h"
#include "WordListRig.h"
#include "browsertwo/WordListWindows.h"
#include "browsertwo/frmMdb.h"
#include "browsertwo/frmNPListName.h"
#include "core/SettingsKeys.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QtTest>

// The name dialog and the database dialog through their real widgets.
class TestWordListWindows : public QObject
{
    Q_OBJECT

    // Chooses an entry of a combo box with the mouse, in its open list.
    static void pick(QComboBox* box, const QString& text)
    {
        box->showPopup();
        QAbstractItemView* list = box->view();
        QTRY_VERIFY(list->isVisible());
        const QModelIndex entry = list->model()->index(box->findText(text), 0);
        list->scrollTo(entry);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        QTRY_VERIFY(!list->isVisible());
    }

    // Plays a window once find gives it shown: the rules may pump events
    // before they show it, so a single posted call could come too early.
    void whenShown(const std::function<QWidget*()>& find, const std::function<void(QWidget*)>& play)
    {
        auto* poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [poll, find, play] {
            QWidget* window = find();
            if (!window || !window->isVisible())
                return;
            poll->stop();
            poll->deleteLater();
            play(window);
        });
        poll->start(10);
    }

private slots:
    void theNameDialogTakesLettersDigitsAndBlanksOnly()
    {
        WordListRig r;
        WordListWindows windows(r.t.ctx, r.host);
        r.setSites({"one", "two"});
        bool played = false;
        auto nameDialog = [&windows]() -> QWidget* { return windows.listNameDialog(); };
        whenShown(nameDialog, [&](QWidget*) {
            frmNPListName* dialog = windows.listNameDialog();
            QVERIFY(!dialog->isModal());
            auto closer = qScopeGuard([dialog] { dialog->close(); });
            QCOMPARE(dialog->windowTitle(), QString("New List Name"));
            QCOMPARE(WidgetChecks::unnamedControls(dialog), QStringList());
            QLineEdit* box = dialog->txtNLName();
            QTest::keyClicks(box, "My list-1!#");
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString("\u00e9"), {});
            QTest::keyClick(box, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
            QTest::keyClick(box, Qt::Key_Backspace);
            QTest::keyClick(box, Qt::Key_Home);
            // The desktop sends Delete with the text DEL.
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_Delete, QString(QChar(0x7f)), {});
            QCOMPARE(box->text(), QString("y list"));

            auto* ok = dialog->findChild<QPushButton*>("cmdNLOK[0]");
            box->clear();
            QTest::keyClicks(box, " abort ");
            QTest::mouseClick(ok, Qt::LeftButton);
            QCOMPARE(r.t.prompts.messages().last(),
                     QString("abort is not allowed, please choose another!"));
            QCOMPARE(box->text(), QString(""));
            QTest::mouseClick(ok, Qt::LeftButton);
            QCOMPARE(r.t.prompts.messages().last(),
                     QString("Please type a name for this word list!"));
            QTest::keyClicks(box, "Words 2 ");
            QTest::mouseClick(ok, Qt::LeftButton);
            QVERIFY(!dialog->isVisible());
            played = true;
        });
        QVERIFY(windows.actions().CreateWordListDb());
        QVERIFY(played);
        QCOMPARE(windows.actions().FillListNames(), QStringList({"Words 2"}));

        // Escape is Cancel: nothing is added, and the wait ends.
        whenShown(nameDialog, [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        r.setSites({"three"});
        QVERIFY(!windows.actions().AddWordList());
        QCOMPARE(windows.actions().FillListNames(), QStringList({"Words 2"}));
    }

    void theDatabaseDialogIsChosenWithTheMouseAndIgnoresKeys()
    {
        WordListRig r;
        WordListWindows windows(r.t.ctx, r.host);
        JetWriter w;
        w.addTable("Alpha", {"Code"}, {{"one"}});
        w.addTable("Names", {"Id", "Nick"}, {{"1", "Skater99"}, {"2", "Moonbeam"}});
        const QString file = r.t.folders.root() + "/names.mdb";
        QVERIFY(w.write(file));
        r.t.prompts.answerPath(file);
        bool played = false;
        auto modal = [] { return QApplication::activeModalWidget(); };
        whenShown(modal, [&](QWidget* window) {
            auto* dialog = qobject_cast<frmMdb*>(window);
            QVERIFY(dialog);
            auto closer = qScopeGuard([dialog] { dialog->reject(); });
            QCOMPARE(dialog->windowTitle(), QString("Select Data Source"));
            QCOMPARE(WidgetChecks::unnamedControls(dialog), QStringList());
            auto* tables = dialog->findChild<QComboBox*>("cmbTables");
            auto* fields = dialog->findChild<QComboBox*>("cmbName");
            QVERIFY(tables && fields);
            // Typing does not choose: keyboard search would pick "Names".
            tables->setFocus();
            QTest::keyClick(tables, Qt::Key_N);
            QTest::keyClick(tables, Qt::Key_Down);
            WidgetChecks::wheel(tables, -1);
            QCOMPARE(tables->currentIndex(), -1);
            QCOMPARE(fields->count(), 0);

            pick(tables, "Names");
            QCOMPARE(fields->count(), 2);
            pick(fields, "Nick");
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmd[0]"), Qt::LeftButton);
            QVERIFY(!dialog->isVisible());
            played = true;
        });
        QVERIFY(windows.actions().PickWordSource(""));
        QVERIFY(played);
        QCOMPARE(r.sites(), QStringList({"skater99", "moonbeam"}));

        // Closed from its frame: no source.
        r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::DBTable, "");
        r.t.prompts.answerPath(file);
        whenShown(modal, [](QWidget* dialog) { dialog->close(); });
        QVERIFY(!windows.actions().PickWordSource(""));
        QCOMPARE(r.t.state.gstrMdbResult, QString("aborted"));
    }
};

QTEST_MAIN(TestWordListWindows)
#include "TestWordListWindows.moc"
