#include "EngineEnvironment.h"
#include "WindowsRig.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOne.h"
#include "core/SettingsKeys.h"
#include "publishing/frmGeoFtp.h"
#include "publishing/frmVBScript.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWebEnginePage>
#include <QtTest>

namespace {

// A page that keeps the errors its scripts report.
class ErrorPage : public QWebEnginePage
{
public:
    QStringList errors;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int,
                                  const QString&) override
    {
        if (level == ErrorMessageLevel)
            errors << message;
    }
};

// Loads a file in the engine; its script errors, or a note that it did not
// load. probed: what the probe script answered.
QStringList scriptErrors(const QString& path, const QString& probe = QString(),
                         QString* probed = nullptr)
{
    ErrorPage page;
    bool loaded = false;
    bool ok = false;
    QObject::connect(&page, &QWebEnginePage::loadFinished, [&](bool success) {
        loaded = true;
        ok = success;
    });
    page.load(QUrl::fromLocalFile(path));
    if (!QTest::qWaitFor([&] { return loaded; }, 40000) || !ok)
        return {"not loaded: " + path};
    QString answer;
    bool done = false;
    page.runJavaScript(probe.isEmpty() ? QString("document.readyState") : probe,
                       [&](const QVariant& v) {
                           answer = v.toString();
                           done = true;
                       });
    if (!QTest::qWaitFor([&] { return done; }, 40000))
        return {"no answer: " + path};
    QTest::qWait(200); // a late error of a frame still reports
    if (probed)
        *probed = answer;
    return page.errors;
}

// Opens "Create a web Page" from the Navigator's menu, the output folder
// set to out; the window on show, or null.
frmVBScript* openBuilder(WindowsRig& r, QString* out)
{
    *out = r.t.folders.root() + "/out/";
    QDir().mkpath(*out);
    r.t.ctx.SaveSetting(Sect::CacheManager, Key::DefaultOutPutDir, *out);
    QAction* entry = r.main->findChild<QAction*>("mnuScript");
    if (!entry->isEnabled())
        return nullptr;
    entry->trigger();
    return WindowsRig::topLevel<frmVBScript>(true);
}

} // namespace

