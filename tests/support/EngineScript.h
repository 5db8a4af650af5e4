#pragma once

#include <QString>
#include <QTest>
#include <QVariant>
#include <QWebEnginePage>

// What a page's script gives back, as text, once the engine has answered;
// "<no answer>" when it does not within 40 seconds. For tests that run the
// real engine (they link the windows' library).
inline QString evaluateScript(QWebEnginePage* page, const QString& script)
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
