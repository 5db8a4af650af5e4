#include "BrowserTwoWindows.h"

#include "WordListActions.h"
#include "browserone/WebBrowserControl.h"
#include "core/AppContext.h"
#include "core/PlaceWindow.h"
#include "core/WindowPlace.h"
#include "core/frmStartUp.h"
#include "frmWBTLinks.h"
#include "frmWBTNote.h"
#include "frmWBTwo.h"

#include <QListWidget>
#include <QPlainTextEdit>

#include <QCoreApplication>

BrowserTwoWindows::BrowserTwoWindows(AppContext& ctx, WordListActions& lists, Links links)
    : m_ctx(ctx), m_lists(lists), m_links(std::move(links))
{
}

BrowserTwoWindows::~BrowserTwoWindows()
{
    delete m_window;
}

frmWBTwo* BrowserTwoWindows::window() const
{
    return m_window;
}

frmWBTLinks* BrowserTwoWindows::linksWindow() const
{
    return m_linksWindow;
}

frmWBTNote* BrowserTwoWindows::noteWindow() const
{
    return m_note;
}

BrowserControl* BrowserTwoWindows::browserControl() const
{
    return m_window ? &m_window->control() : nullptr;
}

void BrowserTwoWindows::ShowBrowserTwo()
{
    SharedState& st = m_ctx.state;
    if (st.gblnWBTwoLoaded && m_window) {
        m_window->showNormal();
        m_window->raise();
        m_window->activateWindow();
        return;
    }
    // The reading and the window's load yield to the event loop, where a
    // second press of the entry must not open a second walker.
    if (m_opening)
        return;
    m_opening = true;
    if (readWordSource())
        open();
    m_opening = false;
}

void BrowserTwoWindows::open()
{
    SharedState& st = m_ctx.state;
    m_window = new frmWBTwo(m_ctx, m_lists, *this);
    m_window->show();
    if (!m_sourceName.isNull())
        m_window->rules().WBTPassSometext(m_sourceName);
    m_window->rules().Pseudo(m_pseudo);
    st.gblnWBTwoLoaded = true;
}

// The words are read behind the splash window, which shows until then.
bool BrowserTwoWindows::readWordSource()
{
    const QPixmap picture = m_links.splashPicture ? m_links.splashPicture() : QPixmap();
    frmStartUp splash(m_ctx.state, picture);
    splash.show();
    while (!m_ctx.state.gblnStartUpShown)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    m_sourceName = QString();
    const bool read = m_lists.PickWordSource(QString());
    splash.close();
    return read;
}

void BrowserTwoWindows::unload()
{
    if (m_window)
        m_window->close();
}

void BrowserTwoWindows::frmWBTCalls(WBTCall command)
{
    if (m_window)
        m_window->rules().frmWBTCalls(command);
}

void BrowserTwoWindows::mainCall(GeoCitiesCall code)
{
    if (m_links.mainCall)
        m_links.mainCall(code);
}

void BrowserTwoWindows::getFileList()
{
    if (m_links.getFileList)
        m_links.getFileList();
}

void BrowserTwoWindows::unloadLinkWindows()
{
    closePanel();
    closeNote();
}

QRect BrowserTwoWindows::screenTwips() const
{
    return PixelsToTwips(QRect(QPoint(), AvailableScreen().size()));
}

QRect BrowserTwoWindows::panelTwips() const
{
    if (!m_linksWindow)
        return QRect(0, 0, WindowPlace::MinWidth, WindowPlace::MinHeight);
    return PixelsToTwips(QRect(m_linksWindow->pos(), m_linksWindow->size()));
}

void BrowserTwoWindows::placePanel(const QString& left, const QString& top, const QString& height,
                                   const QString& width)
{
    if (!m_linksWindow && m_window)
        m_linksWindow = new frmWBTLinks(m_window->links(), m_window);
    if (m_linksWindow)
        PlaceWindow(m_linksWindow, m_ctx.state, left, top, height, width, false, 0);
}

void BrowserTwoWindows::showPanel()
{
    if (!m_linksWindow)
        return;
    m_linksWindow->show();
    m_linksWindow->raise();
    m_linksWindow->lstWBTLinks()->setFocus();
}

void BrowserTwoWindows::closePanel()
{
    if (m_linksWindow)
        m_linksWindow->close();
}

void BrowserTwoWindows::showNote()
{
    if (!m_note && m_window)
        m_note = new frmWBTNote(m_window->links(), m_window);
    if (!m_note)
        return;
    m_note->show();
    m_note->raise();
    m_note->activateWindow();
    m_note->txtNote()->setFocus();
}

void BrowserTwoWindows::closeNote()
{
    if (m_note)
        m_note->close();
}

void BrowserTwoWindows::Pseudo(int count)
{
    if (m_window)
        m_window->rules().Pseudo(count);
}

// A name given before the walker is made waits for it.
void BrowserTwoWindows::WBTPassSometext(const QString& name)
{
    m_sourceName = name;
    if (m_window)
        m_window->rules().WBTPassSometext(name);
}

// Kept for the opening of the walker; a source read afresh while it is open
// goes to it at once.
void BrowserTwoWindows::GPysuedo(int count)
{
    m_pseudo = count;
    if (m_window && m_window->rules().WindowReady)
        m_window->rules().Pseudo(count);
}

void BrowserTwoWindows::clearTopmost()
{
    if (m_links.clearTopmost)
        m_links.clearTopmost();
}
