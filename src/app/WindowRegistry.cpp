#include "WindowRegistry.h"

#include "LinkImportUi.h"
#include "addressdata/MainDatabase.h"
#include "browserone/BrowserOneWindows.h"
#include "browserone/WebBrowserControl.h"
#include "browserone/frmWBOne.h"
#include "browsertwo/BrowserTwoWindows.h"
#include "browsertwo/WordListActions.h"
#include "browsertwo/frmWBTwo.h"
#include "core/AppContext.h"
#include "core/frmAbout.h"
#include "navigator/NeighborhoodPictures.h"
#include "navigator/frmGeoCities.h"
#include "netfetch/FileGetter.h"
#include "netfetch/NetFetchWindows.h"
#include "publishing/PublishingWindows.h"

WindowRegistry::WindowRegistry(AppContext& ctx) : m_ctx(ctx)
{
    add(
        ProgramWindow::BrowserOne, [this] { ShowBrowserOne(); },
        [this] { browserOneWindows().unload(); });
    if (m_wordLists)
        add(
            ProgramWindow::BrowserTwo, [this] { browserTwoWindows().ShowBrowserTwo(); },
            [this] {
                if (m_browserTwo)
                    m_browserTwo->unload();
            });
    add(ProgramWindow::About, [this] {
        frmAbout about(m_ctx.prompts, NeighborhoodPictures::picture(false, 1), m_main.get());
        about.exec();
    });
    add(ProgramWindow::LinkImport, [this] {
        LinkImportUi screen(m_ctx, *this);
        DatabaseAction(m_ctx, 3, &screen);
    });
    add(
        ProgramWindow::GeoTree, [this] { netFetchWindows().showTree(); },
        [this] { netFetchWindows().unloadTree(); });
    add(ProgramWindow::NetPics, [this] { netFetchWindows().showNetPics(); });
    add(
        ProgramWindow::Inetget,
        [this] { netFetchWindows().frmInetgetCalls(int(InetgetCall::GetList)); },
        [this] {
            if (m_netFetch)
                m_netFetch->unloadGetter();
        });
    add(
        ProgramWindow::Export, [this] { publishingWindows().showExport(); },
        [this] {
            if (m_publishing)
                m_publishing->unloadExport();
        });
    add(
        ProgramWindow::GeoFtp, [this] { publishingWindows().showGeoFtp(); },
        [this] {
            if (m_publishing)
                m_publishing->unloadGeoFtp();
        });
}

// Browser One's windows reach into the main window's rules: they go first.
WindowRegistry::~WindowRegistry()
{
    m_publishing.reset();
    m_netFetch.reset();
    m_browserTwo.reset();
    m_browserOne.reset();
    m_main.reset();
}

void WindowRegistry::add(ProgramWindow window, std::function<void()> show,
                         std::function<void()> unload)
{
    m_windows[window] = Entry{std::move(show), std::move(unload)};
}

frmGeoCities* WindowRegistry::main(bool create)
{
    if (!m_main && create) {
        m_main = std::make_unique<frmGeoCities>(m_ctx, *this);
        m_browserOne = std::make_unique<BrowserOneWindows>(
            m_ctx, m_main->navigator(), [this] { return static_cast<QWidget*>(m_main.get()); },
            [this] { return treeWidthTwips(); });
    }
    return m_main.get();
}

BrowserOneWindows& WindowRegistry::browserOneWindows()
{
    main();
    return *m_browserOne;
}

