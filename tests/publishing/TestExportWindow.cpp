#include "EngineEnvironment.h"
#include "EngineScript.h"
#include "WindowsRig.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOne.h"
#include "core/TableNames.h"
#include "publishing/frmExport.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

class TestExportWindow : public QObject
{
    Q_OBJECT

private slots:
    // The user opens "Export Links", picks the page of Browser One's links
    // and its loading, and Browser One shows the page that was written.
    void pageExportedAndOpened()
    {
        WindowsRig r;
        TestContext& t = r.t;
        const TableNameArray& tables = t.state.gastrTables;
        t.db.append("UsaSaved", FieldNames(tables, Tbl::UsaSaved),
                    {{"SoHo", "Lofts", "1234", "<script>x()</script> \"Art\"", ""},
                     {"Area51", "", "7", "Space & more", "1/1/1999"}});
        t.db.append("JapanSaved", FieldNames(tables, Tbl::JapanSaved),
                    {{"Tokyo", "", "1500", "shop", "2/2/2000"}});

        QAction* entry = r.main->findChild<QAction*>("mnuExport");
        QVERIFY(entry->isEnabled());
        entry->trigger();
        frmExport* w = WindowsRig::topLevel<frmExport>(true);
        QVERIFY(w);
        QVERIFY(QTest::qWaitForWindowExposed(w));
        QCOMPARE(w->windowTitle(), QString("Export Saved Links"));
        auto* load = w->findChild<QCheckBox*>("chkLoadInIE");
        QVERIFY(load->isHidden());
        for (int i = 0; i < 4; ++i)
            QVERIFY(!w->findChild<QRadioButton*>(QString("optExport[%1]").arg(i))->isChecked());

        auto* page = w->findChild<QRadioButton*>("optExport[1]");
        QTest::mouseClick(page, Qt::LeftButton);
        QTest::mouseClick(page, Qt::LeftButton); // a second click keeps the choice
        QVERIFY(page->isChecked());
        QVERIFY(load->isVisible());
        QTest::mouseClick(w->findChild<QRadioButton*>("optExport[0]"), Qt::LeftButton);
        QVERIFY(!page->isChecked());
        QVERIFY(load->isHidden());
        QTest::mouseClick(page, Qt::LeftButton);
        QTest::mouseClick(load, Qt::LeftButton);
        QVERIFY(load->isChecked());
        QTest::mouseClick(w->findChild<QPushButton*>("cmdExport"), Qt::LeftButton);
        QVERIFY(t.prompts.messages().isEmpty());
        QTRY_VERIFY(!WindowsRig::topLevel<frmExport>());

        const QString path = t.ctx.appPath + "WBO_Links.Htm";
        QVERIFY(QFile::exists(path));
        frmWBOne* browser = r.windows.browserOne();
        QVERIFY(browser);
        QTRY_VERIFY_WITH_TIMEOUT(browser->control().LocationURL().endsWith("/WBO_Links.Htm"),
                                 40000);
        QTRY_COMPARE_WITH_TIMEOUT(browser->control().LocationName(),
                                  QString("Vorlan Html Link Export"), 40000);
        QCOMPARE(evaluateScript(browser->WBOne()->page(),
                                "[document.querySelectorAll('tr').length, document.scripts.length,"
                                " document.links[0].textContent, document.links[0].href,"
                                " document.querySelectorAll('td')[1].textContent].join('|')"),
                 QString("4|0|<script>x()</script> \"Art\"|http://www.geocities.com/SoHo/Lofts/"
                         "1234/|No date available"));
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestExportWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestExportWindow.moc"
