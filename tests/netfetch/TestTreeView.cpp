#include "EngineEnvironment.h"
#include "WindowsRig.h"
#include "browserone/frmWBOne.h"
#include "netfetch/frmTreeView.h"

#include <QAction>
#include <QApplication>
#include <QTreeWidget>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

namespace {
struct TreeWindowRig : WindowsRig
{
    QAction* geoTreeEntry() { return main->findChild<QAction*>("mnuGeoTree"); }
    frmTreeView* tree() { return topLevel<frmTreeView>(true); }
};
} // namespace

class TestTreeView : public QObject
{
    Q_OBJECT

private slots:
    void theMenuEntryTogglesTheTree()
    {
        TreeWindowRig r;
        QVERIFY(r.geoTreeEntry()->isEnabled());
        r.geoTreeEntry()->trigger();
        frmTreeView* tree = r.tree();
        QVERIFY(tree);
        QCOMPARE(tree->windowTitle(), QString("GeoTree"));
        QVERIFY(r.t.state.gblnTreeShown && r.geoTreeEntry()->isChecked());
        QCOMPARE(tree->x(), 0);
        r.geoTreeEntry()->trigger();
        QTRY_VERIFY(!r.tree());
        QVERIFY(!r.t.state.gblnTreeShown && !r.geoTreeEntry()->isChecked());
        // Closing the tree itself gives the menu entry back.
        r.geoTreeEntry()->trigger();
        r.tree()->close();
        QVERIFY(!r.geoTreeEntry()->isChecked());
        QVERIFY(!r.t.state.gblnTreeShown);
    }

    // The tree shows one site: the region switch closes it.
    void theRegionSwitchClosesTheTree()
    {
        TreeWindowRig r;
        r.geoTreeEntry()->trigger();
        QVERIFY(r.tree());
        r.main->findChild<QAction*>("mnuJapan")->trigger();
        QTRY_VERIFY(!r.tree());
        QVERIFY(!r.t.state.gblnTreeShown && !r.geoTreeEntry()->isChecked());
        r.geoTreeEntry()->trigger();
        QCOMPARE(r.tree()->tvwGeo()->topLevelItem(0)->text(0), QString("GeoCities Japan"));
    }

    void aClickOnANeighborhoodOpensItsBlocksBesideTheTree()
    {
        TreeWindowRig r;
        r.geoTreeEntry()->trigger();
        frmTreeView* tree = r.tree();
        QVERIFY(QTest::qWaitForWindowExposed(tree));
        QTreeWidget* view = tree->findChild<QTreeWidget*>("tvwGeo");
        QTreeWidgetItem* first = view->topLevelItem(0)->child(0);
        const QString name = r.t.state.catalogue.name(1);
        QCOMPARE(first->text(0), name);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualItemRect(first).center());
        frmWBOne* browser = r.windows.browserOne();
        QVERIFY(browser);
        QTRY_COMPARE(browser->WBOne()->page()->requestedUrl().toString(),
                     QString("http://www.geocities.com/%1/blocks.html").arg(name));
        QVERIFY(browser->x() >= tree->frameGeometry().right());
        QCOMPARE(r.windows.browserOne()->isVisible(), true);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestTreeView test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestTreeView.moc"
