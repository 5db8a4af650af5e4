#pragma once

#include <QPointer>
#include <QString>

class BrowserControl;
class QEventLoop;

// The page's whole text, as select all and copy give it, waited for with
// events pumped. running, if given, holds the wait while it lasts, so that
// a stop can end it; the text is then empty.
QString PageTextOf(BrowserControl& browser, QPointer<QEventLoop>* running = nullptr);
