#include "WindowRegistry.h"

#include "AppContext.h"
#include "WindowPlace.h"
#include "browserone/PopUpWindow.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/WebPage.h"
#include "browserone/frmWBOne.h"
#include "navigator/frmGeoCities.h"

#include <QGuiApplication>
#include <QScreen>

WindowRegistry::WindowRegistry(AppContext& ctx) : m_ctx(ctx) {}

WindowRegistry::~WindowRegistry()
{
    delete m_browserOne;
    delete m_main;
}

frmGeoCities* WindowRegistry::main(bool create)
{
    if (!m_main && create)
        m_main = new frmGeoCities(m_ctx, *this);
    return m_main;
}

bool WindowRegistry::has(const QString&) const { return false; }

bool WindowRegistry::show(ProgramWindow) { return false; }

void WindowRegistry::unload(ProgramWindow window)
{
    if (window == ProgramWindow::BrowserOne && m_browserOne)
        m_browserOne->close();
}

void WindowRegistry::ShowBrowserOne()
{
    SharedState& st = m_ctx.state;
    if (!st.gblnWBOneLoaded || !m_browserOne) {
        m_browserOne = new frmWBOne(m_ctx, main()->navigator(), *this);
        m_browserOne->show();
        st.gblnWBOneLoaded = true;
        return;
    }
    // Keep the browser clear of the tree docked at the screen's left edge.
    const int tree = treeWidthTwips();
    const int left = pixelsToTwips(m_browserOne->x());
    if (st.gblnTreeShown && tree + 5 >= left) {
        const QScreen* screen = QGuiApplication::primaryScreen();
        const int screenWidth = screen ? pixelsToTwips(screen->availableGeometry().width()) : 0;
        if (screenWidth - (tree + 5) < pixelsToTwips(m_browserOne->width()))
            m_browserOne->resize(twipsToPixels(screenWidth - (tree + 5)), m_browserOne->height());
        m_browserOne->move(twipsToPixels(tree + 5), m_browserOne->y());
    }
}

void WindowRegistry::browserNavigate(const QString& url)
{
    if (m_browserOne)
        m_browserOne->control().Navigate(url);
}

void WindowRegistry::browserStop()
{
    if (m_browserOne)
        m_browserOne->control().Stop();
}

void WindowRegistry::browserGoBack()
{
    if (m_browserOne)
        m_browserOne->control().GoBack();
}

void WindowRegistry::toggleBrowserOneOnTop()
{
    if (m_browserOne)
        m_browserOne->rules().TopClick();
}

QWebEnginePage* WindowRegistry::openPopUp()
{
    auto* window = new PopUpWindow([this] { return openPopUp(); });
    m_browsers.addPopUp(window, [window] { window->close(); });
    window->show();
    return window->webPage();
}

void WindowRegistry::unloadLinksPanel() {}
