#include "EngineEnvironment.h"
#include "LocalWebServer.h"
#include "WidgetChecks.h"
#include "WindowsRig.h"
#include "browserone/frmWBOne.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QToolButton>
#include <QtTest>
#include <functional>

namespace {
// The captions of a menu's entries, submenus as "caption>" and separators as "-".
QStringList entries(const QMenu* menu)
{
    QStringList list;
    for (QAction* a : menu->actions())
        list << (a->isSeparator() ? QString("-") : a->text() + (a->menu() ? ">" : ""));
    return list;
}

struct WindowRig : WindowsRig
{
    frmGeoCities*& w = main;

    using WindowsRig::WindowsRig;
    void show()
    {
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w));
    }
    template <typename T> T* find(const QString& name)
    {
        T* found = w->findChild<T*>(name);
        if (!found)
            qWarning("no %s", qPrintable(name));
        return found;
    }
    QMenu* menu(const QString& name) { return find<QMenu>(name); }
    // Chooses an entry of a list as the user does.
    void choose(const QString& combo, const QString& text)
    {
        QComboBox* box = find<QComboBox>(combo);
        const int i = box->findText(text);
        QVERIFY(i >= 0);
        box->setCurrentIndex(i);
        emit box->activated(i);
    }
    QString address() { return find<QLineEdit>("txtFullAddress")->text(); }
    // Saves the address on show with a note, as the note dialog's Ok does.
    void saveLink(const QString& note) { w->navigator().savedLinks().SaveNote(note); }
};
} // namespace

class TestGeoCitiesWindow : public QObject
{
    Q_OBJECT

private slots:
    void theMenusStandInTheirOrder()
    {
        WindowRig r;
        QStringList bar;
        for (QAction* a : r.w->menuBar()->actions())
            bar << a->text();
        QCOMPARE(bar, (QStringList{"&File", "&Tools", "Xtras", "&Help"}));
        QCOMPARE(entries(r.menu("mnuFile")),
                 (QStringList{"Sto&p>", "&GeoTree", "Go&Japan", "-", "&Import Links",
                              "&Export Links", "-", "E&xit"}));
        QCOMPARE(entries(r.menu("mnuStop")), (QStringList{"&AutoNav", "&RandNav"}));
        QCOMPARE(
            entries(r.menu("mnuSettings")),
            (QStringList{"Keep OnTo&p", "Publish Files", "Vorlan &Options", "Open pages from>"}));
        QCOMPARE(entries(r.menu("mnuPagesFrom")),
                 (QStringList{"Original addresses", "Internet Archive", "GeoCities gallery",
                              "OoCities mirror", "Local mirror", "-", "Archive year...", "-",
                              "Walk only captured pages", "Refresh capture index"}));
        QCOMPARE(entries(r.menu("mnuXtras")),
                 (QStringList{"&Web Browser Two", "IE&Cache Manager", "Create a web Page",
                              "Load Pictures from file list", "Download files from file list"}));
        QCOMPARE(entries(r.menu("mnuHelp")), (QStringList{"Vorlan>", "GeoCities>", "&About"}));
        QCOMPARE(entries(r.menu("mnuVorlan")), (QStringList{"Help", "Home"}));
        QCOMPARE(entries(r.menu("mnuGeoCitesmain")),
                 (QStringList{"GeoCities", "GeoSearch", "GeoChat"}));
    }

