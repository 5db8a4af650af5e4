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
    connect(m_page, &QWebEnginePage::windowCloseRequested, this, &QWidget::close);
    connect(m_page, &QWebEnginePage::titleChanged, this, &QWidget::setWindowTitle);
}
