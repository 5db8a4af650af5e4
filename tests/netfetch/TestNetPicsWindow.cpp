#include "EngineEnvironment.h"
#include "WindowsRig.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOne.h"
#include "netfetch/frmNetPics.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QWebEngineView>
#include <QtTest>

class TestNetPicsWindow : public QObject
{
    Q_OBJECT

private slots:
    // The user reads the numbering from one address, builds the pages and
    // pages through them in Browser One, whose engine loads them.
    void picturePagesThroughTheWindow()
    {
        WindowsRig r;
        TestContext& t = r.t;
        QAction* entry = r.main->findChild<QAction*>("mnuNetPic");
        QVERIFY(entry->isEnabled());
        entry->trigger();
        frmNetPics* w = WindowsRig::topLevel<frmNetPics>();
        QVERIFY(w);
        QVERIFY(QTest::qWaitForWindowExposed(w));
        QCOMPARE(w->windowTitle(), QString("Photos from Internet sites"));

        QLineEdit* autoFill = w->findChild<QLineEdit*>("txtAutoFill");
        QTest::keyClicks(autoFill, "http://pics.example.com/album/img007.jpg");
        QTest::mouseClick(w->findChild<QPushButton*>("cmdNPAutoDrop"), Qt::LeftButton);
        QCOMPARE(w->findChild<QLineEdit*>("txtPref")->text(), QString("img"));
        QCOMPARE(w->findChild<QLineEdit*>("txtSNum")->text(), QString("001"));
        QVERIFY(w->findChild<QCheckBox*>("chkUniform")->isChecked());
        QLineEdit* end = w->findChild<QLineEdit*>("txtENum");
        end->selectAll();
        QTest::keyClicks(end, "6x0"); // letters are dropped
        QCOMPARE(end->text(), QString("60"));

        QTest::mouseClick(w->findChild<QPushButton*>("cmdStart"), Qt::LeftButton);
        QVERIFY(t.prompts.messages().isEmpty());
        QTRY_VERIFY(!w->isVisible() || w->isHidden());
        frmWBOne* browser = r.windows.browserOne();
        QVERIFY(browser);
        QSignalSpy loads(browser->WBOne(), &QWebEngineView::loadFinished);
        QTRY_COMPARE_WITH_TIMEOUT(browser->control().LocationName(), QString("NetPic"), 40000);
        QVERIFY(browser->control().LocationURL().endsWith("/N_P_Temp.htm"));

        QTRY_VERIFY_WITH_TIMEOUT(loads.size() >= 1, 40000);
        QTest::mouseClick(browser->findChild<QPushButton*>("cmdNext"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(browser->control().LocationURL().endsWith("/N_P_Temp_1.htm"),
                                 40000);
        QTRY_VERIFY2_WITH_TIMEOUT(loads.size() >= 2, qPrintable(QString::number(loads.size())),
                                  40000);
        for (const QList<QVariant>& load : loads)
            QVERIFY(load.value(0).toBool());
        QVERIFY(!QFile::exists(t.ctx.appPath + "N_P_Temp.tmp"));
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestNetPicsWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestNetPicsWindow.moc"
