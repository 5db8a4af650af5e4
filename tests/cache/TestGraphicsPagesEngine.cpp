#include "CacheActionRig.h"
#include "EngineEnvironment.h"

#include <QApplication>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

namespace {

// A page that keeps the script errors it reports.
class ErrorRecordingPage : public QWebEnginePage
{
public:
    QStringList errors;

protected:
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                  int line, const QString&) override
    {
        if (level == ErrorMessageLevel)
            errors << QString("%1: %2").arg(line).arg(message);
    }
};

QString evaluate(QWebEnginePage* page, const QString& script)
{
    QString result;
    bool done = false;
    page->runJavaScript(script, [&](const QVariant& v) {
        result = v.toString();
        done = true;
    });
    if (!QTest::qWaitFor([&] { return done; }, 40000))
        return QStringLiteral("<no answer>");
    return result;
}

} // namespace

class TestGraphicsPagesEngine : public QObject
{
    Q_OBJECT

private slots:
    // The pages the engine is handed load without a script error and show
    // their rows, pictures and empty cells; names with blanks, brackets and
    // quotes reach the engine whole.
    void pagesLoadInTheEngine()
    {
        CacheActionRig r;
        r.list({{"skip.jpg", ""},
                {"one two.jpg", ""},
                {"b [1].gif", ""},
                {"say \"hi\".jpg", ""},
                {"d.gif", ""},
                {"e.jpg", ""}});
        r.run(5);
        QCOMPARE(r.host.pages.size(), 1);

        QWebEngineView view;
        auto* page = new ErrorRecordingPage;
        view.setPage(page);
        QSignalSpy loaded(page, &QWebEnginePage::loadFinished);
        view.load(QUrl::fromLocalFile(r.host.pages[0]));
        QTRY_COMPARE_WITH_TIMEOUT(loaded.size(), 1, 40000);
        QVERIFY(loaded[0][0].toBool());
        QCOMPARE(page->title(), QString("Vorlan's Cache Graphics Browse File"));
        QCOMPARE(evaluate(page, "[document.querySelectorAll('tr').length,"
                                " document.images.length,"
                                " decodeURIComponent(document.images[2].src),"
                                " document.images[7].alt].join('|')"),
                 QString("2|8|file://" + r.listed + "say \"hi\".jpg|No Picture to display!"));
        QCOMPARE(page->errors, QStringList());
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    EngineEnvironment::prepare(QStringLiteral("http://127.0.0.1:9"));
    TestGraphicsPagesEngine test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestGraphicsPagesEngine.moc"
