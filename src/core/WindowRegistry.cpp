#include "WindowRegistry.h"

#include "AppContext.h"
#include "PlaceWindow.h"
#include "WindowPlace.h"
#include "browserone/PopUpWindow.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/WebPage.h"
#include "browserone/frmWBOne.h"
#include "frmAbout.h"
#include "navigator/frmGeoCities.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QScreen>
#include <QWebEngineProfile>

WindowRegistry::WindowRegistry(AppContext& ctx) : m_ctx(ctx) {}

// Every page goes before the profile it belongs to.
WindowRegistry::~WindowRegistry()
{
    for (const QPointer<PopUpWindow>& window : m_popUps)
        delete window;
    delete m_linksPanel;
    delete m_browserOne;
    delete m_main;
    delete m_profile;
}

QWebEngineProfile* WindowRegistry::profile()
{
    if (!m_profile)
        m_profile = new QWebEngineProfile(QStringLiteral("Vorlan"));
    return m_profile;
}

frmGeoCities* WindowRegistry::main(bool create)
{
    if (!m_main && create)
        m_main = new frmGeoCities(m_ctx, *this);
    return m_main;
}

bool WindowRegistry::has(const QString&) const
{
    return false;
}

bool WindowRegistry::show(ProgramWindow window)
{
    if (window == ProgramWindow::About) {
        frmAbout about(m_ctx.prompts, main(false));
        about.exec();
        return true;
    }
    return false;
}

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
    auto* window = new PopUpWindow(profile(), [this] { return openPopUp(); });
    m_popUps.removeAll(nullptr);
    m_popUps.append(window);
    m_browsers.addPopUp(window, [window] { window->close(); });
    window->show();
    return window->webPage();
}

void WindowRegistry::unloadLinksPanel()
{
    closePanel();
}

QRect WindowRegistry::screenTwips() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
    return QRect(0, 0, pixelsToTwips(area.width()), pixelsToTwips(area.height()));
}

QRect WindowRegistry::panelTwips() const
{
    if (!m_linksPanel)
        return QRect(0, 0, WindowPlace::MinWidth, WindowPlace::MinHeight);
    const QRect place(m_linksPanel->pos(), m_linksPanel->size());
    return QRect(pixelsToTwips(place.left()), pixelsToTwips(place.top()),
                 pixelsToTwips(place.width()), pixelsToTwips(place.height()));
}

void WindowRegistry::placePanel(const QString& left, const QString& top, const QString& height,
                                const QString& width)
{
    if (!m_linksPanel && m_browserOne && m_main)
        m_linksPanel = new frmWBOLinks(m_main->navigator().savedLinks(), m_browserOne->linksPanel(),
                                       m_browserOne);
    PlaceWindow(m_linksPanel, m_ctx.state, left, top, height, width, false, treeWidthTwips());
}

void WindowRegistry::showPanel()
{
    if (!m_linksPanel)
        return;
    m_linksPanel->show();
    m_linksPanel->raise();
    m_linksPanel->activateWindow();
    m_linksPanel->lstLinks()->setFocus();
}

void WindowRegistry::closePanel()
{
    if (m_linksPanel)
        m_linksPanel->close();
}