    void theControlsShowTheComposedAddress()
    {
        WindowRig r;
        QCOMPARE(r.find<QComboBox>("cmbNeighborhood")->count(), 41);
        QCOMPARE(r.find<QComboBox>("cmbHouseNumberPrefix")->count(), 90);
        QCOMPARE(r.address(), QString("geocities.com/Area51/1000/"));
        QVERIFY(r.find<QPushButton>("cmdSavedLinks[1]")->isHidden());
        QVERIFY(!r.find<QPushButton>("cmdGoBack")->isEnabled());

        // Each list shows its model's entries in order, refilled or added to.
        NavigatorControls& c = r.w->navigator().controls();
        auto texts = [&r](const char* name) {
            QStringList list;
            QComboBox* box = r.find<QComboBox>(name);
            for (int i = 0; i < box->count(); ++i)
                list << box->itemText(i);
            return list;
        };
        QCOMPARE(texts("cmbNeighborhood"), c.cmbNeighborhood.items());
        QCOMPARE(texts("cmbHouseNumberSuffix"), c.cmbHouseNumberSuffix.items());
        r.choose("cmbNeighborhood", "SoHo");
        QCOMPARE(texts("cmbSuburb"), c.cmbSuburb.items());
        QVERIFY(c.cmbSuburb.items().contains("Lofts"));
        r.choose("cmbSuburb", "Lofts");
        r.choose("cmbHouseNumberPrefix", "42");
        QCOMPARE(r.address(), QString("geocities.com/SoHo/Lofts/4200/"));
        QCOMPARE(r.find<QSlider>("sldrHouseNumber")->value(), 4200);
        QCOMPARE(r.find<QLineEdit>("txtFullAddress")->toolTip(), r.address());

        r.find<QSlider>("sldrHouseNumber")->setValue(5005);
        QCOMPARE(r.address(), QString("geocities.com/SoHo/Lofts/5005/"));
        QCOMPARE(r.find<QComboBox>("cmbHouseNumberSuffix")->currentText(), QString("05"));
    }

    void theButtonsStepTheNumber()
    {
        WindowRig r;
        QTest::mouseClick(r.find<QPushButton>("cmdPrevious"), Qt::LeftButton);
        QCOMPARE(r.address(), QString("geocities.com/Area51/9999/"));
        QTest::mouseClick(r.find<QPushButton>("cmdNext"), Qt::LeftButton);
        QCOMPARE(r.address(), QString("geocities.com/Area51/1000/"));
        // Each step opened the address in Browser One.
        QVERIFY(r.windows.browserOne());
        QTRY_COMPARE(r.windows.browserOne()->rules().txtAddressBar.text(),
                     QString("http://www.geocities.com/Area51/1000/"));
    }

    void goJapanSwitchesTheCatalogueAndCaption()
    {
        WindowRig r;
        QAction* japan = r.w->findChild<QAction*>("mnuJapan");
        japan->trigger();
        QVERIFY(japan->isChecked());
        QCOMPARE(r.w->windowTitle(), QString("Navigate GeoCities Japan"));
        QCOMPARE(r.find<QComboBox>("cmbNeighborhood")->count(), 14);
        QCOMPARE(r.address(), QString("geocities.co.jp/Milkyway/1000/"));
        japan->trigger();
        QVERIFY(!japan->isChecked());
        QCOMPARE(r.w->windowTitle(), QString("Navigate GeoCities USA"));
    }

    void theSourceMenuKeepsOneEntryChecked()
    {
        WindowRig r;
        auto action = [&r](const char* name) { return r.w->findChild<QAction*>(name); };
        QVERIFY(action("mnuPagesOriginal")->isChecked());
        action("mnuPagesOoCities")->trigger();
        QVERIFY(action("mnuPagesOoCities")->isChecked());
        QVERIFY(!action("mnuPagesOriginal")->isChecked());
        // A second press of the checked entry keeps it checked.
        action("mnuPagesOoCities")->trigger();
        QVERIFY(action("mnuPagesOoCities")->isChecked());
        QCOMPARE(r.t.ctx.GetSetting("AdvOpt", "PageSource"), QString("3"));
        QVERIFY(!action("mnuArchiveYear")->isCheckable());
    }

    void theIndexFillsBesideTheMenusAndCanBeStopped()
    {
        WindowRig r;
        LocalWebServer archive([](const QString&) -> LocalWebServer::Reply {
            return {"http://www.geocities.com/Area51/1200/\n", 200, true};
        });
        QVERIFY(archive.start());
        Navigator& nav = r.w->navigator();
        nav.capturedWalk().fetcher().cdxBase = archive.proxyAddress();
        r.w->findChild<QAction*>("mnuPagesArchive")->trigger();
        auto* bar = r.find<QProgressBar>("prgCaptures");
        auto* stop = r.find<QToolButton>("cmdStopCaptures");
        QVERIFY(bar->isHidden() && stop->isHidden());
        QTest::mouseClick(r.find<QPushButton>("cmdNext"), Qt::LeftButton);
        QVERIFY(!bar->isHidden() && !stop->isHidden());
        QVERIFY(bar->toolTip().startsWith("Indexing geocities.com/Area51"));
        QTRY_COMPARE(archive.requested.size(), 1);
        QTest::mouseClick(stop, Qt::LeftButton);
        QVERIFY(bar->isHidden() && stop->isHidden());
        QVERIFY(!nav.capturedWalk().fetcher().busy());
        archive.releaseStalled();
        nav.archiveMenu().mnuPagesOriginal.click();
    }

