#include "BrowserOneWindows.h"

#include "PopUpWindow.h"
#include "WebBrowserControl.h"
#include "WebPage.h"
#include "core/AppContext.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"
#include "frmWBOLinks.h"
#include "frmWBOne.h"
#include "navigator/MainWindowCalls.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QScreen>
#include <QWebEngineProfile>

BrowserOneWindows::BrowserOneWindows(AppContext& ctx, MainWindowCalls& main,
                                     std::function<QWidget*()> mainWindow,
                                     std::function<int()> treeWidth)
    : m_ctx(ctx), m_main(main), m_mainWindow(std::move(mainWindow)),
      m_treeWidth(std::move(treeWidth))
{
}

// Every page goes before the profile it belongs to.
BrowserOneWindows::~BrowserOneWindows()
{
    for (const QPointer<PopUpWindow>& window : m_popUps)
        delete window;
    delete m_linksPanel;
    delete m_browserOne;
    delete m_profile;
}

frmWBOne* BrowserOneWindows::browserOne() const
{
    return m_browserOne;
}

frmWBOLinks* BrowserOneWindows::linksPanel() const
{
    return m_linksPanel;
}

QWebEngineProfile* BrowserOneWindows::profile()
{
    if (!m_profile)
        m_profile = new QWebEngineProfile(QStringLiteral("Vorlan"));
    return m_profile;
}

void BrowserOneWindows::ShowBrowserOne()
{
    SharedState& st = m_ctx.state;
    if (!st.gblnWBOneLoaded || !m_browserOne) {
        m_browserOne = new frmWBOne(m_ctx, m_main, *this);
        m_browserOne->show();
        st.gblnWBOneLoaded = true;
        return;
    }
    // Keep the browser clear of the tree docked at the screen's left edge.
    const int tree = treeWidthTwips();
    const int left = pixelsToTwips(m_browserOne->x());
    if (st.gblnTreeShown && tree + 5 >= left) {
        const int screenWidth = screenTwips().width();
        if (screenWidth - (tree + 5) < pixelsToTwips(m_browserOne->width()))
            m_browserOne->resize(twipsToPixels(screenWidth - (tree + 5)), m_browserOne->height());
        m_browserOne->move(twipsToPixels(tree + 5), m_browserOne->y());
    }
}

void BrowserOneWindows::navigate(const QString& url)
{
    if (m_browserOne)
        m_browserOne->control().Navigate(url);
}

void BrowserOneWindows::stop()
{
    if (m_browserOne)
        m_browserOne->control().Stop();
}

void BrowserOneWindows::goBack()
{
    if (m_browserOne)
        m_browserOne->control().GoBack();
}

void BrowserOneWindows::toggleOnTop()
{
    if (m_browserOne)
        m_browserOne->rules().TopClick();
}

QString BrowserOneWindows::title() const
{
    return m_browserOne ? m_browserOne->control().LocationName() : QString();
}

void BrowserOneWindows::unload()
{
    if (m_browserOne)
        m_browserOne->close();
}

QWebEnginePage* BrowserOneWindows::openPopUp()
{
    auto* window = new PopUpWindow(profile(), [this] { return openPopUp(); });
    m_popUps.removeAll(nullptr);
    m_popUps.append(window);
    m_browsers.addPopUp(window, [window] { window->close(); });
    window->show();
    return window->webPage();
}

QRect BrowserOneWindows::screenTwips() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
    return QRect(0, 0, pixelsToTwips(area.width()), pixelsToTwips(area.height()));
}

QRect BrowserOneWindows::panelTwips() const
{
    if (!m_linksPanel)
        return QRect(0, 0, WindowPlace::MinWidth, WindowPlace::MinHeight);
    const QRect place(m_linksPanel->pos(), m_linksPanel->size());
    return QRect(pixelsToTwips(place.left()), pixelsToTwips(place.top()),
                 pixelsToTwips(place.width()), pixelsToTwips(place.height()));
}

void BrowserOneWindows::placePanel(const QString& left, const QString& top, const QString& height,
                                   const QString& width)
{
    if (!m_linksPanel && m_browserOne)
        m_linksPanel =
            new frmWBOLinks(m_main.savedLinks(), m_browserOne->linksPanel(), m_browserOne);
    PlaceWindow(m_linksPanel, m_ctx.state, left, top, height, width, false, treeWidthTwips());
}

void BrowserOneWindows::showPanel()
{
    if (!m_linksPanel)
        return;
    m_linksPanel->show();
    m_linksPanel->raise();
    m_linksPanel->activateWindow();
    m_linksPanel->lstLinks()->setFocus();
}

void BrowserOneWindows::closePanel()
{
    if (m_linksPanel)
        m_linksPanel->close();
}
