#include "PopUpWindow.h"

#include "WebPage.h"

PopUpWindow::PopUpWindow(QWebEngineProfile* profile, std::function<QWebEnginePage*()> newWindow)
    : m_page(new WebPage(profile, this))
{
    setObjectName(QStringLiteral("PopUpWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_page->newWindow = std::move(newWindow);
    setPage(m_page);
    resize(480, 360);
    // Until its page has a title of its own.
    setWindowTitle(QStringLiteral("Vorlan"));
    connect(m_page, &QWebEnginePage::windowCloseRequested, this, &QWidget::close);
    connect(m_page, &QWebEnginePage::titleChanged, this, [this](const QString& title) {
        if (!title.isEmpty())
            setWindowTitle(title);
    });
}