class TestPageBuilderWindow : public QObject
{
    Q_OBJECT

private slots:
    // The user opens "Create a web Page", shapes and adds items by the
    // window's buttons, boxes and lists, picks a font, writes the page and
    // sees it in Browser One; Quick Page of the publisher brings the same
    // window back after Close.
    void buildThroughTheWindow()
    {
        WindowsRig r;
        TestContext& t = r.t;
        QString out;
        frmVBScript* w = openBuilder(r, &out);
        QVERIFY(w);
        QVERIFY(QTest::qWaitForWindowExposed(w));
        QCOMPARE(w->windowTitle(), QString("Click buttons to add items to the document."));
        QCOMPARE(w->findChild<QLabel*>("lblOutPutFile")->text(), out + "index.htm");
        QVERIFY(!w->findChild<QPushButton*>("cmdVBSButtons[8]")->isEnabled());

        auto* question = w->findChild<QLineEdit*>("txtVBSText[0]");
        QCOMPARE(question->accessibleName(), QString("Input box question"));
        QTest::mouseClick(question, Qt::LeftButton);
        QTRY_COMPARE(question->selectedText(), QString("Input box text"));
        QTest::keyClicks(question, "Your name?");
        QTest::mouseClick(w->findChild<QPushButton*>("cmdVBSButtons[0]"), Qt::LeftButton);
        QVERIFY(w->windowTitle().startsWith("INPUT BOX ADDED! InPutBox"));

        // The width list takes digits only; its whole text is selected first.
        auto* width = w->findChild<QComboBox*>("cboVBSSelect[0]");
        QVERIFY(width->isEditable());
        QTest::mouseClick(width->lineEdit(), Qt::LeftButton);
        QTRY_COMPARE(width->lineEdit()->selectedText(), QString("41"));
        QTest::keyClicks(width->lineEdit(), "a7-b5");
        QCOMPARE(width->currentText(), QString("75"));
        auto* type = w->findChild<QComboBox*>("cboVBSSelect[8]");
        QVERIFY(!type->isEditable());
        type->setFocus();
        QTest::keyClick(type, Qt::Key_P); // the list takes no typing
        QCOMPARE(type->currentText(), QString("TEXT"));
        QTest::mouseClick(w->findChild<QPushButton*>("cmdVBSButtons[1]"), Qt::LeftButton);
        QVERIFY(w->rules().page().strBody.contains("             SIZE = \"75\"\r\n"));

        t.prompts.answerFont({"DejaVu Sans", 12, 32768});
        QTest::mouseClick(w->findChild<QPushButton*>("cmdBodyFont"), Qt::LeftButton);
        QCOMPARE(w->rules().page().strBodyFont,
                 QString("FACE = \"DejaVu Sans\" SIZE = \"3\" COLOR = \"32768\" "));
        auto* center = w->findChild<QPushButton*>("cmdCenter");
        QTest::mouseClick(center, Qt::LeftButton);
        QCOMPARE(center->text(), QString("Center On"));
        QVERIFY(center->styleSheet().contains("255, 0, 0"));
        QTest::mouseClick(center, Qt::LeftButton);
        QCOMPARE(center->text(), QString("Center Off"));
        QVERIFY(center->styleSheet().isEmpty());

        QTest::mouseClick(w->findChild<QCheckBox*>("chkOpenFile"), Qt::LeftButton);
        QTest::mouseClick(w->findChild<QPushButton*>("cmdWriteToFile"), Qt::LeftButton);
        QCOMPARE(w->windowTitle(), "Written to =>" + out + "index.htm");
        QCOMPARE(w->findChild<QLabel*>("lblOutPutFile")->text(), out + "index1.htm");
        QVERIFY(t.prompts.messages().isEmpty());
        frmWBOne* browser = r.windows.browserOne();
        QVERIFY(browser);
        QTRY_VERIFY_WITH_TIMEOUT(browser->control().LocationURL().endsWith("/out/index.htm"),
                                 40000);

        QTest::mouseClick(w->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
        QTRY_VERIFY(!WindowsRig::topLevel<frmVBScript>());
        QVERIFY(!t.ctx.GetSetting(Sect::Startup, Key::VBS_Top).isEmpty());

        r.main->findChild<QAction*>("mnuPublish")->trigger();
        frmGeoFtp* publisher = WindowsRig::topLevel<frmGeoFtp>(true);
        QVERIFY(publisher);
        auto* quickPage = publisher->findChild<QPushButton*>("cmdCreate");
        QVERIFY(quickPage->isEnabled());
        QTest::mouseClick(quickPage, Qt::LeftButton);
        w = WindowsRig::topLevel<frmVBScript>(true);
        QVERIFY(w);
        QCOMPARE(w->findChild<QLabel*>("lblOutPutFile")->text(), out + "index1.htm");
    }

    // Every page the builder writes loads in the engine. The only script
    // error is the one the written page is made with: its body names the
    // VBScript routine BodyTextOnLoad, which the engine, running no
    // VBScript, does not know. Typed markup stays text and runs nothing.
    void pagesLoadInTheEngine()
    {
        WindowsRig r;
        QString out;
        frmVBScript* w = openBuilder(r, &out);
        QVERIFY(w);
        PageBuilder& b = w->rules();
        const QString attack = "\"><script>document.title='hit'</script>\r\n\u4E2D";
        for (int i = 0; i < 7; ++i)
            b.txtVBSText[i]->setText(attack + QString::number(i));
        b.cmdCenter.click();
        for (int item : {0, 1, 2, 3, 5, 7, 8, 10, 11, 12})
            b.cmdVBSButtons[item]->click();
        b.cmdWriteToFile.click();
        b.cmdSkeleton.click();
        b.cmdThreeFrameSite.click();
        QVERIFY(r.t.prompts.messages().isEmpty());

        QString seen;
        QCOMPARE(scriptErrors(out + "index.htm",
                              "[document.title, document.forms[0].elements.length,"
                              " document.forms[0].elements[0].value,"
                              " document.querySelectorAll('option').length].join('|')",
                              &seen),
                 QStringList{"Uncaught ReferenceError: BodyTextOnLoad is not defined"});
        QCOMPARE(seen, "|7|" + attack.left(39) + " \u4E2D1|1");
        QVERIFY(scriptErrors(out + "view.htm").isEmpty());
        QCOMPARE(scriptErrors(out + "index1.htm", "document.forms[0].elements[0].value", &seen),
                 QStringList());
        QCOMPARE(seen, attack.left(39) + " \u4E2D1");
        QCOMPARE(scriptErrors(out + "index2.htm",
                              "Array.from(window.frames).map(f => f.document.body ? "
                              "f.document.body.childElementCount : -1).join(',')",
                              &seen),
                 QStringList());
        QVERIFY2(!seen.split(',').contains("-1") && seen.count(',') == 2, qPrintable(seen));
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestPageBuilderWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestPageBuilderWindow.moc"
