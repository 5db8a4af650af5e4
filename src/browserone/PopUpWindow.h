#pragma once

#include <QWebEngineView>
#include <functional>

class WebPage;

// A browser window that a page opened. It shows what the page put there
// and closes with its page's request or when the program closes pop-ups.
class PopUpWindow : public QWebEngineView
{
    Q_OBJECT
public:
    // newWindow: how a further window wished by this page is made.
    PopUpWindow(QWebEngineProfile* profile, std::function<QWebEnginePage*()> newWindow);

    WebPage* webPage() const { return m_page; }

private:
    WebPage* m_page;
};
