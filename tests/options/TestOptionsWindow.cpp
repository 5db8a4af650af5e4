#include "WindowsRig.h"
#include "navigator/NavigatorControls.h"
#include "options/frmAdd.h"
#include "options/frmOpt.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

namespace {
template <typename W> W* child(QWidget* window, const QString& name)
{
    W* found = window->findChild<W*>(name);
    if (!found)
        qWarning("no %s", qPrintable(name));
    return found;
}

void click(QWidget* window, const QString& name)
{
    QTest::mouseClick(child<QAbstractButton>(window, name), Qt::LeftButton);
}

void ctrlTab(QWidget* window)
{
    QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, Qt::Key_Tab,
                    Qt::ControlModifier);
}

void typeInto(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}
} // namespace

class TestOptionsWindow : public QObject
{
    Q_OBJECT

private slots:
    // The menu entry opens the dialog; Ctrl+Tab, filtered typing, frmAdd
    // and Ok through the widgets take effect, and the entry comes back.
    void throughTheRealWidgets()
    {
        WindowsRig w;
        NavigatorControls& menu = w.main->navigator().controls();
        QVERIFY(menu.mnuOptions.isEnabled());
        QStringList seen;
        QTimer::singleShot(0, [&] {
            auto* dialog = WindowsRig::topLevel<frmOpt>(true);
            QVERIFY(dialog);
            dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            seen << dialog->windowTitle();
            QVERIFY(menu.mnuOptions.isChecked() && !menu.mnuOptions.isEnabled());

            auto* wait = child<QLineEdit>(dialog, "txtWaitTime");
            typeInto(wait, "2x-5");
            seen << wait->text();
            ctrlTab(dialog);
            seen << dialog->windowTitle();
            ctrlTab(dialog);
            auto* hoods = child<QComboBox>(dialog, "cmbN");
            QTest::keyClicks(hoods, "A"); // no keyboard search: Area51 stays unchosen
            seen << QString::number(hoods->currentIndex());

            QTimer::singleShot(0, [&] {
                auto* add = WindowsRig::topLevel<frmAdd>(true);
                QVERIFY(add);
                typeInto(child<QLineEdit>(add, "txtAdd[0]"), "A place of mine!");
                typeInto(child<QLineEdit>(add, "txtAdd[1]"), "My-Own_Hood");
                click(add, "cmd[0]");
                click(add, "cmd[1]");
            });
            click(dialog, "cmdAdd[0]");
            seen << hoods->itemText(hoods->count() - 1);

            for (int i = 0; i < 3; ++i)
                ctrlTab(dialog);
            seen << dialog->windowTitle();
            dialog->activateWindow(); // back from frmAdd
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            auto* server = child<QLineEdit>(dialog, "txtSWSServer");
            typeInto(server, "http://my host_here.test");
            auto* sub = child<QLineEdit>(dialog, "txtSWSSub");
            typeInto(sub, "a.b/c d"); // leaving the server box ends it in "/"
            seen << server->text() << sub->text();
            click(dialog, "cmdOk");
        });
        child<QAction>(w.main, "mnuOptions")->trigger();

        QCOMPARE(seen, QStringList({"Basic Options", "25", "Advanced Options", "-1", "MyOwnHood",
                                    "WBTwo Servers With Subs", "http://myhosthere.test/", "abcd"}));
        QVERIFY(!WindowsRig::topLevel<frmOpt>(true));
        QCOMPARE(int(w.t.state.gintGlobalTimer), 25000);
        QVERIFY(w.main->navigator().controls().cmbNeighborhood.items().contains("MyOwnHood"));
        QVERIFY(!menu.mnuOptions.isChecked() && menu.mnuOptions.isEnabled());
    }

    void escapeIsCancel()
    {
        WindowsRig w;
        QTimer::singleShot(0, [&] {
            auto* dialog = WindowsRig::topLevel<frmOpt>(true);
            QVERIFY(dialog);
            typeInto(child<QLineEdit>(dialog, "txtWaitTime"), "30");
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        child<QAction>(w.main, "mnuOptions")->trigger();
        QVERIFY(!WindowsRig::topLevel<frmOpt>(true));
        QCOMPARE(int(w.t.state.gintGlobalTimer), 10000);
        QVERIFY(!w.main->navigator().controls().mnuOptions.isChecked());
    }
};

QTEST_MAIN(TestOptionsWindow)
#include "TestOptionsWindow.moc"