    void theListsTakeNoTyping()
    {
        WindowRig r;
        r.choose("cmbNeighborhood", "SoHo");
        r.choose("cmbSuburb", "Lofts");
        r.saveLink("lofts");
        r.choose("cmbNeighborhood", "Paris");
        r.saveLink("paris");
        r.choose("cmbSavedLinks", "lofts");
        r.show();
        NavigatorControls& c = r.w->navigator().controls();
        const QString shown = r.address();
        for (ListControl* model : {&c.cmbNeighborhood, &c.cmbSuburb, &c.cmbHouseNumberPrefix,
                                   &c.cmbHouseNumberSuffix, &c.cmbSavedLinks}) {
            const QString name = model->name();
            QComboBox* box = r.find<QComboBox>(name);
            QSignalSpy clicks(model, &Control::clicked);
            const int index = box->currentIndex();
            // Arrows, paging and Qt's keyboard search on the closed box.
            for (Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_End,
                                Qt::Key_Home, Qt::Key_P, Qt::Key_S, Qt::Key_9, Qt::Key_0})
                QTest::keyClick(box, key);
            QTest::keyClick(box, Qt::Key_Up, Qt::AltModifier);
            WidgetChecks::wheel(box, -1);
            WidgetChecks::wheel(box, 2);
            // The open list: no keyboard search, and the highlight moved by
            // the arrows is not chosen when the list closes without Return.
            for (Qt::Key closer : {Qt::Key_Escape, Qt::Key_F4}) {
                box->showPopup();
                QAbstractItemView* list = box->view();
                QTRY_VERIFY(list->isVisible());
                for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_P, Qt::Key_End})
                    QTest::keyClick(list, key);
                QTest::keyClick(list, closer);
                QTRY_VERIFY(!list->isVisible());
            }
            QVERIFY2(clicks.isEmpty(), qPrintable(name));
            QCOMPARE(box->currentIndex(), index);
            QCOMPARE(r.address(), shown);
        }
        QCOMPARE(c.cmbSavedLinks.text(), QString("lofts"));
        QCOMPARE(c.cmdSavedLinks0.text(), QString("Return"));

        // The mouse still chooses, and the focus keys still pass.
        QComboBox* hood = r.find<QComboBox>("cmbNeighborhood");
        hood->showPopup();
        QAbstractItemView* list = hood->view();
        QTRY_VERIFY(list->isVisible());
        const QModelIndex paris = list->model()->index(hood->findText("Paris"), 0);
        list->scrollTo(paris);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(paris).center());
        QTRY_VERIFY(!list->isVisible());
        QCOMPARE(r.address(), QString("geocities.com/Paris/1000/"));
        QCOMPARE(c.cmdSavedLinks0.text(), QString("Save"));
        // So does Return on the entry highlighted with the arrows.
        QComboBox* prefix = r.find<QComboBox>("cmbHouseNumberPrefix");
        QSignalSpy chosen(&c.cmbHouseNumberPrefix, &Control::clicked);
        prefix->showPopup();
        QTRY_VERIFY(prefix->view()->isVisible());
        QTest::keyClick(prefix->view(), Qt::Key_Down);
        QTest::keyClick(prefix->view(), Qt::Key_Down);
        QTest::keyClick(prefix->view(), Qt::Key_Return);
        QTRY_VERIFY(!prefix->view()->isVisible());
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(r.address(), QString("geocities.com/Paris/1200/"));
        r.w->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(r.w));
        hood->setFocus();
        QTest::keyClick(hood, Qt::Key_Tab);
        QVERIFY(r.find<QComboBox>("cmbSuburb")->hasFocus());
    }

    void theDropDownsOpenAboutTwentyRowsHigh()
    {
        WindowRig r;
        r.show();
        for (const char* name :
             {"cmbNeighborhood", "cmbHouseNumberPrefix", "cmbHouseNumberSuffix"}) {
            QComboBox* box = r.find<QComboBox>(name);
            QVERIFY(box->count() > 40);
            box->showPopup();
            QAbstractItemView* list = box->view();
            QTRY_VERIFY(list->isVisible());
            const int rows = qRound(double(list->viewport()->height()) / list->sizeHintForRow(0));
            QVERIFY2(rows >= 18 && rows <= 21, qPrintable(QString::number(rows) + " in " + name));
            box->hidePopup();
        }
    }

    void everyTouchOfTheSliderLeavesTheSavedLink()
    {
        WindowRig r;
        r.choose("cmbHouseNumberPrefix", "12");
        r.saveLink("twelve hundred");
        r.choose("cmbHouseNumberPrefix", "50");
        r.show();
        QSlider* slider = r.find<QSlider>("sldrHouseNumber");
        QPushButton* save = r.find<QPushButton>("cmdSavedLinks[0]");
        const std::function<void()> touches[] = {
            // The track far right of the handle: a page step, no sliderPressed.
            [&] {
                QTest::mouseClick(slider, Qt::LeftButton, {},
                                  QPoint(slider->width() - 3, slider->height() / 2));
            },
            [&] { QTest::keyClick(slider, Qt::Key_Right); },
            [&] { WidgetChecks::wheel(slider, 1); },
        };
        for (const auto& touch : touches) {
            r.choose("cmbSavedLinks", "twelve hundred");
            QCOMPARE(save->text(), QString("Return"));
            touch();
            QVERIFY(slider->value() != 1200);
            QCOMPARE(save->text(), QString("Save"));
            QVERIFY(r.find<QPushButton>("cmdSavedLinks[1]")->isHidden());
            QCOMPARE(r.address(), "geocities.com/Area51/" + QString::number(slider->value()) + "/");
            // Save now keeps the new number: no Return brings back 5000.
            QVERIFY(!r.w->navigator().savedLinks().SavedViewActive);
        }
    }

    void saveStaysWhereItStoodWhenALinkIsOnShow()
    {
        WindowRig r;
        r.choose("cmbNeighborhood", "SoHo");
        r.saveLink("soho");
        r.choose("cmbNeighborhood", "Paris");
        r.show();
        QPushButton* save = r.find<QPushButton>("cmdSavedLinks[0]");
        QPushButton* remove = r.find<QPushButton>("cmdSavedLinks[1]");
        const QPoint spot = save->mapTo(r.w, save->rect().center());

        r.choose("cmbSavedLinks", "soho");
        QTRY_VERIFY(remove->isVisible());
        QCoreApplication::sendPostedEvents(); // the layout places Delete
        QCOMPARE(r.w->childAt(spot), static_cast<QWidget*>(save));
        QVERIFY(remove->geometry().right() < save->geometry().left());
        QVERIFY(remove->geometry().left() > r.find<QComboBox>("cmbSavedLinks")->geometry().left());

        // A press where Save stood is Return and deletes nothing.
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(r.address(), QString("geocities.com/Paris/1000/"));
        QCOMPARE(r.t.db.recordCount("UsaSaved"), 1);
    }

    void aScreenReaderCanNameEveryControl()
    {
        WindowRig r;
        QCOMPARE(WidgetChecks::unnamedControls(r.w), QStringList());
    }

    void aStoredPlaceOffTheScreenKeepsTheWholeWindowOnIt()
    {
        WindowRig r([](AppContext& ctx) {
            ctx.SaveSetting("VorlanMain", "MF_L", "99999");
            ctx.SaveSetting("VorlanMain", "MF_T", "99999");
        });
        r.show();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(r.w->frameGeometry()));
        for (QPushButton* button : r.w->findChildren<QPushButton*>()) {
            const QRect place(button->mapToGlobal(QPoint()), button->size());
            QVERIFY2(screen.contains(place), qPrintable(button->objectName()));
        }
    }

    void theWindowKeepsItsSizeAndStaysOnTheScreen()
    {
        WindowRig r;
        QCOMPARE(r.w->minimumSize(), r.w->maximumSize());
        QVERIFY(r.w->x() >= 0 && r.w->y() >= 0);
        r.w->findChild<QAction*>("mnuOnTop")->trigger();
        QVERIFY(r.w->windowFlags() & Qt::WindowStaysOnTopHint);
        QVERIFY(r.t.state.gblnMainOnTop);
    }
};

// Opening an address starts the browser engine: its requests go to a local
// port where nothing answers, so nothing leaves the machine.
int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestGeoCitiesWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestGeoCitiesWindow.moc"