BrowserTwoWindows& WindowRegistry::browserTwoWindows()
{
    main();
    if (!m_browserTwo) {
        BrowserTwoWindows::Links links;
        links.profile = [this] { return browserOneWindows().profile(); };
        links.openPopUp = [this] { return browserOneWindows().openPopUp(); };
        links.browsers = [this]() -> BrowserWindowList& { return browsers(); };
        links.mainCall = [this](GeoCitiesCall code) {
            m_main->navigator().frmGeoCitiesCalls(code);
        };
        links.clearTopmost = [this] {
            if (m_ctx.state.gblnMainOnTop)
                m_main->navigator().frmGeoCitiesCalls(GeoCitiesCall::OnTop);
            if (m_ctx.state.gblnWBOneOnTop)
                toggleBrowserOneOnTop();
        };
        links.getFileList = [this] { netFetchWindows().GetFileListMenu(3); };
        links.splashPicture = [] { return NeighborhoodPictures::picture(false, 1); };
        m_browserTwo = std::make_unique<BrowserTwoWindows>(m_ctx, *m_wordLists, links);
    }
    return *m_browserTwo;
}

NetFetchWindows& WindowRegistry::netFetchWindows()
{
    main();
    if (!m_netFetch) {
        NetFetchWindows::Links links;
        links.browserWindow = [this](GeoTreeHost::Browser which) -> QWidget* {
            return which == GeoTreeHost::BrowserOne ? browserOne() : nullptr;
        };
        links.showBrowserOne = [this] { ShowBrowserOne(); };
        links.treeUnloaded = [this] {
            m_main->navigator().controls().mnuGeoTree.setChecked(false);
        };
        links.profile = [this] { return browserOneWindows().profile(); };
        links.browserControl = [this](int which) -> BrowserControl* {
            if (which == 2)
                return m_browserTwo ? m_browserTwo->browserControl() : nullptr;
            frmWBOne* browser = which == 1 ? browserOne() : nullptr;
            return browser ? &browser->control() : nullptr;
        };
        links.communicatWithNetPic = [this](const QStringList& pages) {
            ShowBrowserOne();
            if (frmWBOne* browser = browserOne())
                browser->rules().CommunicatWithNetPic(pages);
        };
        m_netFetch = std::make_unique<NetFetchWindows>(m_ctx, m_main->navigator(), links);
    }
    return *m_netFetch;
}

PublishingWindows& WindowRegistry::publishingWindows()
{
    main();
    if (!m_publishing)
        m_publishing = std::make_unique<PublishingWindows>(m_ctx, [this](const QString& path) {
            m_main->navigator().NavigateSomeWhereElse(path);
        });
    return *m_publishing;
}

int WindowRegistry::treeWidthTwips() const
{
    return m_netFetch ? m_netFetch->treeWidthTwips() : 0;
}

frmWBOne* WindowRegistry::browserOne() const
{
    return m_browserOne ? m_browserOne->browserOne() : nullptr;
}

frmWBOLinks* WindowRegistry::linksPanel() const
{
    return m_browserOne ? m_browserOne->linksPanel() : nullptr;
}

BrowserWindowList& WindowRegistry::browsers()
{
    return browserOneWindows().browsers();
}

void WindowRegistry::ShowBrowserOne()
{
    browserOneWindows().ShowBrowserOne();
}

void WindowRegistry::browserNavigate(const QString& url)
{
    browserOneWindows().navigate(url);
}

void WindowRegistry::browserStop()
{
    browserOneWindows().stop();
}

void WindowRegistry::browserGoBack()
{
    browserOneWindows().goBack();
}

void WindowRegistry::toggleBrowserOneOnTop()
{
    browserOneWindows().toggleOnTop();
}

QString WindowRegistry::browserTitle() const
{
    return m_browserOne ? m_browserOne->title() : QString();
}

bool WindowRegistry::hasWindow(ProgramWindow window) const
{
    return m_windows.count(window) > 0;
}

bool WindowRegistry::showWindow(ProgramWindow window)
{
    const auto found = m_windows.find(window);
    if (found == m_windows.end())
        return false;
    found->second.show();
    return true;
}

void WindowRegistry::unloadWindow(ProgramWindow window)
{
    const auto found = m_windows.find(window);
    if (found != m_windows.end() && found->second.unload)
        found->second.unload();
}
