// Every window of the program, as it first shows: a title of its own and
// the program's icon, with the desktop id that matches its menu entry.
#include "EngineEnvironment.h"
#include "TestContext.h"
#include "app/DesktopIdentity.h"
#include "app/MainStartupUi.h"
#include "app/WindowRegistry.h"
#include "browserone/PopUpWindow.h"
#include "browserone/frmWBOne.h"
#include "navigator/frmGeoCities.h"

#include <QApplication>
#include <QWebEngineProfile>
#include <QtTest>

namespace {
// What each top-level window looked like at its first show.
struct FirstShow
{
    QString title;
    bool hasIcon = false;
};

class ShowRecorder : public QObject
{
public:
    QMap<QString, FirstShow> shown;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* w = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && w && w->isWindow() &&
            !shown.contains(w->metaObject()->className()))
            shown.insert(w->metaObject()->className(),
                         {w->windowTitle(), !w->windowIcon().isNull()});
        return false;
    }
};

// Closes the modal window that is open once the event loop runs.
void closeModalSoon()
{
    QTimer::singleShot(0, [] {
        if (QWidget* modal = QApplication::activeModalWidget())
            modal->close();
    });
}
} // namespace

class TestWindowIdentity : public QObject
{
    Q_OBJECT

private slots:
    void theIconComesInEverySizeAndTheIdNamesTheEntry()
    {
        DesktopIdentity::apply();
        QCOMPARE(QGuiApplication::desktopFileName(), QString("org.example.Vorlan"));
        const QList<QSize> sizes = QApplication::windowIcon().availableSizes();
        for (int side : {16, 22, 24, 32, 48, 64, 128, 256})
            QVERIFY2(sizes.contains(QSize(side, side)), qPrintable(QString::number(side)));
    }

    void everyWindowHasATitleAndTheIconFromItsFirstShow()
    {
        DesktopIdentity::apply();
        ShowRecorder recorder;
        qApp->installEventFilter(&recorder);
        TestContext t;
        t.createAndOpenDatabase();
        WindowRegistry windows(t.ctx);
        MainStartupUi ui(t.ctx, windows, t.folders.root() + "/vorlan.lock");
        ui.showSplash(QStringLiteral("    Loading Data..."));
        ui.unloadSplash();
        windows.main()->navigator().LoadCatalogue();
        windows.main()->show();
        windows.ShowBrowserOne();
        windows.browserOne()->linksPanel().SavedClick();
        closeModalSoon();
        QVERIFY(windows.showWindow(ProgramWindow::About));
        QVERIFY(windows.showWindow(ProgramWindow::GeoTree));
        QVERIFY(windows.showWindow(ProgramWindow::NetPics));
        QWebEngineProfile profile;
        auto* popUp = new PopUpWindow(&profile, {});
        popUp->show();

        for (const char* window : {"frmStartUp", "frmGeoCities", "frmWBOne", "frmWBOLinks",
                                   "frmAbout", "PopUpWindow", "frmTreeView", "frmNetPics"})
            QVERIFY2(recorder.shown.contains(window), window);
        for (auto it = recorder.shown.cbegin(); it != recorder.shown.cend(); ++it) {
            QVERIFY2(!it->title.trimmed().isEmpty(), qPrintable(it.key()));
            QVERIFY2(it->hasIcon, qPrintable(it.key()));
        }
        delete popUp;
        qApp->removeEventFilter(&recorder);
    }
};

int main(int argc, char* argv[])
{
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    QApplication app(argc, argv);
    TestWindowIdentity test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestWindowIdentity.moc"
